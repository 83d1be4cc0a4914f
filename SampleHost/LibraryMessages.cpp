// SPDX-License-Identifier: MIT
#include "LibraryMessages.h"

#include <QLatin1String>
#include <QMutex>
#include <QString>

namespace {

const QLatin1String Beginning("VyFileDialogs: ");

QtMessageHandler previous;

struct Message
{
    QMutex mutex; // any thread may say something
    QString text;
};

Message& lastMessage()
{
    static Message message;
    return message;
}

void onMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.startsWith(Beginning)) {
        const QMutexLocker locker(&lastMessage().mutex);
        lastMessage().text = message.mid(Beginning.size());
    }
    previous(type, context, message);
}

} // namespace

LibraryMessages::LibraryMessages()
{
    lastMessage().text.clear();
    previous = qInstallMessageHandler(onMessage);
}

LibraryMessages::~LibraryMessages()
{
    qInstallMessageHandler(previous);
}

QString LibraryMessages::last() const
{
    const QMutexLocker locker(&lastMessage().mutex);
    return lastMessage().text;
}

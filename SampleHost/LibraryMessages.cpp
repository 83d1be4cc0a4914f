// SPDX-License-Identifier: MIT
#include "LibraryMessages.h"

#include <QLatin1String>
#include <QMutex>
#include <QString>

namespace {

const QLatin1String Beginning("VyFileDialogs: ");

QtMessageHandler previous;
QMutex mutex; // any thread may say something

QString& lastMessage()
{
    static QString text;
    return text;
}

void onMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.startsWith(Beginning)) {
        const QMutexLocker locker(&mutex);
        lastMessage() = message.mid(Beginning.size());
    }
    previous(type, context, message);
}

} // namespace

LibraryMessages::LibraryMessages()
{
    lastMessage().clear();
    previous = qInstallMessageHandler(onMessage);
}

LibraryMessages::~LibraryMessages()
{
    qInstallMessageHandler(previous);
}

QString LibraryMessages::last() const
{
    const QMutexLocker locker(&mutex);
    return lastMessage();
}

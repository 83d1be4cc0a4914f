// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Collects what is said on the host's log while it lives.
class HostLog
{
public:
    HostLog()
    {
        s_messages.clear();
        m_previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { s_messages += text; });
    }
    ~HostLog() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY(HostLog)

    QStringList messages() const { return s_messages; }

private:
    static inline QStringList s_messages;
    QtMessageHandler m_previous;
};

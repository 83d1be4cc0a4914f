// SPDX-License-Identifier: MIT
#include "QuietTest.h"

#include <QtTest>

QStringList QuietTest::takeMessages()
{
    const QStringList messages = m_log->messages();
    m_log.reset(); // before the next one takes over the handler
    m_log = std::make_unique<HostLog>();
    return messages;
}

void QuietTest::init()
{
    m_log = std::make_unique<HostLog>();
}

void QuietTest::cleanup()
{
    const QStringList messages = m_log->messages();
    m_log.reset();
    QCOMPARE(messages.join(QLatin1Char('\n')), QString());
}

// SPDX-License-Identifier: MIT
#include "DialogDriver.h"

#include <QApplication>
#include <QtTest>

#include <exception>

namespace {
constexpr int PatienceMs = 20000;
}

DialogDriver::DialogDriver(std::vector<Step> steps)
    : m_steps(std::move(steps))
    , m_exceptions(std::uncaught_exceptions())
{
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(look()));
    m_timer.start(1);
}

DialogDriver::~DialogDriver()
{
    if (m_next < m_steps.size() && std::uncaught_exceptions() == m_exceptions)
        QTest::qFail(qPrintable(QStringLiteral("dialog %1 of %2 never appeared")
                                    .arg(m_next + 1)
                                    .arg(m_steps.size())),
                     __FILE__, __LINE__);
}

void DialogDriver::look()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible())
        return;
    if (dialog == m_current) {
        closeForgotten(*dialog);
        return;
    }
    m_current = dialog;
    m_sinceCurrent.start();
    if (m_next == m_steps.size())
        return;
    // Not from here: a timer whose slot has not returned does not fire, and the
    // step may open the next dialog.
    QTimer::singleShot(0, dialog, [step = m_steps[m_next++], dialog] { step(*dialog); });
}

void DialogDriver::closeForgotten(QDialog& dialog)
{
    if (m_sinceCurrent.elapsed() < PatienceMs)
        return;
    QTest::qFail("the dialog was left open", __FILE__, __LINE__);
    dialog.reject();
}

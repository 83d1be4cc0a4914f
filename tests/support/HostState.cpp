// SPDX-License-Identifier: MIT
#include "HostState.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QtTest>

namespace {

QList<QUrl> places()
{
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    return dialog.sidebarUrls();
}

} // namespace

HostState::HostState()
    : m_folder(QDir::currentPath())
    , m_places(places())
    , m_button(&m_window)
    , m_floating(nullptr, Qt::Tool)
{
    QObject::connect(&m_button, &QPushButton::clicked, [this] { ++m_clicks; });
    m_window.setGeometry(20, 600, 200, 60);
    m_button.resize(m_window.size());
    m_floating.setGeometry(20, 700, 200, 40);
    for (QWidget* each : {&m_window, &m_floating}) {
        each->show();
        if (!QTest::qWaitForWindowExposed(each))
            QTest::qFail("a window of the host's did not appear", __FILE__, __LINE__);
    }
}

void HostState::expectUnchanged()
{
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(QDir::currentPath(), m_folder);
    QCOMPARE(places(), m_places);
    QVERIFY(m_window.isVisible() && m_window.isEnabled());
    QTRY_VERIFY(m_floating.isVisible());
    m_clicks = 0;
    QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, {}, m_button.geometry().center());
    QTRY_COMPARE(m_clicks, 1);
}

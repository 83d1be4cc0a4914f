// SPDX-License-Identifier: MIT
#pragma once

#include "DeskUser.h"

#include <QApplication>
#include <QPushButton>
#include <QtTest>

/// A window that goes on working. The server delivers what the user does in its
/// order, so what he did before he clicked here has arrived when this has.
class DeskMarker : public QPushButton
{
public:
    DeskMarker()
    {
        setWindowTitle(QStringLiteral("Marker"));
        setGeometry(900, 800, 200, 100);
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            QTest::qFail("the window did not become active", __FILE__, __LINE__);
        QTest::qWait(100); // until the window manager has placed its frame
    }

    /// The user, at the window that is active, and at last here.
    void afterUser(const QString& commands)
    {
        const QSignalSpy clicks(this, SIGNAL(clicked()));
        const QPoint centre = mapToGlobal(rect().center());
        DeskUser user(QApplication::activeWindow()->windowTitle(),
                      commands + QStringLiteral("\nclick %1 %2").arg(centre.x()).arg(centre.y()));
        user.wait();
        QTRY_COMPARE(clicks.size(), 1);
    }
};

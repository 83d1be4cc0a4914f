// SPDX-License-Identifier: MIT
// The rule by which hidden windows keep their places among others.
#include "VyWindowManager.h"

#include <QtTest>

using VyWindowManager::Order;

class WindowManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mergesOrders_data();
    void mergesOrders();
};

void WindowManagerTest::mergesOrders_data()
{
    QTest::addColumn<Order>("before");
    QTest::addColumn<Order>("now");
    QTest::addColumn<Order>("merged");

    QTest::newRow("nothing") << Order() << Order() << Order();
    QTest::newRow("all gone") << Order{1, 2} << Order() << Order{1, 2};
    QTest::newRow("all new") << Order() << Order{1, 2} << Order{1, 2};
    QTest::newRow("gone from the back") << Order{1, 2, 3} << Order{2, 3} << Order{1, 2, 3};
    QTest::newRow("gone from between") << Order{1, 2, 3} << Order{1, 3} << Order{1, 2, 3};
    QTest::newRow("gone from the front") << Order{1, 2, 3} << Order{1, 2} << Order{1, 2, 3};
    QTest::newRow("two gone together") << Order{1, 2, 3, 4} << Order{1, 4} << Order{1, 2, 3, 4};
    QTest::newRow("two gone apart") << Order{1, 2, 3, 4} << Order{1, 3} << Order{1, 2, 3, 4};
    QTest::newRow("new in front") << Order{1, 2} << Order{1, 9} << Order{1, 2, 9};
    QTest::newRow("new at the back") << Order{1, 2} << Order{9, 1} << Order{9, 1, 2};
    QTest::newRow("others changed places") << Order{1, 2, 3, 4} << Order{3, 1} << Order{3, 4, 1, 2};
    QTest::newRow("other order") << Order{1, 2, 3} << Order{3, 2, 1} << Order{3, 2, 1};
}

void WindowManagerTest::mergesOrders()
{
    QFETCH(Order, before);
    QFETCH(Order, now);
    QTEST(VyWindowManager::merged(before, now), "merged");
}

QTEST_APPLESS_MAIN(WindowManagerTest)
#include "WindowManagerTest.moc"

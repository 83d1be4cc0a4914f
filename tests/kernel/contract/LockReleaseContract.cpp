// SPDX-License-Identifier: MIT
// The application-modal lock from its taking to its release: it nests, changes
// no window, and survives those that go meanwhile.
#include "HostWindow.h"
#include "VyAppModalLock.h"

#include <QtTest>

#include <memory>

class LockReleaseContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unlocksTwice();
    void unlocksWithItsScope();
    void nests_data();
    void nests();
    void changesNoWindow();
    void survivesALockedWindow();
    void survivesTheUsableWindow();
    void doesNothingOnAnotherThread();
};

void LockReleaseContract::unlocksTwice()
{
    HostWindow window;
    window.open();
    CVyAppModalLock outer(nullptr);
    CVyAppModalLock inner(nullptr);
    inner.unlock();
    inner.unlock();
    QCOMPARE(window.takes(), Nothing);
    outer.unlock();
    QCOMPARE(window.takes(), Everything);
}

void LockReleaseContract::unlocksWithItsScope()
{
    HostWindow window;
    window.open();
    {
        const CVyAppModalLock lock(nullptr);
        QCOMPARE(window.takes(), Nothing);
    }
    QCOMPARE(window.takes(), Everything);
}

void LockReleaseContract::nests_data()
{
    QTest::addColumn<bool>("innerFirst");
    QTest::newRow("inner released first") << true;
    QTest::newRow("outer released first") << false;
}

// As of a request that is made while the dialog of another one is up.
void LockReleaseContract::nests()
{
    QFETCH(bool, innerFirst);
    HostWindow window;
    window.open();
    auto outer = std::make_unique<CVyAppModalLock>(nullptr);
    HostWindow first;
    first.openModal();
    auto inner = std::make_unique<CVyAppModalLock>(nullptr);
    HostWindow second;
    second.openModal();
    QCOMPARE(first.takes(), Nothing);
    QCOMPARE(second.takes(), Everything);
    innerFirst ? inner.reset() : outer.reset();
    QCOMPARE(window.takes(), Nothing);
    innerFirst ? outer.reset() : inner.reset();
    second.hide();
    QCOMPARE(first.takes(), Everything);
    first.hide();
    QCOMPARE(window.takes(), Everything);
}

void LockReleaseContract::changesNoWindow()
{
    HostWindow window;
    window.open();
    QWidget disabled;
    disabled.setEnabled(false);
    disabled.setCursor(Qt::CrossCursor);
    window.edit->setFocus();
    {
        const CVyAppModalLock lock(nullptr);
        QVERIFY(window.isEnabled());
        QVERIFY(!disabled.isEnabled());
        QCOMPARE(QApplication::focusWidget(), window.edit);
    }
    QVERIFY(window.isEnabled());
    QVERIFY(!disabled.isEnabled());
    QCOMPARE(disabled.cursor().shape(), Qt::CrossCursor);
    QCOMPARE(QApplication::focusWidget(), window.edit);
}

void LockReleaseContract::survivesALockedWindow()
{
    auto window = std::make_unique<HostWindow>();
    window->open();
    auto dialog = std::make_unique<HostWindow>();
    dialog->openModal();
    CVyAppModalLock lock(nullptr);
    window.reset();
    dialog.reset();
    HostWindow later;
    later.openModal();
    QCOMPARE(later.takes(), Everything);
}

void LockReleaseContract::survivesTheUsableWindow()
{
    HostWindow locked;
    locked.open();
    auto usable = std::make_unique<HostWindow>();
    usable->open();
    CVyAppModalLock lock(usable.get());
    usable.reset();
    QCOMPARE(locked.takes(), Nothing);
    lock.unlock();
    QCOMPARE(locked.takes(), Everything);
}

void LockReleaseContract::doesNothingOnAnotherThread()
{
    HostWindow window;
    window.open();
    QString taken;
    std::unique_ptr<QThread> thread(QThread::create([&] {
        CVyAppModalLock lock(nullptr);
        QMetaObject::invokeMethod(
            &window, [&] { taken = window.takes(); }, Qt::BlockingQueuedConnection);
        lock.unlock();
    }));
    thread->start();
    QTRY_VERIFY(thread->isFinished());
    QCOMPARE(taken, Everything);
}

QTEST_MAIN(LockReleaseContract)
#include "LockReleaseContract.moc"

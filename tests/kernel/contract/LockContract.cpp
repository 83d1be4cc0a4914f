// SPDX-License-Identifier: MIT
// The application-modal lock: what it takes from windows that were open, what it
// leaves to those opened later, and that nothing stays of it.
#include "VyAppModalLock.h"

#include <QApplication>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

namespace {

// A host's window that counts what the user gets through to it.
class HostWindow : public QWidget
{
public:
    HostWindow()
        : button(new QPushButton(QStringLiteral("&Press"), this))
        , edit(new QLineEdit(this))
    {
        auto* rows = new QVBoxLayout(this);
        rows->addWidget(button);
        rows->addWidget(edit);
        setAcceptDrops(true);
        show();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("the window did not become active");
    }

    bool takesClicks()
    {
        const QSignalSpy clicks(button, SIGNAL(clicked()));
        QTest::mouseClick(windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          button->mapTo(this, button->rect().center()));
        QTest::mouseClick(button, Qt::LeftButton);
        return clicks.size() == 2;
    }
    bool takesKeys()
    {
        edit->clear();
        QTest::keyClicks(edit, QStringLiteral("ab"));
        return edit->text() == QLatin1String("ab");
    }
    bool takesShortcuts()
    {
        QShortcut shortcut(QKeySequence(QStringLiteral("Ctrl+J")), this);
        const QSignalSpy activations(&shortcut, SIGNAL(activated()));
        QTest::keyClick(windowHandle(), Qt::Key_J, Qt::ControlModifier);
        return activations.size() == 1;
    }
    bool takesDrops()
    {
        QMimeData mime;
        mime.setText(QStringLiteral("dropped"));
        QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(edit, &enter);
        QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        drop.ignore();
        QApplication::sendEvent(edit, &drop);
        return drop.isAccepted();
    }
    bool takesCloseRequests()
    {
        const bool closed = close();
        show();
        return closed;
    }
    QString takes()
    {
        QStringList list;
        if (takesClicks())
            list.append(QStringLiteral("clicks"));
        if (takesKeys())
            list.append(QStringLiteral("keys"));
        if (takesShortcuts())
            list.append(QStringLiteral("shortcuts"));
        if (takesDrops())
            list.append(QStringLiteral("drops"));
        if (takesCloseRequests())
            list.append(QStringLiteral("close requests"));
        return list.join(QStringLiteral(", "));
    }

    QPushButton* button;
    QLineEdit* edit;
};

const QString Everything = QStringLiteral("clicks, keys, shortcuts, drops, close requests");
const QString Nothing;

} // namespace

class LockContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheUserAway();
    void leavesTheUsableWindow();
    void leavesWindowsOpenedLater();
    void unlocksTwice();
    void unlocksWithItsScope();
    void nests_data();
    void nests();
    void changesNoWindow();
    void survivesALockedWindow();
};

void LockContract::takesTheUserAway()
{
    HostWindow window;
    QCOMPARE(window.takes(), Everything);
    CVyAppModalLock lock(nullptr);
    QCOMPARE(window.takes(), Nothing);
    lock.unlock();
    QCOMPARE(window.takes(), Everything);
}

void LockContract::leavesTheUsableWindow()
{
    HostWindow locked;
    HostWindow usable;
    const CVyAppModalLock lock(usable.button);
    QCOMPARE(locked.takes(), Nothing);
    QCOMPARE(usable.takes(), Everything);
}

void LockContract::leavesWindowsOpenedLater()
{
    HostWindow locked;
    const CVyAppModalLock lock(nullptr);
    HostWindow later;
    QCOMPARE(later.takes(), Everything);
    QCOMPARE(locked.takes(), Nothing);
}

void LockContract::unlocksTwice()
{
    HostWindow window;
    CVyAppModalLock outer(nullptr);
    CVyAppModalLock inner(nullptr);
    inner.unlock();
    inner.unlock();
    QCOMPARE(window.takes(), Nothing);
    outer.unlock();
    QCOMPARE(window.takes(), Everything);
}

void LockContract::unlocksWithItsScope()
{
    HostWindow window;
    {
        const CVyAppModalLock lock(nullptr);
        QCOMPARE(window.takes(), Nothing);
    }
    QCOMPARE(window.takes(), Everything);
}

void LockContract::nests_data()
{
    QTest::addColumn<bool>("innerFirst");
    QTest::newRow("inner released first") << true;
    QTest::newRow("outer released first") << false;
}

void LockContract::nests()
{
    QFETCH(bool, innerFirst);
    HostWindow window;
    auto outer = std::make_unique<CVyAppModalLock>(nullptr);
    auto inner = std::make_unique<CVyAppModalLock>(nullptr);
    innerFirst ? inner.reset() : outer.reset();
    QCOMPARE(window.takes(), Nothing);
    innerFirst ? outer.reset() : inner.reset();
    QCOMPARE(window.takes(), Everything);
}

void LockContract::changesNoWindow()
{
    HostWindow window;
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

void LockContract::survivesALockedWindow()
{
    auto window = std::make_unique<HostWindow>();
    CVyAppModalLock lock(nullptr);
    window.reset();
    HostWindow later;
    QCOMPARE(later.takes(), Everything);
}

QTEST_MAIN(LockContract)
#include "LockContract.moc"

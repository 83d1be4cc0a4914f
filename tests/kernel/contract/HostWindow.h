// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <QtTest>

/// A window that says what the user gets through to it. It is not shown yet.
class HostWindow : public QWidget
{
public:
    explicit HostWindow(QWidget* parent = nullptr, Qt::WindowFlags flags = {})
        : QWidget(parent, flags | Qt::Window)
        , button(new QPushButton(QStringLiteral("Press"), this))
        , edit(new QLineEdit(this))
    {
        auto* rows = new QVBoxLayout(this);
        auto* name = new QLabel(QStringLiteral("&Name"));
        name->setBuddy(edit);
        rows->addWidget(button);
        rows->addWidget(name);
        rows->addWidget(edit);
    }

    /// Brings it before the user.
    void open()
    {
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            QTest::qFail("the window did not become active", __FILE__, __LINE__);
    }

    /// The same, as a dialog.
    void openModal()
    {
        setWindowModality(Qt::ApplicationModal);
        open();
    }

    /// Through the window and straight.
    bool takesClicks() { return clicks() == 2; }
    int clicks()
    {
        const QSignalSpy clicked(button, SIGNAL(clicked()));
        const QPoint middle = button->rect().center();
        if (QWindow* const native = button->windowHandle())
            QTest::mouseClick(native, Qt::LeftButton, Qt::NoModifier, middle);
        else
            QTest::mouseClick(windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              button->mapTo(this, middle));
        QTest::mouseClick(button, Qt::LeftButton);
        return clicked.size();
    }
    bool takesKeys()
    {
        edit->clear();
        QTest::keyClicks(edit, QStringLiteral("ab"));
        return edit->text() == QLatin1String("ab");
    }
    bool takesComposedText()
    {
        edit->clear();
        QInputMethodEvent composed;
        composed.setCommitString(QStringLiteral("c"));
        QApplication::sendEvent(edit, &composed);
        return edit->text() == QLatin1String("c");
    }
    bool takesWheel()
    {
        wheels = 0;
        QWheelEvent wheel(QPointF(2, 2), mapToGlobal(QPoint(2, 2)), QPoint(), QPoint(0, 120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(windowHandle(), &wheel);
        return wheels == 1;
    }
    bool takesShortcuts()
    {
        activateWindow();
        QCoreApplication::processEvents();
        const QShortcut shortcut(QKeySequence(QStringLiteral("Ctrl+J")), this);
        const QSignalSpy activations(&shortcut, SIGNAL(activated()));
        QTest::keyClick(windowHandle(), Qt::Key_J, Qt::ControlModifier);
        return activations.size() == 1;
    }
    bool takesMnemonics()
    {
        activateWindow();
        QCoreApplication::processEvents();
        button->setFocus();
        QTest::keyClick(windowHandle(), Qt::Key_N, Qt::AltModifier);
        return focusWidget() == edit;
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
    /// All of it, as a list.
    QString takes()
    {
        QStringList list;
        if (const int count = clicks())
            list.append(count == 2 ? QStringLiteral("clicks") : QStringLiteral("some clicks"));
        if (takesKeys())
            list.append(QStringLiteral("keys"));
        if (takesComposedText())
            list.append(QStringLiteral("composed text"));
        if (takesWheel())
            list.append(QStringLiteral("wheel"));
        if (takesShortcuts())
            list.append(QStringLiteral("shortcuts"));
        if (takesMnemonics())
            list.append(QStringLiteral("mnemonics"));
        if (takesDrops())
            list.append(QStringLiteral("drops"));
        if (takesCloseRequests())
            list.append(QStringLiteral("close requests"));
        return list.join(QStringLiteral(", "));
    }

    QPushButton* button;
    QLineEdit* edit;
    int wheels = 0;

protected:
    void wheelEvent(QWheelEvent*) override { ++wheels; }
};

/// What takes() says of a window that works, and of a locked one.
inline const QString Everything = QStringLiteral(
    "clicks, keys, composed text, wheel, shortcuts, mnemonics, drops, close requests");
inline const QString Nothing;

// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QtTest>

#include <functional>

/// A tool window of a host, shown, which notes how often it came to the screen.
class Palette : public QWidget
{
public:
    explicit Palette(QWidget* parent = nullptr)
        : QWidget(parent, Qt::Tool)
    {
        show();
    }

    int shown = 0;
    std::function<void()> onShow = [] {};
    std::function<void()> onHide = [] {};
    std::function<void(QCloseEvent*)> onClose = [](QCloseEvent*) {};

protected:
    void showEvent(QShowEvent*) override
    {
        ++shown;
        onShow();
    }
    void hideEvent(QHideEvent*) override { onHide(); }
    void closeEvent(QCloseEvent* event) override { onClose(event); }
};

/// A host's active main window.
class HostWindow : public QMainWindow
{
public:
    HostWindow()
    {
        setCentralWidget(new QLineEdit);
        setGeometry(50, 50, 300, 200);
        show();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("the window did not become active");
    }
    QDockWidget* addDock()
    {
        auto* dock = new QDockWidget(QStringLiteral("Layers"), this);
        addDockWidget(Qt::RightDockWidgetArea, dock);
        return dock;
    }
    QDockWidget* addFloatingDock()
    {
        QDockWidget* dock = addDock();
        dock->setFloating(true);
        dock->show();
        return dock;
    }
};

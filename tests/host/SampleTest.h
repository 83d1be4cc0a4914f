// SPDX-License-Identifier: MIT
#pragma once

#include "DialogDriver.h"
#include "DrawingFolder.h"
#include "SampleWindow.h"

#include <QObject>

#include <memory>

class DrawingTabs;

/// A test that works the sample's window as its user does, with a folder of
/// drawings, which the dialogs begin with, and one of templates.
class SampleTest : public QObject
{
    Q_OBJECT

protected:
    /// The names of the drawings in the folder. The first has a preview, the second
    /// has none.
    static inline const QString plan = QStringLiteral("floor-plan.dxf");
    static inline const QString bare = QStringLiteral("bare.dwg");
    /// The one template.
    static inline const QString sheet = QStringLiteral("template-plan.dwt");

    /// Chooses the entry of that name in a menu. \a steps work the dialogs that come.
    void choose(const char* entry, std::vector<DialogDriver::Step> steps = {});
    /// Opens a drawing of the folder through the dialog.
    void open(const QString& name);
    QAction* entry(const char* name) const;

    /// The names on the tabs.
    QStringList tabs() const;
    DrawingTabs& drawings() const;
    /// The text of a row of the answer.
    QString answer(const char* row) const;
    /// The files of the recent menu, as it shows them when it is opened.
    QStringList recent() const;
    QByteArray contents(const QString& path) const;

    std::unique_ptr<DrawingFolder> m_folder;
    std::unique_ptr<DrawingFolder> m_templates;
    std::unique_ptr<SampleWindow> m_window;

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_window.reset(); }
};

/// A step that leaves the dialog with nothing chosen.
DialogDriver::Step cancelling();
/// A step that types a name and accepts the dialog.
DialogDriver::Step typing(const QString& name);
/// A step that types a name, if there is one, and chooses an entry of the mode menu.
DialogDriver::Step choosingMode(int index, const QString& name = QString());
/// A step that reads a message into \a text and presses the button of that object
/// name, or accepts it.
DialogDriver::Step reading(QString& text, const char* button = nullptr);

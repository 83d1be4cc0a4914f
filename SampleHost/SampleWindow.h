// SPDX-License-Identifier: MIT
#pragma once

#include "Drawing.h"
#include "Request.h"

#include <QMainWindow>

class AnswerPanel;
class DialogMenu;
class DrawingTabs;
class DrawingView;
class QLabel;
class QStackedWidget;
class RecentMenu;
class ToolWindow;
struct VyBookmark;

/// The window of the sample: drawings in tabs, a floating tool window, a panel with
/// the last request's answer, and menus that make the requests.
class SampleWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// \a style is the one to begin with.
    explicit SampleWindow(CVyFileDialog::_Style style);
    ~SampleWindow() override;

    /// Opens the drawings at \a paths; in one message, tells of those that cannot be.
    void openFiles(const QStringList& paths);

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct Command;

    void addPages();
    void addFileMenu();
    void addWindowMenu();
    void fillWindowMenu();
    QAction* addCommand(QMenu* menu, const Command& command);
    void activate(DrawingView* view);
    void closeDrawing();
    void nextDrawing();
    void previousDrawing();

    // Requests, in SampleRequests.cpp
    void newDrawing();
    void open();
    void openSeveral();
    void openRecent(const VyBookmark& bookmark);
    void saveAs();
    Options openOptions() const;
    Options saveOptions(const Drawing& drawing) const;
    Answer request(Options options);
    void openAnswered(const Answer& answer);
    QString openFile(const QString& path, const Answer& answer);
    QString startFolder() const;
    void tell(const QString& text, const QString& more);

    DialogMenu* m_dialogs;
    RecentMenu* m_recent;
    QMenu* m_windows = nullptr;
    AnswerPanel* m_answer;
    ToolWindow* m_tools;
    QStackedWidget* m_pages;
    DrawingTabs* m_drawings;
    QLabel* m_place; ///< of the pointer
    QAction* m_showTools = nullptr;
    QList<QAction*> m_needDrawing;
    QList<QAction*> m_tabActions;
    QString m_folder;   ///< of the last drawing
    QString m_template; ///< that the last new drawing came from
    int m_newDrawings = 0;
};

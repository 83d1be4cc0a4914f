// SPDX-License-Identifier: MIT
#include "SampleWindow.h"

#include "AnswerPanel.h"
#include "DialogMenu.h"
#include "DrawingTabs.h"
#include "MenuText.h"
#include "RecentMenu.h"
#include "ToolWindow.h"

#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QShowEvent>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>

struct SampleWindow::Command
{
    const char* name;
    QString text;
    const char* keys;
    QString tip;
    void (SampleWindow::*work)();
    bool needsDrawing = false;
};

SampleWindow::SampleWindow(CVyFileDialog::_Style style)
    : m_dialogs(new DialogMenu(this))
    , m_recent(new RecentMenu(this))
    , m_answer(new AnswerPanel(this))
    , m_tools(new ToolWindow(this))
    , m_pages(new QStackedWidget(this))
    , m_drawings(new DrawingTabs(this))
    , m_place(new QLabel(this))
{
    setObjectName(QStringLiteral("sampleWindow"));
    m_dialogs->setStyle(style);
    addPages();
    addDockWidget(Qt::RightDockWidgetArea, m_answer);
    resizeDocks({m_answer}, {42 * fontMetrics().averageCharWidth()}, Qt::Horizontal);
    menuBar()->setObjectName(QStringLiteral("menuBar"));
    addFileMenu();
    menuBar()->addMenu(m_dialogs);
    addWindowMenu();
    statusBar()->setObjectName(QStringLiteral("statusBar"));
    m_place->setObjectName(QStringLiteral("place"));
    statusBar()->addPermanentWidget(m_place);
    connect(m_recent, &RecentMenu::chosen, this, &SampleWindow::openRecent);
    connect(m_drawings, &DrawingTabs::activeChanged, this, &SampleWindow::activate);
    activate(nullptr);
    const QSize size(1000, 700);
    setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter,
                                    size.boundedTo(screen()->availableSize()),
                                    screen()->availableGeometry()));
}

// The drawings go before what is told of them.
SampleWindow::~SampleWindow()
{
    delete m_drawings;
}

void SampleWindow::addPages()
{
    auto* hint = new QLabel(tr("No drawing is open.\n\n\"Open...\" in the menu \"File\" shows a "
                               "dialog, and the panel \"Answer\" what came of it."),
                            m_pages);
    hint->setObjectName(QStringLiteral("hint"));
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    hint->setMargin(20);
    m_pages->setObjectName(QStringLiteral("pages"));
    m_pages->addWidget(hint);
    m_pages->addWidget(m_drawings);
    setCentralWidget(m_pages);
}

QAction* SampleWindow::addCommand(QMenu* menu, const Command& command)
{
    QAction* action = menu->addAction(command.text, this, command.work);
    action->setObjectName(QLatin1String(command.name));
    action->setShortcut(QKeySequence::fromString(QLatin1String(command.keys)));
    action->setStatusTip(command.tip);
    if (command.needsDrawing)
        m_needDrawing.append(action);
    return action;
}

void SampleWindow::addFileMenu()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->setObjectName(QStringLiteral("fileMenu"));
    addCommand(file, {"new", tr("&New..."), "Ctrl+N",
                      tr("Starts a drawing, from a template or not"), &SampleWindow::newDrawing});
    addCommand(file,
               {"open", tr("&Open..."), "Ctrl+O", tr("Opens a drawing"), &SampleWindow::open});
    addCommand(file, {"openSeveral", tr("Open Se&veral..."), "Ctrl+Shift+O",
                      tr("Opens one or more drawings"), &SampleWindow::openSeveral});
    file->addMenu(m_recent);
    file->addSeparator();
    addCommand(file, {"saveAs", tr("Save &As..."), "Ctrl+Shift+S",
                      tr("Writes the drawing to another file"), &SampleWindow::saveAs, true});
    addCommand(file, {"close", tr("&Close"), "Ctrl+W", tr("Closes the drawing in front"),
                      &SampleWindow::closeDrawing, true});
    file->addSeparator();
    QAction* quit = file->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setObjectName(QStringLiteral("quit"));
    quit->setShortcut(QKeySequence::fromString(QStringLiteral("Ctrl+Q")));
    quit->setStatusTip(tr("Ends the sample"));
}

void SampleWindow::addWindowMenu()
{
    m_windows = menuBar()->addMenu(tr("&Window"));
    m_windows->setObjectName(QStringLiteral("windowMenu"));
    addCommand(m_windows,
               {"nextDrawing", tr("&Next Drawing"), "Ctrl+PgDown",
                tr("Brings the next drawing to the front"), &SampleWindow::nextDrawing, true});
    addCommand(m_windows, {"previousDrawing", tr("&Previous Drawing"), "Ctrl+PgUp",
                           tr("Brings the drawing before to the front"),
                           &SampleWindow::previousDrawing, true});
    m_windows->addSeparator();
    m_showTools = m_windows->addAction(tr("&Tools"));
    m_showTools->setObjectName(QStringLiteral("showTools"));
    m_showTools->setStatusTip(tr("Shows or hides the floating window \"Tools\""));
    m_showTools->setCheckable(true);
    m_showTools->setChecked(true);
    connect(m_showTools, &QAction::toggled, m_tools, &QWidget::setVisible);
    connect(m_tools, &ToolWindow::closed, m_showTools, [this] { m_showTools->setChecked(false); });
    QAction* showAnswer = m_answer->toggleViewAction();
    showAnswer->setObjectName(QStringLiteral("showAnswer"));
    showAnswer->setText(tr("&Answer"));
    showAnswer->setStatusTip(tr("Shows or hides the last request's answer"));
    m_windows->addAction(showAnswer);
    m_windows->addSeparator();
    connect(m_windows, &QMenu::aboutToShow, this, &SampleWindow::fillWindowMenu);
}

void SampleWindow::fillWindowMenu()
{
    qDeleteAll(m_tabActions);
    m_tabActions.clear();
    for (int index = 0; index < m_drawings->count(); ++index) {
        const QString& name = m_drawings->at(index)->drawing().name;
        QAction* action = m_windows->addAction(MenuText::numbered(index, name));
        action->setObjectName(QStringLiteral("drawing%1").arg(index + 1));
        action->setCheckable(true);
        action->setChecked(index == m_drawings->currentIndex());
        connect(action, &QAction::triggered, m_drawings,
                [this, index] { m_drawings->setCurrentIndex(index); });
        m_tabActions.append(action);
    }
}

// \a view is in front now, or none.
void SampleWindow::activate(DrawingView* view)
{
    m_pages->setCurrentIndex(view ? 1 : 0);
    m_tools->setView(view);
    m_place->clear();
    for (QAction* each : qAsConst(m_needDrawing))
        each->setEnabled(view != nullptr);
    QString title = tr("VyFileDialogs Sample");
    if (view) {
        const QString name = view->drawing().readOnly
                                 ? tr("%1 (read-only)").arg(view->drawing().name)
                                 : view->drawing().name;
        title = name + QLatin1String(" - ") + title;
        disconnect(view, nullptr, m_place, nullptr);
        connect(view, &DrawingView::pointedAt, m_place, [this](const QPoint& place) {
            m_place->setText(QStringLiteral("%1, %2").arg(place.x()).arg(place.y()));
        });
        connect(view, &DrawingView::pointedAway, m_place, &QLabel::clear);
        view->setFocus();
    }
    // Qt takes "[*]" for the place of a sign that something is not saved.
    setWindowTitle(title.replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

void SampleWindow::closeDrawing()
{
    m_drawings->close(m_drawings->currentIndex());
}

void SampleWindow::nextDrawing()
{
    m_drawings->step(1);
}

void SampleWindow::previousDrawing()
{
    m_drawings->step(-1);
}

void SampleWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (event->spontaneous() || !m_showTools->isChecked())
        return;
    // Over the empty part of the answer.
    const QSize size = m_tools->sizeHint();
    m_tools->move(geometry().bottomRight() - QPoint(size.width() + 40, size.height() + 60));
    // Window managers keep it in front of this window where they know this one first.
    QTimer::singleShot(0, m_tools, SLOT(show()));
}

// SPDX-License-Identifier: MIT
#include "DialogProbe.h"

#include <QListView>

using Measurement::Clock;
using Measurement::milliseconds;

std::optional<Clock::time_point> ProbedApplication::painted;

namespace {

constexpr double PatienceMs = 120000;
constexpr double QuietMs = 250;
constexpr double StallMs = 20; ///< the least that counts against quiet

bool isOfFileDialog(QObject* receiver)
{
    return receiver->isWidgetType() &&
           qobject_cast<QFileDialog*>(static_cast<QWidget*>(receiver)->window());
}

QListView* listOf(const QFileDialog& dialog)
{
    return dialog.findChild<QListView*>(QStringLiteral("listView"));
}

} // namespace

bool ProbedApplication::notify(QObject* receiver, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (!painted && type == QEvent::Paint && isOfFileDialog(receiver))
        m_painting = true;
    const bool done = QApplication::notify(receiver, event);
    if (m_painting && (type == QEvent::Expose || type == QEvent::UpdateRequest)) {
        m_painting = false;
        painted = Clock::now();
    }
    return done;
}

DialogProbe::DialogProbe(std::vector<Step> steps)
    : m_start(Clock::now())
    , m_steps(std::move(steps))
{
    ProbedApplication::painted.reset();
    beginPhase();
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(turn()));
    m_timer.start(1);
}

int DialogProbe::rows() const
{
    const QListView* list = listOf(*m_dialog);
    return list->model()->rowCount(list->rootIndex());
}

double DialogProbe::firstPaint() const
{
    return milliseconds(*ProbedApplication::painted - m_start);
}

void DialogProbe::beginPhase()
{
    m_phase = m_lastTurn = m_lastChange = m_lastStall = Clock::now();
    m_longestStall = {};
}

double DialogProbe::lastChange() const
{
    return milliseconds(m_lastChange - m_phase);
}

bool DialogProbe::isQuiet() const
{
    return Measurement::millisecondsSince(qMax(m_lastChange, m_lastStall)) > QuietMs;
}

void DialogProbe::turn()
{
    const Clock::time_point now = Clock::now();
    const Clock::duration gap = now - m_lastTurn;
    m_longestStall = qMax(m_longestStall, gap);
    if (milliseconds(gap) > StallMs)
        m_lastStall = now;
    m_lastTurn = now;
    if (m_next == m_steps.size() || !findDialog())
        return;
    watchModel();
    if (milliseconds(now - m_start) > PatienceMs)
        giveUp();
    if (m_steps[m_next](*this))
        ++m_next;
}

bool DialogProbe::findDialog()
{
    if (!m_dialog)
        m_dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    return m_dialog;
}

// The list's model may be another one once the dialog is up.
void DialogProbe::watchModel()
{
    QAbstractItemModel* const model = listOf(*m_dialog)->model();
    if (model == m_model)
        return;
    m_model = model;
    for (const char* signal :
         {SIGNAL(rowsInserted(QModelIndex, int, int)), SIGNAL(rowsRemoved(QModelIndex, int, int)),
          SIGNAL(layoutChanged()), SIGNAL(modelReset())})
        connect(model, signal, this, SLOT(noteChange()));
}

void DialogProbe::noteChange()
{
    m_lastChange = Clock::now();
}

void DialogProbe::giveUp() const
{
    std::fprintf(stderr, "step %zu of %zu was not done; the list has %d rows\n", m_next + 1,
                 m_steps.size(), rows());
    std::_Exit(1);
}

namespace Steps {

DialogProbe::Step untilPainted()
{
    return [](DialogProbe&) { return ProbedApplication::painted.has_value(); };
}

DialogProbe::Step untilRows(int rows, double* milliseconds)
{
    return [rows, milliseconds](DialogProbe& probe) {
        if (probe.rows() != rows)
            return false;
        *milliseconds = probe.phase();
        return true;
    };
}

DialogProbe::Step untilQuiet()
{
    return [](DialogProbe& probe) { return probe.isQuiet(); };
}

DialogProbe::Step pause(int milliseconds)
{
    return [milliseconds, end = Clock::time_point()](DialogProbe&) mutable {
        if (end == Clock::time_point())
            end = Clock::now() + std::chrono::milliseconds(milliseconds);
        return Clock::now() >= end;
    };
}

DialogProbe::Step doNow(std::function<void(DialogProbe&)> work)
{
    return [work = std::move(work)](DialogProbe& probe) {
        work(probe);
        return true;
    };
}

DialogProbe::Step reject()
{
    return doNow([](DialogProbe& probe) { probe.dialog().reject(); });
}

} // namespace Steps

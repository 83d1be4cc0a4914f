// SPDX-License-Identifier: MIT
#pragma once

#include "Measurement.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QFileDialog>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

/// An application that notes when the window of a file dialog has been painted
/// for the first time: after all of its widgets.
class ProbedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

    static std::optional<Measurement::Clock::time_point> painted;

private:
    bool m_painting = false;
};

/// Watches and works the file dialog of the request that is made while it
/// lives, from a timer of 1 ms in the dialog's own event loop.
class DialogProbe : public QObject
{
    Q_OBJECT

public:
    /// One thing to do or to wait for: called at every turn until it answers true.
    using Step = std::function<bool(DialogProbe&)>;

    /// The request begins now. A step that is not done within two minutes ends
    /// the program with status 1.
    explicit DialogProbe(std::vector<Step> steps);

    QFileDialog& dialog() const { return *m_dialog; }
    /// The rows of the list that the dialog shows.
    int rows() const;
    Measurement::Clock::time_point start() const { return m_start; }
    double elapsed() const { return Measurement::millisecondsSince(m_start); }
    /// From the request until the window was painted.
    double firstPaint() const;

    /// Begins a new phase, whose stalls and times count from now.
    void beginPhase();
    /// From the beginning of the phase to the last change of a row.
    double lastChange() const;
    /// The longest time of the phase in which the timer could not fire.
    double longestStall() const { return Measurement::milliseconds(m_longestStall); }
    /// Whether rows and event loop have been quiet for a quarter of a second.
    bool isQuiet() const;
    double phase() const { return Measurement::millisecondsSince(m_phase); }

private Q_SLOTS:
    void turn();
    void noteChange();

private:
    bool findDialog();
    void watchModel();
    void giveUp() const;

    const Measurement::Clock::time_point m_start;
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    QPointer<QFileDialog> m_dialog;
    QPointer<QAbstractItemModel> m_model;
    Measurement::Clock::time_point m_phase;
    Measurement::Clock::time_point m_lastTurn;
    Measurement::Clock::time_point m_lastChange;
    Measurement::Clock::time_point m_lastStall;
    Measurement::Clock::duration m_longestStall{};
    QTimer m_timer;
};

namespace Steps {

DialogProbe::Step untilPainted();
/// Until the list shows \a rows files; then notes the time since the beginning of
/// the phase in \a milliseconds.
DialogProbe::Step untilRows(int rows, double* milliseconds);
DialogProbe::Step untilQuiet();
DialogProbe::Step pause(int milliseconds);
DialogProbe::Step doNow(std::function<void(DialogProbe&)> work);
DialogProbe::Step reject();

} // namespace Steps

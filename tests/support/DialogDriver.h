// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <vector>

/// Works the modal dialogs that a blocking call shows, as a user would. Each
/// step is given one dialog, in the order in which they appear; a step that
/// opens a further dialog is still running when the next step begins. A dialog
/// that nobody closes is rejected after a while and fails the test.
class DialogDriver : public QObject
{
    Q_OBJECT

public:
    using Step = std::function<void(QDialog&)>;

    explicit DialogDriver(std::vector<Step> steps);
    /// Fails the test when a step has had no dialog, unless an exception ended the call.
    ~DialogDriver() override;

private Q_SLOTS:
    void look();

private:
    void closeForgotten(QDialog& dialog);

    std::vector<Step> m_steps;
    const int m_exceptions;
    std::size_t m_next = 0;
    QPointer<QDialog> m_current;
    QElapsedTimer m_sinceCurrent;
    QTimer m_timer;
};

Q_DECLARE_METATYPE(DialogDriver::Step)

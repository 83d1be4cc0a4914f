// SPDX-License-Identifier: MIT
#pragma once

#include "Answer.h"

#include <QDockWidget>

class QFormLayout;
class QLabel;

/// Shows all that the last request came to, a row for each value.
class AnswerPanel : public QDockWidget
{
    Q_OBJECT

public:
    explicit AnswerPanel(QWidget* parent = nullptr);

    /// What \a options asked for and \a answer is.
    void showAnswer(const Options& options, const Answer& answer);

private:
    QLabel* addRow(QFormLayout* rows, const char* name, const QString& title);

    QLabel* m_style;
    QLabel* m_status;
    QLabel* m_mode;
    QLabel* m_paths;
    QLabel* m_type;
    QLabel* m_templateName;
    QLabel* m_codePage;
};

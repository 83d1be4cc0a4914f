// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// Shows a file's name in the width that there is: one line, with an ellipsis in
/// the middle where it does not fit, since names differ at both ends. It asks
/// for no width of its own, however long the name is.
class CVyFileNameLabel : public QLabel
{
    Q_OBJECT

public:
    /// Shows the name of the file at the absolute path \a path, or \a path as it
    /// stands when it is none. The whole of it is the tool tip, and the name the
    /// accessible name.
    CVyFileNameLabel(const QString& path, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showWhatFits();

    QString m_name;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// One folder of the path bar. It stands for its full name and shows as much of
/// it as there is room for.
class CVyDirPushButton : public QPushButton
{
    Q_OBJECT

public:
    /// \a name is one component of a path, "/" for the root.
    CVyDirPushButton(const QString& name, QWidget* parent);

    /// The folder's name, never shortened or escaped.
    const QString& fullName() const { return m_fullName; }
    /// What the user reads on the button: the full name or its beginning.
    QString shownName() const;

    /// Shows the full name, whether or not it fits.
    void showFullName();
    /// Shows what fits into \a width pixels; the tool tip has the full name when
    /// that is not all of it, and is empty otherwise.
    void calculateText(int width);
    /// Makes the button as wide as its full name needs.
    void updateSize();
    /// Keeps the button from growing wider than its full name needs.
    void updateMaxWidth();
    /// Keeps the button from growing wider than what it shows needs.
    void fixShownWidth();

    /// As wide as the full name needs, whatever is shown: a layout that has room
    /// for the name then gives it.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user chose this folder; \a button is the sender.
    void dirClicked(QPushButton* button);

public Q_SLOTS:
    /// Announces dirClicked(), whatever \a checked says.
    void onClicked(bool checked);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    int fullWidth() const;
    const QString& fittingText(int width) const;
    void showName(const QString& name);

    const QString m_fullName;
    const QString m_line; ///< the full name in one line

    // To measure a text takes longer than all else that a button does in a
    // layout, so what is known is kept for as long as the font stays.
    mutable QFontMetrics m_metrics;
    mutable int m_fullWidth = -1; ///< not measured yet
    mutable int m_elidedWidth = -1;
    mutable QString m_elided; ///< what fits into m_elidedWidth
};

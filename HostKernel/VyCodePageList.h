// SPDX-License-Identifier: MIT
#pragma once

#include "OdCodePageId.h"

#include <QListWidget>

/// The code pages to choose one from, under headings that name their regions and
/// cannot be chosen. What the pages on show are, can be narrowed by typing
/// elsewhere; one of them is then always chosen.
class CVyCodePageList : public QListWidget
{
    Q_OBJECT

public:
    /// Shows every page; none is chosen yet.
    explicit CVyCodePageList(QWidget* parent);

    /// The chosen page; null when none is.
    const CVyCodePage* chosen() const;

    /// Chooses the page \a id; when the list is shown, it stands in the middle.
    void choose(OdCodePageId id);

    /// Shows the pages that \a typed finds, see VyCodePageSearch. The chosen one
    /// stays chosen while it is among them, otherwise the first is; where none is
    /// found the list says so, and the page comes back with a better search.
    void narrow(const QString& typed);

    /// Scrolls to a page together with the heading right above it.
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

protected:
    void showEvent(QShowEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex& index, const QEvent* event = nullptr) const override;

private:
    void addHeading(const CVyCodePageRegion& region);
    void addPage(const CVyCodePage& page);
    void addNothingFound();
    void widen();
    bool showMatches(const QString& typed);
    QListWidgetItem* firstShownPage() const;
    QListWidgetItem* lastShownPage() const;

    QListWidgetItem* m_nothingFound = nullptr;
    QListWidgetItem* m_lastChosen = nullptr;
};

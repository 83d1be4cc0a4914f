// SPDX-License-Identifier: MIT
#pragma once

#include "DrawingView.h"

#include <QTabWidget>

/// The drawings that are open, a tab for each. The one in front is the kernel's
/// active document.
class DrawingTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit DrawingTabs(QWidget* parent = nullptr);
    ~DrawingTabs() override;

    /// The drawing in front; null when none is open.
    DrawingView* current() const;
    DrawingView* at(int index) const;
    /// The drawing that is kept in the file at \a path; null where it is not open.
    DrawingView* find(const QString& path) const;

    /// Opens \a drawing in front.
    DrawingView* add(const Drawing& drawing);
    /// \a view shows \a drawing from now on.
    void replace(DrawingView* view, const Drawing& drawing);
    void close(int index);
    /// Goes that many tabs on, from the last one to the first.
    void step(int by);

Q_SIGNALS:
    /// Another drawing is in front, or it has another name; null when none is open.
    void activeChanged(DrawingView* view);

private:
    void label(int index);
    void activate();
};

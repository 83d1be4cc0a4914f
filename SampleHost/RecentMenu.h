// SPDX-License-Identifier: MIT
#pragma once

#include "VyBookmarks.h"

#include <QMenu>

/// The menu of the files that were opened last: the kernel's bookmarks, which
/// native panels add to by themselves.
class RecentMenu : public QMenu
{
    Q_OBJECT

public:
    static constexpr int Most = 15;

    explicit RecentMenu(QWidget* parent = nullptr);

Q_SIGNALS:
    /// Its user wants that file.
    void chosen(const VyBookmark& bookmark);

private:
    void fill();
    void add(int index, const VyBookmark& bookmark);
};

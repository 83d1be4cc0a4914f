// SPDX-License-Identifier: MIT
#include "RecentMenu.h"

#include "MenuText.h"

#include <QFontMetrics>

RecentMenu::RecentMenu(QWidget* parent)
    : QMenu(tr("Open &Recent"), parent)
{
    setObjectName(QStringLiteral("recentMenu"));
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
    fill();
}

// The files themselves are not looked at: one on a share that does not answer
// would hold the menu up.
void RecentMenu::fill()
{
    clear();
    const QList<VyBookmark> bookmarks = VyBookmarks().mid(0, Most);
    for (int index = 0; index < bookmarks.size(); ++index)
        add(index, bookmarks.at(index));
    addSeparator();
    QAction* clearing = addAction(tr("&Clear List"));
    clearing->setObjectName(QStringLiteral("clearRecent"));
    clearing->setEnabled(!bookmarks.isEmpty());
    connect(clearing, &QAction::triggered, this, [] { VyClearBookmarks(); });
}

void RecentMenu::add(int index, const VyBookmark& bookmark)
{
    const int width = 60 * fontMetrics().averageCharWidth();
    const QString shown = fontMetrics().elidedText(bookmark.path, Qt::ElideMiddle, width);
    QAction* file = addAction(MenuText::numbered(index, shown));
    file->setObjectName(QStringLiteral("recentFile%1").arg(index + 1));
    file->setToolTip(bookmark.path);
    file->setStatusTip(bookmark.path);
    connect(file, &QAction::triggered, this, [this, bookmark] { Q_EMIT chosen(bookmark); });
}

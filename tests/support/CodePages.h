// SPDX-License-Identifier: MIT
#pragma once

#include "OdCodePageId.h"

#include <QDialog>
#include <QListWidget>

/// Chooses the page \a id in the stand-alone kernel's encoding dialog.
inline void chooseCodePage(QDialog& dialog, OdCodePageId id)
{
    auto* pages = dialog.findChild<QListWidget*>(QStringLiteral("codePages"));
    const QString end = QStringLiteral(" \u2013 ") + QLatin1String(VyCodePageName(id));
    pages->setCurrentItem(pages->findItems(end, Qt::MatchEndsWith).at(0));
}

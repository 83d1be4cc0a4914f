// SPDX-License-Identifier: MIT
#pragma once

#include "VyDirPushButton.h"

#include <QFileDialog>
#include <QHBoxLayout>

/// The buttons of the dialog's row of folders, from the root on.
inline QList<CVyDirPushButton*> buttons(QFileDialog& dialog)
{
    QList<CVyDirPushButton*> row;
    const auto* layout = dialog.findChild<QHBoxLayout*>(QStringLiteral("pathBar"));
    for (int i = 0; i < layout->count(); ++i)
        row.append(qobject_cast<CVyDirPushButton*>(layout->itemAt(i)->widget()));
    return row;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

/// Hides Acme's tool windows, which would lie over a native panel, and answers them.
QVector<QPointer<QWidget>> HideFloatingWindows();
/// Shows them again.
void ShowFloatingWindows(const QVector<QPointer<QWidget>>& windows);

// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

#include <QList>
#include <QPointer>
#include <QWidget>

/// The floating windows that one HideFloatingWindows() hid.
using VyFloatingWindows = QList<QPointer<QWidget>>;

/// Hides the application's floating windows, its visible top-level widgets of
/// type Qt::Tool that are not modal, so that none stands over a native panel. A
/// floating QDockWidget tells of it as when its user closes and opens it. The answer is the
/// token for ShowFloatingWindows(); without a QApplication it is empty. On the
/// user-interface thread alone.
VY_HOSTKERNEL_EXPORT VyFloatingWindows HideFloatingWindows();

/// Shows the windows of \a token again where they were, without activating them.
/// One that was deleted meanwhile is left out. Calls nest.
VY_HOSTKERNEL_EXPORT void ShowFloatingWindows(const VyFloatingWindows& token);

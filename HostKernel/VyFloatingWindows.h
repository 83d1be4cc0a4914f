// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

#include <memory>

class VyFloatingWindowsHold;

/// \file
/// The tool windows around a native panel.

/// What one HideFloatingWindows() keeps hidden. Its copies are one token; the
/// null token keeps nothing hidden.
///
/// A token whose last copy goes is shown as by ShowFloatingWindows(), so that no
/// window stays away for good. Outside the life of the QApplication its end does
/// nothing.
using VyFloatingWindows = std::shared_ptr<VyFloatingWindowsHold>;

/// Hides the application's floating windows, so that none stands over a native
/// panel: its visible top-level widgets of type Qt::Tool that are not modal, also
/// those that are minimised and QDockWidgets that float. Everything else stays,
/// and so does what the host opens later.
///
/// They are hidden, not closed: nothing is deleted, no closeEvent() comes and the
/// application does not end. showEvent() and hideEvent() come as ever; a
/// QDockWidget tells of it as when its user closes and opens it.
///
/// The answer is the token for ShowFloatingWindows(). Calls nest, and tokens may
/// be given back in any order: a window stays hidden for as long as one of the
/// tokens holds it that were taken while it was there to be hidden, or was hidden
/// for an earlier one.
///
/// On the user-interface thread alone; on another, or without a QApplication, it
/// does nothing and answers the null token.
[[nodiscard]] VY_HOSTKERNEL_EXPORT VyFloatingWindows HideFloatingWindows();

/// Gives back what \a token holds and shows the windows that no other token holds:
/// where they were, frame included, in the state they were in (minimised,
/// maximised, full screen and as the user's window manager had them), in the same
/// place from front to back among the windows on screen, and without activating
/// any of them. A token that was given back, also by another copy, does nothing.
/// On the user-interface thread alone.
///
/// The host's own last word about a window is respected: one that it has deleted,
/// hidden, closed or shown since is as the host left it, and one that it has moved
/// or resized comes back at its new place. Where other windows have changed places
/// meanwhile, a window comes back over the one that it lay on.
///
/// The order needs a platform that tells it: X11 with a window manager that keeps
/// _NET_CLIENT_LIST_STACKING (Extended Window Manager Hints 1.3, by the X Desktop
/// Group), and macOS. Elsewhere the windows come back in the order in which they
/// were made, the latest in front.
VY_HOSTKERNEL_EXPORT void ShowFloatingWindows(const VyFloatingWindows& token);

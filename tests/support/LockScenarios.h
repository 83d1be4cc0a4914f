// SPDX-License-Identifier: MIT
#pragma once

#include "HostRequest.h"

/// What a real user does to the host's windows while a dialog is up, whichever
/// style shows it. The request's title names the dialog's window. \a finish are
/// a DeskUser's commands to the dialog, which has the keyboard then, that must
/// lead to the status \a expected.
namespace LockScenarios {

/// He tries everything on a window that was open.
void everythingOnAnOpenWindow(HostRequest& request, const QString& finish, int expected);

/// He clicks and types into a window that a timer of the host's opens meanwhile.
void clicksOnALaterWindow(HostRequest& request, const QString& finish, int expected);

/// The request is made while he holds a button of the host's down, which he then
/// lets go.
void aButtonHeldDown(HostRequest& request, const QString& finish, int expected);

/// The request is made while a menu of the host's is open.
void anOpenMenu(HostRequest& request, const QString& finish, int expected);

} // namespace LockScenarios

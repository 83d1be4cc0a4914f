// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogImpl.h"

#include <QStringList>

#include <functional>

/// A family of back-ends that answers what it is told and writes down what the
/// front does to it. Its unit defines CVyFileDialogImpl::createQt() and
/// createMac(), so a program that links it has no other family.
namespace FakeFamily {

/// What the back-end answers; reset() brings these values back.
struct Script
{
    bool makesImpl = true;
    int showStatus = VyStatus::Accepted;
    QStringList results;
    int typeIndex = -1; ///< below 0: the selection is no type
    int openMode = 0;
    int newMode = 0;
    std::function<void()> duringShow;
    std::function<void(const QString& call)> onCall; ///< may throw
};

Script& script();

/// Every call since reset(), as "setTitle(text)" or "getResult".
QStringList& calls();

/// How many back-ends exist.
int alive();

void reset();

} // namespace FakeFamily

// SPDX-License-Identifier: MIT
#pragma once

#include "DrawingFolder.h"
#include "HostRequest.h"

#include <random>

using Chance = std::minstd_rand;

/// The folder in which all requests of a soak begin.
class SoakFolder : public DrawingFolder
{
public:
    SoakFolder();
};

/// Make one request whose kind, start and end are chosen by chance, in the one style
/// and in the other. They fail the test when it ends otherwise than it should, and
/// return what it was.
QString requestQtDialog(const SoakFolder& folder, Chance& chance);
QString requestPanel(const SoakFolder& folder, Chance& chance);

/// What both begin and end with: a request, and its end called \a ending.
HostRequest anyRequest(const SoakFolder& folder, Chance& chance);
QString judged(const HostRequest& request, bool several, const char* ending, bool accepted);

/// One of \a choices.
template <typename List>
auto oneOf(const List& choices, Chance& chance)
{
    const auto last = choices.size() - 1;
    return choices.at(std::uniform_int_distribution<decltype(choices.size())>(0, last)(chance));
}

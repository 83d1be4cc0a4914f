// SPDX-License-Identifier: MIT
// Platforms that tell nothing of their windows.
#include "VyWindowManager.h"

namespace VyWindowManager {

Order current()
{
    return creationOrder();
}

Notes notes(const QWindow&)
{
    return {};
}

void prepare(const QWindow&, const Notes&) {}

void place(const Order&, const Order&, QWindow* active)
{
    keepActive(active);
}

} // namespace VyWindowManager

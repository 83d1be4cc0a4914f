// SPDX-License-Identifier: MIT
#include "VyAccessoryLayout.h"

#include <algorithm>
#include <cmath>

namespace VyAccessoryLayout {

namespace {

constexpr int rowHeight = 30;
constexpr int controlHeight = 25;
constexpr int leftMargin = 20;
constexpr int labelRise = 5; // what the system's labels want beside a popup

} // namespace

int labelWidth(float filterText, float modeText)
{
    const float widest = std::ceil(std::max(filterText, modeText));
    return static_cast<int>(std::ceil(static_cast<float>(static_cast<int>(widest)) * 1.2 + 20.0));
}

int filterRowY(bool hasModes)
{
    return hasModes ? rowHeight : 0;
}

Rect label(int labelWidth, int rowY)
{
    return {leftMargin, rowY + labelRise, labelWidth, controlHeight};
}

Rect popup(int labelWidth, int rowY)
{
    return {leftMargin + labelWidth, rowY, labelWidth + 200, controlHeight};
}

Rect view(int labelWidth, bool hasFilters, bool hasModes)
{
    const int rows = (hasFilters ? 1 : 0) + (hasModes ? 1 : 0);
    return {0, 0, labelWidth + 500, rows * rowHeight};
}

Rect finishedView(int labelWidth, bool hasFilters, bool hasModes)
{
    const Rect inner = view(labelWidth, hasFilters, hasModes);
    return {0, 0, inner.width + 20, inner.height + 10};
}

} // namespace VyAccessoryLayout

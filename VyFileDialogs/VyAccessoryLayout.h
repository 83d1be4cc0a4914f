// SPDX-License-Identifier: MIT
#pragma once

/// Where the parts of the accessory view stand: a row with a label and a popup
/// for the file types above one for the modes. In points, from the view's lower
/// left corner.
namespace VyAccessoryLayout {

struct Rect
{
    int x;
    int y;
    int width;
    int height;
};

/// The width of both labels: room for the wider of two texts with the widths
/// \a filterText and \a modeText, and some space. Without a mode row,
/// \a modeText is 0.
int labelWidth(float filterText, float modeText);

/// Where the row of the file types stands, over the mode row if there is one.
int filterRowY(bool hasModes);

Rect label(int labelWidth, int rowY);
Rect popup(int labelWidth, int rowY);

/// The view that the parts are put into.
Rect view(int labelWidth, bool hasFilters, bool hasModes);
/// The view as the panel gets it, with a margin around the parts.
Rect finishedView(int labelWidth, bool hasFilters, bool hasModes);

} // namespace VyAccessoryLayout

// SPDX-License-Identifier: MIT
#pragma once

#include "VyString.h"

/// What Acme does with filter strings.
struct CVyUtils
{
    /// Makes of each "description&patterns" of \a filter, which "&" joins, the entry
    /// that a Qt dialog shows and the patterns: "Drawings&*.dwg;*.dxf" becomes
    /// "Drawings (*.dwg *.dxf)&*.dwg;*.dxf&", and one more "&" ends it all.
    static CVyString ConvertToQtFilter(const CVyString& filter);
};

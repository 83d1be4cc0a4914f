// SPDX-License-Identifier: MIT
#pragma once

#include "VyString.h"

/// \file
/// Conversions that host and module share.

/// Conversions that host and module share.
struct VY_HOSTKERNEL_EXPORT CVyUtils
{
    /// Turns a filter string, the host's list of file types, into name-filter
    /// entries as QFileDialog reads them, each followed by its patterns.
    ///
    /// \a filter holds pairs "description&patterns" joined by "&"; the patterns
    /// of a pair are separated by ";". The result holds, for each pair that is
    /// not wholly empty, "entry&patterns&", and one more "&" at its end:
    ///
    ///     Drawing&*.dwg;*.dxf        ->  Drawing (*.dwg *.dxf)&*.dwg;*.dxf&&
    ///     Drawing (dwg)&*.dwg        ->  Drawing (*.dwg)&*.dwg&&
    ///     (the empty string)         ->  &
    ///
    /// A last description without patterns has empty patterns. Time is linear
    /// in the length of the filter string; every string has a conversion.
    static CVyString ConvertToQtFilter(const CVyString& filter);
};

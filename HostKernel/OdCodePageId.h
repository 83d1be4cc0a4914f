// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

#include <vector>

/// Code pages that a drawing file can declare. The values are the numbers that
/// DWG files store; the names are those of the DXF header variable
/// $DWGCODEPAGE.
///
/// Source: the DXF reference, section "HEADER", for the names; the published
/// description of the DWG file format, file header, for the numbers.
enum class OdCodePageId : int
{
    Undefined = 0,
    Ascii = 1,
    Iso8859_1 = 2,
    Iso8859_2 = 3,
    Iso8859_3 = 4,
    Iso8859_4 = 5,
    Iso8859_5 = 6,
    Iso8859_6 = 7,
    Iso8859_7 = 8,
    Iso8859_8 = 9,
    Iso8859_9 = 10,
    Dos437 = 11,
    Dos850 = 12,
    Dos852 = 13,
    Dos855 = 14,
    Dos857 = 15,
    Dos860 = 16,
    Dos861 = 17,
    Dos863 = 18,
    Dos864 = 19,
    Dos865 = 20,
    Dos869 = 21,
    Dos932 = 22,
    Macintosh = 23,
    Big5 = 24,
    Ksc5601 = 25,
    Johab = 26,
    Dos866 = 27,
    Ansi1250 = 28,
    Ansi1251 = 29,
    Ansi1252 = 30,
    Gb2312 = 31,
    Ansi1253 = 32,
    Ansi1254 = 33,
    Ansi1255 = 34,
    Ansi1256 = 35,
    Ansi1257 = 36,
    Ansi874 = 37,
    Ansi932 = 38,
    Ansi936 = 39,
    Ansi949 = 40,
    Ansi950 = 41,
    Ansi1361 = 42,
    Utf16 = 43,
    Ansi1258 = 44,
};

/// One row of the code-page list.
struct CVyCodePage
{
    OdCodePageId id;
    const char* fileName; ///< as drawings declare it, for example "ANSI_1252"
    const char*
        description; ///< what a drafter calls it, English, UTF-8; the key of its translation
};

/// Every code page but OdCodePageId::Undefined, in the order of the numbers.
/// The list lives as long as the library.
VY_HOSTKERNEL_EXPORT const std::vector<CVyCodePage>& VyCodePages();

/// The page's name in drawings ("ANSI_1252"); null for OdCodePageId::Undefined
/// and for numbers outside the list.
VY_HOSTKERNEL_EXPORT const char* VyCodePageName(OdCodePageId id);

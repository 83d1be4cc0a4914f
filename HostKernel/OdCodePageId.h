// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

#include <vector>

/// \file
/// The code pages of drawings, as a list.

/// Code pages that a drawing's text can be in. The values up to Ansi1258 are the
/// numbers that DWG files store; the names are those of the DXF header variable
/// $DWGCODEPAGE. Utf8 is behind them with a number of our own: no drawing stores
/// one for it, but text DXF files from version AC1021 on are written in it,
/// whatever page they declare.
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
    Utf8 = 45,
};

/// A heading of the code-page list. The texts are English, and keys of their
/// translations in the context "CVyDlgEncoding".
struct CVyCodePageRegion
{
    const char* name;      ///< "Cyrillic"
    const char* languages; ///< that people look for: "Bulgarian, Russian"
};

/// One row of the code-page list. The texts are never null and never empty, and
/// live as long as the library.
struct CVyCodePage
{
    OdCodePageId id;                 ///< never OdCodePageId::Undefined
    const CVyCodePageRegion* region; ///< one object for all pages of a region; never null
    /// What a drafter calls it, "Japanese Shift-JIS (Windows)": English, and the
    /// key of its translation in the context "CVyDlgEncoding".
    const char* description;
    const char* fileName; ///< as drawings declare it: "ANSI_932"
    /// What others call it, the character-set names of IANA and their aliases,
    /// divided by blanks: "windows-31j Shift_JIS". QTextCodec may know the page by
    /// any of them, the better match first.
    const char* otherNames;
};

/// Every code page but OdCodePageId::Undefined, each once, as people look for
/// them: the pages of a region stand together, the commoner ones before the others.
VY_HOSTKERNEL_EXPORT const std::vector<CVyCodePage>& VyCodePages();

/// The page's row in the list; null for OdCodePageId::Undefined and for numbers
/// outside the list.
VY_HOSTKERNEL_EXPORT const CVyCodePage* VyFindCodePage(OdCodePageId id);

/// The page's name in drawings ("ANSI_1252"); null for OdCodePageId::Undefined
/// and for numbers outside the list.
VY_HOSTKERNEL_EXPORT const char* VyCodePageName(OdCodePageId id);

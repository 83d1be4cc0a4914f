// SPDX-License-Identifier: MIT
#include "OdCodePageId.h"

#include <QtGlobal>

#include <algorithm>

const std::vector<CVyCodePage>& VyCodePages()
{
    using Id = OdCodePageId;
    static const std::vector<CVyCodePage> pages = {
        {Id::Ascii, "ascii", QT_TRANSLATE_NOOP("CVyDlgEncoding", "US-ASCII")},
        {Id::Iso8859_1, "8859_1", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Western European (ISO)")},
        {Id::Iso8859_2, "8859_2", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Central European (ISO)")},
        {Id::Iso8859_3, "8859_3", QT_TRANSLATE_NOOP("CVyDlgEncoding", "South European (ISO)")},
        {Id::Iso8859_4, "8859_4", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Baltic (ISO)")},
        {Id::Iso8859_5, "8859_5", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Cyrillic (ISO)")},
        {Id::Iso8859_6, "8859_6", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Arabic (ISO)")},
        {Id::Iso8859_7, "8859_7", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Greek (ISO)")},
        {Id::Iso8859_8, "8859_8", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Hebrew (ISO)")},
        {Id::Iso8859_9, "8859_9", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Turkish (ISO)")},
        {Id::Dos437, "dos437", QT_TRANSLATE_NOOP("CVyDlgEncoding", "United States (DOS)")},
        {Id::Dos850, "dos850", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Western European (DOS)")},
        {Id::Dos852, "dos852", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Central European (DOS)")},
        {Id::Dos855, "dos855", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Cyrillic (DOS)")},
        {Id::Dos857, "dos857", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Turkish (DOS)")},
        {Id::Dos860, "dos860", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Portuguese (DOS)")},
        {Id::Dos861, "dos861", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Icelandic (DOS)")},
        {Id::Dos863, "dos863", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Canadian French (DOS)")},
        {Id::Dos864, "dos864", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Arabic (DOS)")},
        {Id::Dos865, "dos865", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Nordic (DOS)")},
        {Id::Dos869, "dos869", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Greek (DOS)")},
        {Id::Dos932, "dos932", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Japanese Shift-JIS (DOS)")},
        {Id::Macintosh, "mac-roman", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Western European (Mac)")},
        {Id::Big5, "big5", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Traditional Chinese (Big5)")},
        {Id::Ksc5601, "ksc5601",
         QT_TRANSLATE_NOOP("CVyDlgEncoding", "Korean (Wansung, KS C 5601)")},
        {Id::Johab, "johab", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Korean (Johab)")},
        {Id::Dos866, "dos866", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Russian (DOS)")},
        {Id::Ansi1250, "ANSI_1250",
         QT_TRANSLATE_NOOP("CVyDlgEncoding", "Central European (Windows)")},
        {Id::Ansi1251, "ANSI_1251", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Cyrillic (Windows)")},
        {Id::Ansi1252, "ANSI_1252",
         QT_TRANSLATE_NOOP("CVyDlgEncoding", "Western European (Windows)")},
        {Id::Gb2312, "gb2312", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Simplified Chinese (GB 2312)")},
        {Id::Ansi1253, "ANSI_1253", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Greek (Windows)")},
        {Id::Ansi1254, "ANSI_1254", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Turkish (Windows)")},
        {Id::Ansi1255, "ANSI_1255", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Hebrew (Windows)")},
        {Id::Ansi1256, "ANSI_1256", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Arabic (Windows)")},
        {Id::Ansi1257, "ANSI_1257", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Baltic (Windows)")},
        {Id::Ansi874, "ANSI_874", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Thai (Windows)")},
        {Id::Ansi932, "ANSI_932",
         QT_TRANSLATE_NOOP("CVyDlgEncoding", "Japanese Shift-JIS (Windows)")},
        {Id::Ansi936, "ANSI_936",
         QT_TRANSLATE_NOOP("CVyDlgEncoding", "Simplified Chinese GBK (Windows)")},
        {Id::Ansi949, "ANSI_949", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Korean (Windows)")},
        {Id::Ansi950, "ANSI_950",
         QT_TRANSLATE_NOOP("CVyDlgEncoding", "Traditional Chinese Big5 (Windows)")},
        {Id::Ansi1361, "ANSI_1361", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Korean Johab (Windows)")},
        {Id::Utf16, "UTF-16", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Unicode (UTF-16)")},
        {Id::Ansi1258, "ANSI_1258", QT_TRANSLATE_NOOP("CVyDlgEncoding", "Vietnamese (Windows)")},
    };
    return pages;
}

const char* VyCodePageName(OdCodePageId id)
{
    const auto& pages = VyCodePages();
    const auto found = std::find_if(pages.begin(), pages.end(),
                                    [id](const CVyCodePage& page) { return page.id == id; });
    return found == pages.end() ? nullptr : found->fileName;
}

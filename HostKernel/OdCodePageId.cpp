// SPDX-License-Identifier: MIT
#include "OdCodePageId.h"

#include <QtGlobal>

#include <algorithm>

namespace {

using Region = CVyCodePageRegion;

constexpr Region western = {
    QT_TRANSLATE_NOOP("CVyDlgEncoding", "Western European"),
    QT_TRANSLATE_NOOP("CVyDlgEncoding",
                      "Danish, Dutch, English, Finnish, French, German, Icelandic, Italian, "
                      "Maltese, Norwegian, Portuguese, Spanish, Swedish")};
constexpr Region central = {
    QT_TRANSLATE_NOOP("CVyDlgEncoding", "Central European"),
    QT_TRANSLATE_NOOP("CVyDlgEncoding",
                      "Albanian, Croatian, Czech, Hungarian, Polish, Romanian, Slovak, Slovenian")};
constexpr Region baltic = {QT_TRANSLATE_NOOP("CVyDlgEncoding", "Baltic"),
                           QT_TRANSLATE_NOOP("CVyDlgEncoding", "Estonian, Latvian, Lithuanian")};
constexpr Region cyrillic = {
    QT_TRANSLATE_NOOP("CVyDlgEncoding", "Cyrillic"),
    QT_TRANSLATE_NOOP(
        "CVyDlgEncoding",
        "Belarusian, Bulgarian, Kazakh, Macedonian, Mongolian, Russian, Serbian, Ukrainian")};
constexpr Region greek = {QT_TRANSLATE_NOOP("CVyDlgEncoding", "Greek"),
                          QT_TRANSLATE_NOOP("CVyDlgEncoding", "Greek")};
constexpr Region turkish = {QT_TRANSLATE_NOOP("CVyDlgEncoding", "Turkish"),
                            QT_TRANSLATE_NOOP("CVyDlgEncoding", "Azerbaijani, Turkish, Uzbek")};
constexpr Region hebrew = {QT_TRANSLATE_NOOP("CVyDlgEncoding", "Hebrew"),
                           QT_TRANSLATE_NOOP("CVyDlgEncoding", "Hebrew, Yiddish")};
constexpr Region arabic = {QT_TRANSLATE_NOOP("CVyDlgEncoding", "Arabic"),
                           QT_TRANSLATE_NOOP("CVyDlgEncoding", "Arabic, Persian, Urdu")};
constexpr Region japanese = {QT_TRANSLATE_NOOP("CVyDlgEncoding", "Japanese"),
                             QT_TRANSLATE_NOOP("CVyDlgEncoding", "Japanese")};
constexpr Region chinese = {QT_TRANSLATE_NOOP("CVyDlgEncoding", "Chinese"),
                            QT_TRANSLATE_NOOP("CVyDlgEncoding", "Chinese")};
constexpr Region korean = {QT_TRANSLATE_NOOP("CVyDlgEncoding", "Korean"),
                           QT_TRANSLATE_NOOP("CVyDlgEncoding", "Korean")};
constexpr Region thai = {QT_TRANSLATE_NOOP("CVyDlgEncoding", "Thai"),
                         QT_TRANSLATE_NOOP("CVyDlgEncoding", "Thai")};
constexpr Region vietnamese = {QT_TRANSLATE_NOOP("CVyDlgEncoding", "Vietnamese"),
                               QT_TRANSLATE_NOOP("CVyDlgEncoding", "Vietnamese")};
constexpr Region unicode = {QT_TRANSLATE_NOOP("CVyDlgEncoding", "Unicode"),
                            QT_TRANSLATE_NOOP("CVyDlgEncoding", "Any language")};

} // namespace

const std::vector<CVyCodePage>& VyCodePages()
{
    using Id = OdCodePageId;
    static const std::vector<CVyCodePage> pages = {
        {Id::Ansi1252, &western, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Western European (Windows)"),
         "ANSI_1252", "windows-1252 cp1252"},
        {Id::Iso8859_1, &western, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Western European (ISO)"),
         "8859_1", "ISO-8859-1 latin1"},
        {Id::Macintosh, &western, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Western European (Mac)"),
         "mac-roman", "macintosh x-mac-roman"},
        {Id::Dos850, &western, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Western European (DOS)"),
         "dos850", "IBM850 cp850"},
        {Id::Dos437, &western, QT_TRANSLATE_NOOP("CVyDlgEncoding", "United States (DOS)"), "dos437",
         "IBM437 cp437"},
        {Id::Ascii, &western, QT_TRANSLATE_NOOP("CVyDlgEncoding", "English (US-ASCII)"), "ascii",
         "US-ASCII"},
        {Id::Iso8859_3, &western,
         QT_TRANSLATE_NOOP("CVyDlgEncoding", "Maltese and South European (ISO)"), "8859_3",
         "ISO-8859-3 latin3"},
        {Id::Dos860, &western, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Portuguese (DOS)"), "dos860",
         "IBM860 cp860"},
        {Id::Dos861, &western, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Icelandic (DOS)"), "dos861",
         "IBM861 cp861"},
        {Id::Dos863, &western, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Canadian French (DOS)"),
         "dos863", "IBM863 cp863"},
        {Id::Dos865, &western, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Nordic (DOS)"), "dos865",
         "IBM865 cp865"},
        {Id::Ansi1250, &central, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Central European (Windows)"),
         "ANSI_1250", "windows-1250 cp1250"},
        {Id::Iso8859_2, &central, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Central European (ISO)"),
         "8859_2", "ISO-8859-2 latin2"},
        {Id::Dos852, &central, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Central European (DOS)"),
         "dos852", "IBM852 cp852"},
        {Id::Ansi1257, &baltic, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Baltic (Windows)"),
         "ANSI_1257", "windows-1257 cp1257"},
        {Id::Iso8859_4, &baltic, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Baltic (ISO)"), "8859_4",
         "ISO-8859-4 latin4"},
        {Id::Ansi1251, &cyrillic, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Cyrillic (Windows)"),
         "ANSI_1251", "windows-1251 cp1251"},
        {Id::Iso8859_5, &cyrillic, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Cyrillic (ISO)"), "8859_5",
         "ISO-8859-5"},
        {Id::Dos866, &cyrillic, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Russian (DOS)"), "dos866",
         "IBM866 cp866"},
        {Id::Dos855, &cyrillic, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Cyrillic (DOS)"), "dos855",
         "IBM855 cp855"},
        {Id::Ansi1253, &greek, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Greek (Windows)"), "ANSI_1253",
         "windows-1253 cp1253"},
        {Id::Iso8859_7, &greek, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Greek (ISO)"), "8859_7",
         "ISO-8859-7"},
        {Id::Dos869, &greek, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Greek (DOS)"), "dos869",
         "IBM869 cp869"},
        {Id::Ansi1254, &turkish, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Turkish (Windows)"),
         "ANSI_1254", "windows-1254 cp1254"},
        {Id::Iso8859_9, &turkish, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Turkish (ISO)"), "8859_9",
         "ISO-8859-9 latin5"},
        {Id::Dos857, &turkish, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Turkish (DOS)"), "dos857",
         "IBM857 cp857"},
        {Id::Ansi1255, &hebrew, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Hebrew (Windows)"),
         "ANSI_1255", "windows-1255 cp1255"},
        {Id::Iso8859_8, &hebrew, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Hebrew (ISO)"), "8859_8",
         "ISO-8859-8"},
        {Id::Ansi1256, &arabic, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Arabic (Windows)"),
         "ANSI_1256", "windows-1256 cp1256"},
        {Id::Iso8859_6, &arabic, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Arabic (ISO)"), "8859_6",
         "ISO-8859-6"},
        {Id::Dos864, &arabic, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Arabic (DOS)"), "dos864",
         "IBM864 cp864"},
        {Id::Ansi932, &japanese,
         QT_TRANSLATE_NOOP("CVyDlgEncoding", "Japanese Shift-JIS (Windows)"), "ANSI_932",
         "windows-31j Shift_JIS SJIS cp932"},
        {Id::Dos932, &japanese, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Japanese Shift-JIS (DOS)"),
         "dos932", "Shift_JIS windows-31j SJIS cp932"},
        {Id::Ansi936, &chinese,
         QT_TRANSLATE_NOOP("CVyDlgEncoding", "Simplified Chinese GBK (Windows)"), "ANSI_936",
         "GBK windows-936 cp936"},
        {Id::Gb2312, &chinese, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Simplified Chinese (GB 2312)"),
         "gb2312", "GB2312 EUC-CN"},
        {Id::Ansi950, &chinese,
         QT_TRANSLATE_NOOP("CVyDlgEncoding", "Traditional Chinese Big5 (Windows)"), "ANSI_950",
         "windows-950 cp950 Big5"},
        {Id::Big5, &chinese, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Traditional Chinese (Big5)"),
         "big5", "Big5"},
        {Id::Ansi949, &korean, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Korean (Windows)"), "ANSI_949",
         "windows-949 cp949 UHC EUC-KR"},
        {Id::Ksc5601, &korean, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Korean Wansung (KS C 5601)"),
         "ksc5601", "EUC-KR KS_C_5601-1987"},
        {Id::Ansi1361, &korean, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Korean Johab (Windows)"),
         "ANSI_1361", "windows-1361 cp1361 Johab"},
        {Id::Johab, &korean, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Korean Johab (KS C 5601)"),
         "johab", "Johab windows-1361 cp1361"},
        {Id::Ansi874, &thai, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Thai (Windows)"), "ANSI_874",
         "windows-874 cp874 TIS-620"},
        {Id::Ansi1258, &vietnamese, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Vietnamese (Windows)"),
         "ANSI_1258", "windows-1258 cp1258"},
        {Id::Utf8, &unicode, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Unicode (UTF-8)"), "UTF-8",
         "UTF-8 cp65001"},
        {Id::Utf16, &unicode, QT_TRANSLATE_NOOP("CVyDlgEncoding", "Unicode (UTF-16)"), "UTF-16",
         "UTF-16LE cp1200"},
    };
    return pages;
}

const CVyCodePage* VyFindCodePage(OdCodePageId id)
{
    const auto& pages = VyCodePages();
    const auto found = std::find_if(pages.begin(), pages.end(),
                                    [id](const CVyCodePage& page) { return page.id == id; });
    return found == pages.end() ? nullptr : &*found;
}

const char* VyCodePageName(OdCodePageId id)
{
    const CVyCodePage* const page = VyFindCodePage(id);
    return page ? page->fileName : nullptr;
}

// SPDX-License-Identifier: MIT
#include "VySystemCodePage.h"

#include <QByteArray>
#include <QLocale>

#include <algorithm>

namespace {

// What every system can read or write says nothing about the user's drawings.
bool isForAllLanguages(OdCodePageId id)
{
    return id == OdCodePageId::Ascii || id == OdCodePageId::Utf8 || id == OdCodePageId::Utf16;
}

bool isCalled(const CVyCodePage& page, const QByteArray& codec)
{
    const QList<QByteArray> names = QByteArray(page.otherNames).split(' ');
    return std::any_of(names.begin(), names.end(), [&codec](const QByteArray& name) {
        return qstricmp(name.constData(), codec.constData()) == 0;
    });
}

OdCodePageId ansiPageOfLatinLetters(QLocale::Language language)
{
    switch (language) {
    case QLocale::Albanian:
    case QLocale::Bosnian:
    case QLocale::Croatian:
    case QLocale::Czech:
    case QLocale::Hungarian:
    case QLocale::Polish:
    case QLocale::Romanian:
    case QLocale::Serbian:
    case QLocale::Slovak:
    case QLocale::Slovenian:
    case QLocale::Turkmen:
        return OdCodePageId::Ansi1250;
    case QLocale::Azerbaijani:
    case QLocale::Turkish:
    case QLocale::Uzbek:
        return OdCodePageId::Ansi1254;
    case QLocale::Estonian:
    case QLocale::Latvian:
    case QLocale::Lithuanian:
        return OdCodePageId::Ansi1257;
    case QLocale::Vietnamese:
        return OdCodePageId::Ansi1258;
    default:
        return OdCodePageId::Ansi1252;
    }
}

// The script comes first: Serbian, for one, is written in two.
OdCodePageId ansiPage(const QLocale& locale)
{
    switch (locale.script()) {
    case QLocale::ArabicScript:
        return OdCodePageId::Ansi1256;
    case QLocale::CyrillicScript:
        return OdCodePageId::Ansi1251;
    case QLocale::GreekScript:
        return OdCodePageId::Ansi1253;
    case QLocale::HebrewScript:
        return OdCodePageId::Ansi1255;
    case QLocale::JapaneseScript:
        return OdCodePageId::Ansi932;
    case QLocale::KoreanScript:
        return OdCodePageId::Ansi949;
    case QLocale::SimplifiedHanScript:
        return OdCodePageId::Ansi936;
    case QLocale::TraditionalHanScript:
        return OdCodePageId::Ansi950;
    case QLocale::ThaiScript:
        return OdCodePageId::Ansi874;
    default:
        return ansiPageOfLatinLetters(locale.language());
    }
}

} // namespace

OdCodePageId VySystemCodePage(const QByteArray& codec, const QLocale& locale)
{
    for (const CVyCodePage& page : VyCodePages()) {
        if (!isForAllLanguages(page.id) && isCalled(page, codec))
            return page.id;
    }
    return ansiPage(locale);
}

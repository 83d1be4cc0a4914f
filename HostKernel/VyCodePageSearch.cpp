// SPDX-License-Identifier: MIT
#include "VyCodePageSearch.h"

#include <algorithm>

namespace VyCodePageSearch {

namespace {

constexpr QChar dotlessI(0x0131);

// Letters and digits alone, without case and accents.
QString bare(const QString& text)
{
    QString result;
    const QString decomposed = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    for (const QChar unit : decomposed) {
        if (unit == dotlessI) // capital I is its capital, too
            result += QLatin1Char('i');
        else if (unit.isLetterOrNumber() || unit.isSurrogate())
            result += unit;
    }
    return result;
}

} // namespace

QString key(const QStringList& texts)
{
    QStringList bareTexts;
    for (const QString& text : texts)
        bareTexts.append(bare(text));
    return bareTexts.join(QLatin1Char('\n'));
}

bool matches(const QString& key, const QString& typed)
{
    const QStringList words = typed.simplified().split(QLatin1Char(' '));
    return std::all_of(words.begin(), words.end(),
                       [&key](const QString& word) { return key.contains(bare(word)); });
}

} // namespace VyCodePageSearch

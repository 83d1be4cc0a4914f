// SPDX-License-Identifier: MIT
#include "VyNameMatcher.h"

#include <algorithm>

namespace {

// "*" and an ending in ASCII, without a further wildcard: what nearly all types
// consist of. Only in ASCII do Qt's comparison and its regular expressions agree
// for sure on what differs in case alone.
bool isEnding(const QString& pattern)
{
    const auto isPlain = [](QChar character) {
        return character.unicode() < 0x80 && !QStringLiteral("*?[]\\/").contains(character);
    };
    return pattern.startsWith(QLatin1Char('*')) &&
           std::all_of(pattern.begin() + 1, pattern.end(), isPlain);
}

// Qt's expression tries every length for every "*", which takes longer than anybody
// waits where there are many. What stands between two of them may as well be where it
// is first found: an atomic group does not try again.
QString inOneGo(const QString& expression)
{
    const QString star = QStringLiteral("[^/]*");
    QStringList parts = expression.split(star);
    for (int i = 1; i < parts.size() - 1; ++i)
        parts[i] = "(?>" + star + '?' + parts.at(i) + ')';
    const QString last = parts.size() > 1 ? star + parts.takeLast() : QString();
    return parts.join(QString()) + last;
}

} // namespace

CVyNameMatcher::CVyNameMatcher(const QStringList& patterns, Qt::CaseSensitivity sensitivity)
    : m_sensitivity(sensitivity)
    , m_matchesAll(patterns.isEmpty())
{
    for (const QString& pattern : patterns)
        add(pattern);
}

void CVyNameMatcher::add(const QString& pattern)
{
    if (isEnding(pattern)) {
        m_endings.append(pattern.mid(1));
        return;
    }
    const QRegularExpression::PatternOptions options =
        m_sensitivity == Qt::CaseSensitive ? QRegularExpression::NoPatternOption
                                           : QRegularExpression::CaseInsensitiveOption;
    const QRegularExpression expression(
        inOneGo(QRegularExpression::wildcardToRegularExpression(pattern)), options);
    if (expression.isValid()) // one that is not, as of "[", matches nothing
        m_expressions.push_back(expression);
}

bool CVyNameMatcher::matches(const QString& name) const
{
    if (m_matchesAll)
        return true;
    const bool ends = std::any_of(m_endings.begin(), m_endings.end(), [&](const QString& ending) {
        return name.endsWith(ending, m_sensitivity);
    });
    if (ends)
        return name.isValidUtf16();
    return std::any_of(
        m_expressions.begin(), m_expressions.end(),
        [&](const QRegularExpression& expression) { return expression.match(name).hasMatch(); });
}

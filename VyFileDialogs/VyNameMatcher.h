// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QStringList>

#include <vector>

/// Tells which file names match one of a file type's patterns. The patterns are
/// compiled once, and the answers are those of
/// QRegularExpression::wildcardToRegularExpression(): "*", "?" and sets in "[]",
/// over the whole name. A name that is not valid UTF-16 matches no pattern.
class CVyNameMatcher
{
public:
    /// Matches every name.
    CVyNameMatcher() = default;

    /// Matches what one of \a patterns matches, and every name if there are none.
    explicit CVyNameMatcher(const QStringList& patterns,
                            Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive);

    bool matches(const QString& name) const;

private:
    void add(const QString& pattern);

    Qt::CaseSensitivity m_sensitivity = Qt::CaseInsensitive;
    bool m_matchesAll = true;
    QStringList m_endings;                         ///< of the patterns that are "*" and an ending
    std::vector<QRegularExpression> m_expressions; ///< of all others
};

// SPDX-License-Identifier: MIT
// Wildcard patterns and names: the same answers as Qt's own expressions.
#include "Fuzz.h"
#include "VyNameMatcher.h"

#include <QRegularExpression>

namespace {

bool qtMatches(const QStringList& patterns, const QString& name)
{
    for (const QString& pattern : patterns) {
        const QRegularExpression expression(
            QRegularExpression::wildcardToRegularExpression(pattern),
            QRegularExpression::CaseInsensitiveOption);
        if (expression.isValid() && expression.match(name).hasMatch())
            return true;
    }
    return patterns.isEmpty();
}

} // namespace

// The first line has the patterns, parted by blanks, the others are names.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QStringList names = Fuzz::text(data, size).split('\n');
    const QStringList patterns = names.takeFirst().split(' ', Qt::SkipEmptyParts);
    const CVyNameMatcher matcher(patterns);
    for (const QString& name : qAsConst(names)) {
        if (!name.contains('/')) // which no name of a file does
            Fuzz::require(matcher.matches(name) == qtMatches(patterns, name), "as Qt answers");
    }
    return 0;
}

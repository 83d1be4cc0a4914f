// SPDX-License-Identifier: MIT
// Wildcard patterns and names: the same answers as Qt's own expressions.
#include "Fuzz.h"
#include "QtMatcher.h"
#include "VyNameMatcher.h"

// The first line has the patterns, parted by blanks, the others are names.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QStringList names = Fuzz::text(data, size).split('\n');
    const QStringList patterns = names.takeFirst().split(' ', Qt::SkipEmptyParts);
    const CVyNameMatcher matcher(patterns);
    const QtMatcher qt(patterns);
    for (const QString& name : qAsConst(names)) {
        if (name.contains('/')) // which no name of a file does
            continue;
        if (qt.givesUp(name)) // which takes its time
            break;
        Fuzz::require(matcher.matches(name) == qt.matches(name), "as Qt answers");
    }
    return 0;
}

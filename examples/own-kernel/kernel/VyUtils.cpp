// SPDX-License-Identifier: MIT
#include "VyUtils.h"

#include <QStringList>

namespace {

QString withoutBlanksBehind(QString text)
{
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text;
}

// From the last "(" to the last ")", none where they stand the other way round.
struct Parentheses
{
    explicit Parentheses(const QString& text)
        : start(text.lastIndexOf(u'('))
        , length(text.lastIndexOf(u')') + 1 - start)
    {}

    bool exist() const { return start >= 0 && length > 0; }

    int start;
    int length;
};

QString entryFor(QString description, const QString& patterns)
{
    const Parentheses words(description);
    if (words.exist() && !description.contains(u'*')) // as in "Drawings (all)"
        description.truncate(words.start);
    if (!description.contains(u'(') && !description.contains(u')'))
        description = withoutBlanksBehind(description) + QStringLiteral(" (%1)").arg(patterns);

    const Parentheses list(description);
    if (!list.exist())
        return description;
    return withoutBlanksBehind(description.left(list.start)) + u' ' +
           description.mid(list.start, list.length).replace(u';', u' ').replace(u',', u' ');
}

} // namespace

CVyString CVyUtils::ConvertToQtFilter(const CVyString& filter)
{
    const QStringList fields = QString(filter).split(u'&');
    QString converted;
    for (int i = 0; i < fields.size(); i += 2) {
        const QString patterns = fields.value(i + 1);
        if (!fields.at(i).isEmpty() || !patterns.isEmpty())
            converted += entryFor(fields.at(i), patterns) + u'&' + patterns + u'&';
    }
    return converted + u'&';
}

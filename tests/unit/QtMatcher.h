// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QStringList>
#include <QVector>

#include <algorithm>

/// As QFileSystemModel matches a name: an expression for each pattern.
class QtMatcher
{
public:
    explicit QtMatcher(const QStringList& patterns)
    {
        for (const QString& pattern : patterns)
            m_expressions.append(
                QRegularExpression(QRegularExpression::wildcardToRegularExpression(pattern),
                                   QRegularExpression::CaseInsensitiveOption));
    }

    bool matches(const QString& name) const
    {
        for (const QRegularExpression& expression : m_expressions) {
            if (expression.isValid() && expression.match(name).hasMatch())
                return true;
        }
        return m_expressions.isEmpty();
    }

    /// Whether Qt gives up on \a name, as there are too many ways to try.
    bool givesUp(const QString& name) const
    {
        return std::any_of(m_expressions.begin(), m_expressions.end(),
                           [&](const QRegularExpression& expression) {
                               return expression.isValid() && name.isValidUtf16() &&
                                      !expression.match(name).isValid();
                           });
    }

private:
    QVector<QRegularExpression> m_expressions;
};

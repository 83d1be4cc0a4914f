// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QStringList>
#include <QVector>

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

private:
    QVector<QRegularExpression> m_expressions;
};

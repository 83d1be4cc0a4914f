// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QVector>

/// What a process holds after so and so many requests.
class Curve
{
public:
    struct Column
    {
        QString name;
        double allowed = 0; ///< growth in a thousand requests
    };

    explicit Curve(const QVector<Column>& columns);

    /// One value for each column.
    void add(int requests, const QVector<double>& values);
    /// Writes it as a table with tabs and a line of titles.
    void write(const QString& fileName) const;
    /// Fails the test for a column that grows: all its values in the last third lie
    /// above all in the first, by more than is allowed.
    void expectFlat() const;

private:
    struct Point
    {
        int requests;
        QVector<double> values;
    };

    const QVector<Column> m_columns;
    QVector<Point> m_points;
};

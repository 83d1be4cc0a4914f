// SPDX-License-Identifier: MIT
#include "Curve.h"

#include <QFile>
#include <QTextStream>
#include <QtTest>

#include <algorithm>

Curve::Curve(const QVector<Column>& columns)
    : m_columns(columns)
{}

void Curve::add(int requests, const QVector<double>& values)
{
    Q_ASSERT(values.size() == m_columns.size());
    m_points.append({requests, values});
}

void Curve::write(const QString& fileName) const
{
    QFile file(fileName);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(fileName));
    QTextStream table(&file);
    table << "requests";
    for (const Column& column : m_columns)
        table << '\t' << column.name;
    table << '\n';
    for (const Point& point : m_points) {
        table << point.requests;
        for (double value : point.values)
            table << '\t' << QString::number(value, 'f', 0);
        table << '\n';
    }
}

void Curve::expectFlat() const
{
    const int third = m_points.size() / 3;
    QVERIFY(third > 0);
    for (int column = 0; column < m_columns.size(); ++column) {
        const auto less = [column](const Point& left, const Point& right) {
            return left.values.at(column) < right.values.at(column);
        };
        const Point& before = *std::max_element(m_points.begin(), m_points.begin() + third, less);
        const Point& after = *std::min_element(m_points.end() - third, m_points.end(), less);
        const double allowed =
            m_columns.at(column).allowed * (after.requests - before.requests) / 1000;
        if (before.values.at(column) + allowed < after.values.at(column))
            QTest::qFail(qPrintable(QStringLiteral("%1 grow: %2 after %3 requests, %4 after %5")
                                        .arg(m_columns.at(column).name)
                                        .arg(before.values.at(column))
                                        .arg(before.requests)
                                        .arg(after.values.at(column))
                                        .arg(after.requests)),
                         __FILE__, __LINE__);
    }
}

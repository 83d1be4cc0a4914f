// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>
#include <QtTest>

/// The tables of one of our documents.
class DocumentTables
{
public:
    explicit DocumentTables(const QString& path)
    {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            m_lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    }

    /// The rows of all tables whose head begins with \a firstColumn: the cells of each.
    QVector<QStringList> rows(const QString& firstColumn) const
    {
        QVector<QStringList> result;
        bool inTable = false;
        for (int line = 0; line < m_lines.size(); ++line) {
            const QStringList cells = m_lines.at(line).split(QLatin1Char('|')).mid(1);
            if (cells.size() < 2) {
                inTable = false;
            } else if (cells.constFirst().trimmed() == firstColumn) {
                inTable = true;
                ++line; // the rule below the head
            } else if (inTable) {
                result += cells;
            }
        }
        return result;
    }

    /// Makes them the data of a test, in a column "cells".
    void addRows(const QString& firstColumn) const
    {
        QTest::addColumn<QStringList>("cells");
        const auto all = rows(firstColumn);
        QVERIFY2(!all.isEmpty(), qPrintable(firstColumn));
        int number = 0;
        for (const QStringList& cells : all)
            QTest::addRow("row %d:%s", ++number, qPrintable(cells.constFirst())) << cells;
    }

    /// What stands in backquotes in \a cell; a dash stands for nothing.
    static QStringList codes(const QString& cell)
    {
        static const QRegularExpression code(QStringLiteral("`([^`]+)`|–"));
        QStringList result;
        QRegularExpressionMatchIterator matches = code.globalMatch(cell);
        while (matches.hasNext())
            result += matches.next().captured(1);
        return result;
    }
    /// The first of them.
    static QString code(const QString& cell) { return codes(cell).value(0); }

    /// The lines of the document.
    QStringList lines() const { return m_lines; }

private:
    QStringList m_lines;
};

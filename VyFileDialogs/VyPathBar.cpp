// SPDX-License-Identifier: MIT
#include "VyPathBar.h"

#include <algorithm>

namespace VyPathBar {

QStringList parts(const QString& path)
{
    QStringList result = path.split(QLatin1Char('/'));
    if (result.constFirst().isEmpty())
        result.first() = QLatin1Char('/');
    if (result.constLast().isEmpty())
        result.removeLast();
    return result;
}

int staying(const QStringList& names, const QStringList& parts)
{
    const int common = std::min(names.size(), parts.size());
    const auto differing =
        std::mismatch(names.begin(), names.begin() + common, parts.begin()).first;
    const int same = static_cast<int>(differing - names.begin());
    return same < common ? same : names.size();
}

QString folderOf(const QStringList& names, int index)
{
    QString path;
    const QStringList way = names.mid(0, index + 1);
    for (const QString& name : way) {
        if (name != QLatin1String("/"))
            path += QLatin1Char('/') + name;
    }
    return path;
}

QString singleLine(const QString& name)
{
    QString line = name;
    for (QChar& character : line) {
        const QChar::Category category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            character = QLatin1Char(' ');
    }
    return line;
}

int paddedWidth(const QFontMetrics& metrics, const QString& text)
{
    const QRect bounds = metrics.boundingRect(text);
    return bounds.right() - bounds.left() + 16;
}

QString fittingText(const QFontMetrics& metrics, const QString& name, int width)
{
    return paddedWidth(metrics, name) <= width ? name : elidedText(metrics, name, width);
}

QString elidedText(const QFontMetrics& metrics, const QString& name, int width)
{
    const QString elided = metrics.elidedText(name, Qt::ElideRight, width - 15);
    return elided.isEmpty() ? QString(QChar(0x2026)) : elided;
}

} // namespace VyPathBar

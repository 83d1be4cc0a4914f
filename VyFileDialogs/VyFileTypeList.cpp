// SPDX-License-Identifier: MIT
#include "VyFileTypeList.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace VyFileTypeList {

namespace {

// Calls visit(entry, patterns) for each pair of a converted filter; a field
// without a partner is no pair.
template <typename Visitor>
void forEachPair(const CVyString& converted, Visitor visit)
{
    const std::vector<CVyString> fields = converted.SplitA('&');
    for (std::size_t i = 0; i + 1 < fields.size(); i += 2)
        visit(fields[i], fields[i + 1]);
}

// The entries as parts of \a qtFilter, which they do not outlive.
QVector<QStringRef> entriesOf(const QString& qtFilter)
{
    return qtFilter.splitRef(QLatin1Char(';'), Qt::SkipEmptyParts);
}

QStringList nonEmptyParts(const QString& text, char separator)
{
    return text.split(QLatin1Char(separator), Qt::SkipEmptyParts);
}

} // namespace

Types fromConverted(const CVyString& converted)
{
    Types types;
    bool first = true;
    forEachPair(converted, [&](const CVyString& entry, const CVyString& patterns) {
        types.qtFilter += first ? L"" : L";;";
        types.qtFilter += entry;
        types.extensionLists += first ? L"" : L"&";
        types.extensionLists += extensionList(patterns);
        first = false;
    });
    return types;
}

std::vector<CVyString> extensionLists(const CVyString& converted)
{
    std::vector<CVyString> lists;
    forEachPair(converted, [&](const CVyString&, const CVyString& patterns) {
        lists.push_back(extensionList(patterns));
    });
    return lists;
}

CVyString extensionList(const CVyString& patterns)
{
    CVyString extensions;
    for (int start = 0, end = 0; end >= 0; start = end + 1) {
        end = patterns.findA(";", start);
        const int dot = patterns.findA(".", start);
        if (dot < 0 || (end >= 0 && dot > end))
            break; // what follows is given up too
        if (!extensions.isEmpty())
            extensions += L";";
        extensions += patterns.mid(dot + 1, end < 0 ? -1 : end - dot - 1);
    }
    return extensions;
}

QStringList entries(const CVyString& qtFilter)
{
    return nonEmptyParts(qtFilter, ';');
}

QStringList patterns(const QString& entry)
{
    // QFileDialog's own expression; it is not to be had from there.
    static const QRegularExpression inParentheses(
        QStringLiteral(R"(^(.*)\(([a-zA-Z0-9_.,*? +;#\-\[\]@\{\}/!<>\$%&=^~:\|]*)\)$)"));
    const QRegularExpressionMatch match = inParentheses.match(entry);
    const QString list = match.hasMatch() ? match.captured(2) : entry;
    return list.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QStringList splitLists(const CVyString& extensionLists)
{
    return nonEmptyParts(extensionLists, '&');
}

QStringList splitExtensions(const QString& extensionList)
{
    return nonEmptyParts(extensionList, ';');
}

CVyString entryAt(const CVyString& qtFilter, int index)
{
    const QString text = qtFilter;
    const QVector<QStringRef> list = entriesOf(text);
    if (list.isEmpty())
        return CVyString();
    return CVyString(list.at(std::clamp(index, 0, list.size() - 1)).toString());
}

int indexOf(const CVyString& qtFilter, const CVyString& selected)
{
    const QString text = qtFilter;
    const QString wanted = selected;
    const QVector<QStringRef> list = entriesOf(text);
    const auto found = std::find_if(list.begin(), list.end(), [&](const QStringRef& entry) {
        return entry.compare(wanted, Qt::CaseInsensitive) == 0;
    });
    return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

QString nameForType(const QDir& folder, const QString& typedName, const QStringList& extensions)
{
    const QFileInfo file(folder.absoluteFilePath(typedName));
    if (extensions.isEmpty() || file.isDir() ||
        extensions.contains(file.suffix(), Qt::CaseInsensitive))
        return typedName;
    return file.completeBaseName() + QLatin1Char('.') + extensions.constFirst();
}

} // namespace VyFileTypeList

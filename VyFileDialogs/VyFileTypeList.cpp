// SPDX-License-Identifier: MIT
#include "VyFileTypeList.h"

#include <QFileInfo>

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

QStringList nonEmptyParts(const QString& text, char separator)
{
    return text.split(QLatin1Char(separator), Qt::SkipEmptyParts);
}

} // namespace

Types fromConverted(const CVyString& converted)
{
    QStringList entryList;
    QStringList listOfLists;
    forEachPair(converted, [&](const CVyString& entry, const CVyString& patterns) {
        entryList.append(entry);
        listOfLists.append(extensionList(patterns));
    });
    return {entryList.join(QStringLiteral(";;")), listOfLists.join(QLatin1Char('&'))};
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
    for (const CVyString& pattern : patterns.SplitA(';')) {
        const int dot = pattern.findA(".");
        if (dot < 0)
            break; // what follows is given up too
        if (!extensions.isEmpty())
            extensions += L";";
        extensions += pattern.mid(dot + 1);
    }
    return extensions;
}

QStringList entries(const CVyString& qtFilter)
{
    return nonEmptyParts(qtFilter, ';');
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
    const QStringList list = entries(qtFilter);
    return list.isEmpty() ? CVyString() : CVyString(list.at(std::clamp(index, 0, list.size() - 1)));
}

int indexOf(const CVyString& qtFilter, const CVyString& selected)
{
    const QStringList list = entries(qtFilter);
    const auto found = std::find_if(list.begin(), list.end(), [&](const QString& entry) {
        return CVyString(entry).equalNoCase(selected);
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

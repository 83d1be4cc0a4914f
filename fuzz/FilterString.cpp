// SPDX-License-Identifier: MIT
// A host's filter string on its way to lists, entries and indexes, and back.
#include "Fuzz.h"
#include "VyFileTypeList.h"
#include "VyNameMatcher.h"
#include "VyUtils.h"

#include <algorithm>

namespace {

// The pairs of the filter string that are not wholly empty: their patterns.
QStringList patternsOfPairs(const QString& filter)
{
    const QStringList fields = filter.split('&');
    QStringList patterns;
    for (int i = 0; i < fields.size(); i += 2) {
        const QString second = fields.value(i + 1);
        if (!fields.at(i).isEmpty() || !second.isEmpty())
            patterns.append(second);
    }
    return patterns;
}

// Entry and patterns of each pair, and an empty pair at the end.
void checkWalk(const QString& converted, const QStringList& patterns)
{
    const QStringList fields = converted.split('&');
    Fuzz::require(fields.size() == 2 * patterns.size() + 2 || patterns.isEmpty(),
                  "a pair for each pair, and an empty one at the end");
    Fuzz::require(!patterns.isEmpty() || converted == QLatin1String("&"), "nothing is \"&\"");
    for (int i = 0; i < patterns.size(); ++i)
        Fuzz::require(fields.at(2 * i + 1) == patterns.at(i), "patterns come through as they are");
}

void checkIndexes(const CVyString& qtFilter)
{
    const QStringList entries = VyFileTypeList::entries(qtFilter);
    for (int index = -2; index < entries.size() + 2; ++index) {
        const CVyString entry = VyFileTypeList::entryAt(qtFilter, index);
        Fuzz::require(entry.isEmpty() == entries.isEmpty(), "no entry without entries");
        if (entries.isEmpty())
            continue;
        const int clamped = std::max(0, std::min(index, entries.size() - 1));
        const int found = VyFileTypeList::indexOf(qtFilter, entry);
        Fuzz::require(found >= 0 && found <= clamped, "an entry is found at or before its place");
        Fuzz::require(CVyString(entries.at(found)).equalNoCase(entry), "an entry finds its like");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString filter = Fuzz::text(data, size);
    const QStringList patterns = patternsOfPairs(filter);
    const CVyString converted = CVyUtils::ConvertToQtFilter(CVyString(filter));
    checkWalk(converted, patterns);

    const VyFileTypeList::Types types = VyFileTypeList::fromConverted(converted);
    const std::vector<CVyString> lists = VyFileTypeList::extensionLists(converted);
    for (std::size_t i = 0; i < lists.size() && i < static_cast<std::size_t>(patterns.size()); ++i)
        Fuzz::require(lists[i] == VyFileTypeList::extensionList(patterns.at(static_cast<int>(i))),
                      "a list for each pair");
    for (const QString& list : VyFileTypeList::splitLists(types.extensionLists))
        VyFileTypeList::splitExtensions(list);
    checkIndexes(types.qtFilter);
    for (const QString& entry : VyFileTypeList::entries(types.qtFilter))
        CVyNameMatcher(VyFileTypeList::patterns(entry)).matches(QStringLiteral("plan.dwg"));
    return 0;
}

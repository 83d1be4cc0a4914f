// SPDX-License-Identifier: MIT
#include "VyStartingType.h"

#include "VyFileTypeList.h"

#include <algorithm>

namespace {

VyStartingType typeAt(const QStringList& descriptions, const QStringList& extensionLists, int index)
{
    return {descriptions.value(index),
            VyFileTypeList::splitExtensions(extensionLists.value(index))};
}

int indexWithExtension(const QStringList& extensionLists, const QString& extension)
{
    const auto position =
        std::find_if(extensionLists.cbegin(), extensionLists.cend(), [&](const QString& list) {
            return VyFileTypeList::splitExtensions(list).contains(extension);
        });
    return position == extensionLists.cend()
               ? -1
               : static_cast<int>(std::distance(extensionLists.cbegin(), position));
}

} // namespace

VyStartingType VyStartingType::forOpen(const QStringList& descriptions,
                                       const QStringList& extensionLists, const QString& suffix,
                                       const QString& selected)
{
    QString wanted = suffix.isEmpty() ? extensionLists.value(0) : suffix;
    const int selectedIndex = selected.isEmpty() ? -1 : descriptions.indexOf(selected);
    if (selectedIndex >= 0)
        wanted = extensionLists.value(selectedIndex);

    for (const int index :
         {extensionLists.indexOf(wanted), indexWithExtension(extensionLists, wanted)}) {
        VyStartingType type = typeAt(descriptions, extensionLists, index);
        if (!type.description.isEmpty())
            return type;
    }
    return typeAt(descriptions, extensionLists, 0);
}

VyStartingType VyStartingType::forNew(const QStringList& descriptions,
                                      const QStringList& extensionLists)
{
    return {extensionLists.isEmpty() ? QString() : descriptions.value(0),
            VyFileTypeList::splitExtensions(extensionLists.value(0))};
}

QString VyStartingType::forSave(const QStringList& descriptions, const QStringList& extensionLists,
                                const QString& suffix, const QString& selected)
{
    if (!selected.isEmpty())
        return selected;
    const int index = std::max(0, extensionLists.indexOf(suffix));
    return extensionLists.isEmpty() ? QString() : descriptions.value(index);
}

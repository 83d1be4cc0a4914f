// SPDX-License-Identifier: MIT
#include "FileTypes.h"

#include <QStringList>

std::vector<FileType> fileTypes(const QString& filter)
{
    const QStringList fields = filter.split(QLatin1Char('&'));
    std::vector<FileType> types;
    for (int i = 0; i < fields.size(); i += 2) {
        const FileType type{fields.at(i), fields.value(i + 1)};
        if (!type.description.isEmpty() || !type.patterns.isEmpty())
            types.push_back(type);
    }
    return types;
}

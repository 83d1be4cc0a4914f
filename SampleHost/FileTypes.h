// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// A type of a filter string, as its writer meant it.
struct FileType
{
    QString description;
    QString patterns;
};

/// The types of \a filter in their order, also those that lack one of both texts.
std::vector<FileType> fileTypes(const QString& filter);

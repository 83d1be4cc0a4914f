// SPDX-License-Identifier: MIT
#pragma once

#include "VyString.h"

#include <QStringList>

#include <vector>

/// How a back-end, of either family, answers from what it keeps. The operations
/// of CVyFileDialogImpl with similar names tell what each answers.
namespace VyFileDialogResults {

/// Writes the first of \a selected.
int first(const QStringList& selected, CVyString* path);

/// Appends all of \a selected.
int all(const QStringList& selected, std::vector<CVyString>* paths);

/// Writes the position of \a selectedFilter among the entries of \a qtFilter
/// (see VyFileTypeList).
int typeIndex(const CVyString& qtFilter, const CVyString& selectedFilter, int* index);

} // namespace VyFileDialogResults

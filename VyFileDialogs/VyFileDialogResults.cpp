// SPDX-License-Identifier: MIT
#include "VyFileDialogResults.h"

#include "VyFileTypeList.h"
#include "VyStatus.h"

namespace VyFileDialogResults {

int first(const QStringList& selected, CVyString* path)
{
    if (!path)
        return VyStatus::Failed;
    if (selected.isEmpty())
        return VyStatus::NothingSelected;
    *path = CVyString(selected.constFirst());
    return VyStatus::Accepted;
}

int all(const QStringList& selected, std::vector<CVyString>* paths)
{
    if (!paths)
        return VyStatus::Failed;
    if (selected.isEmpty())
        return VyStatus::NothingSelected;
    paths->insert(paths->end(), selected.cbegin(), selected.cend());
    return VyStatus::Accepted;
}

int typeIndex(const CVyString& qtFilter, const CVyString& selectedFilter, int* index)
{
    const int position = VyFileTypeList::indexOf(qtFilter, selectedFilter);
    if (!index || position < 0)
        return VyStatus::Failed;
    *index = position;
    return VyStatus::Accepted;
}

} // namespace VyFileDialogResults

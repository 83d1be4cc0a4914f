// SPDX-License-Identifier: MIT
#include "VyFileDialogMacMacNativePrivate.h"

#include "VyCocoa.h"
#include "VyPanelMessages.h"

namespace {

// Lists are shared data; assigning one to itself would only count twice.
void assign(QStringList& list, const QStringList& value)
{
    if (!list.isSharedWith(value))
        list = value;
}

} // namespace

CVyFileDialogMacMacNativePrivate::~CVyFileDialogMacMacNativePrivate()
{
    [(id)m_panelController release];
}

void CVyFileDialogMacMacNativePrivate::SetListFilter(const QStringList& descriptions)
{
    assign(m_listFilter, descriptions);
}

void CVyFileDialogMacMacNativePrivate::SetListFilterFileExt(const QStringList& extensionLists)
{
    assign(m_listFilterFileExt, extensionLists);
}

void CVyFileDialogMacMacNativePrivate::SetFileNames(const QStringList& fileNames)
{
    assign(m_fileNames, fileNames);
}

void CVyFileDialogMacMacNativePrivate::GetFileNames(QStringList& fileNames) const
{
    assign(fileNames, m_fileNames);
}

void CVyFileDialogMacMacNativePrivate::DoModal()
{
    const VyCocoa::PanelRun run;
    @try {
        m_panelController = newPanelController();
        [m_panelController drawWidget];
    } @catch (id thrown) {
        VyPanelMessages::warn(thrown);
    }
}

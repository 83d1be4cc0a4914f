// SPDX-License-Identifier: MIT
#include "VyFileDialogMacMacNativeBase.h"

#include "VyFileDialogMacMacNativePrivate.h"

CVyFileDialogMacMacNativeBase::CVyFileDialogMacMacNativeBase(
    std::unique_ptr<CVyFileDialogMacMacNativePrivate> header)
    : m_private(std::move(header))
{}

CVyFileDialogMacMacNativeBase::~CVyFileDialogMacMacNativeBase() = default;

void CVyFileDialogMacMacNativeBase::GetFileNames(QStringList& fileNames) const
{
    m_private->GetFileNames(fileNames);
}

void CVyFileDialogMacMacNativeBase::SetListFilter(QStringList descriptions)
{
    m_private->SetListFilter(descriptions);
}

void CVyFileDialogMacMacNativeBase::SetListFilterFileExt(QStringList extensionLists)
{
    m_private->SetListFilterFileExt(extensionLists);
}

void CVyFileDialogMacMacNativeBase::SetDirectory(QString folder)
{
    m_private->m_directory = std::move(folder);
}

void CVyFileDialogMacMacNativeBase::SetTemplateDWGPath(QString folder)
{
    m_private->m_templateDWGPath = std::move(folder);
}

void CVyFileDialogMacMacNativeBase::SetDefSuffix(QString suffix)
{
    m_private->m_defSuffix = std::move(suffix);
}

void CVyFileDialogMacMacNativeBase::SetSelectedFilter(QString description)
{
    m_private->m_selectedFilter = std::move(description);
}

void CVyFileDialogMacMacNativeBase::SetCaption(QString caption)
{
    m_private->m_caption = std::move(caption);
}

void CVyFileDialogMacMacNativeBase::SetDefaultFileName(QString name)
{
    m_private->m_defaultFileName = std::move(name);
}

void CVyFileDialogMacMacNativeBase::SetHasPreview(bool hasPreview)
{
    m_private->m_bHasPreview = hasPreview;
}

void CVyFileDialogMacMacNativeBase::GetSelectedFilter(QString& description) const
{
    description = m_private->m_selectedFilter;
}

void CVyFileDialogMacMacNativeBase::GetOpenMode(QString& label) const
{
    label = m_private->m_openMode;
}

void CVyFileDialogMacMacNativeBase::DoModal()
{
    m_private->DoModal();
}

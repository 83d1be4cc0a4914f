// SPDX-License-Identifier: MIT
// What the New, Open and Save panels' back-ends add to the common one.
#include "VyFileDialogMac.h"

#include "VyFileDialogMacNewMacNative.h"
#include "VyFileDialogMacOpenMacNative.h"
#include "VyFileDialogMacSaveMacNative.h"
#include "VyFileTypeList.h"

#include <QFileDialog>

CVyFileDialogMacNew::CVyFileDialogMacNew(bool modeChoices)
    : CVyFileDialogMac(QFileDialog::ExistingFile, QFileDialog::AcceptOpen, modeChoices,
                       std::make_unique<CVyFileDialogMacNewMacNative>())
{}

void CVyFileDialogMacNew::onActionNew()
{
    m_newMode = 0;
}

void CVyFileDialogMacNew::onActionNewNoTemplateImperial()
{
    m_newMode = 1;
}

void CVyFileDialogMacNew::onActionNewNoTemplateMetric()
{
    m_newMode = 2;
}

CVyFileDialogMacOpen::CVyFileDialogMacOpen(bool previewAllowed, bool multiSelect, bool openOnly,
                                           bool modeChoices, bool templateFolderSwitch)
    : CVyFileDialogMac(multiSelect ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile,
                       QFileDialog::AcceptOpen, modeChoices,
                       std::make_unique<CVyFileDialogMacOpenMacNative>(openOnly, modeChoices,
                                                                       !templateFolderSwitch))
{
    m_hasPreview = previewAllowed;
    m_keepTypeFolder = openOnly;
    m_noTemplateFolderSwitch = !templateFolderSwitch;
}

void CVyFileDialogMacOpen::onTypeChange(const QString& filter)
{
    if (!m_noTemplateFolderSwitch && filter.contains(QLatin1String(".dwt"), Qt::CaseInsensitive))
        switchToTemplateFolder();
}

void CVyFileDialogMacOpen::onActionOpen()
{
    m_openMode = 0;
}

void CVyFileDialogMacOpen::onActionOpenReadOnly()
{
    m_openMode = 1;
}

void CVyFileDialogMacOpen::onActionOpenWithEncoding()
{
    m_openMode = 2;
}

CVyFileDialogMacSave::CVyFileDialogMacSave(bool modeChoices)
    : CVyFileDialogMac(QFileDialog::AnyFile, QFileDialog::AcceptSave, modeChoices,
                       std::make_unique<CVyFileDialogMacSaveMacNative>())
{}

// The selected type, not the one that changed, and its whole description: only a
// type described by just that word moves the dialog.
void CVyFileDialogMacSave::onTypeChange(const QString& filter)
{
    CVyFileDialogMac::onTypeChange(filter);
    int index = 0;
    if (m_keepTypeFolder || getFileTypeIndex(&index) != VyStatus::Accepted)
        return;
    const QString description = VyFileTypeList::entries(m_qtFilter).at(index);
    if (description.compare(QLatin1String("dwt"), Qt::CaseInsensitive) == 0)
        switchToTemplateFolder();
}

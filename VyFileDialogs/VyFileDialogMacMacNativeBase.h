// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogMacMacNative.h"

#include <memory>

class CVyFileDialogMacMacNativePrivate;

/// What the native dialog objects of all three kinds have in common: a shell
/// around the record that the panel's code reads and answers into.
class CVyFileDialogMacMacNativeBase : public CVyFileDialogMacMacNative
{
public:
    ~CVyFileDialogMacMacNativeBase() override;

    void GetFileNames(QStringList& fileNames) const override;
    void SetListFilter(QStringList descriptions) override;
    void SetListFilterFileExt(QStringList extensionLists) override;
    void SetDirectory(QString folder) override;
    void SetTemplateDWGPath(QString folder) override;
    void SetDefSuffix(QString suffix) override;
    void SetSelectedFilter(QString description) override;
    void SetCaption(QString caption) override;
    void SetDefaultFileName(QString name) override;
    void SetHasPreview(bool hasPreview) override;
    void GetSelectedFilter(QString& description) const override;
    void GetOpenMode(QString& label) const override;
    void DoModal() override;

protected:
    /// Takes the record, which says what kind of panel this is.
    explicit CVyFileDialogMacMacNativeBase(
        std::unique_ptr<CVyFileDialogMacMacNativePrivate> header);

private:
    const std::unique_ptr<CVyFileDialogMacMacNativePrivate> m_private;
};

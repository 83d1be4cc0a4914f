// SPDX-License-Identifier: MIT
#pragma once

#include "OdCodePageId.h"
#include "VyString.h"

#include <QDialog>

class QCheckBox;
class QComboBox;

/// "Open with Encoding...": the code page of a drawing's texts.
class CVyDlgEncoding : public QDialog
{
public:
    /// \a fileName is the drawing's path, or a text where there are several.
    CVyDlgEncoding(QWidget* parent, const CVyString& fileName);

    /// The chosen page. The request hands the pointer on to its caller, so what it
    /// points to stays for good.
    OdCodePageId* GetCodepage() const;
    bool IsReadOnly() const;

private:
    QComboBox* m_pages;
    QCheckBox* m_readOnly;
};

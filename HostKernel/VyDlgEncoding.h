// SPDX-License-Identifier: MIT
#pragma once

#include "OdCodePageId.h"
#include "VyString.h"

#include <QDialog>

class QCheckBox;
class QListWidget;

/// Asks the user in which code page to read a drawing's text, and whether to
/// open it read-only.
class VY_HOSTKERNEL_EXPORT CVyDlgEncoding : public QDialog
{
    Q_OBJECT

public:
    /// \a fileName is shown to say which drawing is meant; it is not read.
    CVyDlgEncoding(QWidget* parent, const CVyString& fileName);

    /// The chosen page, or null when none is. What it points to lives as long
    /// as the library, so the answer may be kept after the dialog has gone; it
    /// is the caller's to read, not to delete or change.
    OdCodePageId* GetCodepage() const;

    /// Whether the drawing is to be opened read-only.
    bool IsReadOnly() const;

private:
    QListWidget* m_pages;
    QCheckBox* m_readOnly;
};

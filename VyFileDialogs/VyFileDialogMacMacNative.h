// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// A native panel as its back-end drives it: filled by the setters, run once by
/// DoModal(), read by the getters. Strings and lists are copied in and out. Used
/// on the user-interface thread alone.
class CVyFileDialogMacMacNative
{
public:
    virtual ~CVyFileDialogMacMacNative() = default;

    /// Replaces the argument by the chosen paths; empty before an accepted run.
    virtual void GetFileNames(QStringList& fileNames) const = 0;

    /// The descriptions of the file types.
    virtual void SetListFilter(QStringList descriptions) = 0;
    /// The extensions of each type, in the same order, joined by ";".
    virtual void SetListFilterFileExt(QStringList extensionLists) = 0;
    /// The start folder; its absolute path, with native separators.
    virtual void SetDirectory(QString folder) = 0;
    /// The folder to go to when a template type is chosen.
    virtual void SetTemplateDWGPath(QString folder) = 0;
    /// The extension, or whole extension list, of the type to start with.
    virtual void SetDefSuffix(QString suffix) = 0;
    /// The description of the type to start with.
    virtual void SetSelectedFilter(QString description) = 0;
    /// The panel's title; empty for the system's own.
    virtual void SetCaption(QString caption) = 0;
    /// The file name to start with; an open panel has none and ignores it.
    virtual void SetDefaultFileName(QString name) = 0;
    /// Kept only: the system's panels have their own preview.
    virtual void SetHasPreview(bool hasPreview) = 0;

    /// What SetSelectedFilter() stored; after an accepted save the description
    /// that the user picked, null when he picked none.
    virtual void GetSelectedFilter(QString& description) const = 0;
    /// The label of the mode that the user picked in an accepted run of a panel
    /// with modes, else null.
    virtual void GetOpenMode(QString& label) const = 0;

    /// Runs the panel and returns when it has closed.
    virtual void DoModal() = 0;

protected:
    CVyFileDialogMacMacNative() = default;

private:
    Q_DISABLE_COPY(CVyFileDialogMacMacNative)
};

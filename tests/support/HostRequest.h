// SPDX-License-Identifier: MIT
#pragma once

#include "DialogDriver.h"
#include "VyFileDialog.h"

#include <QFileDialog>
#include <QString>
#include <QStringList>

/// A request as a host makes it, with what it finds in its outputs afterwards, also
/// when an exception comes out of it. Outputs start with values that no request writes.
struct HostRequest
{
    unsigned type = CVyUserIO::FileNameOpen;
    unsigned flags = CVyUserIO::FileNameNoFlags;
    QString title = QStringLiteral("Choose");
    QString defaultExtension;
    QString filter = QStringLiteral("Drawings&*.dwg;*.dxf&Templates&*.dwt&All files&*.*");
    QString start;
    int typeIndex = 0;
    bool withTypeIndex = true;
    QString templateName;
    unsigned long long parent = 0;

    int status = 0;
    CVyUserIO::_FileNameRetVal mode = untouchedMode();
    QStringList paths = {}; ///< GetFileName: the one path, if written
    OdCodePageId* codePage = nullptr;

    static CVyUserIO::_FileNameRetVal untouchedMode()
    {
        return static_cast<CVyUserIO::_FileNameRetVal>(0xdead);
    }

    int getFileName(std::vector<DialogDriver::Step> steps);
    int getFileNames(std::vector<DialogDriver::Step> steps);
};

/// A step for the file dialog of a request.
DialogDriver::Step onFileDialog(std::function<void(QFileDialog&)> work);

/// The names that the dialog lists, in their order.
QStringList listedNames(QFileDialog& dialog);

/// Waits until the dialog lists \a name in its current folder.
bool waitForFile(QFileDialog& dialog, const QString& name);

/// Makes \a name the current row of the list, as a click does.
bool clickFile(QFileDialog& dialog, const QString& name);

/// Types \a name over what the name field holds.
void typeName(QFileDialog& dialog, const QString& name);

/// Chooses the type at \a index from the popup.
void chooseType(QFileDialog& dialog, int index);

/// Types \a name and presses Return.
void typeAndAccept(QFileDialog& dialog, const QString& name);

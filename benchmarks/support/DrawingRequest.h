// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// One entry of a list of file types.
struct FileType
{
    QString description;
    QStringList patterns;
};

/// What is asked of either dialog: one existing file.
struct DrawingRequest
{
    QString folder;
    std::vector<FileType> types; ///< the first is preselected
};

/// A request for drawings in the folder that the program's arguments name, with
/// drawings of "--patterns" (1 or 6) patterns and any file as types.
DrawingRequest drawingRequest();

/// Asks with a bare QFileDialog, which is the floor. The path, or none.
QString askFloor(const DrawingRequest& request);

/// Asks with CVyFileDialog::GetFileName().
QString askSubject(const DrawingRequest& request);

// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"

#include <QByteArray>

/// What a request came to.
struct Answer
{
    int status = VyStatus::Failed; ///< a value of VyStatus
    CVyUserIO::_FileNameRetVal mode = CVyUserIO::Open;
    QStringList paths;
    std::optional<int> typeIndex;                    ///< of the chosen type, when there is one
    OdCodePageId codePage = OdCodePageId::Undefined; ///< when one was chosen
    std::optional<QString> templateName;             ///< as it came back, when one was given
};

/// The name of a mode, "open-read-only"; null for other numbers.
const char* modeName(CVyUserIO::_FileNameRetVal mode);

/// The name of a value of VyStatus, "accepted"; null for other numbers.
const char* statusName(int status);

/// How a process tells what became of it.
enum ExitStatus : int
{
    ExitAccepted = 0,
    ExitCancelled = 1,
    ExitUsage = 2,
    ExitFailure = 3
};

/// The exit status that stands for a value of VyStatus.
ExitStatus exitStatus(int status);

/// The bytes to print. Paths are in the local encoding of file names, JSON is in
/// UTF-8. A surrogate without its partner, which UTF-8 cannot hold, is escaped
/// in JSON; elsewhere see isLocal().
QByteArray format(const Answer& answer, Options::Form form);

/// Whether the local encoding of file names can hold \a path.
bool isLocal(const QString& path);

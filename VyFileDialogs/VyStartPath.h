// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogImpl.h"

#include <QString>

#include <vector>

/// How a request's start path presets a dialog.
namespace VyStartPath {

/// Which of the host's two calls is made.
enum class Request
{
    SingleFile,
    MultipleFiles
};

/// One setter to call, with its value in native separators.
struct Preset
{
    int (CVyFileDialogImpl::*setter)(const CVyString&);
    QString value;
};

/// The setters to call, in this order, for \a path as the host gave it:
///
/// | path                     | presets                                       |
/// |--------------------------|-----------------------------------------------|
/// | empty, or with a zero    | none                                          |
/// | a folder                 | that folder                                   |
/// | a regular file           | its name and its folder; with MultipleFiles   |
/// |                          | its whole absolute path as name, no folder    |
/// | anything else that exists| none                                          |
/// | missing                  | its folder when that exists, and its name     |
///
/// A relative path counts from the working directory.
std::vector<Preset> presets(const QString& path, Request request);

} // namespace VyStartPath

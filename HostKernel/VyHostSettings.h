// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

#include <QString>

#include <optional>

/// What the user of a stand-alone host has set from outside, in the environment
/// or in the host's settings file. Each value is looked for when it is asked for,
/// first in the environment:
///
///     value              environment          settings file, group [Dialogs]
///     template folder    VY_TEMPLATE_FOLDER   TemplateFolder
///     expertise level    VY_EXPERT_LEVEL      ExpertLevel
///
/// The settings file is "settings.ini" in the application's own folder of
/// QStandardPaths::AppConfigLocation: the user's own, else the system's. It is an
/// INI file as QSettings reads it, in UTF-8, of at most 64 KiB:
///
///     [Dialogs]
///     TemplateFolder="/srv/cad/templates"
///     ExpertLevel=1
///
/// It is read, never written. A value that is there and cannot be used is passed
/// over, with a warning through Qt's logging that names it.
namespace VyHostSettings {

/// An absolute folder, which need not exist; nothing when none is set.
VY_HOSTKERNEL_EXPORT std::optional<QString> templateFolder();

/// A whole number from 0 on; nothing when none is set.
VY_HOSTKERNEL_EXPORT std::optional<int> expertLevel();

} // namespace VyHostSettings

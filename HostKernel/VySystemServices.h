// SPDX-License-Identifier: MIT
#pragma once

#include "VyString.h"

#include <optional>

/// \file
/// What the dialogs ask of their host.

/// What the host knows about its user.
class VY_HOSTKERNEL_EXPORT CVySystemSettings
{
public:
    /// The user's expertise: 0 and up; from 2 on the Qt save dialog overwrites
    /// files without asking. Until the host sets one it is what the user has set
    /// in the environment or the settings file (VyHostSettings.h), else 0.
    int GetExpertLevel() const;
    /// Sets the level.
    void SetExpertLevel(int level) { m_expertLevel = level; }
    /// Brings back what holds until the host sets a level.
    void ResetExpertLevel() { m_expertLevel.reset(); }

private:
    std::optional<int> m_expertLevel;
};

/// What the dialogs ask of their host. Used on the user-interface thread alone.
class VY_HOSTKERNEL_EXPORT CVySystemServices
{
public:
    /// The settings of the user; they live as long as the services.
    CVySystemSettings& GetSettings() { return m_settings; }

    /// The folder of the drawing templates, shown when the user chooses a type
    /// of ".dwt" files. The first of these that there is:
    ///
    /// - the folder that the host has set;
    /// - what the user has set in the environment or the settings file
    ///   (VyHostSettings.h);
    /// - the folder "templates" in one of the application's data folders: the
    ///   user's own, those of the system (QStandardPaths::AppDataLocation), and
    ///   "../share/" with the application's name, seen from its program;
    /// - "templates" in the user's own data folder, which then does not exist.
    ///
    /// A folder that was set is answered as it stands and need not exist.
    CVyString GetTemplateFolder() const;
    /// Sets the folder; the empty string brings back what holds without.
    void SetTemplateFolder(const CVyString& folder) { m_templateFolder = folder; }

private:
    CVySystemSettings m_settings;
    CVyString m_templateFolder;
};

/// The process's services; never null, lives as long as the library. A host
/// changes them before it makes a request.
VY_HOSTKERNEL_EXPORT CVySystemServices* GetVySystemServices();

// SPDX-License-Identifier: MIT
#pragma once

#include "VyString.h"

/// What the host knows about its user.
class VY_HOSTKERNEL_EXPORT CVySystemSettings
{
public:
    /// The user's expertise: 0 and up; from 2 on the Qt save dialog overwrites
    /// files without asking. 0 until the host sets another.
    int GetExpertLevel() const { return m_expertLevel; }
    void SetExpertLevel(int level) { m_expertLevel = level; }

private:
    int m_expertLevel = 0;
};

/// What the dialogs ask of their host. Used on the user-interface thread alone.
class VY_HOSTKERNEL_EXPORT CVySystemServices
{
public:
    CVySystemSettings& GetSettings() { return m_settings; }

    /// The folder of the drawing templates, shown when the user chooses a type
    /// of ".dwt" files. Until the host sets one: "templates" in the platform's
    /// folder for the application's data, which need not exist.
    CVyString GetTemplateFolder() const;
    /// Sets the folder; the empty string brings the default back.
    void SetTemplateFolder(const CVyString& folder) { m_templateFolder = folder; }

private:
    CVySystemSettings m_settings;
    CVyString m_templateFolder;
};

/// The process's services; never null, lives as long as the library. A host
/// changes them before it makes a request.
VY_HOSTKERNEL_EXPORT CVySystemServices* GetVySystemServices();

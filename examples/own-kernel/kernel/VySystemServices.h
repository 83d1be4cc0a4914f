// SPDX-License-Identifier: MIT
#pragma once

#include "VyString.h"

/// The user's settings, as far as the dialogs ask for them.
struct CVySystemSettings
{
    /// From 2 on files are replaced without a question.
    int GetExpertLevel() const;
};

/// What the dialogs ask of Acme.
class CVySystemServices
{
public:
    CVySystemSettings& GetSettings() { return m_settings; }
    /// Where a dialog goes when its user chooses the type "dwt".
    CVyString GetTemplateFolder() const;

private:
    CVySystemSettings m_settings;
};

/// Never null.
CVySystemServices* GetVySystemServices();

// SPDX-License-Identifier: MIT
#include "VySystemServices.h"

#include "AcmeSettings.h"

int CVySystemSettings::GetExpertLevel() const
{
    return AcmeSettings::expertLevel();
}

CVyString CVySystemServices::GetTemplateFolder() const
{
    return AcmeSettings::templateFolder();
}

CVySystemServices* GetVySystemServices()
{
    static CVySystemServices services;
    return &services;
}

// SPDX-License-Identifier: MIT
#pragma once

#include "VySystemServices.h"

/// The host's template folder for as long as this lives.
class HostTemplates
{
public:
    explicit HostTemplates(const QString& folder) { set(folder); }
    ~HostTemplates() { set(QString()); }
    Q_DISABLE_COPY(HostTemplates)

    static void set(const QString& folder)
    {
        GetVySystemServices()->SetTemplateFolder(CVyString(folder));
    }
};

// SPDX-License-Identifier: MIT
#include "VySystemServices.h"

#include <QStandardPaths>

CVyString CVySystemServices::GetTemplateFolder() const
{
    if (!m_templateFolder.isEmpty())
        return m_templateFolder;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return CVyString(data + QStringLiteral("/templates"));
}

CVySystemServices* GetVySystemServices()
{
    static CVySystemServices services;
    return &services;
}

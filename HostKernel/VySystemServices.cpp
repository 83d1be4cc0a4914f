// SPDX-License-Identifier: MIT
#include "VySystemServices.h"

#include "VyHostSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace {

const QString templates = QStringLiteral("/templates");

// Where an installation puts data when its folder is none of the system's, and
// where a build leaves them.
QString dataBesideProgram()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/../share/") +
                           QCoreApplication::applicationName());
}

QString templatesInData()
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::AppDataLocation);
    if (!QCoreApplication::applicationName().isEmpty())
        folders.append(dataBesideProgram());
    for (const QString& folder : qAsConst(folders)) {
        if (QDir(folder + templates).exists())
            return folder + templates;
    }
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + templates;
}

} // namespace

int CVySystemSettings::GetExpertLevel() const
{
    return m_expertLevel ? *m_expertLevel : VyHostSettings::expertLevel().value_or(0);
}

CVyString CVySystemServices::GetTemplateFolder() const
{
    if (!m_templateFolder.isEmpty())
        return m_templateFolder;
    const std::optional<QString> folder = VyHostSettings::templateFolder();
    return CVyString(folder ? *folder : templatesInData());
}

CVySystemServices* GetVySystemServices()
{
    static CVySystemServices services;
    return &services;
}

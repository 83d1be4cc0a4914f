// SPDX-License-Identifier: MIT
#include "AcmeSettings.h"

#include <QDir>
#include <QSettings>

namespace {

QVariant value(const char* key, const QVariant& otherwise = QVariant())
{
    return QSettings(QStringLiteral("Acme"), QStringLiteral("Acme"))
        .value(QLatin1String(key), otherwise);
}

void setValue(const char* key, const QVariant& value)
{
    QSettings(QStringLiteral("Acme"), QStringLiteral("Acme")).setValue(QLatin1String(key), value);
}

} // namespace

namespace AcmeSettings {

QString templateFolder()
{
    return value("TemplateFolder", QDir::home().filePath(QStringLiteral("Templates"))).toString();
}

void setTemplateFolder(const QString& folder)
{
    setValue("TemplateFolder", folder);
}

int expertLevel()
{
    return value("ExpertLevel").toInt();
}

void setExpertLevel(int level)
{
    setValue("ExpertLevel", level);
}

QStringList recentFiles()
{
    return value("RecentFiles").toStringList();
}

void addRecentFile(const QString& path)
{
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    setValue("RecentFiles", QStringList(files.mid(0, 10)));
}

} // namespace AcmeSettings

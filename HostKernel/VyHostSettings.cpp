// SPDX-License-Identifier: MIT
#include "VyHostSettings.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace VyHostSettings {

namespace {

constexpr qint64 largestFile = 64LL * 1024;

struct Name
{
    const char* variable;
    const char* key;
};

constexpr Name folderName = {"VY_TEMPLATE_FOLDER", "Dialogs/TemplateFolder"};
constexpr Name levelName = {"VY_EXPERT_LEVEL", "Dialogs/ExpertLevel"};

void warn(const QString& what)
{
    qWarning("VyHostKernel: %s", qPrintable(what));
}

// A value and where it was found, for the warning about it.
struct Setting
{
    QString text;
    QString place;
};

std::optional<Setting> inEnvironment(const char* variable)
{
    const QString text = qEnvironmentVariable(variable);
    if (text.isEmpty())
        return std::nullopt;
    return Setting{text, QString::fromLatin1(variable)};
}

// The file to be read; empty when there is none. Opening anything but a regular
// file can block until somebody writes.
QString settingsFile()
{
    QString path =
        QStandardPaths::locate(QStandardPaths::AppConfigLocation, QStringLiteral("settings.ini"));
    if (path.isEmpty() || QFileInfo(path).size() <= largestFile)
        return path;
    warn(QStringLiteral("'%1' is larger than 64 KiB and is not read").arg(path));
    return {};
}

std::optional<Setting> inSettingsFile(const char* key)
{
    const QString path = settingsFile();
    if (path.isEmpty())
        return std::nullopt;
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    const QVariant value = settings.value(QLatin1String(key));
    if (settings.status() != QSettings::NoError)
        warn(QStringLiteral("'%1' cannot be read, or not as a settings file").arg(path));
    const QString place = QStringLiteral("%1 in '%2'").arg(QLatin1String(key), path);
    if (value.type() == QVariant::StringList) {
        warn(place + QLatin1String(": a value with a comma needs quotation marks around it"));
        return std::nullopt;
    }
    const QString text = value.toString();
    return text.isEmpty() ? std::nullopt : std::optional(Setting{text, place});
}

std::optional<QString> absoluteFolder(const QString& text)
{
    return QFileInfo(text).isAbsolute() ? std::optional(text) : std::nullopt;
}

std::optional<int> wholeNumber(const QString& text)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    return ok && number >= 0 ? std::optional(number) : std::nullopt;
}

// What \a read makes of the setting, or nothing, with a warning when it should
// have been \a wanted.
template <typename Value>
std::optional<Value> usable(const std::optional<Setting>& setting,
                            std::optional<Value> (*read)(const QString&), const char* wanted)
{
    if (!setting)
        return std::nullopt;
    std::optional<Value> value = read(setting->text);
    if (!value) {
        warn(QStringLiteral("%1: '%2' is no %3")
                 .arg(setting->place, setting->text, QLatin1String(wanted)));
    }
    return value;
}

template <typename Value>
std::optional<Value> find(const Name& name, std::optional<Value> (*read)(const QString&),
                          const char* wanted)
{
    const std::optional<Value> value = usable(inEnvironment(name.variable), read, wanted);
    return value ? value : usable(inSettingsFile(name.key), read, wanted);
}

} // namespace

std::optional<QString> templateFolder()
{
    return find(folderName, absoluteFolder, "absolute folder");
}

std::optional<int> expertLevel()
{
    return find(levelName, wholeNumber, "whole number from 0 on");
}

} // namespace VyHostSettings

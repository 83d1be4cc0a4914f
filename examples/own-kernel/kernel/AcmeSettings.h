// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// What Acme knows of its user, in its settings file.
namespace AcmeSettings {

QString templateFolder();
void setTemplateFolder(const QString& folder);

/// 0 for a beginner; from 2 on Acme does not ask before it replaces files.
int expertLevel();
void setExpertLevel(int level);

/// The paths of the File menu, the latest first.
QStringList recentFiles();
void addRecentFile(const QString& path);

} // namespace AcmeSettings

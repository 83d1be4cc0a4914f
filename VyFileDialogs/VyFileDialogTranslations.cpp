// SPDX-License-Identifier: MIT
#include "VyFileDialog.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QStringList>
#include <QTranslator>

#include <dlfcn.h>

namespace {

// Seen from the library that this is part of, wherever that was moved to.
QString installedFolder()
{
    Dl_info self = {};
    dladdr(reinterpret_cast<void*>(&installedFolder), &self);
    const QFileInfo library(QFile::decodeName(self.dli_fname));
    return library.absolutePath() + QStringLiteral("/" VY_TRANSLATIONS);
}

bool load(QTranslator* translator, const QString& catalogue, const QLocale& locale,
          const QString& folder)
{
    return translator->load(locale, catalogue, QStringLiteral("_"), folder);
}

// Puts the \a catalogue of one of \a folders into the application. There is one
// translator for each, so that a language takes the place of the one before.
bool install(const QString& catalogue, const QLocale& locale, const QStringList& folders)
{
    QObject* const application = QCoreApplication::instance();
    const QString name = QStringLiteral("VyFileDialogs.") + catalogue;
    delete application->findChild<QTranslator*>(name, Qt::FindDirectChildrenOnly);

    auto* translator = new QTranslator(application);
    translator->setObjectName(name);
    const QLocale elsewhere(locale.language(), locale.script(), QLocale::AnyCountry);
    for (const QString& folder : folders) {
        if (load(translator, catalogue, locale, folder) ||
            load(translator, catalogue, elsewhere, folder))
            return QCoreApplication::installTranslator(translator) || translator->isEmpty();
    }
    return false;
}

} // namespace

bool CVyFileDialog::LoadTranslations(const QLocale& locale, const CVyString& folder)
{
    if (!QCoreApplication::instance())
        return false;
    const QString given = folder;
    const QString qt = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    install(QStringLiteral("qtbase"), locale,
            given.isEmpty() ? QStringList{qt} : QStringList{given, qt});
    return install(QStringLiteral("VyFileDialogs"), locale,
                   {given.isEmpty() ? installedFolder() : given});
}

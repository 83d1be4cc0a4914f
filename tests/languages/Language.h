// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialog.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>
#include <QtTest>

/// The languages that the dialogs have, each as QLocale writes it.
inline QStringList allLanguages()
{
    QStringList names = QDir(VY_TRANSLATIONS_FOLDER).entryList({"VyFileDialogs_*.qm"}, QDir::Files);
    for (QString& name : names)
        name = name.section('.', 0, 0).section('_', 1);
    return names;
}

/// One row for each language, which is its name.
inline void addLanguageRows()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = allLanguages();
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

/// Gives the dialogs a language for as long as it lives.
class Language
{
public:
    explicit Language(const QString& name)
        : m_there(CVyFileDialog::LoadTranslations(QLocale(name), CVyString(VY_TRANSLATIONS_FOLDER)))
    {}
    ~Language() { CVyFileDialog::LoadTranslations(QLocale::c()); }
    Q_DISABLE_COPY(Language)

    bool isThere() const { return m_there; }

private:
    const bool m_there;
};

/// The texts of the modes in \a context, in the order of the menus.
inline QStringList openModes(const char* context)
{
    return {QCoreApplication::translate(context, "Open"),
            QCoreApplication::translate(context, "Open Read-Only"),
            QCoreApplication::translate(context, "Open with Encoding...")};
}
inline QStringList newModes(const char* context)
{
    return {QCoreApplication::translate(context, "Open"),
            QCoreApplication::translate(context, "Open with no Template - Imperial"),
            QCoreApplication::translate(context, "Open with no Template - Metric")};
}

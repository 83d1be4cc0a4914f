// SPDX-License-Identifier: MIT
// Says one text of the dialogs, in the language of the system.
#include <VyFileDialog.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    if (CVyFileDialog::LoadTranslations(QLocale("de")))
        return 1; // nothing was given a language yet, without an application
    const QCoreApplication application(argc, argv);
    const bool there = CVyFileDialog::LoadTranslations();
    const QString text = QCoreApplication::translate("CVyFileDialogs", "Multiple files");
    std::printf("%s%s\n", qPrintable(text), there ? "" : " (no such language)");
}

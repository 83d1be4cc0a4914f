// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"

/// Reads the arguments of the sample.
namespace SampleCommandLine {

/// What came of reading: what the user wants, or what is wrong with the arguments.
struct Parsed
{
    Options::Action action = Options::Action::Ask; ///< Ask: show the window
    CVyFileDialog::_Style style = CVyFileDialog::StyleQt;
    QStringList files; ///< to open at the start
    QString error;     ///< one line without a full stop; empty when nothing is wrong
};

/// Reads \a arguments, of which the first is the name of the program. With --help
/// or --version nothing else is looked at.
Parsed parse(const QStringList& arguments);

/// Every option that parse() knows.
QList<QCommandLineOption> options();

/// What --help prints. Needs a QCoreApplication, which knows the program's name.
QString helpText();

/// What --version prints.
QString versionText();

} // namespace SampleCommandLine

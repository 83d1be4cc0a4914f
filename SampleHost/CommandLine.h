// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialog.h"

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class QCommandLineParser;

/// What the user of the command wants.
struct Options
{
    /// What the command is to do.
    enum class Action
    {
        Ask,
        Help,
        Version
    };
    /// How the answer is printed.
    enum class Form
    {
        Lines,
        NullSeparated,
        Json
    };

    Action action = Action::Ask;
    Form form = Form::Lines;
    CVyFileDialog::_Style style = CVyFileDialog::StyleQt;
    CVyUserIO::_FileNameType type = CVyUserIO::FileNameOpen; ///< with its qualifier bits
    CVyUserIO::_FileNameFlags flags = CVyUserIO::FileNameNoFlags;
    bool multiple = false;
    QString title;
    QString defaultExtension;
    QString startPath;
    QString templateFolder;              ///< empty for the library's own
    unsigned long long parentWindow = 0; ///< 0 for none
    std::optional<int> expertLevel;
    std::optional<QString> filter;
    std::optional<QString> templateName;
    std::optional<int> typeIndex;
};

/// Reads the command's arguments.
namespace CommandLine {

/// What came of reading: the options, or what is wrong with the arguments.
struct Parsed
{
    Options options;
    QString error; ///< one line without a full stop; empty when nothing is wrong
};

/// Reads \a arguments, of which the first is the name of the program. After an
/// error the options mean nothing. With --help or --version nothing else is
/// required or looked at.
Parsed parse(const QStringList& arguments);

/// Has \a parser read \a arguments, for any program with --help and --version:
/// \a action becomes what these ask for, or stays. Answers what is wrong, or nothing.
QString read(QCommandLineParser& parser, const QStringList& arguments, Options::Action& action);

/// Every option that parse() knows.
QList<QCommandLineOption> options();

/// What --help prints. Needs a QCoreApplication, which knows the program's name.
QString helpText();

/// What --version prints.
QString versionText();

} // namespace CommandLine

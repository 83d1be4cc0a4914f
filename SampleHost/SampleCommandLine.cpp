// SPDX-License-Identifier: MIT
#include "SampleCommandLine.h"

#include "DialogMenu.h"
#include "StyleOption.h"

#include <QCommandLineParser>

namespace SampleCommandLine {

namespace {

void configure(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("A small drawing application to try the file dialogs in."));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("Drawings to open."),
                                 QStringLiteral("[file...]"));
    parser.addOptions(options());
}

} // namespace

Parsed parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    configure(parser);
    Parsed parsed;
    parsed.error = CommandLine::read(parser, arguments, parsed.action);
    if (!parsed.error.isEmpty() || parsed.action != Options::Action::Ask)
        return parsed;
    parsed.files = parser.positionalArguments();
    parsed.error = StyleOption::read(parser, parsed.style);
    if (parser.isSet(QStringLiteral("style")) && !DialogMenu::hasNativePanels() &&
        parsed.style == CVyFileDialog::StyleNative)
        parsed.error = QStringLiteral("--style: this build has no native panels");
    return parsed;
}

QList<QCommandLineOption> options()
{
    return {
        StyleOption::option(),
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Print this help.")},
        {QStringLiteral("version"), QStringLiteral("Print the version.")},
    };
}

QString helpText()
{
    QCommandLineParser parser;
    configure(parser);
    return parser.helpText() + QStringLiteral("\nExit status: 0 ended by its user, 2 wrong usage, "
                                              "3 failure.\n");
}

QString versionText()
{
    return QStringLiteral("vyfiledialog-sample " VY_VERSION "\n");
}

} // namespace SampleCommandLine

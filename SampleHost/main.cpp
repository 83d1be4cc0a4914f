// SPDX-License-Identifier: MIT
// vyfiledialog: asks the user for file names and prints them.
#include "HostPlatform.h"
#include "HostProcess.h"
#include "Request.h"
#include "StandardStreams.h"
#include "TransientParent.h"
#include "VyFileDialog.h"
#include "Warnings.h"

#include <QCoreApplication>

#include <algorithm>
#include <memory>

using HostProcess::fail;
using HostProcess::print;
using StandardStreams::say;

namespace {

constexpr char Program[] = "vyfiledialog";

ExitStatus printAnswer(const Answer& answer, Options::Form form)
{
    const ExitStatus status = exitStatus(answer.status);
    if (status == ExitFailure)
        return fail(QStringLiteral("the dialog cannot be shown (status %1)").arg(answer.status));
    const auto unprintable = std::find_if_not(answer.paths.begin(), answer.paths.end(), isLocal);
    if (form != Options::Form::Json && unprintable != answer.paths.end())
        return fail(QStringLiteral("the path '%1' cannot be written in the local encoding of file "
                                   "names; --json can print it")
                        .arg(*unprintable));
    return print(format(answer, form), status);
}

ExitStatus askAndPrint(const Options& options)
{
    if (!HostPlatform::hasDisplay())
        return fail(QStringLiteral("there is no display to show a dialog on"));
    HostProcess::startApplication(Program);
    CVyFileDialog::LoadTranslations();
    const QStringList allWarnings = warnings(options);
    for (const QString& warning : allWarnings)
        say(QLatin1String("warning: ") + warning);
    std::unique_ptr<TransientParent> parent;
    if (options.parentWindow)
        parent = std::make_unique<TransientParent>(static_cast<WId>(options.parentWindow));
    return printAnswer(ask(options), options.form);
}

ExitStatus run(int argc, char** argv)
{
    if (!StandardStreams::prepare(Program))
        return fail(QStringLiteral("the standard output is not open for writing"));
    CommandLine::Parsed parsed;
    {
        const QCoreApplication application(argc, argv); // knows the arguments' encoding
        parsed = CommandLine::parse(QCoreApplication::arguments());
        if (parsed.options.action == Options::Action::Help)
            return print(CommandLine::helpText().toLocal8Bit(), ExitAccepted);
    }
    if (!parsed.error.isEmpty()) {
        say(parsed.error);
        return ExitUsage;
    }
    if (parsed.options.action == Options::Action::Version)
        return print(CommandLine::versionText().toLocal8Bit(), ExitAccepted);
    return askAndPrint(parsed.options);
}

} // namespace

int main(int argc, char* argv[])
{
    HostProcess::begin();
    HostProcess::end(run(argc, argv));
}

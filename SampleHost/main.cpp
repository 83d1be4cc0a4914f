// SPDX-License-Identifier: MIT
// vyfiledialog: asks the user for file names and prints them.
#include "HostPlatform.h"
#include "Request.h"
#include "StandardStreams.h"
#include "TransientParent.h"
#include "VyFileDialog.h"
#include "Warnings.h"

#include <QApplication>

#include <algorithm>
#include <cstdlib>
#include <memory>

using StandardStreams::say;

namespace {

QtMessageHandler defaultHandler;

// What Qt says while it starts: the reasons when that fails, and otherwise
// nothing that concerns the user.
bool starting = false;
QStringList startMessages;

// Qt ends the process by abort() when it cannot go on, for example where its
// platform plug-in cannot start. To our caller that is a failure like others.
[[noreturn]] void onFatal(const QString& message)
{
    const QString reason =
        startMessages.isEmpty() ? message : startMessages.join(QLatin1String("; "));
    say(QLatin1String("no dialog can be shown: ") + reason);
    std::_Exit(ExitFailure);
}

void onMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg)
        onFatal(message);
    else if (type == QtDebugMsg)
        defaultHandler(type, context, message);
    else if (starting)
        startMessages.append(message);
    else
        say(message);
}

// Qt calls exit(1) when it loses its display, which to our caller would mean
// that the user has cancelled.
bool finished = false;

void onExit()
{
    if (!finished)
        std::_Exit(ExitFailure);
}

ExitStatus fail(const QString& reason)
{
    say(reason);
    return ExitFailure;
}

ExitStatus print(const QByteArray& bytes, ExitStatus status)
{
    if (!StandardStreams::print(bytes))
        return fail(QStringLiteral("the standard output cannot be written to"));
    return status;
}

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
    // The command's arguments are not given to Qt, which would take --style and
    // others for itself.
    char name[] = "vyfiledialog";
    char* arguments[] = {name, nullptr};
    int count = 1;
    starting = true;
    // Never deleted: the process ends with the answer, see main().
    [[maybe_unused]] static const auto* application = new QApplication(count, arguments);
    starting = false;
    startMessages.clear();
    CVyFileDialog::LoadTranslations();
    const QStringList allWarnings = warnings(options);
    for (const QString& warning : allWarnings)
        say(QLatin1String("warning: ") + warning);
    std::unique_ptr<TransientParent> parent;
    if (options.parentWindow)
        parent = std::make_unique<TransientParent>(options.parentWindow);
    return printAnswer(ask(options), options.form);
}

ExitStatus run(int argc, char** argv)
{
    if (!StandardStreams::prepare())
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
    defaultHandler = qInstallMessageHandler(onMessage);
    std::atexit(onExit);
    const ExitStatus status = run(argc, argv);
    finished = true;
    // Not by returning: who waits for the answer would wait until Qt has taken
    // apart what it held of a large folder.
    std::fflush(nullptr);
    std::_Exit(status);
}

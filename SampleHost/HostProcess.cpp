// SPDX-License-Identifier: MIT
#include "HostProcess.h"

#include "StandardStreams.h"

#include <QApplication>

#include <cstdlib>

using StandardStreams::say;

namespace {

QtMessageHandler defaultHandler;

// What Qt says while it starts: the reasons when that fails, and otherwise
// nothing that concerns the user.
bool starting = false;

QStringList& startMessages()
{
    static QStringList messages;
    return messages;
}

// Qt ends the process by abort() when it cannot go on, for example where its
// platform plug-in cannot start. To our caller that is a failure like others.
[[noreturn]] void onFatal(const QString& message)
{
    const QString reason =
        startMessages().isEmpty() ? message : startMessages().join(QLatin1String("; "));
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
        startMessages().append(message);
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

} // namespace

namespace HostProcess {

void begin()
{
    defaultHandler = qInstallMessageHandler(onMessage);
    std::atexit(onExit);
}

void startApplication(const char* program)
{
    static QByteArray name(program);
    static char* arguments[] = {name.data(), nullptr};
    static int count = 1;
    starting = true;
    [[maybe_unused]] static const auto* application = new QApplication(count, arguments);
    starting = false;
    startMessages().clear();
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

void end(ExitStatus status)
{
    finished = true;
    std::fflush(nullptr);
    std::_Exit(status);
}

} // namespace HostProcess

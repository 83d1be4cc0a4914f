// SPDX-License-Identifier: MIT
#pragma once

#include "Answer.h"

#include <QByteArray>
#include <QString>

/// What the programs here have in common as processes: how they start, print and end.
namespace HostProcess {

/// Has what Qt says printed in the program's name, and an end that Qt makes of the
/// process count as a failure. Called first.
void begin();

/// Makes the QApplication, which is never deleted: the process ends by end(). The
/// arguments are not given to Qt, which would take --style and others for itself.
/// Where it cannot be made the process ends, and says why.
void startApplication(const char* program);

/// Says \a reason, and answers that the process has failed.
ExitStatus fail(const QString& reason);

/// Prints \a bytes, and answers \a status or, where that failed, a failure.
ExitStatus print(const QByteArray& bytes, ExitStatus status);

/// Ends the process at once: who waits for it would wait until Qt has taken apart
/// what it held of a large folder.
[[noreturn]] void end(ExitStatus status);

} // namespace HostProcess

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// The streams that a command is started with, which need not be in order.
namespace StandardStreams {

/// Prepares the streams; called before anything else is opened. \a program, which
/// stays, is its name in what it says. Answers whether the standard output is open
/// for writing.
///
/// A stream that is closed is taken up, lest the next thing opened get its
/// number and our answer be written there. A reader that has gone away becomes
/// an error of print() instead of the end of the process.
bool prepare(const char* program);

/// Writes \a bytes to the standard output and closes it. Answers whether all of
/// them have arrived.
bool print(const QByteArray& bytes);

/// Writes the program's name, ": " and \a text as one line to the standard error
/// output, in the local encoding; control characters become question marks.
void say(const QString& text);

} // namespace StandardStreams

// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetrics>
#include <QString>
#include <QStringList>

/// The rules of the row of folder buttons, over names alone.
namespace VyPathBar {

/// No button gets narrower, in pixels.
constexpr int MinimumWidth = 30;

/// The names of the folders on the way to \a path, from the root on:
/// "/Users/ann" gives "/", "Users", "ann"; a trailing "/" changes nothing. A
/// relative path keeps its first part as a folder name. Never empty.
QStringList parts(const QString& path);

/// How many of the buttons, given by their names, stay when the row is laid out
/// for \a parts: those before the first that differs, or all when none does, so
/// that the deeper folders remain after a move to a parent.
int staying(const QStringList& names, const QStringList& parts);

/// The folder that the button at \a index stands for; empty for the root.
QString folderOf(const QStringList& names, int index);

/// The name as it can stand in one line: with blanks for control characters and
/// line separators.
QString singleLine(const QString& name);

/// The width, in pixels, of a button that shows \a text: its bounding
/// rectangle, right edge minus left edge, plus 16.
int paddedWidth(const QFontMetrics& metrics, const QString& text);

/// What a button \a width pixels wide shows of \a name: all of it, or its
/// beginning with an ellipsis, at least that.
QString fittingText(const QFontMetrics& metrics, const QString& name, int width);

/// The same for a name that is known not to fit.
QString elidedText(const QFontMetrics& metrics, const QString& name, int width);

} // namespace VyPathBar

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

class QString;

/// The text of a text DXF file whose look depends on the code page.
///
/// Source of the format: the DXF reference, "Group code value types", and
/// "MTEXT" for texts in chunks.
namespace VyDxfText {

/// How much of a file's beginning is read: the names of layers and styles stand
/// there, and of most drawings some of the texts, too.
constexpr qint64 windowSize = 1024LL * 1024;

/// So many texts are enough to judge a page by.
constexpr int mostValues = 20;

/// Texts and names with a byte that is not ASCII, in the order of the file, each
/// once, as they are stored; at most mostValues. Empty when \a beginning, the
/// first bytes of a file, is not that of a text DXF file or has none. The last
/// line counts only when it has ended; what is behind a damaged place does not.
QList<QByteArray> values(const QByteArray& beginning);

/// The values() of the regular file, or link to one, at \a path; empty when it
/// cannot be read. Nothing else is opened: it could wait until somebody writes.
QList<QByteArray> read(const QString& path);

} // namespace VyDxfText

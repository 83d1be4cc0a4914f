// SPDX-License-Identifier: MIT
#pragma once

#include "OdCodePageId.h"

#include <QString>

/// Text as it reads in a code page, for people to judge the page by.
namespace VyTextSample {

/// Whether Qt has a codec for \a page. Which pages it has depends on how Qt was
/// built: with ICU all but Johab, else about half of them.
bool canDecode(const CVyCodePage& page);

/// The stored texts \a values, decoded in \a page: a line each, of about 200
/// characters at most. What is no character of the page, and what nobody can see,
/// is U+FFFD; of a character cut by the end of a text, nothing is shown. Empty
/// without a codec.
QString decoded(const CVyCodePage& page, const QList<QByteArray>& values);

/// A line of words that stand on drawings of the page's region, brought into the
/// page and decoded again; as decoded().
QString typical(const CVyCodePage& page);

/// \a text in one line: U+FFFD stands for line ends and other control characters.
QString singleLine(QString text);

} // namespace VyTextSample

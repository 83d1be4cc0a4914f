// SPDX-License-Identifier: MIT
#pragma once

#include "OdCodePageId.h"

class QByteArray;
class QLocale;

/// The system's own page: the one that a drawing is most likely in when it comes
/// from a system like the user's.
///
/// \a codec is the name of the character set that the system writes text in, as
/// QTextCodec::codecForLocale() has it, and \a locale the user's. Where that
/// character set is a code page of drawings, as in the locale de_DE.ISO-8859-1,
/// it is the answer. But Linux and macOS write UTF-8 today, which no drawing
/// declares; there, and with ASCII and any other character set, the answer is
/// the page that drawing programs use for the language: Windows' ANSI page of it,
/// for Japanese ANSI_932 and for most languages in Latin letters ANSI_1252.
///
/// Source: the ANSI code pages of the languages in the national language support
/// tables that Microsoft publishes for Windows.
OdCodePageId VySystemCodePage(const QByteArray& codec, const QLocale& locale);

// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// How people find a code page by typing.
namespace VyCodePageSearch {

/// What a page with the names and descriptions \a texts is found by.
QString key(const QStringList& texts);

/// Whether \a typed finds the page with that \a key: each of its words, in any
/// order, is part of one of the texts. Case, accents, wide forms and whatever is
/// neither letter nor digit make no difference, so "utf8", "UTF-8" and "shift
/// jis" all find what they should. No word finds every page.
bool matches(const QString& key, const QString& typed);

} // namespace VyCodePageSearch

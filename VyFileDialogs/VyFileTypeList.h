// SPDX-License-Identifier: MIT
#pragma once

#include "VyString.h"

#include <QDir>
#include <QStringList>

#include <vector>

/// The file types of a request, from the host's filter string to the entry that
/// is selected. Plain functions over values: each back-end keeps the strings.
///
/// Three forms occur. The *converted* filter comes from
/// CVyUtils::ConvertToQtFilter(). The *Qt filter string* is its entries joined
/// by ";;", the *extension lists* are what its patterns end in, one list an
/// entry, joined by "&", the extensions of a list joined by ";":
///
///     converted        Drawing (*.dwg *.dxf)&*.dwg;*.dxf&Web (*.dwf)&*.dwf&&
///     Qt filter string Drawing (*.dwg *.dxf);;Web (*.dwf);;
///     extension lists  dwg;dxf&dwf&
///
/// The empty entry and list at the end come from the converted form's closing
/// "&"; they vanish where empty parts are skipped.
namespace VyFileTypeList {

/// The two lists that a back-end keeps.
struct Types
{
    CVyString qtFilter;       ///< the Qt filter string
    CVyString extensionLists; ///< the extension lists
};

/// Both lists of a converted filter.
Types fromConverted(const CVyString& converted);

/// The extension list of each entry of a converted filter, in entry order. An
/// entry whose patterns have no extension has an empty list.
std::vector<CVyString> extensionLists(const CVyString& converted);

/// The extensions of patterns joined by ";": what follows the first "." of each,
/// up to the first pattern without one ("*.dwg;*.tar.gz" gives "dwg;tar.gz",
/// "*;*.dwg" gives nothing).
CVyString extensionList(const CVyString& patterns);

/// The entries of a Qt filter string as indexes count them: its parts between
/// single ";", empty ones skipped. (A description with a ";" of its own counts
/// as several.)
QStringList entries(const CVyString& qtFilter);

/// The wildcard patterns of one entry, as QFileDialog reads them: what stands in
/// the parentheses at its end, or else all of it, parted by blanks.
QStringList patterns(const QString& entry);

/// The lists joined in \a extensionLists, empty ones skipped. A type without
/// extensions therefore makes them fewer than the entries.
QStringList splitLists(const CVyString& extensionLists);

/// The extensions of one list.
QStringList splitExtensions(const QString& extensionList);

/// The entry at \a index, clamped into the list; empty when there are no entries.
CVyString entryAt(const CVyString& qtFilter, int index);

/// Position of the first entry that equals \a selected without regard to case;
/// -1 when there is none.
int indexOf(const CVyString& qtFilter, const CVyString& selected);

/// The name to show when \a typedName, in \a folder, gets a type with
/// \a extensions: its complete base name with the first of them. A name whose
/// suffix, what follows its last ".", is one of them in whatever case stays, as
/// do the names of existing folders and all names when the type has no
/// extensions.
QString nameForType(const QDir& folder, const QString& typedName, const QStringList& extensions);

} // namespace VyFileTypeList

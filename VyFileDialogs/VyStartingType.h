// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// The file type that a native panel starts with. In what follows
/// \a descriptions are the types' descriptions, and \a extensionLists their
/// extensions, joined by ";", in the same order.
struct VyStartingType
{
    QString description;    ///< null when there are no types
    QStringList extensions; ///< what the panel is restricted to; empty for any file

    /// An open panel's: the type that \a selected describes, else the one with
    /// \a suffix, which is a whole extension list or one of its extensions; the
    /// first type if there is none. Types with equal lists are not told apart:
    /// the first of them counts.
    static VyStartingType forOpen(const QStringList& descriptions,
                                  const QStringList& extensionLists, const QString& suffix,
                                  const QString& selected);

    /// A new drawing's: always the first type.
    static VyStartingType forNew(const QStringList& descriptions,
                                 const QStringList& extensionLists);

    /// A save panel's: \a selected, whether there is such a type or not, else the
    /// one whose whole list is \a suffix, else the first.
    static QString forSave(const QStringList& descriptions, const QStringList& extensionLists,
                           const QString& suffix, const QString& selected);
};

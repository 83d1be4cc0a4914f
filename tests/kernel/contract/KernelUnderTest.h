// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// What the contract tests do to a host that the dialogs never do: they bring
/// it into a state and read what it has kept. Each kernel under test comes with
/// one source that defines these functions; StandAloneKernel.cpp is ours.
namespace KernelUnderTest {

/// Makes a document whose view is \a view the active one. \a view may be null,
/// may be deleted before the document is, and stays the caller's.
void openDocument(QWidget* view);

/// Deletes the document of the last openDocument(), as a host does that closes
/// a drawing. Without one it does nothing.
void closeDocument();

/// Sets the folder of the drawing templates, as the host's user would.
void setTemplateFolder(const QString& folder);

/// Sets the user's expertise, as the host's user would.
void setExpertLevel(int level);

/// The paths of the files that have been bookmarked, the latest first, as the
/// host remembers them. A kernel without native panels answers the empty list.
QStringList bookmarkedPaths();

} // namespace KernelUnderTest

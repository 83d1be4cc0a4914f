// SPDX-License-Identifier: MIT
#pragma once

#include <QFileIconProvider>
#include <QHash>
#include <QIcon>
#include <QObject>

class QFileSystemModel;

/// What a file system's model shows beside names: the icons and type names of its
/// own provider, which this one asks once for each kind of file. The model asks for
/// each file, in the interface's thread.
///
/// In the thread of the model, which owns it.
class CVyFileIcons : public QObject, public QFileIconProvider
{
    Q_OBJECT

public:
    /// Becomes the provider of \a model. For the folder at \a shown, an index of the
    /// model, and those above it the disk is not asked again.
    CVyFileIcons(QFileSystemModel* model, const QModelIndex& shown);

    QIcon icon(IconType type) const override { return m_provider.icon(type); }
    QIcon icon(const QFileInfo& info) const override;
    QString type(const QFileInfo& info) const override;

private:
    QFileIconProvider& m_provider; ///< the model's own
    QHash<QString, QIcon> m_shown; ///< by path, while the model takes this provider
    /// By suffix, of files that have no icon of their own.
    mutable QHash<QString, QIcon> m_icons;
    mutable QHash<QString, QString> m_types; ///< by suffix, of files
};

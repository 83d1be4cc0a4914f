// SPDX-License-Identifier: MIT
#pragma once

#include "VyNameMatcher.h"

#include <QAbstractProxyModel>
#include <QHash>
#include <QPersistentModelIndex>

#include <memory>
#include <vector>

class QFileSystemModel;

/// What the dialog lists: of a QFileSystemModel all folders, and those files
/// whose names match the chosen type, in its order.
///
/// QFileSystemModel can do that itself, but compiles a regular expression for
/// every file and pattern, twice. Here a pattern is compiled once, and another
/// type neither sorts nor asks for anything again.
class CVyFileListModel : public QAbstractProxyModel
{
    Q_OBJECT

public:
    explicit CVyFileListModel(QObject* parent = nullptr);
    ~CVyFileListModel() override;

    /// \a model is a QFileSystemModel. Name filters that are set on it, then or
    /// later, become this model's, and are taken away from it.
    void setSourceModel(QAbstractItemModel* model) override;

    /// Lists the files that match one of the wildcard \a patterns from now on;
    /// all if there are none.
    void setNameFilters(const QStringList& patterns);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    QModelIndex mapToSource(const QModelIndex& index) const override;
    QModelIndex mapFromSource(const QModelIndex& index) const override;

private:
    /// A row of the source that is listed.
    struct Row
    {
        int row;
        /// What the source says it is, which it looks up by name; asked again when
        /// the row has moved.
        mutable QModelIndex index;
    };

    /// The rows of one folder, as far as somebody has asked for them.
    struct Folder
    {
        QPersistentModelIndex index; ///< the source's; invalid for its top
        QPersistentModelIndex self;  ///< this model's
        std::vector<Row> rows;       ///< ascending
    };

    Folder& folder(const QModelIndex& sourceParent) const;
    Folder* knownFolder(const QModelIndex& sourceParent) const;
    bool isListed(const QModelIndex& source) const;
    std::vector<Row> listedRows(int first, int last, const QModelIndex& sourceParent) const;
    void adoptNameFilters();
    void beginLayoutChange();
    void endLayoutChange();
    void forgetRemovedFolders();

    void onRowsInserted(const QModelIndex& parent, int first, int last);
    void onRowsAboutToBeRemoved(const QModelIndex& parent, int first, int last);
    void onRowsRemoved(const QModelIndex& parent, int first, int last);
    void onDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                       const QVector<int>& roles);

    QFileSystemModel* m_files = nullptr;
    CVyNameMatcher m_matcher;
    QStringList m_patterns;
    /// By the source's internal id, which is a folder's own as long as it lives.
    mutable QHash<quintptr, std::shared_ptr<Folder>> m_folders;
    QModelIndexList m_changing;                           ///< during a change of layout
    std::vector<QPersistentModelIndex> m_changingSources; ///< those of m_changing
    bool m_isRemoving = false;
};

// SPDX-License-Identifier: MIT
#include "VyFileListModel.h"

#include <QFileSystemModel>

#include <algorithm>

namespace {

// The place of a row of the source among the rows that are listed.
template <class Rows>
auto rowFrom(Rows& rows, int row)
{
    return std::lower_bound(rows.begin(), rows.end(), row,
                            [](const auto& each, int wanted) { return each.row < wanted; });
}

} // namespace

CVyFileListModel::CVyFileListModel(QObject* parent)
    : QAbstractProxyModel(parent)
{}

CVyFileListModel::~CVyFileListModel() = default;

void CVyFileListModel::setSourceModel(QAbstractItemModel* model)
{
    beginResetModel();
    if (m_files)
        m_files->disconnect(this);
    m_files = qobject_cast<QFileSystemModel*>(model);
    m_folders.clear();
    QAbstractProxyModel::setSourceModel(m_files);
    if (m_files) {
        using Model = QAbstractItemModel;
        connect(m_files, &Model::rowsInserted, this, &CVyFileListModel::onRowsInserted);
        connect(m_files, &Model::rowsAboutToBeRemoved, this,
                &CVyFileListModel::onRowsAboutToBeRemoved);
        connect(m_files, &Model::rowsRemoved, this, &CVyFileListModel::onRowsRemoved);
        connect(m_files, &Model::dataChanged, this, &CVyFileListModel::onDataChanged);
        connect(m_files, &Model::layoutAboutToBeChanged, this,
                &CVyFileListModel::beginLayoutChange);
        connect(m_files, &Model::layoutChanged, this, &CVyFileListModel::endLayoutChange);
        adoptNameFilters();
    }
    endResetModel();
}

void CVyFileListModel::setNameFilters(const QStringList& patterns)
{
    if (patterns == m_patterns)
        return;
    beginLayoutChange();
    m_patterns = patterns;
    m_matcher = CVyNameMatcher(patterns);
    endLayoutChange();
}

// QFileDialog sets name filters of its own accord; before it lets the model sort
// by them, it announces a change of layout.
void CVyFileListModel::adoptNameFilters()
{
    if (!m_files)
        return;
    const QStringList patterns = m_files->nameFilters();
    if (patterns.isEmpty())
        return;
    m_files->setNameFilters({});
    m_patterns = patterns;
    m_matcher = CVyNameMatcher(patterns);
}

QModelIndex CVyFileListModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!m_files || row < 0 || column < 0 || parent.column() > 0)
        return {};
    Folder& parentFolder = folder(mapToSource(parent));
    const bool exists = row < static_cast<int>(parentFolder.rows.size()) &&
                        column < m_files->columnCount(parentFolder.index);
    return exists ? createIndex(row, column, &parentFolder) : QModelIndex();
}

QModelIndex CVyFileListModel::parent(const QModelIndex& child) const
{
    if (!child.isValid())
        return {};
    return static_cast<const Folder*>(child.internalPointer())->self;
}

int CVyFileListModel::rowCount(const QModelIndex& parent) const
{
    if (!m_files || parent.column() > 0)
        return 0;
    return static_cast<int>(folder(mapToSource(parent)).rows.size());
}

int CVyFileListModel::columnCount(const QModelIndex& parent) const
{
    return m_files ? m_files->columnCount(mapToSource(parent)) : 0;
}

bool CVyFileListModel::hasChildren(const QModelIndex& parent) const
{
    return m_files && m_files->hasChildren(mapToSource(parent));
}

// A view asks for much more than there is, for every item that it paints.
QVariant CVyFileListModel::data(const QModelIndex& index, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
    case Qt::DecorationRole:
    case Qt::TextAlignmentRole:
        return QAbstractProxyModel::data(index, role);
    default:
        return role < Qt::UserRole ? QVariant() : QAbstractProxyModel::data(index, role);
    }
}

QVariant CVyFileListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return m_files ? m_files->headerData(section, orientation, role) : QVariant();
}

// A dialog that an exception leaves while it changes models hands over the index of
// another one when it goes.
QModelIndex CVyFileListModel::mapToSource(const QModelIndex& index) const
{
    if (index.model() != this || !m_files)
        return {};
    const auto* parentFolder = static_cast<const Folder*>(index.internalPointer());
    const Row& listed = parentFolder->rows[static_cast<std::size_t>(index.row())];
    if (listed.index.row() != listed.row)
        listed.index = m_files->index(listed.row, 0, parentFolder->index);
    return listed.index.sibling(listed.row, index.column());
}

QModelIndex CVyFileListModel::mapFromSource(const QModelIndex& index) const
{
    if (!index.isValid() || !m_files)
        return {};
    Folder& parentFolder = folder(index.parent());
    const auto row = rowFrom(parentFolder.rows, index.row());
    if (row == parentFolder.rows.end() || row->row != index.row())
        return {};
    return createIndex(static_cast<int>(row - parentFolder.rows.begin()), index.column(),
                       &parentFolder);
}

CVyFileListModel::Folder* CVyFileListModel::knownFolder(const QModelIndex& sourceParent) const
{
    return m_folders.value(sourceParent.internalId()).get();
}

CVyFileListModel::Folder& CVyFileListModel::folder(const QModelIndex& sourceParent) const
{
    if (Folder* known = knownFolder(sourceParent))
        return *known;
    const QModelIndex index = sourceParent.sibling(sourceParent.row(), 0);
    const auto added = std::make_shared<Folder>(
        Folder{index, mapFromSource(index), listedRows(0, m_files->rowCount(index) - 1, index)});
    m_folders.insert(index.internalId(), added);
    return *added;
}

bool CVyFileListModel::isListed(const QModelIndex& source) const
{
    return m_matcher.matches(m_files->fileName(source)) || m_files->isDir(source);
}

std::vector<CVyFileListModel::Row>
CVyFileListModel::listedRows(int first, int last, const QModelIndex& sourceParent) const
{
    std::vector<Row> rows;
    for (int row = first; row <= last; ++row) {
        const QModelIndex source = m_files->index(row, 0, sourceParent);
        if (isListed(source))
            rows.push_back({row, source});
    }
    return rows;
}

void CVyFileListModel::onRowsInserted(const QModelIndex& parent, int first, int last)
{
    Folder* known = knownFolder(parent);
    if (!known)
        return;
    const auto at = rowFrom(known->rows, first);
    std::for_each(at, known->rows.end(), [&](Row& each) { each.row += last - first + 1; });
    const std::vector<Row> listed = listedRows(first, last, parent);
    if (listed.empty())
        return;
    const int row = static_cast<int>(at - known->rows.begin());
    beginInsertRows(mapFromSource(parent), row, row + static_cast<int>(listed.size()) - 1);
    known->rows.insert(at, listed.begin(), listed.end());
    endInsertRows();
}

void CVyFileListModel::onRowsAboutToBeRemoved(const QModelIndex& parent, int first, int last)
{
    const Folder* known = knownFolder(parent);
    if (!known)
        return;
    const auto from = rowFrom(known->rows, first);
    const auto to = rowFrom(known->rows, last + 1);
    m_isRemoving = from != to;
    if (m_isRemoving)
        beginRemoveRows(mapFromSource(parent), static_cast<int>(from - known->rows.begin()),
                        static_cast<int>(to - known->rows.begin()) - 1);
}

void CVyFileListModel::onRowsRemoved(const QModelIndex& parent, int first, int last)
{
    if (Folder* known = knownFolder(parent)) {
        const auto behind =
            known->rows.erase(rowFrom(known->rows, first), rowFrom(known->rows, last + 1));
        std::for_each(behind, known->rows.end(), [&](Row& each) { each.row -= last - first + 1; });
    }
    if (m_isRemoving)
        endRemoveRows();
    m_isRemoving = false;
    forgetRemovedFolders();
}

// A name that stays may come to stand for another thing: a folder where a file was.
void CVyFileListModel::onDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                     const QVector<int>& roles)
{
    const QModelIndex parent = topLeft.parent();
    const Folder* known = knownFolder(parent);
    if (!known)
        return;
    const auto from = rowFrom(known->rows, topLeft.row());
    const auto to = rowFrom(known->rows, bottomRight.row() + 1);
    const std::vector<Row> listed = listedRows(topLeft.row(), bottomRight.row(), parent);
    const auto isSame = [](const Row& one, const Row& other) { return one.row == other.row; };
    if (!std::equal(from, to, listed.begin(), listed.end(), isSame)) {
        beginLayoutChange();
        endLayoutChange();
    } else if (from != to) {
        Q_EMIT dataChanged(
            mapFromSource(m_files->index(from->row, topLeft.column(), parent)),
            mapFromSource(m_files->index((to - 1)->row, bottomRight.column(), parent)), roles);
    }
}

void CVyFileListModel::beginLayoutChange()
{
    Q_EMIT layoutAboutToBeChanged();
    m_changing = persistentIndexList();
    m_changingSources.clear();
    for (const QModelIndex& index : qAsConst(m_changing))
        m_changingSources.emplace_back(mapToSource(index));
    adoptNameFilters();
}

void CVyFileListModel::endLayoutChange()
{
    forgetRemovedFolders();
    for (const std::shared_ptr<Folder>& each : qAsConst(m_folders))
        each->rows = listedRows(0, m_files->rowCount(each->index) - 1, each->index);
    QModelIndexList changed;
    for (const QPersistentModelIndex& source : m_changingSources)
        changed.append(mapFromSource(source));
    changePersistentIndexList(m_changing, changed);
    m_changing.clear();
    m_changingSources.clear();
    Q_EMIT layoutChanged();
}

void CVyFileListModel::forgetRemovedFolders()
{
    for (auto each = m_folders.begin(); each != m_folders.end();) {
        const bool isRemoved = each.key() != 0 && !each.value()->index.isValid();
        each = isRemoved ? m_folders.erase(each) : std::next(each);
    }
}

// SPDX-License-Identifier: MIT
#include "VyCodePageList.h"

#include "VyCodePageSearch.h"

#include <QCoreApplication>
#include <QStyle>
#include <QStyledItemDelegate>

namespace {

constexpr int IdRole = Qt::UserRole;      // OdCodePageId, of a page
constexpr int KeyRole = Qt::UserRole + 1; // QString, what a page is found by

QString translated(const char* text)
{
    return QCoreApplication::translate("CVyDlgEncoding", text);
}

bool isPage(const QListWidgetItem& item)
{
    return item.data(IdRole).isValid();
}

bool isShownPage(const QListWidgetItem& item)
{
    return isPage(item) && !item.isHidden();
}

// In the languages of the user and of the drawings' format alike.
QString searchKey(const CVyCodePage& page)
{
    QStringList texts = QString::fromLatin1(page.otherNames).split(QLatin1Char(' '));
    texts.append(QString::fromLatin1(page.fileName));
    for (const char* text : {page.description, page.region->name, page.region->languages})
        texts << QString::fromUtf8(text) << translated(text);
    return VyCodePageSearch::key(texts);
}

// Headings are disabled, which keeps keys and clicks away from them, but are not
// painted so; pages are indented beneath them.
class Delegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(IdRole).isValid()) {
            option->features |= QStyleOptionViewItem::HasDecoration;
            option->decorationSize = QSize(option->fontMetrics.height() / 2, 1);
        } else {
            option->state |= QStyle::State_Enabled;
        }
    }
};

} // namespace

CVyCodePageList::CVyCodePageList(QWidget* parent)
    : QListWidget(parent)
{
    setItemDelegate(new Delegate(this));
    const CVyCodePageRegion* region = nullptr;
    for (const CVyCodePage& page : VyCodePages()) {
        if (page.region != region)
            addHeading(*page.region);
        region = page.region;
        addPage(page);
    }
    addNothingFound();
    widen();
}

void CVyCodePageList::addHeading(const CVyCodePageRegion& region)
{
    auto* item = new QListWidgetItem(translated(region.name), this);
    item->setFlags(Qt::NoItemFlags);
    QFont bold; // and otherwise the list's font
    bold.setBold(true);
    item->setFont(bold);
}

void CVyCodePageList::addPage(const CVyCodePage& page)
{
    const QString text = QStringLiteral("%1 \u2013 %2")
                             .arg(translated(page.description), QLatin1String(page.fileName));
    auto* item = new QListWidgetItem(text, this);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item->setData(IdRole, static_cast<int>(page.id));
    item->setData(KeyRole, searchKey(page));
}

void CVyCodePageList::addNothingFound()
{
    m_nothingFound = new QListWidgetItem(
        translated(QT_TRANSLATE_NOOP("CVyDlgEncoding", "No encoding matches the search.")), this);
    m_nothingFound->setFlags(Qt::NoItemFlags);
    m_nothingFound->setHidden(true);
}

// Every page's name whole, beside the scroll bar.
void CVyCodePageList::widen()
{
    setMinimumWidth(sizeHintForColumn(0) + 2 * frameWidth() +
                    style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

const CVyCodePage* CVyCodePageList::chosen() const
{
    const QList<QListWidgetItem*> items = selectedItems();
    if (items.isEmpty())
        return nullptr;
    return VyFindCodePage(static_cast<OdCodePageId>(items.first()->data(IdRole).toInt()));
}

void CVyCodePageList::choose(OdCodePageId id)
{
    for (int row = 0; row < count(); ++row) {
        if (isPage(*item(row)) && item(row)->data(IdRole).toInt() == static_cast<int>(id))
            setCurrentRow(row);
    }
}

void CVyCodePageList::narrow(const QString& typed)
{
    if (!selectedItems().isEmpty())
        m_lastChosen = selectedItems().first();
    const bool found = showMatches(typed);
    m_nothingFound->setHidden(found);
    if (!found) {
        setCurrentItem(nullptr);
        return;
    }
    setCurrentItem(m_lastChosen && !m_lastChosen->isHidden() ? m_lastChosen : firstShownPage());
    scrollToItem(currentItem(), PositionAtCenter);
}

void CVyCodePageList::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    const QListWidgetItem* const above = item(index.row() - 1);
    if (hint == EnsureVisible && above && !isPage(*above))
        QListWidget::scrollTo(index.siblingAtRow(index.row() - 1));
    QListWidget::scrollTo(index, hint);
}

// Where the middle is, is known only now.
void CVyCodePageList::showEvent(QShowEvent* event)
{
    QListWidget::showEvent(event);
    scrollTo(currentIndex(), PositionAtCenter);
}

// Qt's first and last row would be a heading's or a hidden one, and the key be lost.
QModelIndex CVyCodePageList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveHome)
        return indexFromItem(firstShownPage());
    if (action == MoveEnd)
        return indexFromItem(lastShownPage());
    return QListWidget::moveCursor(action, modifiers);
}

// With Ctrl, the chosen page would cease to be.
QItemSelectionModel::SelectionFlags CVyCodePageList::selectionCommand(const QModelIndex& index,
                                                                      const QEvent* event) const
{
    const auto command = QListWidget::selectionCommand(index, event);
    return command & QItemSelectionModel::Deselect ? QItemSelectionModel::NoUpdate : command;
}

bool CVyCodePageList::showMatches(const QString& typed)
{
    QListWidgetItem* heading = nullptr;
    bool found = false;
    for (int row = 0; row < count(); ++row) {
        QListWidgetItem* const shown = item(row);
        if (!isPage(*shown)) {
            heading = shown;
            heading->setHidden(true);
            continue;
        }
        const bool matches = VyCodePageSearch::matches(shown->data(KeyRole).toString(), typed);
        shown->setHidden(!matches);
        if (matches)
            heading->setHidden(false);
        found = found || matches;
    }
    return found;
}

QListWidgetItem* CVyCodePageList::firstShownPage() const
{
    for (int row = 0; row < count(); ++row) {
        if (isShownPage(*item(row)))
            return item(row);
    }
    return nullptr;
}

QListWidgetItem* CVyCodePageList::lastShownPage() const
{
    for (int row = count() - 1; row >= 0; --row) {
        if (isShownPage(*item(row)))
            return item(row);
    }
    return nullptr;
}

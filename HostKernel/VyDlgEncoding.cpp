// SPDX-License-Identifier: MIT
#include "VyDlgEncoding.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QStyle>
#include <QVBoxLayout>

namespace {

// Where GetCodepage() points: one object for each row of the list.
OdCodePageId* lastingId(int row)
{
    static std::vector<OdCodePageId> ids = [] {
        std::vector<OdCodePageId> all;
        for (const CVyCodePage& page : VyCodePages())
            all.push_back(page.id);
        return all;
    }();
    return row < 0 ? nullptr : &ids.at(static_cast<std::size_t>(row));
}

// The page that most drawings of today declare.
int initialRow()
{
    const auto& pages = VyCodePages();
    for (std::size_t row = 0; row < pages.size(); ++row) {
        if (pages[row].id == OdCodePageId::Ansi1252)
            return static_cast<int>(row);
    }
    return 0;
}

QListWidget* codePageList(QWidget* parent)
{
    auto* list = new QListWidget(parent);
    list->setObjectName(QStringLiteral("codePages"));
    for (const CVyCodePage& page : VyCodePages()) {
        list->addItem(QStringLiteral("%1 \u2013 %2")
                          .arg(CVyDlgEncoding::tr(page.description), QLatin1String(page.fileName)));
    }
    list->setCurrentRow(initialRow());
    // Every name whole, beside the scroll bar.
    list->setMinimumWidth(list->sizeHintForColumn(0) + 2 * list->frameWidth() +
                          list->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    return list;
}

} // namespace

CVyDlgEncoding::CVyDlgEncoding(QWidget* parent, const CVyString& fileName)
    : QDialog(parent)
    , m_pages(codePageList(this))
    , m_readOnly(new QCheckBox(tr("Open &read-only"), this))
{
    setObjectName(QStringLiteral("encodingDialog"));
    setWindowTitle(tr("Open with Encoding"));
    m_readOnly->setObjectName(QStringLiteral("readOnly"));

    auto* file = new QLabel(this);
    file->setObjectName(QStringLiteral("fileName"));
    file->setTextFormat(Qt::PlainText);
    const QString path = fileName;
    const QString shown = path.isEmpty() ? path : QFileInfo(path).fileName();
    const QFontMetrics metrics = file->fontMetrics();
    file->setText(metrics.elidedText(shown, Qt::ElideMiddle, 60 * metrics.averageCharWidth()));
    file->setToolTip(path.toHtmlEscaped());

    auto* caption = new QLabel(tr("&Encoding of the drawing's text:"), this);
    caption->setBuddy(m_pages);
    m_pages->setAccessibleName(tr("Encoding"));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    connect(m_pages, SIGNAL(itemActivated(QListWidgetItem*)), this, SLOT(accept()));

    auto* rows = new QVBoxLayout(this);
    rows->addWidget(file);
    rows->addWidget(caption);
    rows->addWidget(m_pages, 1);
    rows->addWidget(m_readOnly);
    rows->addWidget(buttons);
    m_pages->setFocus();
    m_pages->scrollToItem(m_pages->currentItem(), QAbstractItemView::PositionAtCenter);
}

OdCodePageId* CVyDlgEncoding::GetCodepage() const
{
    return lastingId(m_pages->currentRow());
}

bool CVyDlgEncoding::IsReadOnly() const
{
    return m_readOnly->isChecked();
}

// SPDX-License-Identifier: MIT
#include "VyDlgEncoding.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QVBoxLayout>

namespace {

struct Page
{
    const char* name;
    OdCodePageId id;
};

Page pages[] = {
    {"Western European", OdCodePageId::Ansi1252},
    {"Cyrillic", OdCodePageId::Ansi1251},
    {"Japanese", OdCodePageId::Ansi932},
    {"Unicode", OdCodePageId::Utf8},
};

} // namespace

CVyDlgEncoding::CVyDlgEncoding(QWidget* parent, const CVyString& fileName)
    : QDialog(parent)
    , m_pages(new QComboBox)
    , m_readOnly(new QCheckBox(QStringLiteral("&Read-only")))
{
    setWindowTitle(QStringLiteral("Encoding of ") + QFileInfo(fileName).fileName());
    for (const Page& page : pages)
        m_pages->addItem(QString::fromLatin1(page.name));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(m_pages);
    rows->addWidget(m_readOnly);
    rows->addWidget(buttons);
}

OdCodePageId* CVyDlgEncoding::GetCodepage() const
{
    return &pages[m_pages->currentIndex()].id;
}

bool CVyDlgEncoding::IsReadOnly() const
{
    return m_readOnly->isChecked();
}

// SPDX-License-Identifier: MIT
// What the New, Open and Save dialogs add to the common one.
#include "VyFileDialogQt.h"

#include "VyFileDialogWidget.h"
#include "VySystemServices.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

namespace {

QDialogButtonBox* buttonBox(const QWidget* widget)
{
    return widget->findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
}

// To those who cannot see it the menu is called as the panels' popup of modes.
QMenu* modeMenu(QWidget* widget)
{
    auto* menu = new QMenu(widget);
    menu->setObjectName(QStringLiteral("modeMenu"));
    QString name = QCoreApplication::translate("CVyFileDialogs", "Open mode:");
    while (!name.isEmpty() && !name.back().isLetterOrNumber())
        name.chop(1);
    menu->setAccessibleName(name);
    return menu;
}

void addMode(QMenu* menu, const QString& text, const char* slot)
{
    QObject::connect(menu->addAction(text), SIGNAL(triggered()), menu->parentWidget(), slot);
}

// A tool button's menu has no key of its own.
void openMenuByKey(QToolButton* button)
{
    for (const int key : {int(Qt::Key_Down), int(Qt::ALT) | int(Qt::Key_Down)})
        new QShortcut(QKeySequence(key), button, SLOT(showMenu()), nullptr, Qt::WidgetShortcut);
}

// Puts \a button in the place of the box's Open button. The latter is kept,
// hidden, with the box's window, which owns it from now on.
void replaceOpenButton(QDialogButtonBox* box, QToolButton* button)
{
    QPushButton* standard = box->button(QDialogButtonBox::Open);
    if (standard) {
        button->setSizePolicy(standard->sizePolicy());
        button->setIcon(standard->icon());
        QWidget::setTabOrder(standard, button);
        box->removeButton(standard);
        standard->setParent(box->window());
        standard->hide();
    }
    box->addButton(button, QDialogButtonBox::AcceptRole);
}

} // namespace

void CVyFileDialogQt::switchToTemplateFolder(const QString& filter)
{
    if (m_widget && filter.contains(QLatin1String(".dwt")))
        m_widget->setDirectory(QString(GetVySystemServices()->GetTemplateFolder()));
}

void CVyFileDialogQt::acceptDialog()
{
    if (m_widget)
        m_widget->onAccept();
}

void CVyFileDialogQt::closeAsAccepted()
{
    if (m_widget)
        m_widget->onDone();
}

CVyFileDialogQtNew::CVyFileDialogQtNew(bool showModeMenu)
    : CVyFileDialogQt(QFileDialog::ExistingFile, QFileDialog::AcceptOpen)
    , m_showModeMenu(showModeMenu)
{}

void CVyFileDialogQtNew::onActionNew()
{
    m_newMode = 0;
    acceptDialog();
}

void CVyFileDialogQtNew::onActionNewNoTemplateImperial()
{
    m_newMode = 1;
    closeAsAccepted();
}

void CVyFileDialogQtNew::onActionNewNoTemplateMetric()
{
    m_newMode = 2;
    closeAsAccepted();
}

void CVyFileDialogQtNew::HandleDialogInitialization()
{
    if (!m_showModeMenu)
        return;
    auto* button = new QToolButton(m_widget);
    button->setObjectName(QStringLiteral("openButton"));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    button->setText(QCoreApplication::translate("CVyFileDialogQt", "&Open"));
    button->setAccessibleName(QCoreApplication::translate("CVyFileDialogQt", "Open"));
    if (QDialogButtonBox* box = buttonBox(m_widget))
        replaceOpenButton(box, button);

    QMenu* menu = modeMenu(m_widget);
    addMode(menu, QCoreApplication::translate("CVyFileDialogQt", "Open"), SLOT(onActionNew()));
    addMode(menu,
            QCoreApplication::translate("CVyFileDialogQt", "Open with no Template - Imperial"),
            SLOT(onActionNewNoTemplateImperial()));
    addMode(menu, QCoreApplication::translate("CVyFileDialogQt", "Open with no Template - Metric"),
            SLOT(onActionNewNoTemplateMetric()));
    button->setMenu(menu);
    openMenuByKey(button);
}

CVyFileDialogQtOpen::CVyFileDialogQtOpen(bool previewAllowed, bool multiSelect,
                                         bool hideReadOnlyChoices, bool showModeMenu,
                                         bool templateFolderSwitch)
    : CVyFileDialogQt(multiSelect ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile,
                      QFileDialog::AcceptOpen)
    , m_showModeMenu(showModeMenu)
    , m_hideReadOnlyChoices(hideReadOnlyChoices)
    , m_keepFolderOnTemplateFilter(!templateFolderSwitch)
{
    m_previewAllowed = previewAllowed;
}

void CVyFileDialogQtOpen::onTypeChange(const QString& filter)
{
    if (!m_keepFolderOnTemplateFilter)
        switchToTemplateFolder(filter);
}

void CVyFileDialogQtOpen::onActionOpen()
{
    m_openMode = 0;
    acceptDialog();
}

void CVyFileDialogQtOpen::onActionOpenReadOnly()
{
    m_openMode = 1;
    acceptDialog();
}

void CVyFileDialogQtOpen::onActionOpenWithEncoding()
{
    m_openMode = 2;
    acceptDialog();
}

void CVyFileDialogQtOpen::HandleDialogInitialization()
{
    if (!m_showModeMenu || !m_previewAllowed)
        return;
    const QDialogButtonBox* box = buttonBox(m_widget);
    QPushButton* open = box ? box->button(QDialogButtonBox::Open) : nullptr;
    if (!open)
        return;
    open->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    QMenu* menu = modeMenu(m_widget);
    addMode(menu, QCoreApplication::translate("CVyFileDialogs", "Open"), SLOT(onActionOpen()));
    if (!m_hideReadOnlyChoices) {
        addMode(menu, QCoreApplication::translate("CVyFileDialogs", "Open Read-Only"),
                SLOT(onActionOpenReadOnly()));
        addMode(menu, QCoreApplication::translate("CVyFileDialogs", "Open with Encoding..."),
                SLOT(onActionOpenWithEncoding()));
    }
    open->setMenu(menu);
    // Opened by its mnemonic, the button still counts as clicked once the menu
    // has gone; that must not accept the dialog when the menu was left.
    QObject::disconnect(open, SIGNAL(clicked()), box, nullptr);
}

CVyFileDialogQtSave::CVyFileDialogQtSave(bool keepTitle)
    : CVyFileDialogQt(QFileDialog::AnyFile, QFileDialog::AcceptSave)
    , m_keepTitle(keepTitle)
{}

void CVyFileDialogQtSave::onTypeChange(const QString& filter)
{
    CVyFileDialogQt::onTypeChange(filter);
    int preselected = 0;
    if (getFileTypeIndex(&preselected) == VyStatus::Accepted)
        switchToTemplateFolder(filter);
}

void CVyFileDialogQtSave::HandleDialogInitialization()
{
    if (!m_keepTitle)
        m_widget->setWindowTitle(QCoreApplication::translate("CVyFileDialogQt", "Save As"));
}

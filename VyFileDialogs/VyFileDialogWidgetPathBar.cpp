// SPDX-License-Identifier: MIT
// The row of folder buttons above the dialog.
#include "VyFileDialogWidget.h"

#include "VyPathBar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>

namespace {

// The two fonts of the row, made from the font of its first button.
QFont fontOf(const CVyDirPushButton* first, bool current)
{
    QFont font = first->font();
    font.setWeight(current ? QFont::Bold : QFont::Normal);
    return font;
}

} // namespace

// Lays the row out unless it already stands for \a path, as it does for a folder
// that is announced twice. The place above the root has no path; the row reads
// "/" there.
void CVyFileDialogWidget::showFolder(const QString& path)
{
    const QString folder = path.isEmpty() ? QStringLiteral("/") : path;
    takeFocusFromPathBar();
    if (folder != m_shownFolder)
        layoutDirSelector(folder);
}

void CVyFileDialogWidget::layoutDirSelector(const QString& path)
{
    const QStringList parts = VyPathBar::parts(path);
    removeFolderButtons(VyPathBar::staying(folderNames(), parts));
    const int kept = m_folderButtons.size();
    for (int i = kept; i < parts.size(); ++i)
        addFolderButton(parts.at(i));

    markCurrent(m_folderButtons.at(parts.size() - 1));
    for (CVyDirPushButton* button : qAsConst(m_folderButtons)) {
        button->updateMaxWidth();
        button->setMinimumWidth(VyPathBar::MinimumWidth);
        button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    }
    showFolderButtons(kept);
    layout()->update();
    m_shownFolder = path;
}

void CVyFileDialogWidget::dirButtonPressed(QPushButton* button)
{
    const int index = m_folderButtons.indexOf(static_cast<CVyDirPushButton*>(button));
    if (index < 0)
        return;
    markCurrent(m_folderButtons.at(index));
    for (CVyDirPushButton* each : qAsConst(m_folderButtons))
        each->fixShownWidth();

    // Laid out anew in any case: the folder may be gone, and then another one
    // is current; and the widths just set would let the row waste its room.
    m_shownFolder.clear();
    setDirectory(VyPathBar::folderOf(folderNames(), index));
    onChangedDirectory();
}

void CVyFileDialogWidget::resizeEvent(QResizeEvent* event)
{
    for (CVyDirPushButton* button : qAsConst(m_folderButtons)) {
        button->showFullName();
        button->updateMaxWidth();
        button->updateSize();
    }
    QDialog::resizeEvent(event);
}

QStringList CVyFileDialogWidget::folderNames() const
{
    QStringList names;
    for (const CVyDirPushButton* button : m_folderButtons)
        names.append(button->fullName());
    return names;
}

void CVyFileDialogWidget::removeFolderButtons(int from)
{
    while (m_folderButtons.size() > from) {
        CVyDirPushButton* button = m_folderButtons.takeLast();
        m_pathBar->removeWidget(button);
        delete button;
    }
}

void CVyFileDialogWidget::addFolderButton(const QString& name)
{
    auto* button = new CVyDirPushButton(name, this);
    connect(button, SIGNAL(dirClicked(QPushButton*)), this, SLOT(dirButtonPressed(QPushButton*)));
    m_folderButtons.append(button);
    m_pathBar->addWidget(button, 0, Qt::AlignLeft);
}

// Shows the buttons that are new in a dialog that is shown. The layout would do
// it itself, one by one, and lay out everything anew for each.
void CVyFileDialogWidget::showFolderButtons(int from)
{
    if (!isVisible())
        return;
    layout()->setEnabled(false);
    for (int i = from; i < m_folderButtons.size(); ++i)
        m_folderButtons.at(i)->show();
    layout()->setEnabled(true);
}

// Bold names the folder that the dialog shows.
void CVyFileDialogWidget::markCurrent(const CVyDirPushButton* current)
{
    const QFont normal = fontOf(m_folderButtons.constFirst(), false);
    const QFont bold = fontOf(m_folderButtons.constFirst(), true);
    for (CVyDirPushButton* button : qAsConst(m_folderButtons)) {
        const QFont& font = button == current ? bold : normal;
        if (button->font() != font || !button->testAttribute(Qt::WA_SetFont))
            button->setFont(font);
    }
}

// The row stands first, but its buttons were made before those of the button
// box. The chain is a ring: its end comes before the dialog's first widget, and
// that is also where buttons made later are appended.
void CVyFileDialogWidget::orderTabs()
{
    QWidget* last = previousInFocusChain();
    for (CVyDirPushButton* button : qAsConst(m_folderButtons)) {
        setTabOrder(last, button);
        last = button;
    }
    // Qt's own order goes from the name to the button box, which hands the
    // focus on to its buttons, and so past the types. In two steps: to
    // setTabOrder() the box has no focus, and the types follow the name already.
    auto* name = findChild<QLineEdit*>();
    auto* types = findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    if (name && types) {
        setTabOrder(last, types);
        setTabOrder(name, types);
    }
}

// After a navigation Return is to mean the accept button again.
void CVyFileDialogWidget::takeFocusFromPathBar()
{
    if (!qobject_cast<CVyDirPushButton*>(focusWidget()))
        return;
    if (auto* name = findChild<QLineEdit*>())
        name->setFocus();
}

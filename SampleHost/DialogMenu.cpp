// SPDX-License-Identifier: MIT
#include "DialogMenu.h"

#include <QActionGroup>

DialogMenu::DialogMenu(QWidget* parent)
    : QMenu(tr("&Dialogs"), parent)
{
    setObjectName(QStringLiteral("dialogMenu"));
    setToolTipsVisible(true);
    addStyles();
    addSeparator();
    m_preview = add("preview", tr("&Preview"), tr("Open: a preview beside the list, and modes"));
    m_modes = add("modeChoices", tr("&Mode Choices"),
                  tr("Open and new: ways to go on. Save: a title of its own"));
    m_readOnly = add("readOnlyChoices", tr("&Read-Only Choices"),
                     tr("Open: modes other than plain opening"));
    m_templateFolder = add("templateFolder", tr("&Template Folder"),
                           tr("Open: go to the templates when their type is chosen"));
    for (QAction* each : {m_preview, m_modes, m_readOnly, m_templateFolder})
        each->setChecked(true);
}

void DialogMenu::addStyles()
{
    auto* styles = new QActionGroup(this);
    m_qt = add("styleQt", tr("&Qt Dialog"), tr("Requests show the Qt dialog"));
    m_native = add("styleNative", tr("&System's Panel"), tr("Requests show the system's panel"));
    styles->addAction(m_qt);
    styles->addAction(m_native);
    m_qt->setChecked(true);
    if (!hasNativePanels()) {
        m_native->setEnabled(false);
        m_native->setToolTip(tr("This build has no native panels"));
        m_native->setStatusTip(m_native->toolTip());
    }
}

QAction* DialogMenu::add(const char* name, const QString& text, const QString& tip)
{
    QAction* action = addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setCheckable(true);
    action->setToolTip(tip);
    action->setStatusTip(tip);
    return action;
}

bool DialogMenu::hasNativePanels()
{
    return VY_HAS_NATIVE;
}

CVyFileDialog::_Style DialogMenu::style() const
{
    return m_native->isChecked() ? CVyFileDialog::StyleNative : CVyFileDialog::StyleQt;
}

void DialogMenu::setStyle(CVyFileDialog::_Style style)
{
    const bool native = style == CVyFileDialog::StyleNative && m_native->isEnabled();
    (native ? m_native : m_qt)->setChecked(true);
}

void DialogMenu::tellNativeFails(const QString& reason)
{
    m_qt->setChecked(true);
    m_native->setToolTip(tr("Could not be shown: %1").arg(reason));
    m_native->setStatusTip(m_native->toolTip());
}

Options DialogMenu::options(CVyUserIO::_FileNameType kind) const
{
    unsigned type = kind;
    if (kind == CVyUserIO::FileNameOpen) {
        type |= m_preview->isChecked() ? 0U : CVyUserIO::FileNameNoPreview;
        type |= m_readOnly->isChecked() ? 0U : CVyUserIO::FileNameOpenOnly;
        type |= m_templateFolder->isChecked() ? 0U : CVyUserIO::FileNameNoTemplateFolder;
    }
    Options options;
    options.style = style();
    options.type = static_cast<CVyUserIO::_FileNameType>(type);
    if (m_modes->isChecked())
        options.flags = CVyUserIO::FileNameModeChoices;
    return options;
}

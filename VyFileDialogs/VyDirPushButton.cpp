// SPDX-License-Identifier: MIT
#include "VyDirPushButton.h"

#include "VyPathBar.h"

#include <QResizeEvent>
#include <QTextDocument>

namespace {

// Tool tips that look like rich text are rendered as such; a folder's name is
// never meant to be.
QString plainToolTip(const QString& name)
{
    if (!Qt::mightBeRichText(name))
        return name;
    return QStringLiteral("<span>%1</span>").arg(name.toHtmlEscaped());
}

} // namespace

CVyDirPushButton::CVyDirPushButton(const QString& name, QWidget* parent)
    : QPushButton(parent)
    , m_fullName(name)
    , m_line(VyPathBar::singleLine(name))
    , m_metrics(fontMetrics())
{
    showFullName();
    setObjectName(QStringLiteral("folderButton"));
    setAccessibleName(m_fullName);
    // Return belongs to the dialog's accept button.
    setAutoDefault(false);
    connect(this, SIGNAL(clicked(bool)), this, SLOT(onClicked(bool)));
}

QString CVyDirPushButton::shownName() const
{
    return text().replace(QLatin1String("&&"), QLatin1String("&"));
}

void CVyDirPushButton::showFullName()
{
    showName(m_line);
}

void CVyDirPushButton::calculateText(int width)
{
    const QString& fitting = fittingText(width);
    showName(fitting);
    const QString tip = fitting == m_line ? QString() : plainToolTip(m_fullName);
    if (tip != toolTip()) // a change is announced, even to the same
        setToolTip(tip);
}

void CVyDirPushButton::updateSize()
{
    resize(fullWidth(), height());
}

void CVyDirPushButton::updateMaxWidth()
{
    setMaximumWidth(fullWidth());
}

void CVyDirPushButton::fixShownWidth()
{
    const QString shown = shownName();
    setMaximumWidth(shown == m_line ? fullWidth() : VyPathBar::paddedWidth(fontMetrics(), shown));
}

QSize CVyDirPushButton::sizeHint() const
{
    return QSize(fullWidth(), QPushButton::sizeHint().height());
}

void CVyDirPushButton::onClicked(bool)
{
    Q_EMIT dirClicked(this);
}

void CVyDirPushButton::resizeEvent(QResizeEvent* event)
{
    calculateText(event->size().width());
    QWidget::resizeEvent(event);
}

int CVyDirPushButton::fullWidth() const
{
    if (m_fullWidth < 0 || m_metrics != fontMetrics()) {
        m_metrics = fontMetrics();
        m_fullWidth = VyPathBar::paddedWidth(m_metrics, m_line);
        m_elidedWidth = -1;
    }
    return m_fullWidth;
}

const QString& CVyDirPushButton::fittingText(int width) const
{
    if (fullWidth() <= width)
        return m_line;
    if (m_elidedWidth != width) {
        m_elidedWidth = width;
        m_elided = VyPathBar::elidedText(m_metrics, m_line, width);
    }
    return m_elided;
}

// An "&" in a folder's name is no mnemonic.
void CVyDirPushButton::showName(const QString& name)
{
    setText(QString(name).replace(QLatin1Char('&'), QLatin1String("&&")));
}

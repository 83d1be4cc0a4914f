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
    showName(VyPathBar::singleLine(m_fullName));
}

void CVyDirPushButton::calculateText(int width)
{
    const QString name = VyPathBar::singleLine(m_fullName);
    const QString fitting = VyPathBar::fittingText(fontMetrics(), name, width);
    showName(fitting);
    setToolTip(fitting == name ? QString() : plainToolTip(m_fullName));
}

void CVyDirPushButton::updateSize()
{
    resize(fullWidth(), height());
}

void CVyDirPushButton::updateMaxWidth()
{
    setMaximumWidth(fullWidth());
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
    return VyPathBar::paddedWidth(fontMetrics(), VyPathBar::singleLine(m_fullName));
}

// An "&" in a folder's name is no mnemonic.
void CVyDirPushButton::showName(const QString& name)
{
    setText(QString(name).replace(QLatin1Char('&'), QLatin1String("&&")));
}

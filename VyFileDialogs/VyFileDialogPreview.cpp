// SPDX-License-Identifier: MIT
#include "VyFileDialogPreview.h"

#include <QResizeEvent>

CVyFileDialogPreview::CVyFileDialogPreview(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("previewLabel"));
    setAlignment(Qt::AlignTop | Qt::AlignHCenter);
}

void CVyFileDialogPreview::setImage(const QImage& image)
{
    m_image = image;
    showScaled(width());
}

QSize CVyFileDialogPreview::sizeHint() const
{
    return QSize(200, 150);
}

QSize CVyFileDialogPreview::minimumSizeHint() const
{
    return QSize(60, 45);
}

void CVyFileDialogPreview::resizeEvent(QResizeEvent* event)
{
    showScaled(event->size().width());
    QWidget::resizeEvent(event);
}

void CVyFileDialogPreview::showScaled(int width)
{
    const int pictureWidth = width - 5;
    if (m_image.isNull() || pictureWidth <= 0)
        return;
    // As many of the screen's own pixels as there are behind that many of Qt's.
    const qreal ratio = devicePixelRatioF();
    QPixmap picture = QPixmap::fromImage(
        m_image.scaledToWidth(qRound(pictureWidth * ratio), Qt::FastTransformation));
    picture.setDevicePixelRatio(ratio);
    setPixmap(picture);
}

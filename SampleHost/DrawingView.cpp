// SPDX-License-Identifier: MIT
#include "DrawingView.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Margin = 16;

int inPixels(int length, qreal ratio)
{
    return static_cast<int>(std::floor(length * ratio));
}

} // namespace

DrawingView::DrawingView(const Drawing& drawing, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("drawingView"));
    setCursor(Qt::CrossCursor);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setDrawing(drawing);
}

void DrawingView::setDrawing(const Drawing& drawing)
{
    m_drawing = drawing;
    m_scaled = QPixmap();
    setAccessibleName(drawing.name);
    setAccessibleDescription(caption());
    update();
    Q_EMIT zoomChanged();
}

int DrawingView::zoom() const
{
    return m_zoom > 0 ? std::min(m_zoom, largestZoom()) : largestZoom();
}

int DrawingView::largestZoom() const
{
    const QSize picture = m_drawing.picture.size();
    if (picture.isEmpty())
        return 0;
    const QSize room = roomInPixels();
    return std::max(0, std::min(room.width() / picture.width(), room.height() / picture.height()));
}

void DrawingView::setZoom(int zoom)
{
    m_zoom = std::clamp(zoom, 0, largestZoom());
    update();
    Q_EMIT zoomChanged();
}

QString DrawingView::caption() const
{
    QString text = m_drawing.name;
    if (m_drawing.readOnly)
        text += QLatin1String(", ") + tr("read-only");
    if (const char* page = VyCodePageName(m_drawing.codePage))
        text += QLatin1String(", ") + QLatin1String(page);
    const QString more = remark();
    return more.isEmpty() ? text : text + QLatin1Char('\n') + more;
}

QString DrawingView::remark() const
{
    switch (m_drawing.mode) {
    case CVyUserIO::NewImperial:
        return tr("An empty drawing in inches. This sample does not draw.");
    case CVyUserIO::NewMetric:
        return tr("An empty drawing in millimetres. This sample does not draw.");
    default:
        return m_drawing.picture.isNull() ? tr("There is no preview in this file.") : QString();
    }
}

void DrawingView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    if (m_drawing.picture.isNull()) {
        painter.drawText(rect().adjusted(Margin, Margin, -Margin, -Margin),
                         Qt::AlignCenter | Qt::TextWordWrap, caption());
        return;
    }
    painter.drawText(captionArea(), Qt::AlignCenter,
                     fontMetrics().elidedText(caption(), Qt::ElideMiddle, captionArea().width()));
    const QRect place = pictureInPixels();
    const qreal ratio = devicePixelRatioF();
    if (m_scaled.size() != place.size() || m_scaled.devicePixelRatioF() != ratio) {
        m_scaled = QPixmap::fromImage(m_drawing.picture.scaled(
            place.size(), Qt::IgnoreAspectRatio,
            zoom() > 0 ? Qt::FastTransformation : Qt::SmoothTransformation));
        m_scaled.setDevicePixelRatio(ratio);
    }
    const QRectF area(QPointF(place.topLeft()) / ratio, QSizeF(place.size()) / ratio);
    painter.drawPixmap(area.topLeft(), m_scaled);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(area.adjusted(-1, -1, 0, 0));
}

void DrawingView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Q_EMIT zoomChanged();
}

void DrawingView::mouseMoveEvent(QMouseEvent* event)
{
    const QRect place = pictureInPixels();
    const QPoint pointer = (event->localPos() * devicePixelRatioF()).toPoint();
    if (!place.contains(pointer)) {
        Q_EMIT pointedAway();
        return;
    }
    const QPoint inside = pointer - place.topLeft();
    const QSize picture = m_drawing.picture.size();
    Q_EMIT pointedAt({inside.x() * picture.width() / place.width(),
                      picture.height() - 1 - inside.y() * picture.height() / place.height()});
}

void DrawingView::leaveEvent(QEvent*)
{
    Q_EMIT pointedAway();
}

QRect DrawingView::captionArea() const
{
    const int height = fontMetrics().height();
    return {Margin, rect().bottom() - Margin / 2 - height, width() - 2 * Margin, height};
}

// Above the caption.
QSize DrawingView::roomInPixels() const
{
    const qreal ratio = devicePixelRatioF();
    return {inPixels(width() - 2 * Margin, ratio),
            inPixels(captionArea().top() - 2 * Margin, ratio)};
}

// Where the picture is painted, in pixels of the screen.
QRect DrawingView::pictureInPixels() const
{
    const QSize room = roomInPixels();
    const QSize picture = m_drawing.picture.size();
    if (picture.isEmpty() || room.isEmpty())
        return {};
    const QSize size = zoom() > 0 ? picture * zoom()
                                  : picture.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
    const int margin = inPixels(Margin, devicePixelRatioF());
    return {QPoint(margin + (room.width() - size.width()) / 2,
                   margin + (room.height() - size.height()) / 2),
            size};
}

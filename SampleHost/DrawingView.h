// SPDX-License-Identifier: MIT
#pragma once

#include "Drawing.h"
#include "VyDocument.h"

#include <QPixmap>
#include <QWidget>

/// The canvas of a drawing, which is a document of the kernel's. It shows the
/// picture in the drawing's file, each of its pixels as a whole number of the
/// screen's, or says in words that there is none. Its cursor is a cross.
class DrawingView : public QWidget
{
    Q_OBJECT

public:
    explicit DrawingView(const Drawing& drawing, QWidget* parent = nullptr);

    const Drawing& drawing() const { return m_drawing; }
    void setDrawing(const Drawing& drawing);
    CVyDocument* document() { return &m_document; }

    /// How many pixels of the screen one of the picture takes a side; 0 where the
    /// picture is larger than the canvas and shown smaller, or where there is none.
    int zoom() const;
    /// As zoom(), when the picture fills the canvas.
    int largestZoom() const;
    /// From now on \a zoom, or as much as the canvas has room for; 0 fills it.
    void setZoom(int zoom);

    /// What the canvas says: the drawing's name, and what there is to know of it.
    QString caption() const;

Q_SIGNALS:
    /// The pointer is over that pixel of the picture, counted from the lower left.
    void pointedAt(const QPoint& place);
    /// It is over none.
    void pointedAway();
    /// zoom() or largestZoom() is another one.
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QSize roomInPixels() const;
    QRect pictureInPixels() const;
    QRect captionArea() const;
    QString remark() const;

    Drawing m_drawing;
    CVyDocument m_document{this};
    QPixmap m_scaled; ///< the picture as it was painted last
    int m_zoom = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QLabel>

/// Shows a drawing's preview scaled to its own width. It keeps the picture at
/// full size and always scales from that, so resizing loses nothing.
class CVyFileDialogPreview : public QLabel
{
    Q_OBJECT

public:
    explicit CVyFileDialogPreview(QWidget* parent);

    /// Shows \a image, which is not null, from now on.
    void setImage(const QImage& image);

    /// Room for a thumbnail as drawings carry them, whatever is shown: the pane
    /// neither jumps nor makes the dialog grow when another file is chosen.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showScaled(int width);

    QImage m_image;
};

// SPDX-License-Identifier: MIT
#include "VyFileNameLabel.h"

#include "VyTextSample.h"

#include <QEvent>
#include <QFileInfo>

namespace {

// "Multiple files", in any language, is no path, whatever characters it has.
QString nameOf(const QString& path)
{
    const QFileInfo file(path);
    return file.isAbsolute() && !file.fileName().isEmpty() ? file.fileName() : path;
}

// A tool tip is taken for rich text when it looks so; this one always is, as the
// plain text that it shows.
QString plainToolTip(const QString& text)
{
    return text.isEmpty() ? text : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

} // namespace

CVyFileNameLabel::CVyFileNameLabel(const QString& path, QWidget* parent)
    : QLabel(parent)
    , m_name(VyTextSample::singleLine(nameOf(path)))
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(m_name);
    setToolTip(plainToolTip(path));
    setText(m_name);
}

void CVyFileNameLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    showWhatFits();
}

void CVyFileNameLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        showWhatFits();
}

void CVyFileNameLabel::showWhatFits()
{
    setText(fontMetrics().elidedText(m_name, Qt::ElideMiddle, contentsRect().width()));
}

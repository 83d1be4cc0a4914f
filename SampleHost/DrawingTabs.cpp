// SPDX-License-Identifier: MIT
#include "DrawingTabs.h"

#include "MenuText.h"

#include <QDir>
#include <QFileInfo>

DrawingTabs::DrawingTabs(QWidget* parent)
    : QTabWidget(parent)
{
    setObjectName(QStringLiteral("drawings"));
    setAccessibleName(tr("Drawings"));
    setDocumentMode(true);
    setTabsClosable(true);
    setMovable(true);
    setElideMode(Qt::ElideMiddle);
    connect(this, &QTabWidget::currentChanged, this, &DrawingTabs::activate);
    connect(this, &QTabWidget::tabCloseRequested, this, &DrawingTabs::close);
}

// While the tabs go, others come to the front, of which nobody needs to hear.
DrawingTabs::~DrawingTabs()
{
    blockSignals(true);
}

DrawingView* DrawingTabs::current() const
{
    return at(currentIndex());
}

DrawingView* DrawingTabs::at(int index) const
{
    return qobject_cast<DrawingView*>(widget(index));
}

DrawingView* DrawingTabs::find(const QString& path) const
{
    const QFileInfo file(path);
    for (int index = 0; index < count(); ++index) {
        if (!at(index)->drawing().path.isEmpty() && QFileInfo(at(index)->drawing().path) == file)
            return at(index);
    }
    return nullptr;
}

DrawingView* DrawingTabs::add(const Drawing& drawing)
{
    auto* view = new DrawingView(drawing, this);
    const int index = addTab(view, QString());
    label(index);
    setCurrentIndex(index);
    view->setFocus();
    return view;
}

void DrawingTabs::replace(DrawingView* view, const Drawing& drawing)
{
    view->setDrawing(drawing);
    label(indexOf(view));
    activate();
}

void DrawingTabs::close(int index)
{
    QWidget* const view = widget(index);
    removeTab(index);
    delete view;
}

void DrawingTabs::step(int by)
{
    if (count() > 0)
        setCurrentIndex((currentIndex() + by + count()) % count());
}

void DrawingTabs::label(int index)
{
    const Drawing& drawing = at(index)->drawing();
    setTabText(index, MenuText::escaped(drawing.name));
    setTabToolTip(index, QDir::toNativeSeparators(drawing.path));
}

void DrawingTabs::activate()
{
    DrawingView* const view = current();
    VySetActiveDocument(view ? view->document() : nullptr);
    Q_EMIT activeChanged(view);
}

// SPDX-License-Identifier: MIT
#include "VyStandardIcons.h"

#include <QApplication>
#include <QCommonStyle>
#include <QEvent>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QWidget>

#include <new>

namespace {

// A standard icon that reads its smallest picture, which is what a style's
// standardPixmap() answers, and all of them only for one of another size. Only
// clone() copies it.
class StandardIcon : public QIconEngine // clazy:exclude=copyable-polymorphic
{
public:
    explicit StandardIcon(QStyle::StandardPixmap name)
        : m_name(name)
    {}

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return forSize(size).pixmap(size, mode, state);
    }

    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return forSize(size).actualSize(size, mode, state);
    }

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(place, pixmap(place.size(), mode, state));
    }

    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override
    {
        return all().availableSizes(mode, state);
    }

    QString iconName() const override { return all().name(); }

    void addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state) override
    {
        all().addPixmap(pixmap, mode, state);
        m_smallest = m_all;
    }

    void addFile(const QString& name, const QSize& size, QIcon::Mode mode,
                 QIcon::State state) override
    {
        all().addFile(name, size, mode, state);
        m_smallest = m_all;
    }

    QIconEngine* clone() const override { return new StandardIcon(*this); }

private:
    const QIcon& forSize(const QSize& size)
    {
        if (m_smallest.isNull())
            m_smallest = QApplication::style()->standardPixmap(m_name);
        return m_smallest.actualSize(size) == size ? m_smallest : all();
    }

    QIcon& all() const
    {
        if (m_all.isNull())
            m_all = QApplication::style()->standardIcon(m_name);
        return m_all;
    }

    const QStyle::StandardPixmap m_name;
    QIcon m_smallest;
    mutable QIcon m_all;
};

// Answers what a dialog asks its style while it is made: icons, and how wide
// margins are. Its children ask the application's, and nothing is painted yet.
class LentStyle : public QCommonStyle
{
public:
    QIcon standardIcon(StandardPixmap name, const QStyleOption* option,
                       const QWidget* widget) const override
    {
        // An exception that left the constructor of Qt's dialog would leave events for
        // the dialog that does not come to be.
        auto* const engine = option ? nullptr : new (std::nothrow) StandardIcon(name);
        return engine ? QIcon(engine) : QApplication::style()->standardIcon(name, option, widget);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override
    {
        return QApplication::style()->pixelMetric(metric, option, widget);
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override
    {
        return QApplication::style()->styleHint(hint, option, widget, answer);
    }
};

// Of others nobody knows that their pictures and their icons are the same. A style
// sheet's is none of them.
bool isQtsOwn(const QStyle& style)
{
    const char* const name = style.metaObject()->className();
    return qstrcmp(name, "QFusionStyle") == 0 || qstrcmp(name, "QWindowsStyle") == 0;
}

bool readsTooMuch(const QWidget* parent)
{
    const QStyle* style = QApplication::style();
    return isQtsOwn(*style) && (!parent || parent->style() == style) &&
           qApp->devicePixelRatio() <= 1;
}

} // namespace

CVyStandardIcons::CVyStandardIcons(QWidget* parent)
    : m_parent(parent)
{
    if (!readsTooMuch(parent))
        return;
    m_style = std::make_unique<LentStyle>();
    qApp->installEventFilter(this);
}

CVyStandardIcons::~CVyStandardIcons()
{
    if (m_widget)
        m_widget->setStyle(nullptr);
}

bool CVyStandardIcons::eventFilter(QObject* receiver, QEvent* event)
{
    if (event->type() != QEvent::Create || !receiver->isWidgetType())
        return false;
    qApp->removeEventFilter(this);
    m_widget = static_cast<QWidget*>(receiver);
    m_widget->setStyle(m_style.get());
    return false;
}

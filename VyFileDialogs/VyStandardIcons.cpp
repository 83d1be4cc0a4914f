// SPDX-License-Identifier: MIT
#include "VyStandardIcons.h"

#include <QApplication>
#include <QCommonStyle>
#include <QEvent>
#include <QIcon>
#include <QVariantMap>
#include <QWidget>

namespace {

// A list of types that Qt knows: it may outlive this library, which a host may
// unload.
constexpr char keptIcons[] = "VyStandardIcons";

// What the icons of Qt's own styles depend on.
QString look()
{
    return QStringList{QString::fromLatin1(QApplication::style()->metaObject()->className()),
                       QIcon::themeName(), QIcon::fallbackThemeName(),
                       QString::number(QGuiApplication::layoutDirection()),
                       QString::number(qApp->devicePixelRatio())}
        .join(QLatin1Char('\n'));
}

// The icons read so far, by number, and their look under an empty key.
QVariantMap readIcons()
{
    const QVariantMap icons = qApp->property(keptIcons).toMap();
    const QString now = look();
    if (icons.value(QString()).toString() == now)
        return icons;
    return {{QString(), now}};
}

// Answers what a dialog asks its style while it is made: icons, and how wide
// margins are. Its children ask the application's, and nothing is painted yet.
class LentStyle : public QCommonStyle
{
public:
    LentStyle()
        : m_icons(readIcons())
    {}

    ~LentStyle() override
    {
        if (m_hasNew)
            qApp->setProperty(keptIcons, m_icons);
    }

    QIcon standardIcon(StandardPixmap name, const QStyleOption* option,
                       const QWidget* widget) const override
    {
        if (option)
            return QApplication::style()->standardIcon(name, option, widget);
        QVariant& icon = m_icons[QString::number(name)];
        if (!icon.isValid()) {
            icon = QApplication::style()->standardIcon(name, option, widget);
            m_hasNew = true;
        }
        return icon.value<QIcon>();
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

private:
    mutable QVariantMap m_icons;
    mutable bool m_hasNew = false;
};

// A style sheet's is none of them.
bool isQtsOwn(const QStyle& style)
{
    const char* const name = style.metaObject()->className();
    return qstrcmp(name, "QFusionStyle") == 0 || qstrcmp(name, "QWindowsStyle") == 0;
}

} // namespace

CVyStandardIcons::CVyStandardIcons(QWidget* parent)
    : m_parent(parent)
{
    const QStyle* style = QApplication::style();
    if (!isQtsOwn(*style) || (parent && parent->style() != style))
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

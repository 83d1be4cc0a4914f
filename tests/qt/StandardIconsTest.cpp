// SPDX-License-Identifier: MIT
// The dialog's icons, of which no more is read than is shown, against those of a
// bare one.
#include "HostRequest.h"
#include "VyStandardIcons.h"

#include <QApplication>
#include <QIcon>
#include <QLayout>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QToolButton>
#include <QtTest>

#include <memory>

namespace {

const QStringList buttonNames{QStringLiteral("backButton"),     QStringLiteral("forwardButton"),
                              QStringLiteral("toParentButton"), QStringLiteral("newFolderButton"),
                              QStringLiteral("listModeButton"), QStringLiteral("detailModeButton")};

QList<QIcon> iconsOf(const QFileDialog& dialog)
{
    QList<QIcon> icons;
    for (const QString& name : buttonNames)
        icons.append(dialog.findChild<QToolButton*>(name)->icon());
    return icons;
}

QImage painted(const QIcon& icon, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, image.rect());
    return image;
}

// Every picture of the icons, and how they are painted where they do not fit.
QList<QImage> pictures(const QList<QIcon>& icons)
{
    QList<QImage> all;
    for (const QIcon& icon : icons) {
        for (const int size : {8, 16, 20, 200})
            all.append(painted(icon, size));
        for (const QIcon::State state : {QIcon::Off, QIcon::On}) {
            for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Selected}) {
                for (const QSize size : icon.availableSizes(mode, state))
                    all.append(icon.pixmap(size, mode, state).toImage());
            }
        }
    }
    return all;
}

// What a layout of its parent's style has asked of it.
QList<int> distances(const QFileDialog& dialog)
{
    const QToolButton* back = dialog.findChild<QToolButton*>(buttonNames.first());
    QList<int> all{back->iconSize().width(), back->sizeHint().width(), back->sizeHint().height()};
    QList<QLayout*> layouts = dialog.findChildren<QLayout*>();
    for (const QLayout* layout : qAsConst(layouts)) {
        if (layout->objectName() == QLatin1String("gridLayout"))
            all.append(layout->spacing());
    }
    return all;
}

struct Look
{
    QList<QIcon> icons;
    QList<QImage> shown;
    QList<int> distances;
    bool isApplicationsStyle = false;
};

Look lookOf(const QFileDialog& dialog)
{
    return {iconsOf(dialog), pictures(iconsOf(dialog)), distances(dialog),
            dialog.style() == QApplication::style() && !dialog.testAttribute(Qt::WA_SetStyle)};
}

// As the dialog of a request looks.
Look ask(unsigned long long parent = 0)
{
    Look look;
    HostRequest request;
    request.start = QDir::tempPath();
    request.parent = parent;
    request.getFileName({onFileDialog([&look](QFileDialog& dialog) {
        look = lookOf(dialog);
        dialog.reject();
    })});
    return look;
}

Look bare(QWidget* parent = nullptr)
{
    QFileDialog dialog(parent, QString(), QDir::tempPath());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    return lookOf(dialog);
}

void compareWithBare(const Look& look)
{
    const Look expected = bare();
    QVERIFY(expected.shown.size() >= buttonNames.size());
    QCOMPARE(look.shown, expected.shown);
    QCOMPARE(look.distances, expected.distances);
    QVERIFY(look.isApplicationsStyle);
}

// A style of a host's own, whose icons are as it likes at the moment.
class HostStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    QIcon standardIcon(StandardPixmap, const QStyleOption*, const QWidget*) const override
    {
        QPixmap square(16, 16);
        square.fill(colour);
        return QIcon(square);
    }

    QColor colour = Qt::red;
};

// Qt's own, which notes what a dialog asks it for its buttons.
class CountingStyle : public QProxyStyle
{
public:
    CountingStyle()
        : QProxyStyle(QStringLiteral("fusion"))
    {}

    const QMetaObject* metaObject() const override { return baseStyle()->metaObject(); }

    QIcon standardIcon(StandardPixmap name, const QStyleOption* option,
                       const QWidget* widget) const override
    {
        if (isOfButton(name))
            readWhole.append(name);
        return QProxyStyle::standardIcon(name, option, widget);
    }

    QPixmap standardPixmap(StandardPixmap name, const QStyleOption* option,
                           const QWidget* widget) const override
    {
        if (isOfButton(name))
            read.append(name);
        return QProxyStyle::standardPixmap(name, option, widget);
    }

    mutable QList<StandardPixmap> read;
    mutable QList<StandardPixmap> readWhole;

private:
    static bool isOfButton(StandardPixmap name)
    {
        return name == SP_ArrowBack || name == SP_ArrowForward || name == SP_FileDialogToParent ||
               name == SP_FileDialogNewFolder || name == SP_FileDialogListView ||
               name == SP_FileDialogDetailedView;
    }
};

} // namespace

class StandardIconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Without it a screen's resolution is nothing to an icon.
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); }
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }
    void cleanup();

    void areThoseOfABareDialog_data();
    void areThoseOfABareDialog();
    void leaveTheSize_data();
    void leaveTheSize();
    void onlyTheSmallestAreRead();
    void canBeAddedTo();
    void followTheDirection();
    void followTheTheme();
    void followAHostsStyle();
    void followAStyleSheet();
    void followTheStyleSheetOfTheParent();
    void areLentToTheFirstWidgetAlone();
    void survivesAWidgetThatGoes();
    void areTakenBackFromNobody();
};

void StandardIconsTest::cleanup()
{
    qApp->setStyleSheet(QString());
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QIcon::setThemeName(QString());
    QApplication::setStyle(QStringLiteral("fusion"));
}

void StandardIconsTest::areThoseOfABareDialog_data()
{
    QTest::addColumn<QString>("style");
    for (const char* style : {"fusion", "windows"})
        QTest::newRow(style) << QString::fromLatin1(style);
}

void StandardIconsTest::areThoseOfABareDialog()
{
    QFETCH(QString, style);
    QApplication::setStyle(style);
    compareWithBare(ask());
    compareWithBare(ask());
}

void StandardIconsTest::leaveTheSize_data()
{
    areThoseOfABareDialog_data();
}

// Which a dialog chooses while it is made.
void StandardIconsTest::leaveTheSize()
{
    QFETCH(QString, style);
    QApplication::setStyle(style);
    const QFileDialog expected(nullptr, QString(), QDir::tempPath());
    const QFileDialog dialog(CVyStandardIcons(nullptr).parentOfDialog(), QString(),
                             QDir::tempPath());
    QCOMPARE(dialog.size(), expected.size());
    QCOMPARE(dialog.sizeHint(), expected.sizeHint());
}

// Of a dialog that a user sees.
void StandardIconsTest::onlyTheSmallestAreRead()
{
    auto* style = new CountingStyle;
    QApplication::setStyle(style);
    HostRequest request;
    request.start = QDir::tempPath();
    request.getFileName({onFileDialog([style](QFileDialog& dialog) {
        dialog.grab();
        QCOMPARE(style->read.size(), buttonNames.size());
        QCOMPARE(style->readWhole, QList<QStyle::StandardPixmap>());
        pictures(iconsOf(dialog));
        QCOMPARE(style->readWhole, style->read);
        dialog.reject();
    })});
}

void StandardIconsTest::canBeAddedTo()
{
    HostRequest request;
    request.start = QDir::tempPath();
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        const QIcon before = iconsOf(dialog).first();
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("own.png"));
        QPixmap own(before.actualSize(QSize(16, 16)));
        own.fill(Qt::cyan);
        QVERIFY(own.save(file));

        QIcon icon = before;
        icon.addPixmap(own, QIcon::Selected);
        QCOMPARE(icon.pixmap(16, QIcon::Selected).toImage(), own.toImage());
        QCOMPARE(icon.pixmap(16).toImage(), before.pixmap(16).toImage());
        QVERIFY(before.pixmap(16, QIcon::Selected).toImage() != own.toImage());
        icon = before;
        icon.addFile(file, QSize(), QIcon::Selected);
        QCOMPARE(icon.pixmap(16, QIcon::Selected).toImage(), own.toImage());
        dialog.reject();
    })});
}

void StandardIconsTest::followTheDirection()
{
    const QList<QImage> before = ask().shown;
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const Look look = ask();
    QVERIFY(look.shown != before);
    compareWithBare(look);
}

void StandardIconsTest::followTheTheme()
{
    const QTemporaryDir folder;
    const QString theme = folder.path() + QStringLiteral("/Host");
    QVERIFY(QDir().mkpath(theme + QStringLiteral("/16")));
    QFile index(theme + QStringLiteral("/index.theme"));
    QVERIFY(index.open(QIODevice::WriteOnly));
    index.write("[Icon Theme]\nName=Host\nDirectories=16\n[16]\nSize=16\nType=Fixed\n");
    index.close();
    QPixmap square(16, 16);
    square.fill(Qt::green);
    QVERIFY(square.save(theme + QStringLiteral("/16/go-previous.png")));

    const QList<QImage> before = ask().shown;
    const QStringList places = QIcon::themeSearchPaths();
    QIcon::setThemeSearchPaths({folder.path()});
    QIcon::setThemeName(QStringLiteral("Host"));
    const Look look = ask();
    QCOMPARE(look.shown, bare().shown);
    QIcon::setThemeSearchPaths(places);
    QVERIFY(look.shown != before);
}

void StandardIconsTest::followAHostsStyle()
{
    auto* style = new HostStyle(QStyleFactory::create(QStringLiteral("fusion")));
    QApplication::setStyle(style);
    const Look red = ask();
    QCOMPARE(red.shown.constFirst().pixelColor(4, 4), QColor(Qt::red));
    style->colour = Qt::blue;
    const Look blue = ask();
    QCOMPARE(blue.shown.constFirst().pixelColor(4, 4), QColor(Qt::blue));
    compareWithBare(blue);
}

void StandardIconsTest::followAStyleSheet()
{
    const QList<QImage> before = ask().shown;
    qApp->setStyleSheet(
        QStringLiteral("QFileDialog { backward-icon: url(:/qt-project.org/styles/commonstyle/"
                       "images/closedock-16.png); }"));
    const Look look = ask();
    QVERIFY(look.shown != before);
    QCOMPARE(look.shown, bare().shown);
    qApp->setStyleSheet(QString());
    compareWithBare(ask());
}

void StandardIconsTest::followTheStyleSheetOfTheParent()
{
    const QList<QImage> before = ask().shown;
    QWidget parent;
    parent.setStyleSheet(QStringLiteral("QFileDialog { backward-icon: url(:/qt-project.org/styles/"
                                        "commonstyle/images/closedock-16.png); }"));
    const Look look = ask(parent.winId());
    QVERIFY(look.shown != before);
    QCOMPARE(look.shown, bare(&parent).shown);
    const CVyStandardIcons lender(&parent);
    const QWidget dialog(&parent, Qt::Dialog);
    QVERIFY(!dialog.testAttribute(Qt::WA_SetStyle));
}

void StandardIconsTest::areLentToTheFirstWidgetAlone()
{
    const QStyle* const style = QApplication::style();
    CVyStandardIcons lender(nullptr);
    const QWidget first;
    const QWidget second(nullptr);
    QVERIFY(first.style() != style);
    QCOMPARE(second.style(), style);
}

// As when its constructor throws.
void StandardIconsTest::survivesAWidgetThatGoes()
{
    {
        CVyStandardIcons lender(nullptr);
        const auto widget = std::make_unique<QWidget>();
        QVERIFY(widget->testAttribute(Qt::WA_SetStyle));
    }
    const QWidget later;
    QVERIFY(!later.testAttribute(Qt::WA_SetStyle));
}

void StandardIconsTest::areTakenBackFromNobody()
{
    {
        const CVyStandardIcons lender(nullptr);
    }
    const QWidget later;
    QVERIFY(!later.testAttribute(Qt::WA_SetStyle));
}

QTEST_MAIN(StandardIconsTest)
#include "StandardIconsTest.moc"

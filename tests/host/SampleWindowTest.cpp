// SPDX-License-Identifier: MIT
// The sample's window around the requests: what a user sees of the lock, the cursor,
// the tool window, the active document, the style and the recent files.
#include "DrawingTabs.h"
#include "HostPlatform.h"
#include "HostRequest.h"
#include "SampleTest.h"
#include "VyBookmarks.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QTabBar>
#include <QtTest>

class SampleWindowTest : public SampleTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesEverything();
    void hasAMnemonicAtEachEntry();
    void activeDocumentFollowsTheTab();
    void listsTheDrawings();
    void showsNamesAsTheyAre();
    void locksTheWindows();
    void replacesTheCursor();
    void zooms();
    void showsEachPixelWhole();
    void showsLargePicturesSmaller();
    void tellsThePlace();
    void hidesTheTools();
    void hidesTheAnswer();
    void stylesExcludeEachOther();
    void tellsWhyThereIsNoPanel();
    void listsRecentFiles();
    void findsARenamedFile();
    void asksAboutAFileThatIsGone();

private:
    QWidget* tools() const { return m_window->findChild<QWidget*>("toolWindow"); }
    QPushButton* tool(const char* name) const { return tools()->findChild<QPushButton*>(name); }
    void click(QPushButton* button)
    {
        QTest::mouseClick(tools()->windowHandle(), Qt::LeftButton, {},
                          button->mapTo(tools(), button->rect().center()));
    }
};

void SampleWindowTest::namesEverything()
{
    open(plan);
    for (const QWidget* each : m_window->findChildren<QWidget*>()) {
        // Of Qt's own parts some have no names.
        const QByteArray type = each->metaObject()->className();
        if (!qobject_cast<QTabBar*>(each->parentWidget()) &&
            (!type.startsWith('Q') || type == "QLabel" || type == "QPushButton"))
            QVERIFY2(!each->objectName().isEmpty(), type.constData());
    }
    QCOMPARE(drawings().current()->accessibleName(), plan);
    QCOMPARE(m_window->findChild<QLabel*>("answerPaths")->accessibleName(),
             "Paths: " + m_folder->filePath(plan));
}

// Each is another one in its menu.
void SampleWindowTest::hasAMnemonicAtEachEntry()
{
    open(plan);
    QList<QMenu*> menus = m_window->findChildren<QMenu*>();
    QVERIFY(menus.size() >= 4);
    QList<QList<QAction*>> lists{m_window->menuBar()->actions()};
    for (QMenu* each : menus) {
        Q_EMIT each->aboutToShow();
        lists.append(each->actions());
    }
    for (const QList<QAction*>& list : qAsConst(lists)) {
        QStringList mnemonics;
        for (const QAction* each : list) {
            if (each->isSeparator())
                continue;
            const QString keys = QKeySequence::mnemonic(each->text()).toString();
            QVERIFY2(!keys.isEmpty() && !mnemonics.contains(keys), qPrintable(each->text()));
            mnemonics.append(keys);
        }
    }
}

void SampleWindowTest::activeDocumentFollowsTheTab()
{
    QVERIFY(!ACTIVE_DOCUMENT());
    QVERIFY(!entry("saveAs")->isEnabled() && !entry("close")->isEnabled());
    open(plan);
    open(bare);
    QCOMPARE(ACTIVE_DOCUMENT()->GetViewWidget(), drawings().at(1));
    QVERIFY(m_window->focusWidget() == drawings().at(1));
    choose("nextDrawing");
    QCOMPARE(ACTIVE_DOCUMENT()->GetViewWidget(), drawings().at(0));
    QCOMPARE(m_window->windowTitle(), plan + " - VyFileDialogs Sample");
    QVERIFY(m_window->focusWidget() == drawings().at(0));
    choose("previousDrawing");
    QCOMPARE(ACTIVE_DOCUMENT()->GetViewWidget(), drawings().at(1));
    choose("close");
    QCOMPARE(tabs(), QStringList(plan));
    QCOMPARE(ACTIVE_DOCUMENT()->GetViewWidget(), drawings().at(0));
    choose("close");
    QVERIFY(!ACTIVE_DOCUMENT());
    QVERIFY(!entry("saveAs")->isEnabled() && !entry("nextDrawing")->isEnabled());
    QCOMPARE(m_window->windowTitle(), QStringLiteral("VyFileDialogs Sample"));
    QVERIFY(m_window->findChild<QLabel*>("hint")->isVisible());
}

void SampleWindowTest::listsTheDrawings()
{
    open(plan);
    open(bare);
    auto* menu = m_window->findChild<QMenu*>("windowMenu");
    Q_EMIT menu->aboutToShow();
    QCOMPARE(entry("drawing1")->text(), "&1 " + plan);
    QVERIFY(!entry("drawing1")->isChecked() && entry("drawing2")->isChecked());
    choose("drawing1");
    QCOMPARE(drawings().currentIndex(), 0);
    choose("close");
    Q_EMIT menu->aboutToShow();
    QCOMPARE(entry("drawing1")->text(), "&1 " + bare);
    QVERIFY(!m_window->findChild<QAction*>("drawing2"));
}

void SampleWindowTest::showsNamesAsTheyAre()
{
    m_window->openFiles({m_folder->addFile("R&D[*].dwg")});
    QCOMPARE(tabs(), QStringList("R&&D[*].dwg"));
    QCOMPARE(m_window->windowTitle(), QStringLiteral("R&D[*][*].dwg - VyFileDialogs Sample"));
    Q_EMIT m_window->findChild<QMenu*>("windowMenu")->aboutToShow();
    QCOMPARE(entry("drawing1")->text(), QStringLiteral("&1 R&&D[*].dwg"));
}

void SampleWindowTest::locksTheWindows()
{
    open(plan);
    QTRY_VERIFY(tools()->isVisible());
    const int zoom = drawings().current()->zoom();
    QVERIFY(zoom > 1);
    choose("open", {onFileDialog([&](QFileDialog& dialog) {
               click(tool("zoomOut"));
               QTest::keyClick(m_window->windowHandle(), Qt::Key_W, Qt::ControlModifier);
               QCOMPARE(drawings().current()->zoom(), zoom);
               QCOMPARE(tabs(), QStringList(plan));
               dialog.reject();
           })});
    click(tool("zoomOut"));
    QCOMPARE(drawings().current()->zoom(), zoom - 1);
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTest::keyClick(m_window->windowHandle(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(tabs(), QStringList());
}

void SampleWindowTest::replacesTheCursor()
{
    open(plan);
    const QWidget* view = drawings().current();
    QCOMPARE(view->cursor().shape(), Qt::CrossCursor);
    choose("open", {onFileDialog([&](QFileDialog& dialog) {
               QCOMPARE(view->cursor().shape(), Qt::ArrowCursor);
               dialog.reject();
           })});
    QCOMPARE(view->cursor().shape(), Qt::CrossCursor);
}

void SampleWindowTest::zooms()
{
    QVERIFY(!tool("zoomIn")->isEnabled() && !tool("fit")->isEnabled());
    open(bare);
    QVERIFY(!tool("zoomOut")->isEnabled() && !tool("fit")->isEnabled());
    open(plan);
    const DrawingView* view = drawings().current();
    const int largest = view->largestZoom();
    QVERIFY(largest > 1);
    QCOMPARE(view->zoom(), largest);
    QVERIFY(!tool("zoomIn")->isEnabled() && tool("fit")->isEnabled());
    while (tool("zoomOut")->isEnabled())
        tool("zoomOut")->click();
    QCOMPARE(view->zoom(), 1);
    tool("zoomIn")->click();
    QCOMPARE(view->zoom(), 2);
    tool("fit")->click();
    QCOMPARE(view->zoom(), largest);
    m_window->resize(m_window->size() * 2);
    QTRY_VERIFY(view->zoom() > largest);
}

// As a board of black and white has no grey when it is enlarged.
void SampleWindowTest::showsEachPixelWhole()
{
    QImage board(21, 21, QImage::Format_RGB32);
    board.fill(Qt::white);
    for (int i = 0; i < 21 * 21; i += 2)
        board.setPixel(i % 21, i / 21, qRgb(0, 0, 0));
    board.save(m_folder->filePath("board.png"));
    m_window->openFiles({m_folder->filePath("board.png")});
    DrawingView* view = drawings().current();
    QVERIFY(view->zoom() > 4);
    const QImage shown = view->grab().toImage();
    const QPoint middle = shown.rect().center();
    const int reach = 5 * view->zoom();
    int black = 0;
    for (int y = middle.y() - reach; y < middle.y() + reach / 2; ++y) {
        for (int x = middle.x() - reach; x < middle.x() + reach; ++x) {
            const QRgb pixel = shown.pixel(x, y) & 0xffffff;
            QVERIFY(pixel == 0 || pixel == 0xffffff);
            black += pixel == 0;
        }
    }
    const int looked = 3 * reach * reach;
    QVERIFY(qAbs(black - looked / 2) < looked / 10);
}

void SampleWindowTest::showsLargePicturesSmaller()
{
    m_window->openFiles({m_folder->addPicture("large.png", {4000, 10}, Qt::red)});
    QCOMPARE(drawings().current()->zoom(), 0);
    QVERIFY(!tool("zoomIn")->isEnabled() && !tool("zoomOut")->isEnabled());
    const QImage shown = drawings().current()->grab().toImage();
    int red = 0;
    for (int x = 0; x < shown.width(); ++x) {
        for (int y = 0; y < shown.height(); ++y) {
            if (shown.pixelColor(x, y) == QColor(Qt::red)) {
                ++red;
                break;
            }
        }
    }
    QVERIFY(red > shown.width() * 8 / 10 && red < shown.width());
}

void SampleWindowTest::tellsThePlace()
{
    open(plan);
    DrawingView* view = drawings().current();
    const auto* place = m_window->findChild<QLabel*>("place");
    const auto pointAt = [&](const QPoint& point) {
        QTest::mouseMove(m_window->windowHandle(), view->mapTo(m_window.get(), point));
    };
    pointAt(view->rect().center());
    QTRY_VERIFY(qAbs(place->text().section(',', 0, 0).toInt() - 90) <= 1);
    QTRY_VERIFY(qAbs(place->text().section(',', 1).toInt() - 65) <= 10); // above the caption
    pointAt({2, 2});
    QTRY_COMPARE(place->text(), QString());
    choose("close");
    QCOMPARE(place->text(), QString());
}

void SampleWindowTest::hidesTheTools()
{
    QTRY_VERIFY(tools()->isVisible());
    tools()->close();
    QVERIFY(!entry("showTools")->isChecked());
    choose("showTools");
    QVERIFY(tools()->isVisible());
    choose("showTools");
    QVERIFY(!tools()->isVisible());
}

void SampleWindowTest::hidesTheAnswer()
{
    auto* panel = m_window->findChild<QWidget*>("answerPanel");
    QVERIFY(panel->isVisible());
    choose("showAnswer");
    QVERIFY(!panel->isVisible());
}

void SampleWindowTest::stylesExcludeEachOther()
{
    QVERIFY(entry("styleQt")->isChecked());
    QCOMPARE(entry("styleNative")->isEnabled(), bool(VY_HAS_NATIVE));
    if (!VY_HAS_NATIVE) {
        QCOMPARE(entry("styleNative")->toolTip(),
                 QStringLiteral("This build has no native panels"));
        QCOMPARE(
            SampleWindow(CVyFileDialog::StyleNative).findChild<QAction*>("styleQt")->isChecked(),
            true);
        return;
    }
    choose("styleNative");
    QVERIFY(!entry("styleQt")->isChecked());
    choose("styleQt");
    QVERIFY(!entry("styleNative")->isChecked());
}

// The Qt dialog takes its place; the panel can be chosen again.
void SampleWindowTest::tellsWhyThereIsNoPanel()
{
    if (!VY_HAS_NATIVE || HostPlatform::defaultStyle() == CVyFileDialog::StyleNative)
        QSKIP("there is a panel, or none in this build");
    const QString reason("no native panel can be shown: no X display answers; see DISPLAY");
    choose("styleNative");
    QTest::ignoreMessage(QtWarningMsg, qPrintable("VyFileDialogs: " + reason));
    QString text;
    choose("open", {reading(text)});
    QCOMPARE(text,
             "The system's panel cannot be shown.\n" + reason + "\n\nThe Qt dialog is chosen now.");
    QVERIFY(entry("styleQt")->isChecked() && entry("styleNative")->isEnabled());
    QCOMPARE(entry("styleNative")->toolTip(), "Could not be shown: " + reason);
    QCOMPARE(answer("answerStyle"), QStringLiteral("native"));
    QCOMPARE(answer("answerStatus"), QStringLiteral("failed (-5001)"));
    open(plan);
    QCOMPARE(tabs(), QStringList(plan));
}

void SampleWindowTest::listsRecentFiles()
{
    QCOMPARE(recent(), QStringList());
    QVERIFY(!entry("clearRecent")->isEnabled());
    open(plan);
    open(bare);
    open(plan);
    QCOMPARE(recent(), (QStringList{m_folder->filePath(plan), m_folder->filePath(bare)}));
    choose("close");
    choose("close");
    recent();
    choose("recentFile2");
    QCOMPARE(tabs(), QStringList(bare));
    QCOMPARE(recent(), (QStringList{m_folder->filePath(bare), m_folder->filePath(plan)}));

    // Another run, or a panel, has noted more than the menu shows.
    for (int i = 0; i < 30; ++i)
        VyAddBookmark(QStringLiteral("/plans/%1.dwg").arg(i));
    QCOMPARE(recent().size(), 15);
    QCOMPARE(recent().constFirst(), QStringLiteral("/plans/29.dwg"));
    choose("clearRecent");
    QCOMPARE(recent(), QStringList());
}

void SampleWindowTest::findsARenamedFile()
{
    open(bare);
    choose("close");
    QVERIFY(QFile::rename(m_folder->filePath(bare), m_folder->filePath("renamed.dwg")));
    recent();
    choose("recentFile1");
    QCOMPARE(tabs(), QStringList("renamed.dwg"));
    QCOMPARE(recent(), QStringList(m_folder->filePath("renamed.dwg")));
}

void SampleWindowTest::asksAboutAFileThatIsGone()
{
    open(plan);
    open(bare);
    choose("close");
    const QString path = m_folder->filePath(bare);
    QVERIFY(QFile::remove(path));
    QCOMPARE(recent(), (QStringList{path, m_folder->filePath(plan)}));
    choose("recentFile1", {[](QDialog& dialog) { dialog.reject(); }});
    QCOMPARE(recent(), (QStringList{path, m_folder->filePath(plan)}));
    QString text;
    choose("recentFile1", {reading(text, "removeRecent")});
    QCOMPARE(text, path + " is not there any more.\n"
                          "It can be removed from the list of recent files.");
    QCOMPARE(recent(), QStringList(m_folder->filePath(plan)));
    QCOMPARE(tabs(), QStringList(plan));
}

QTEST_MAIN(SampleWindowTest)
#include "SampleWindowTest.moc"

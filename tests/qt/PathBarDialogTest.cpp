// SPDX-License-Identifier: MIT
// The row of folder buttons in the live dialog: what it shows after every kind
// of navigation, what it does with little room, and that it stays out of the
// keyboard's way.
#include "DrawingFolder.h"
#include "FolderButtons.h"
#include "HostRequest.h"
#include "VyPathBar.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QToolButton>
#include <QtTest>

namespace {

// The row's names with the bold one in brackets, as in "/ tmp [work]".
QString row(QFileDialog& dialog)
{
    QStringList names;
    for (const CVyDirPushButton* button : buttons(dialog)) {
        const bool bold = button->font().weight() == QFont::Bold;
        names.append(bold ? '[' + button->fullName() + ']' : button->fullName());
    }
    return names.join(' ');
}

// The row for a path below the root whose last folder is bold, with the names
// of deeper folders that have stayed.
QString rowFor(const QString& path, const QString& deeper = QString())
{
    QStringList names = VyPathBar::parts(path);
    names.last() = '[' + names.last() + ']';
    if (!deeper.isEmpty())
        names.append(deeper);
    return names.join(' ');
}

CVyDirPushButton* buttonNamed(QFileDialog& dialog, const QString& name)
{
    for (CVyDirPushButton* button : buttons(dialog)) {
        if (button->fullName() == name)
            return button;
    }
    return nullptr;
}

void click(QFileDialog& dialog, const char* objectName)
{
    QTest::mouseClick(dialog.findChild<QToolButton*>(QLatin1String(objectName)), Qt::LeftButton);
}

void withDialogAt(const QString& folder, std::function<void(QFileDialog&)> work)
{
    HostRequest request;
    request.start = folder;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        work(dialog);
        dialog.reject();
    })});
}

} // namespace

class PathBarDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void showsTheStartFolder();
    void clickKeepsDeeperFolders();
    void anotherBranchReplacesThem();
    void followsEveryNavigation_data();
    void followsEveryNavigation();
    void followsTheHistory();
    void rootButtonShowsTheRoot();
    void parentOfTheRoot();
    void goneFolderIsNotPretended();
    void sameFolderChangesNoButton();
    void layoutRunsOnceForAFolder();
    void wholeNamesWhereThereIsRoom();
    void boldNameIsMeasuredAsSuch();
    void elidedWithToolTip();
    void widensAgain();
    void clicksInANarrowRowKeepTheNames();
    void followsTheListedSignals();
    void firstSizeMakesRoom();
    void widthsStayInBounds();
    void ampersandIsNoMnemonic();
    void richTextNameStaysPlain();
    void deepFolderFitsTheScreen();
    void returnMeansTheAcceptButton();
    void keyboardReachesTheRow();
    void mirroredRow();
};

void PathBarDialogTest::showsTheStartFolder()
{
    DrawingFolder base;
    withDialogAt(base.addFolder("ann/Plans"), [&](QFileDialog& dialog) {
        QCOMPARE(row(dialog), rowFor(base.filePath("ann/Plans")));
        for (const CVyDirPushButton* button : buttons(dialog)) {
            QCOMPARE(button->sizePolicy(),
                     QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred));
            QCOMPARE(button->minimumWidth(), 30);
            QCOMPARE(button->objectName(), QStringLiteral("folderButton"));
            QCOMPARE(button->accessibleName(), button->fullName());
        }
        const auto* layout = dialog.findChild<QHBoxLayout*>(QStringLiteral("pathBar"));
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->spacing(), 0);
        // The dialog's own margins are around the row and what is below it.
        const auto* contents = dialog.findChild<QWidget*>(QStringLiteral("dialogContents"));
        QCOMPARE(contents->layout()->contentsMargins(), QMargins());
        QCOMPARE(layout->alignment(), Qt::AlignLeft);
    });
}

void PathBarDialogTest::clickKeepsDeeperFolders()
{
    DrawingFolder base;
    withDialogAt(base.addFolder("ann/Plans/old"), [&](QFileDialog& dialog) {
        const auto before = buttons(dialog);
        QTest::mouseClick(buttonNamed(dialog, "ann"), Qt::LeftButton);
        QCOMPARE(dialog.directory().absolutePath(), base.filePath("ann"));
        QCOMPARE(row(dialog), rowFor(base.filePath("ann"), "Plans old"));
        QCOMPARE(buttons(dialog), before);
        QTest::mouseClick(buttonNamed(dialog, "old"), Qt::LeftButton);
        QCOMPARE(dialog.directory().absolutePath(), base.filePath("ann/Plans/old"));
        QCOMPARE(row(dialog), rowFor(base.filePath("ann/Plans/old")));
        QCOMPARE(buttons(dialog), before);
    });
}

void PathBarDialogTest::anotherBranchReplacesThem()
{
    DrawingFolder base;
    base.addFolder("bob");
    withDialogAt(base.addFolder("ann/Plans"), [&](QFileDialog& dialog) {
        dialog.setDirectory(base.path());
        QCOMPARE(row(dialog), rowFor(base.path(), "ann Plans"));
        dialog.setDirectory(base.filePath("bob"));
        QCOMPARE(row(dialog), rowFor(base.filePath("bob")));
    });
}

void PathBarDialogTest::followsEveryNavigation_data()
{
    using Navigation = std::function<void(QFileDialog&, const QString&)>;
    QTest::addColumn<Navigation>("go");
    QTest::newRow("typed and entered") << Navigation(
        [](QFileDialog& dialog, const QString& folder) { typeAndAccept(dialog, folder); });
    QTest::newRow("name typed and entered")
        << Navigation([](QFileDialog& dialog, const QString& folder) {
               waitForFile(dialog, QDir(folder).dirName());
               typeAndAccept(dialog, QDir(folder).dirName());
           });
    QTest::newRow("entered in the list")
        << Navigation([](QFileDialog& dialog, const QString& folder) {
               QVERIFY(clickFile(dialog, QDir(folder).dirName()));
               QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
           });
    QTest::newRow("set by code") << Navigation(
        [](QFileDialog& dialog, const QString& folder) { dialog.setDirectory(folder); });
    QTest::newRow("set with a trailing separator") << Navigation(
        [](QFileDialog& dialog, const QString& folder) { dialog.setDirectory(folder + '/'); });
    QTest::newRow("file selected by code")
        << Navigation([](QFileDialog& dialog, const QString& folder) {
               dialog.selectFile(folder + QStringLiteral("/plan.dwg"));
           });
    QTest::newRow("place of the sidebar") << Navigation(
        [](QFileDialog& dialog, const QString& folder) {
            dialog.setSidebarUrls({QUrl::fromLocalFile(folder)});
            auto* sidebar = dialog.findChild<QListView*>(QStringLiteral("sidebar"));
            const QRect first = sidebar->visualRect(sidebar->model()->index(0, 0));
            QTest::mouseClick(sidebar->viewport(), Qt::LeftButton, Qt::NoModifier, first.center());
        });
}

Q_DECLARE_METATYPE(std::function<void(QFileDialog&, const QString&)>)

void PathBarDialogTest::followsEveryNavigation()
{
    using Navigation = std::function<void(QFileDialog&, const QString&)>;
    QFETCH(Navigation, go);
    DrawingFolder base;
    const QString inner = base.addFolder("inner");
    withDialogAt(base.path(), [&](QFileDialog& dialog) {
        go(dialog, inner);
        QCOMPARE(dialog.directory().absolutePath(), inner);
        QCOMPARE(row(dialog), rowFor(inner));
        QVERIFY(dialog.isVisible());
    });
}

void PathBarDialogTest::followsTheHistory()
{
    DrawingFolder base;
    const QString inner = base.addFolder("inner");
    const QString other = base.addFolder("other");
    withDialogAt(base.path(), [&](QFileDialog& dialog) {
        dialog.setDirectory(inner);
        dialog.setDirectory(other);
        click(dialog, "backButton");
        QCOMPARE(row(dialog), rowFor(inner));
        click(dialog, "forwardButton");
        QCOMPARE(row(dialog), rowFor(other));
        click(dialog, "toParentButton");
        QCOMPARE(row(dialog), rowFor(base.path(), "other"));
        QTest::keyClick(&dialog, Qt::Key_Left, Qt::AltModifier);
        QTRY_COMPARE(row(dialog), rowFor(other)); // a shortcut clicks after a moment
    });
}

void PathBarDialogTest::rootButtonShowsTheRoot()
{
    DrawingFolder base;
    withDialogAt(base.path(), [&](QFileDialog& dialog) {
        const QString deeper = base.path().mid(1).replace('/', ' ');
        QTest::mouseClick(buttonNamed(dialog, "/"), Qt::LeftButton);
        QCOMPARE(row(dialog), "[/] " + deeper);
        QTest::mouseClick(buttons(dialog).constLast(), Qt::LeftButton);
        QCOMPARE(row(dialog), rowFor(base.path()));
        click(dialog, "backButton"); // to the place above the root
        QCOMPARE(row(dialog), "[/] " + deeper);
    });
}

void PathBarDialogTest::parentOfTheRoot()
{
    withDialogAt(QDir::rootPath(), [&](QFileDialog& dialog) {
        QCOMPARE(row(dialog), QStringLiteral("[/]"));
        click(dialog, "toParentButton");
        QCOMPARE(row(dialog), QStringLiteral("[/]"));
    });
}

void PathBarDialogTest::goneFolderIsNotPretended()
{
    DrawingFolder base;
    const QString deep = base.addFolder("ann/Plans");
    withDialogAt(deep, [&](QFileDialog& dialog) {
        QTest::mouseClick(buttonNamed(dialog, "ann"), Qt::LeftButton);
        QVERIFY(QDir().rmdir(deep));
        QTest::mouseClick(buttonNamed(dialog, "Plans"), Qt::LeftButton);
        QCOMPARE(dialog.directory().absolutePath(), base.filePath("ann"));
        QCOMPARE(row(dialog), rowFor(base.filePath("ann"), "Plans"));
    });
}

void PathBarDialogTest::sameFolderChangesNoButton()
{
    DrawingFolder base;
    withDialogAt(base.path(), [&](QFileDialog& dialog) {
        const auto before = buttons(dialog);
        dialog.setDirectory(base.path());
        Q_EMIT dialog.directoryEntered(base.path());
        Q_EMIT dialog.directoryEntered(base.path() + '/');
        QCOMPARE(buttons(dialog), before);
        QCOMPARE(row(dialog), rowFor(base.path()));
    });
}

// A folder entered in the list is announced by the dialog and by its model.
void PathBarDialogTest::layoutRunsOnceForAFolder()
{
    DrawingFolder base;
    base.addFolder("inner");
    withDialogAt(base.path(), [&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "inner"));
        QApplication::sendPostedEvents();
        struct FontChanges : QObject
        {
            int count = 0;
            bool eventFilter(QObject*, QEvent* event) override
            {
                count += event->type() == QEvent::FontChange;
                return false;
            }
        } changes;
        buttons(dialog).constLast()->installEventFilter(&changes);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        QCOMPARE(row(dialog), rowFor(base.filePath("inner")));
        QCOMPARE(changes.count, 1); // from bold to normal
    });
}

void PathBarDialogTest::wholeNamesWhereThereIsRoom()
{
    DrawingFolder base;
    const QString name = QStringLiteral("A folder whose name is much wider than eighty pixels");
    withDialogAt(base.addFolder(name), [&](QFileDialog& dialog) {
        dialog.resize(1200, dialog.height());
        QTest::qWait(20);
        for (const CVyDirPushButton* button : buttons(dialog)) {
            QCOMPARE(button->text(), button->fullName());
            QCOMPARE(button->toolTip(), QString());
            QCOMPARE(button->width(),
                     qMax(30, VyPathBar::paddedWidth(button->fontMetrics(), button->fullName())));
        }
    });
}

// A long name in bold is wider by more than the room around it.
void PathBarDialogTest::boldNameIsMeasuredAsSuch()
{
    DrawingFolder base;
    const QString name(45, 'w');
    const QString folder = base.addFolder(name);
    withDialogAt(base.path(), [&](QFileDialog& dialog) {
        dialog.resize(1400, 600);
        for (const QString& path : {folder, base.path()}) {
            dialog.setDirectory(path);
            CVyDirPushButton* const button = buttonNamed(dialog, name);
            const QFontMetrics metrics(button->font());
            QTRY_COMPARE(button->width(), VyPathBar::paddedWidth(metrics, name));
            QCOMPARE(button->shownName(), name);
        }
    });
}

void PathBarDialogTest::elidedWithToolTip()
{
    DrawingFolder base;
    const QString name(150, 'w');
    withDialogAt(base.addFolder(name), [&](QFileDialog& dialog) {
        const CVyDirPushButton* button = buttonNamed(dialog, name);
        QVERIFY(button->text().endsWith(QChar(0x2026)));
        QVERIFY(name.startsWith(button->text().chopped(1)));
        QCOMPARE(button->toolTip(), name);
        QCOMPARE(button->fullName(), name);
    });
}

void PathBarDialogTest::widensAgain()
{
    DrawingFolder base;
    const QString name(50, 'w');
    withDialogAt(base.addFolder(name), [&](QFileDialog& dialog) {
        dialog.resize(500, dialog.height());
        QTest::qWait(20);
        CVyDirPushButton* button = buttonNamed(dialog, name);
        QVERIFY(button->text() != name);
        QTest::mouseClick(button, Qt::LeftButton); // fixes its width for the moment
        dialog.resize(1250, dialog.height());
        QTest::qWait(20);
        QCOMPARE(button->text(), name);
        QCOMPARE(button->toolTip(), QString());
    });
}

void PathBarDialogTest::clicksInANarrowRowKeepTheNames()
{
    DrawingFolder base;
    withDialogAt(base.addFolder("a rather long name/another rather long name/and the last one"),
                 [&](QFileDialog& dialog) {
                     dialog.resize(500, dialog.height());
                     QTest::qWait(20);
                     const auto texts = [&] {
                         QTest::qWait(20);
                         QStringList shown;
                         for (const CVyDirPushButton* button : buttons(dialog))
                             shown.append(button->text());
                         return shown;
                     };
                     const QStringList before = texts();
                     QVERIFY(before.constLast().endsWith(QChar(0x2026)));
                     for (int round = 0; round < 4; ++round) {
                         QTest::mouseClick(buttons(dialog).at(buttons(dialog).size() - 3),
                                           Qt::LeftButton);
                         texts();
                         QTest::mouseClick(buttons(dialog).constLast(), Qt::LeftButton);
                         QCOMPARE(texts(), before);
                     }
                 });
}

// Each connection by itself: what it announces is not where the dialog is.
void PathBarDialogTest::followsTheListedSignals()
{
    DrawingFolder base;
    withDialogAt(base.path(), [&](QFileDialog& dialog) {
        for (const char* name : {"backButton", "forwardButton"}) {
            Q_EMIT dialog.directoryEntered(QStringLiteral("/Users/ann"));
            QCOMPARE(row(dialog), rowFor("/Users/ann"));
            Q_EMIT dialog.findChild<QToolButton*>(QLatin1String(name))->clicked();
            QCOMPARE(row(dialog), rowFor(base.path()));
        }
    });
}

void PathBarDialogTest::firstSizeMakesRoom()
{
    DrawingFolder base;
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    const auto widthOf = [&](unsigned type, const QString& folder) {
        int width = 0;
        HostRequest request;
        request.type = type;
        request.start = folder;
        request.getFileName({onFileDialog([&](QFileDialog& dialog) {
            width = dialog.width();
            dialog.reject();
        })});
        return width;
    };
    QFileDialog plain;
    plain.setOption(QFileDialog::DontUseNativeDialog);
    const int bound = qMax(plain.width(), screen.width() * 2 / 3);
    QCOMPARE(widthOf(0x102, QDir::rootPath()), plain.width());
    QVERIFY(widthOf(0x2, QDir::rootPath()) > plain.width() || plain.width() >= bound);
    QCOMPARE(widthOf(0x102, base.addFolder(QString(200, 'w'))), bound);
}

void PathBarDialogTest::widthsStayInBounds()
{
    DrawingFolder base;
    withDialogAt(base.addFolder("i/long folder name/another long folder name/x"),
                 [&](QFileDialog& dialog) {
                     for (const int width : {300, 500, 700, 1200}) {
                         dialog.resize(width, dialog.height());
                         QTest::qWait(20);
                         for (const CVyDirPushButton* button : buttons(dialog)) {
                             const int full =
                                 VyPathBar::paddedWidth(button->fontMetrics(), button->fullName());
                             QVERIFY(button->width() >= 30);
                             QVERIFY(button->width() <= qMax(30, full));
                             QCOMPARE(button->toolTip().isEmpty(),
                                      button->shownName() == button->fullName());
                         }
                     }
                 });
}

void PathBarDialogTest::ampersandIsNoMnemonic()
{
    DrawingFolder base;
    withDialogAt(base.addFolder("R&D"), [&](QFileDialog& dialog) {
        const CVyDirPushButton* button = buttonNamed(dialog, "R&D");
        QCOMPARE(button->text(), QStringLiteral("R&&D"));
        QCOMPARE(button->shownName(), QStringLiteral("R&D"));
        QVERIFY(button->shortcut().isEmpty());
        QCOMPARE(button->maximumWidth(), VyPathBar::paddedWidth(button->fontMetrics(), "R&D"));
        QTest::mouseClick(buttonNamed(dialog, "R&D"), Qt::LeftButton);
        QCOMPARE(button->maximumWidth(), VyPathBar::paddedWidth(button->fontMetrics(), "R&D"));
        QCOMPARE(dialog.directory().absolutePath(), base.filePath("R&D"));
    });
}

void PathBarDialogTest::richTextNameStaysPlain()
{
    DrawingFolder base;
    const QString name = QStringLiteral("<b>") + QString(120, 'w');
    withDialogAt(base.addFolder(name), [&](QFileDialog& dialog) {
        const QString tip = buttonNamed(dialog, name)->toolTip();
        QVERIFY(tip.contains(QStringLiteral("&lt;b&gt;www")));
    });
}

void PathBarDialogTest::deepFolderFitsTheScreen()
{
    DrawingFolder base;
    QString deep;
    for (int i = 0; i < 25; ++i)
        deep += QStringLiteral("/folder number %1").arg(i);
    withDialogAt(base.addFolder(deep.mid(1)), [&](QFileDialog& dialog) {
        QVERIFY2(dialog.width() <= 1280, qPrintable(QString::number(dialog.width())));
        for (const CVyDirPushButton* button : buttons(dialog)) {
            QVERIFY(button->geometry().right() <= dialog.width());
            const bool whole = button->text() == button->fullName();
            QVERIFY(whole || button->toolTip() == button->fullName());
        }
    });
}

void PathBarDialogTest::returnMeansTheAcceptButton()
{
    DrawingFolder base;
    const QString plan = base.addFile("plan.dwg");
    base.addFolder("inner");
    HostRequest request;
    request.start = base.filePath("inner");
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QTest::mouseClick(buttons(dialog).at(buttons(dialog).size() - 2), Qt::LeftButton);
        QCOMPARE(dialog.focusWidget(), dialog.findChild<QLineEdit*>());
        for (const CVyDirPushButton* button : buttons(dialog))
            QVERIFY(!button->isDefault() && !button->autoDefault());
        QVERIFY(waitForFile(dialog, "plan.dwg"));
        QTest::keyClicks(dialog.focusWidget(), "plan.dwg");
        buttons(dialog).constFirst()->setFocus();
        QTest::keyClick(buttons(dialog).constFirst(), Qt::Key_Return);
    })});
    QCOMPARE(request.paths, QStringList{plan});
}

void PathBarDialogTest::keyboardReachesTheRow()
{
    DrawingFolder base;
    withDialogAt(base.addFolder("inner"), [&](QFileDialog& dialog) {
        CVyDirPushButton* parent = buttons(dialog).at(buttons(dialog).size() - 2);
        for (int i = 0; i < 40 && dialog.focusWidget() != parent; ++i)
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget(), parent);
        QTest::keyClick(parent, Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget(), buttons(dialog).constLast());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget()->objectName(), QStringLiteral("lookInCombo"));
        parent->setFocus();
        QTest::keyClick(parent, Qt::Key_Space);
        QCOMPARE(dialog.directory().absolutePath(), base.path());
        QCOMPARE(dialog.focusWidget(), dialog.findChild<QLineEdit*>());
    });
}

void PathBarDialogTest::mirroredRow()
{
    DrawingFolder base;
    QApplication::setLayoutDirection(Qt::RightToLeft);
    withDialogAt(base.addFolder("inner"), [&](QFileDialog& dialog) {
        const auto all = buttons(dialog);
        QVERIFY(all.constFirst()->geometry().right() > dialog.width() - 30);
        for (int i = 1; i < all.size(); ++i)
            QVERIFY(all.at(i)->x() < all.at(i - 1)->x());
    });
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

QTEST_MAIN(PathBarDialogTest)
#include "PathBarDialogTest.moc"

// SPDX-License-Identifier: MIT
// The Qt open dialog, live, through the host's calls.
#include "CodePages.h"
#include "DrawingFolder.h"
#include "HostRequest.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QtTest>

namespace {

QPushButton* openButton(QFileDialog& dialog)
{
    return dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
}

QStringList menuTexts(QFileDialog& dialog)
{
    QStringList texts;
    const QMenu* menu = openButton(dialog)->menu();
    for (const QAction* action : menu ? menu->actions() : QList<QAction*>())
        texts.append(action->text());
    return texts;
}

} // namespace

class OpenDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void modeMenu_data();
    void modeMenu();
    void modeMenuEntryAccepts_data();
    void modeMenuEntryAccepts();
    void leavingTheMenuAcceptsNothing();
    void encodingEndToEnd();
    void acceptsTypedName();
    void acceptsByReturnInTheList();
    void acceptsSeveralFiles();
    void oneFileOnly();
    void refusesMissingFile();
    void cancels_data();
    void cancels();
    void startPath_data();
    void startPath();
    void titleAndParent();
    void strangeNamesComeBack_data();
    void strangeNamesComeBack();
};

void OpenDialogTest::modeMenu_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<unsigned>("flags");
    QTest::addColumn<QStringList>("texts");
    const QStringList all{"Open", "Open Read-Only", "Open with Encoding..."};
    QTest::newRow("no modes asked for") << 0x2U << 0U << QStringList();
    QTest::newRow("modes") << 0x2U << 1U << all;
    QTest::newRow("no preview, so no modes") << 0x102U << 1U << QStringList();
    QTest::newRow("open only") << 0x202U << 1U << QStringList{"Open"};
    QTest::newRow("no preview and open only") << 0x302U << 1U << QStringList();
    QTest::newRow("template folder stays") << 0x402U << 1U << all;
}

void OpenDialogTest::modeMenu()
{
    QFETCH(unsigned, type);
    QFETCH(unsigned, flags);
    QFETCH(QStringList, texts);
    HostRequest request;
    request.type = type;
    request.flags = flags;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QCOMPARE(menuTexts(dialog), texts);
        QVERIFY(!dialog.testOption(QFileDialog::DontConfirmOverwrite));
        if (!texts.isEmpty())
            QCOMPARE(openButton(dialog)->sizePolicy(),
                     QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
        dialog.reject();
    })});
}

void OpenDialogTest::modeMenuEntryAccepts_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("open") << "Open" << 0x100U;
    QTest::newRow("open read-only") << "Open Read-Only" << 0x300U;
}

void OpenDialogTest::modeMenuEntryAccepts()
{
    QFETCH(QString, entry);
    QFETCH(unsigned, mode);
    DrawingFolder folder;
    const QString plan = folder.addFile("plan.dwg");
    HostRequest request;
    request.flags = CVyUserIO::FileNameModeChoices;
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "plan.dwg"));
        QTimer::singleShot(0, &dialog, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu);
            for (QAction* action : menu->actions()) {
                if (action->text() == entry)
                    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                                      menu->actionGeometry(action).center());
            }
        });
        QTest::mousePress(openButton(dialog), Qt::LeftButton);
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(static_cast<unsigned>(request.mode), mode);
    QCOMPARE(request.paths, QStringList{plan});
}

void OpenDialogTest::leavingTheMenuAcceptsNothing()
{
    DrawingFolder folder;
    folder.addFile("plan.dwg");
    HostRequest request;
    request.flags = CVyUserIO::FileNameModeChoices;
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "plan.dwg"));
        QTimer::singleShot(50, &dialog, [] {
            QVERIFY(QApplication::activePopupWidget());
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        });
        QTest::keyClick(&dialog, Qt::Key_O, Qt::AltModifier);
        QTest::qWait(300); // a button pressed by its mnemonic is released later
        QVERIFY(dialog.isVisible());
        dialog.reject();
    })});
    QCOMPARE(request.status, VyStatus::Cancelled);
}

void OpenDialogTest::encodingEndToEnd()
{
    DrawingFolder folder;
    const QString plan = folder.addFile("plan.dwg");
    HostRequest request;
    request.flags = CVyUserIO::FileNameModeChoices;
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
                             QVERIFY(clickFile(dialog, "plan.dwg"));
                             openButton(dialog)->menu()->actions().at(2)->trigger();
                         }),
                         [](QDialog& dialog) {
                             chooseCodePage(dialog, OdCodePageId::Utf8);
                             dialog.accept();
                         }});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.mode, CVyUserIO::Open);
    QCOMPARE(request.paths, QStringList{plan});
    QVERIFY(request.codePage);
    QCOMPARE(*request.codePage, OdCodePageId::Utf8);
}

void OpenDialogTest::acceptsTypedName()
{
    DrawingFolder folder;
    const QString plan = folder.addFile("plan.dwg");
    HostRequest request;
    request.start = folder.path();
    request.defaultExtension = "dwg";
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QVERIFY(waitForFile(dialog, "plan.dwg"));
        typeAndAccept(dialog, "plan");
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.mode, CVyUserIO::Open);
    QCOMPARE(request.paths, QStringList{plan});
    QCOMPARE(request.typeIndex, 0);
    QCOMPARE(request.codePage, nullptr);
}

void OpenDialogTest::acceptsByReturnInTheList()
{
    DrawingFolder folder;
    const QString plan = folder.addFile("plan.dwg");
    HostRequest request;
    request.start = folder.path();
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "plan.dwg"));
        QWidget* view = QApplication::focusWidget();
        QTest::keyClick(view, Qt::Key_Return);
    })});
    QCOMPARE(request.paths, QStringList{plan});
}

void OpenDialogTest::acceptsSeveralFiles()
{
    DrawingFolder folder;
    QStringList plans;
    for (const char* name : {"a.dwg", "b.dwg", "c.dxf"})
        plans.append(folder.addFile(name));
    HostRequest request;
    request.start = folder.path();
    request.getFileNames({onFileDialog([](QFileDialog& dialog) {
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFiles);
        QVERIFY(waitForFile(dialog, "c.dxf"));
        typeAndAccept(dialog, "\"a.dwg\" \"b.dwg\" \"c.dxf\"");
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    request.paths.sort();
    QCOMPARE(request.paths, plans);
}

void OpenDialogTest::oneFileOnly()
{
    HostRequest request;
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        dialog.reject();
    })});
}

void OpenDialogTest::refusesMissingFile()
{
    DrawingFolder folder;
    HostRequest request;
    request.start = folder.path();
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
                             typeName(dialog, "gone.dwg");
                             QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
                             QVERIFY(dialog.isVisible());
                             dialog.reject();
                         }),
                         [](QDialog& warning) { warning.accept(); }});
    QCOMPARE(request.status, VyStatus::Cancelled);
    QVERIFY(request.paths.isEmpty());
}

void OpenDialogTest::cancels_data()
{
    QTest::addColumn<DialogDriver::Step>("step");
    QTest::newRow("cancel button") << onFileDialog([](QFileDialog& dialog) {
        QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel),
                          Qt::LeftButton);
    });
    QTest::newRow("escape") << onFileDialog(
        [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QTest::newRow("window closed") << onFileDialog([](QFileDialog& dialog) { dialog.close(); });
    QTest::newRow("window hidden") << onFileDialog([](QFileDialog& dialog) { dialog.hide(); });
    QTest::newRow("application quits") << onFileDialog([](QFileDialog&) { QApplication::quit(); });
}

void OpenDialogTest::cancels()
{
    QFETCH(DialogDriver::Step, step);
    HostRequest request;
    request.typeIndex = 1;
    request.flags = CVyUserIO::FileNameModeChoices;
    request.getFileName({step});
    if (qstrcmp(QTest::currentDataTag(), "application quits") == 0) {
        QTimer::singleShot(0, qApp, SLOT(quit()));
        QApplication::exec(); // takes the order to quit back
    }
    QCOMPARE(request.status, VyStatus::Cancelled);
    QCOMPARE(request.mode, CVyUserIO::Open);
    QVERIFY(request.paths.isEmpty());
    QCOMPARE(request.typeIndex, 1);
}

void OpenDialogTest::startPath_data()
{
    QTest::addColumn<QString>("start"); // in the test's folder
    QTest::addColumn<bool>("several");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::newRow("folder") << "sub" << false << "sub"
                            << "";
    QTest::newRow("folder with a trailing separator") << "sub/" << false << "sub"
                                                      << "";
    QTest::newRow("file") << "sub/plan.dwg" << false << "sub"
                          << "plan.dwg";
    QTest::newRow("file, several") << "sub/plan.dwg" << true << "sub"
                                   << "plan.dwg";
    QTest::newRow("missing file") << "sub/new.dwg" << false << "sub"
                                  << "new.dwg";
    QTest::newRow("missing folder") << "gone/new.dwg" << false << QString() << "new.dwg";
}

void OpenDialogTest::startPath()
{
    QFETCH(QString, start);
    QFETCH(bool, several);
    QFETCH(QString, folder);
    QFETCH(QString, name);
    DrawingFolder base;
    base.addFolder("sub");
    base.addFile("sub/plan.dwg");
    HostRequest request;
    request.start = base.filePath(start);
    const auto check = onFileDialog([&](QFileDialog& dialog) {
        if (!folder.isNull())
            QCOMPARE(dialog.directory().absolutePath(), base.filePath(folder));
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), name);
        QVERIFY(dialog.findChild<QLineEdit*>()->hasFocus());
        dialog.reject();
    });
    several ? request.getFileNames({check}) : request.getFileName({check});
}

void OpenDialogTest::titleAndParent()
{
    QWidget window;
    window.show();
    HostRequest request;
    request.title = QStringLiteral("Öffnen & mehr");
    request.parent = window.winId();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), request.title);
        QCOMPARE(dialog.parentWidget(), &window);
        dialog.reject();
    })});
    request.parent = 0xfffffff0ULL; // names no widget
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QCOMPARE(dialog.parentWidget(), nullptr);
        dialog.reject();
    })});
}

void OpenDialogTest::strangeNamesComeBack_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"R&D.dwg", "some:fi#le.dwg", "100%.dwg", "two\nlines.dwg", "План.dwg",
                             "e\u0301.dwg", "\U0001F4D0.dwg", " blanks .dwg", "trailing.dwg.",
                             "-dash.dwg", "quo\"te.dwg", "<b>bold.dwg"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void OpenDialogTest::strangeNamesComeBack()
{
    QFETCH(QString, name);
    DrawingFolder folder;
    const QString file = folder.addFile(name);
    HostRequest request;
    request.filter = QStringLiteral("All files&*");
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, name));
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList{file});
}

QTEST_MAIN(OpenDialogTest)
#include "OpenDialogTest.moc"

// SPDX-License-Identifier: MIT
// What the sample asks the dialogs for, and what it does with their answers.
#include "CodePages.h"
#include "DrawingTabs.h"
#include "HostRequest.h"
#include "PlainUser.h"
#include "SampleTest.h"
#include "VySystemServices.h"

#include <QMenu>
#include <QtTest>

class SampleRequestsTest : public SampleTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        GetVySystemServices()->GetSettings().ResetExpertLevel();
        SampleTest::cleanup();
    }

    void opensOne();
    void opensSeveral();
    void opensReadOnly();
    void opensWithEncoding();
    void opensAgain();
    void tellsWhatCannotBeOpened();
    void startsFromATemplate();
    void proposesTheLastTemplate();
    void startsWithoutTemplate_data();
    void startsWithoutTemplate();
    void offersTheDrawingsTypes_data();
    void offersTheDrawingsTypes();
    void saves();
    void keepsAllWhenItCannotSave();
    void refusesToSave();
    void cancelled_data();
    void cancelled();
    void switchesReachTheDialog();
};

void SampleRequestsTest::opensOne()
{
    open(plan);
    QCOMPARE(tabs(), QStringList(plan));
    QCOMPARE(m_window->windowTitle(), plan + " - VyFileDialogs Sample");
    const Drawing& drawing = drawings().current()->drawing();
    QCOMPARE(drawing.path, m_folder->filePath(plan));
    QCOMPARE(drawing.bytes, contents(m_folder->filePath(plan)));
    QCOMPARE(drawing.picture.size(), QSize(180, 130));
    QCOMPARE(drawings().current()->caption(), plan);
    QCOMPARE(answer("answerStyle"), QStringLiteral("qt"));
    QCOMPARE(answer("answerStatus"), QStringLiteral("accepted (5100)"));
    QCOMPARE(answer("answerMode"), QStringLiteral("open (256)"));
    QCOMPARE(answer("answerPaths"), m_folder->filePath(plan));
    QCOMPARE(answer("answerType"), QStringLiteral("0 (Drawings)"));
    QCOMPARE(answer("answerTemplate"), QStringLiteral("none"));
    QCOMPARE(answer("answerCodePage"), QStringLiteral("none"));
}

// The next request begins in the folder of the drawing in front.
void SampleRequestsTest::opensSeveral()
{
    open(bare);
    QCOMPARE(drawings().current()->caption(), bare + "\nThere is no preview in this file.");
    const QString other = m_folder->addPicture("photo.png", {40, 30}, Qt::red);
    choose("openSeveral", {onFileDialog([&](QFileDialog& dialog) {
               QCOMPARE(dialog.directory().path(), m_folder->path());
               chooseType(dialog, 3);
               typeAndAccept(dialog, QStringLiteral("\"%1\" \"photo.png\"").arg(plan));
           })});
    QCOMPARE(tabs(), (QStringList{bare, plan, "photo.png"}));
    QCOMPARE(drawings().current()->drawing().path, other);
    QCOMPARE(answer("answerPaths"), m_folder->filePath(plan) + '\n' + other);
    QCOMPARE(answer("answerType"), QStringLiteral("3 (All files)"));
}

void SampleRequestsTest::opensReadOnly()
{
    choose("open", {choosingMode(1, m_folder->filePath(plan))});
    QCOMPARE(m_window->windowTitle(), plan + " (read-only) - VyFileDialogs Sample");
    QCOMPARE(drawings().current()->caption(), plan + ", read-only");
    QCOMPARE(answer("answerMode"), QStringLiteral("open-read-only (768)"));
}

void SampleRequestsTest::opensWithEncoding()
{
    choose("open", {choosingMode(2, m_folder->filePath(plan)), [](QDialog& dialog) {
                        chooseCodePage(dialog, OdCodePageId::Ansi1253);
                        dialog.accept();
                    }});
    QCOMPARE(drawings().current()->caption(), plan + ", ANSI_1253");
    QCOMPARE(answer("answerCodePage"), QStringLiteral("ANSI_1253"));
}

// It comes to the front, whatever way leads to it.
void SampleRequestsTest::opensAgain()
{
    open(plan);
    open(bare);
    QVERIFY(QFile::link(m_folder->filePath(plan), m_folder->filePath("link.dxf")));
    open("link.dxf");
    QCOMPARE(tabs(), (QStringList{plan, bare}));
    QCOMPARE(drawings().currentIndex(), 0);
}

void SampleRequestsTest::tellsWhatCannotBeOpened()
{
    QString text;
    {
        const DialogDriver driver({reading(text)});
        m_window->openFiles({m_folder->filePath("gone.dxf"), m_folder->filePath(plan)});
    }
    QCOMPARE(text,
             "A file could not be opened.\n" + m_folder->filePath("gone.dxf") + " does not exist");
    QCOMPARE(tabs(), QStringList(plan));
    {
        const DialogDriver driver({reading(text)});
        m_window->openFiles({m_folder->filePath("gone.dxf"), m_folder->path()});
    }
    QCOMPARE(text, "2 files could not be opened.\n" + m_folder->filePath("gone.dxf") +
                       " does not exist\n" + m_folder->path() + " is not a file");
    QCOMPARE(tabs(), QStringList(plan));
}

void SampleRequestsTest::startsFromATemplate()
{
    choose("new", {onFileDialog([&](QFileDialog& dialog) {
               QCOMPARE(dialog.directory().path(), m_templates->path());
               typeAndAccept(dialog, sheet);
           })});
    QCOMPARE(tabs(), QStringList("Drawing 1"));
    const Drawing& drawing = drawings().current()->drawing();
    QCOMPARE(drawing.path, QString());
    QCOMPARE(drawing.bytes, contents(m_templates->filePath(sheet)));
    QVERIFY(!drawing.picture.isNull());
    QCOMPARE(answer("answerMode"), QStringLiteral("new-from-template (1)"));
    QCOMPARE(answer("answerTemplate"), QStringLiteral("none"));
    QCOMPARE(recent(), QStringList());
}

void SampleRequestsTest::proposesTheLastTemplate()
{
    choose("new", {typing(sheet)});
    choose("new", {onFileDialog([&](QFileDialog& dialog) {
               QCOMPARE(dialog.selectedFiles(), QStringList(m_templates->filePath(sheet)));
               typeAndAccept(dialog, sheet);
           })});
    QCOMPARE(tabs(), (QStringList{"Drawing 1", "Drawing 2"}));
    QCOMPARE(answer("answerTemplate"), sheet);
}

void SampleRequestsTest::startsWithoutTemplate_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QByteArray>("limit");
    QTest::newRow("imperial") << 1 << "new-imperial (2)"
                              << "An empty drawing in inches. This sample does not draw."
                              << QByteArray("12.0");
    QTest::newRow("metric") << 2 << "new-metric (3)"
                            << "An empty drawing in millimetres. This sample does not draw."
                            << QByteArray("420.0");
}

void SampleRequestsTest::startsWithoutTemplate()
{
    QFETCH(int, entry);
    choose("new", {choosingMode(entry)});
    QCOMPARE(tabs(), QStringList("Drawing 1"));
    QTEST(answer("answerMode"), "mode");
    QFETCH(QString, caption);
    QCOMPARE(drawings().current()->caption(), "Drawing 1\n" + caption);

    const QString saved = m_folder->filePath("started.dxf");
    choose("saveAs", {typing(m_folder->filePath("started"))});
    QFETCH(QByteArray, limit);
    const QByteArray text = contents(saved);
    QVERIFY(text.contains(limit));
    QVERIFY(text.endsWith("  0\nEOF\n"));
    QCOMPARE(tabs(), QStringList("started.dxf"));
}

void SampleRequestsTest::offersTheDrawingsTypes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<int>("index");
    const QStringList drawing{"Drawings (*.dwg)", "Templates (*.dwt)"};
    QTest::newRow("dwg") << "a.dwg" << QByteArray("AC1032") << drawing << 0;
    QTest::newRow("dwt") << "a.DWT" << QByteArray("AC1018") << drawing << 1;
    QTest::newRow("misnamed") << "a.dxf" << QByteArray("AC1018") << drawing << 0;
    QTest::newRow("dxf") << "a.dxf" << QByteArray("0\nSECTION")
                         << QStringList("Exchange drawings (*.dxf)") << 0;
    QTest::newRow("other") << "a.TXT" << QByteArray("text") << QStringList("TXT files (*.txt)")
                           << 0;
    QTest::newRow("none") << "a" << QByteArray("text") << QStringList("All Files (*)") << 0;
    QTest::newRow("no pattern") << "a.b&c" << QByteArray("text") << QStringList("All Files (*)")
                                << 0;
}

// Nothing is converted, so no other format is offered.
void SampleRequestsTest::offersTheDrawingsTypes()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    m_window->openFiles({m_folder->addFile(name, bytes)});
    choose("saveAs", {onFileDialog([&](QFileDialog& dialog) {
               QTEST(dialog.nameFilters(), "types");
               QFETCH(int, index);
               QCOMPARE(dialog.selectedNameFilter(), dialog.nameFilters().at(index));
               QCOMPARE(dialog.selectedFiles(), QStringList(m_folder->filePath(name)));
               dialog.reject();
           })});
}

void SampleRequestsTest::saves()
{
    choose("new", {typing(sheet)});
    choose("saveAs", {typing(m_folder->filePath("house"))});
    const QString saved = m_folder->filePath("house.dwg");
    QCOMPARE(contents(saved), contents(m_templates->filePath(sheet)));
    QCOMPARE(tabs(), QStringList("house.dwg"));
    QCOMPARE(m_window->windowTitle(), QStringLiteral("house.dwg - VyFileDialogs Sample"));
    QCOMPARE(drawings().current()->drawing().path, saved);
    QCOMPARE(recent(), QStringList(saved));
    QCOMPARE(answer("answerMode"), QStringLiteral("save (65536)"));
    QCOMPARE(answer("answerPaths"), saved);
    QCOMPARE(answer("answerType"), QStringLiteral("0 (Drawings)"));
}

void SampleRequestsTest::keepsAllWhenItCannotSave()
{
    GetVySystemServices()->GetSettings().SetExpertLevel(2); // asks no questions
    const QString locked = m_folder->addFolder("locked");
    const QString before = m_folder->addFile("locked/there.dxf", "before");
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
    QVERIFY(QFile::setPermissions(locked, QFile::Permissions(0x5555)));
    open(plan);
    QString text;
    {
        const PlainUser user;
        choose("saveAs", {typing(before), reading(text)});
    }
    QVERIFY(QFile::setPermissions(locked, QFile::Permissions(0x7755)));
    QVERIFY2(text.startsWith("The drawing was not saved.\n" + before + " cannot be written: "),
             qPrintable(text));
    QCOMPARE(contents(before), QByteArray("before"));
    QCOMPARE(QDir(locked).entryList(QDir::Files | QDir::Hidden), QStringList("there.dxf"));
    QCOMPARE(tabs(), QStringList(plan));
    QCOMPARE(recent(), QStringList(m_folder->filePath(plan)));
}

// What is open elsewhere, and what is only to be read.
void SampleRequestsTest::refusesToSave()
{
    GetVySystemServices()->GetSettings().SetExpertLevel(2);
    const QString other = m_folder->addFile("other.dxf", "other");
    m_window->openFiles({other});
    choose("open", {choosingMode(1, m_folder->filePath(plan))});
    const QByteArray before = contents(m_folder->filePath(plan));
    const auto savingOver = [&](const QString& path) {
        QString text;
        choose("saveAs", {typing(path), reading(text)});
        return text;
    };
    QCOMPARE(savingOver(other), "The drawing was not saved.\n" + other + " is open in another tab");
    QCOMPARE(contents(other), QByteArray("other"));
    QCOMPARE(savingOver(m_folder->filePath(plan)),
             "The drawing was not saved.\n" + m_folder->filePath(plan) + " was opened read-only");
    QCOMPARE(contents(m_folder->filePath(plan)), before);

    // A copy may be written to.
    choose("saveAs", {typing(m_folder->filePath("copy"))});
    QCOMPARE(contents(m_folder->filePath("copy.dxf")), before);
    QCOMPARE(drawings().current()->caption(), QStringLiteral("copy.dxf"));
}

void SampleRequestsTest::cancelled_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("mode");
    QTest::newRow("new") << "new"
                         << "new-from-template (1)";
    QTest::newRow("open") << "open"
                          << "open (256)";
    QTest::newRow("open several") << "openSeveral"
                                  << "open (256)";
    QTest::newRow("save as") << "saveAs"
                             << "save (65536)";
}

void SampleRequestsTest::cancelled()
{
    open(plan);
    QFETCH(QString, entry);
    choose(qPrintable(entry), {onFileDialog([&](QFileDialog& dialog) {
               typeName(dialog, "anything");
               dialog.reject();
           })});
    QCOMPARE(tabs(), QStringList(plan));
    QCOMPARE(recent(), QStringList(m_folder->filePath(plan)));
    QCOMPARE(ACTIVE_DOCUMENT(), drawings().current()->document());
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), (QStringList{bare, plan}));
    QCOMPARE(answer("answerStatus"), QStringLiteral("cancelled (-5002)"));
    QTEST(answer("answerMode"), "mode");
    QCOMPARE(answer("answerPaths"), QStringLiteral("none"));
    QCOMPARE(answer("answerType"), QStringLiteral("none"));
}

void SampleRequestsTest::switchesReachTheDialog()
{
    open(plan);
    int modes = -1;
    bool hasPreview = false;
    QString folder;
    QString title;
    const DialogDriver::Step looking = onFileDialog([&](QFileDialog& dialog) {
        const auto* menu = dialog.findChild<QMenu*>(QStringLiteral("modeMenu"));
        modes = menu ? menu->actions().size() : 0;
        hasPreview = dialog.findChild<QWidget*>(QStringLiteral("previewLabel")) != nullptr;
        if (dialog.acceptMode() == QFileDialog::AcceptOpen)
            chooseType(dialog, 1);
        folder = dialog.directory().path();
        title = dialog.windowTitle();
        dialog.reject();
    });
    choose("open", {looking});
    QCOMPARE(modes, 3);
    QVERIFY(hasPreview);
    QCOMPARE(folder, m_templates->path());

    entry("templateFolder")->trigger();
    entry("readOnlyChoices")->trigger();
    choose("open", {looking});
    QCOMPARE(modes, 1);
    QCOMPARE(folder, m_folder->path());

    entry("preview")->trigger();
    choose("openSeveral", {looking});
    QVERIFY(!hasPreview);

    choose("saveAs", {looking});
    QCOMPARE(title, QStringLiteral("Save Drawing As"));
    choose("new", {looking});
    QCOMPARE(modes, 3);
    entry("modeChoices")->trigger();
    choose("saveAs", {looking});
    QCOMPARE(title, QStringLiteral("Save As"));
    choose("new", {looking});
    QCOMPARE(modes, 0);
}

QTEST_MAIN(SampleRequestsTest)
#include "SampleRequestsTest.moc"

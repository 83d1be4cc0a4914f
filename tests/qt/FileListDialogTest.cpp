// SPDX-License-Identifier: MIT
// What the live dialog lists, against a bare one that does the same.
#include "CompiledExpressions.h"
#include "DrawingFolder.h"
#include "HostRequest.h"
#include "VyFileTypeList.h"

#include <QComboBox>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>
#include <QtTest>

#include <random>

namespace {

QListView* listOf(QFileDialog& dialog)
{
    return dialog.findChild<QListView*>(QStringLiteral("listView"));
}

QStringList selected(QFileDialog& dialog)
{
    QStringList names;
    const QModelIndexList rows = listOf(dialog)->selectionModel()->selectedRows();
    for (const QModelIndex& row : rows)
        names.append(row.data().toString());
    names.sort();
    return names;
}

// The patterns as QFileDialog reads them from an entry.
QStringList patternsOfQt(const QString& entry)
{
    QFileDialog dialog;
    dialog.setOptions(QFileDialog::DontUseNativeDialog);
    dialog.setNameFilters({entry});
    return dialog.findChild<QFileSystemModel*>()->nameFilters();
}

QString key(QFileDialog& dialog)
{
    return dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
}

} // namespace

class FileListDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void patternsAreThoseOfQt_data();
    void patternsAreThoseOfQt();
    void eachTypeListsItsFiles();
    void typeChangeCompilesNothing();
    void typedNamesAreSelected();
    void nameOfAnotherTypeIsSelected();
    void openIsEnabledForATypedFileOfAnotherType();
    void selectedFileOfAnotherTypeIsLeft();
    void detailsKeepTheirColumns();
    void allFilesCanBeSelected();
    void createsAFolder();
    void deletesAFile();
    void modelGoesAfterTheAnswer();
};

void FileListDialogTest::patternsAreThoseOfQt_data()
{
    QTest::addColumn<QString>("entry");
    for (const char* entry :
         {"Drawing (*.dwg)", "Drawing (*.dwg *.dxf)", "Drawing", "Drawing ()", "*.dwg",
          "A (b) (*.c)", "A (*.c) ", "A (*.c;*.d)", "(*.a)", "Odd (*.a\"b)", "Sets ([ab]*.d?)",
          "A  ( *.a   *.b )", "Line\nbreak (*.a)", "Nested ((*.a))", "No end (*.a",
          "Umlaut (*.\xc3\xa4)"})
        QTest::newRow(entry) << QString::fromUtf8(entry);
    std::mt19937 random(7);
    const QString letters = QStringLiteral("*.ab ()[;\n?-");
    for (int i = 0; i < 60; ++i) {
        QString entry;
        while (entry.size() < 12)
            entry += letters.at(static_cast<int>(random() % unsigned(letters.size())));
        QTest::addRow("random %d", i) << entry;
    }
}

void FileListDialogTest::patternsAreThoseOfQt()
{
    QFETCH(QString, entry);
    // The dialog's popup holds an entry with its blanks made one.
    QCOMPARE(VyFileTypeList::patterns(entry.simplified()), patternsOfQt(entry));
}

void FileListDialogTest::eachTypeListsItsFiles()
{
    DrawingFolder folder;
    folder.addFolder("folder.dwg");
    for (const char* name : {"b.dwg", "A10.DWG", "a2.dwg", "c.dxf", "d.dwt", ".hidden.dwg", "e"})
        folder.addFile(name);
    HostRequest request;
    request.type |= CVyUserIO::FileNameNoTemplateFolder;
    request.start = folder.path();
    request.filter = QStringLiteral("A&*.dwg&B&*.dwg;*.dxf&C&*.dwt&D&*.*&E&*&F&?.d[wx]?");
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        const auto* types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        QFileDialog bare(nullptr, QString(), folder.path());
        bare.setOptions(QFileDialog::DontUseNativeDialog);
        bare.setFileMode(QFileDialog::ExistingFile);
        QCOMPARE(types->count(), 6);
        for (const int index : {0, 1, 2, 3, 4, 5, 0}) {
            chooseType(dialog, index);
            bare.setNameFilter(types->itemText(index));
            QTRY_VERIFY(listedNames(bare).contains("e") == (index == 4));
            QTRY_VERIFY(listedNames(bare).contains("b.dwg") == (index != 2));
            QTRY_COMPARE(listedNames(dialog), listedNames(bare));
        }
        QCOMPARE(listedNames(dialog).size(), 4);
        QCOMPARE(listedNames(dialog).first(), QStringLiteral("folder.dwg"));
        dialog.reject();
    })});
}

void FileListDialogTest::typeChangeCompilesNothing()
{
    if (!countsExpressions())
        QSKIP("Qt's expressions cannot be counted here");
    DrawingFolder folder;
    for (int i = 0; i < 300; ++i)
        folder.addFile(QStringLiteral("plan %1.dwg").arg(i));
    folder.addFile("last.dxf");
    const int before = compiledExpressions();
    HostRequest request;
    request.start = folder.path();
    request.filter = QStringLiteral("A&*.dwg;*.dws;*.bak&B&*.dxf&C&last.???");
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QTRY_COMPARE(listedNames(dialog).size(), 300);
        // One reads the types, others are Qt's for what it looks for itself.
        QVERIFY(compiledExpressions() - before < 20);
        const int opened = compiledExpressions();
        chooseType(dialog, 1);
        QTRY_COMPARE(listedNames(dialog), QStringList{"last.dxf"});
        QCOMPARE(compiledExpressions(), opened);
        chooseType(dialog, 2);
        QTRY_COMPARE(listedNames(dialog), QStringList{"last.dxf"});
        QCOMPARE(compiledExpressions(), opened + 1);
        dialog.reject();
    })});
}

void FileListDialogTest::typedNamesAreSelected()
{
    DrawingFolder folder;
    for (const char* name : {"a.dwg", "b.dwg", "c.dwg"})
        folder.addFile(name);
    HostRequest request;
    request.start = folder.path();
    request.getFileNames({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(waitForFile(dialog, "c.dwg"));
        typeName(dialog, "\"a.dwg\" \"b.dwg\"");
        QCOMPARE(selected(dialog), QStringList({"a.dwg", "b.dwg"}));
        auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QTest::keyClicks(edit, " \"c.dwg\"");
        QCOMPARE(selected(dialog), QStringList({"a.dwg", "b.dwg", "c.dwg"}));
        QTest::keyClick(edit, Qt::Key_Return);
    })});
    request.paths.sort();
    QCOMPARE(request.paths, QStringList({folder.filePath("a.dwg"), folder.filePath("b.dwg"),
                                         folder.filePath("c.dwg")}));
}

// As a user who goes from the name to the types, whose choice rewrites the name.
void FileListDialogTest::nameOfAnotherTypeIsSelected()
{
    DrawingFolder folder;
    folder.addFile("plan.dwg");
    folder.addFile("plan.dxf");
    HostRequest request;
    request.type = CVyUserIO::FileNameSave;
    request.filter = QStringLiteral("Drawing&*.dwg&Exchange&*.dxf");
    request.start = folder.path();
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QVERIFY(waitForFile(dialog, "plan.dwg"));
        typeName(dialog, "plan.dwg");
        QCOMPARE(selected(dialog), QStringList{"plan.dwg"});
        dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->setFocus();
        chooseType(dialog, 1);
        QTRY_COMPARE(selected(dialog), QStringList{"plan.dxf"});
        dialog.reject();
    })});
}

void FileListDialogTest::openIsEnabledForATypedFileOfAnotherType()
{
    DrawingFolder folder;
    folder.addFile("a.dwg");
    folder.addFile("notes.txt");
    HostRequest request;
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(waitForFile(dialog, "a.dwg"));
        QVERIFY(!listedNames(dialog).contains("notes.txt"));
        typeName(dialog, "notes.tx");
        QPushButton* open = nullptr;
        for (auto* button : dialog.findChildren<QPushButton*>()) {
            if (button->text().remove('&') == QLatin1String("Open"))
                open = button;
        }
        QVERIFY(open && !open->isEnabled());
        QTest::keyClicks(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), "t");
        QVERIFY(open->isEnabled());
        QTest::keyClick(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")),
                        Qt::Key_Return);
    })});
    QCOMPARE(request.paths, QStringList{folder.filePath("notes.txt")});
}

void FileListDialogTest::selectedFileOfAnotherTypeIsLeft()
{
    DrawingFolder folder;
    folder.addFile("a.dwg");
    folder.addFile("b.dxf");
    HostRequest request;
    request.start = folder.path();
    request.filter = QStringLiteral("A&*.dwg&B&*.dxf&C&*.d*");
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "a.dwg"));
        chooseType(dialog, 2);
        QCOMPARE(selected(dialog), QStringList{"a.dwg"});
        chooseType(dialog, 1);
        QCOMPARE(selected(dialog), QStringList());
        QCOMPARE(key(dialog), QStringLiteral("a.dwg"));
        QVERIFY(clickFile(dialog, "b.dxf"));
        QCOMPARE(dialog.selectedFiles(), QStringList{folder.filePath("b.dxf")});
        static_cast<QDialog&>(dialog).accept();
    })});
    QCOMPARE(request.paths, QStringList{folder.filePath("b.dxf")});
}

void FileListDialogTest::detailsKeepTheirColumns()
{
    QFileDialog bare;
    bare.setOptions(QFileDialog::DontUseNativeDialog);
    bare.setViewMode(QFileDialog::Detail);
    const auto* expected = bare.findChild<QTreeView*>(QStringLiteral("treeView"))->header();
    HostRequest request;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QTest::mouseClick(dialog.findChild<QToolButton*>(QStringLiteral("detailModeButton")),
                          Qt::LeftButton);
        auto* details = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
        QTRY_VERIFY(details->isVisible());
        for (int column = 0; column < 4; ++column) {
            QCOMPARE(details->header()->sectionSize(column), expected->sectionSize(column));
            QCOMPARE(details->model()->headerData(column, Qt::Horizontal),
                     expected->model()->headerData(column, Qt::Horizontal));
        }
        QVERIFY(details->isSortingEnabled());
        QTest::mouseClick(dialog.findChild<QToolButton*>(QStringLiteral("listModeButton")),
                          Qt::LeftButton);
        dialog.reject();
    })});
}

void FileListDialogTest::allFilesCanBeSelected()
{
    DrawingFolder folder;
    for (int i = 0; i < 40; ++i)
        folder.addFile(QStringLiteral("%1.dwg").arg(i));
    folder.addFile("other.txt");
    HostRequest request;
    request.start = folder.path();
    request.getFileNames({onFileDialog([&](QFileDialog& dialog) {
        QTRY_COMPARE(listedNames(dialog).size(), 40);
        listOf(dialog)->setFocus();
        QTest::keySequence(listOf(dialog), QKeySequence::SelectAll);
        QCOMPARE(selected(dialog).size(), 40);
        static_cast<QDialog&>(dialog).accept();
    })});
    QCOMPARE(request.paths.size(), 40);
    QVERIFY(!request.paths.contains(folder.filePath("other.txt")));
}

void FileListDialogTest::createsAFolder()
{
    DrawingFolder folder;
    folder.addFile("a.dwg");
    HostRequest request;
    request.type = CVyUserIO::FileNameSave;
    request.start = folder.path() + '/';
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(waitForFile(dialog, "a.dwg"));
        QTest::mouseClick(dialog.findChild<QToolButton*>(QStringLiteral("newFolderButton")),
                          Qt::LeftButton);
        QTRY_VERIFY(QFileInfo(folder.filePath("New Folder")).isDir());
        QTRY_VERIFY(listedNames(dialog).contains("New Folder"));
        QCOMPARE(selected(dialog), QStringList{"New Folder"});
        dialog.reject();
    })});
}

void FileListDialogTest::deletesAFile()
{
    DrawingFolder folder;
    folder.addFile("a.dwg");
    folder.addFile("b.dwg");
    folder.addFile("a.txt");
    HostRequest request;
    request.start = folder.path();
    request.getFileName(
        {onFileDialog([&](QFileDialog& dialog) {
             QVERIFY(clickFile(dialog, "b.dwg"));
             QMetaObject::invokeMethod(&dialog, "_q_deleteCurrent");
             QTRY_VERIFY(!listedNames(dialog).contains("b.dwg"));
             dialog.reject();
         }),
         [](QDialog& question) { QTest::keyClick(&question, Qt::Key_Y, Qt::AltModifier); }});
    QVERIFY(!QFile::exists(folder.filePath("b.dwg")));
    QVERIFY(QFile::exists(folder.filePath("a.dwg")) && QFile::exists(folder.filePath("a.txt")));
}

// The host has its answer before the list of a large folder is freed.
void FileListDialogTest::modelGoesAfterTheAnswer()
{
    DrawingFolder folder;
    folder.addFile("a.dwg");
    QPointer<QFileSystemModel> model;
    HostRequest request;
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(waitForFile(dialog, "a.dwg"));
        model = dialog.findChild<QFileSystemModel*>();
        dialog.reject();
    })});
    QVERIFY(model);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!model);
}

QTEST_MAIN(FileListDialogTest)
#include "FileListDialogTest.moc"

// SPDX-License-Identifier: MIT
// The file types in the live Qt open dialog.
#include "DrawingFolder.h"
#include "HostRequest.h"
#include "VySystemServices.h"

#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

#include <climits>

namespace {

QStringList typeTexts(QFileDialog& dialog)
{
    QStringList texts;
    const auto* types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    for (int i = 0; i < types->count(); ++i)
        texts.append(types->itemText(i));
    return texts;
}

} // namespace

class FileTypesDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void typesAreThoseOfTheFilter_data();
    void typesAreThoseOfTheFilter();
    void typeIndex_data();
    void typeIndex();
    void templateTypeSwitchesTheFolder_data();
    void templateTypeSwitchesTheFolder();
};

void FileTypesDialogTest::typesAreThoseOfTheFilter_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("types");
    QTest::newRow("one") << "Drawing&*.dwg" << QStringList{"Drawing (*.dwg)"};
    QTest::newRow("two") << "A&*.a;*.b&B (x)&*.c" << QStringList{"A (*.a *.b)", "B (*.c)"};
    QTest::newRow("without patterns") << "Drawing" << QStringList{"Drawing ()"};
    QTest::newRow("empty") << "" << QStringList{"All Files (*)"};
    QTest::newRow("separators alone") << "&&&" << QStringList{"All Files (*)"};
    QTest::newRow("empty pair between") << "A&*.a&&&B&*.b" << QStringList{"A (*.a)", "B (*.b)"};
}

void FileTypesDialogTest::typesAreThoseOfTheFilter()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, types);
    HostRequest request;
    request.filter = filter;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QCOMPARE(typeTexts(dialog), types);
        dialog.reject();
    })});
}

void FileTypesDialogTest::typeIndex_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("preselected");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("last") << 2 << 2;
    QTest::newRow("behind the list") << 99 << 2;
    QTest::newRow("largest") << INT_MAX << 2;
    QTest::newRow("before the list") << -7 << 0;
    QTest::newRow("smallest") << INT_MIN << 0;
}

void FileTypesDialogTest::typeIndex()
{
    QFETCH(int, asked);
    QFETCH(int, preselected);
    DrawingFolder folder;
    folder.addFile("plan.dwt");
    folder.addFile("plan.dwg");
    HostRequest request;
    request.start = folder.path();
    request.typeIndex = asked;
    request.type |= CVyUserIO::FileNameNoTemplateFolder;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        auto* types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        QCOMPARE(types->currentIndex(), preselected);
        chooseType(dialog, 1);
        QVERIFY(waitForFile(dialog, "plan.dwt"));
        typeAndAccept(dialog, "plan.dwt");
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.typeIndex, 1);
}

void FileTypesDialogTest::templateTypeSwitchesTheFolder_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<bool>("switches");
    const QString types = QStringLiteral("Drawings&*.dwg&Templates&*.dwt");
    QTest::newRow("template type") << 0x2U << types << true;
    QTest::newRow("without preview") << 0x102U << types << true;
    QTest::newRow("not wanted") << 0x402U << types << false;
    QTest::newRow("upper case") << 0x2U << "Drawings&*.dwg&Templates&*.DWT" << false;
    QTest::newRow("in the description") << 0x2U << "Drawings&*.dwg&Like (.dwt *)&*" << true;
    QTest::newRow("another type") << 0x2U << "Drawings&*.dwg&All&*" << false;
}

void FileTypesDialogTest::templateTypeSwitchesTheFolder()
{
    QFETCH(unsigned, type);
    QFETCH(QString, filter);
    QFETCH(bool, switches);
    DrawingFolder drawings;
    DrawingFolder templates;
    GetVySystemServices()->SetTemplateFolder(CVyString(templates.path()));
    HostRequest request;
    request.type = type;
    request.filter = filter;
    request.start = drawings.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        typeName(dialog, "plan.txt");
        chooseType(dialog, 1);
        QCOMPARE(dialog.directory().absolutePath(), switches ? templates.path() : drawings.path());
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), QStringLiteral("plan.txt"));
        dialog.reject();
    })});
    GetVySystemServices()->SetTemplateFolder(CVyString());
}

QTEST_MAIN(FileTypesDialogTest)
#include "FileTypesDialogTest.moc"

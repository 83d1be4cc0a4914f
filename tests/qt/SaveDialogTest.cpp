// SPDX-License-Identifier: MIT
// The Qt save dialog, live, through the host's calls.
#include "DrawingFolder.h"
#include "HostRequest.h"
#include "VySystemServices.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

namespace {

HostRequest saveRequest(const QString& start)
{
    HostRequest request;
    request.type = CVyUserIO::FileNameSave;
    request.filter =
        QStringLiteral("Drawing&*.dwg&Both&*.dwg;*.dxf&Template&*.dwt&Old&*.DWT&Any&*");
    request.start = start;
    return request;
}

// A step for the question whether to overwrite.
DialogDriver::Step answer(QMessageBox::StandardButton button)
{
    return [button](QDialog& dialog) {
        auto* question = qobject_cast<QMessageBox*>(&dialog);
        QVERIFY(question);
        QTest::mouseClick(question->button(button), Qt::LeftButton);
    };
}

} // namespace

class SaveDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }
    void cleanup()
    {
        GetVySystemServices()->GetSettings().SetExpertLevel(0);
        GetVySystemServices()->SetTemplateFolder(CVyString());
    }

    void title_data();
    void title();
    void savesUnderTypedName_data();
    void savesUnderTypedName();
    void presetName();
    void asksBeforeOverwriting_data();
    void asksBeforeOverwriting();
    void keepsTheFileWhenTheUserSaysNo();
    void typeChangeAdaptsTheName_data();
    void typeChangeAdaptsTheName();
    void firstTypeAdaptsTheName();
    void sameTypeAgainKeepsTheName();
    void typesOfOneNameKeepTheName();
    void typeChangeThenSave();
    void templateTypeSwitchesTheFolder_data();
    void templateTypeSwitchesTheFolder();
    void templateSwitchNeedsAPreselectedType();
    void severalPathsRequestSavesOne();
};

void SaveDialogTest::title_data()
{
    QTest::addColumn<unsigned>("flags");
    QTest::addColumn<QString>("title");
    QTest::newRow("without modes") << 0U << "Save As";
    QTest::newRow("with modes") << 1U << "Choose";
}

void SaveDialogTest::title()
{
    QFETCH(unsigned, flags);
    QFETCH(QString, title);
    HostRequest request = saveRequest(QString());
    request.flags = flags;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), title);
        QCOMPARE(dialog.fileMode(), QFileDialog::AnyFile);
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
        QVERIFY(!dialog.findChild<QWidget*>(QStringLiteral("previewFrame")));
        dialog.reject();
    })});
    QCOMPARE(request.mode, CVyUserIO::Save);
}

void SaveDialogTest::savesUnderTypedName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("saved");
    QTest::newRow("bare name") << "plan" << 0 << "plan.dwg";
    QTest::newRow("with extension") << "plan.dwg" << 0 << "plan.dwg";
    QTest::newRow("upper case") << "plan.DWG" << 0 << "plan.DWG";
    QTest::newRow("type with two extensions") << "plan" << 1 << "plan.dwg;dxf";
    QTest::newRow("type without extension") << "plan" << 4 << "plan";
    QTest::newRow("cyrillic") << QString::fromUtf8("План") << 0 << QString::fromUtf8("План.dwg");
    QTest::newRow("ampersand") << "R&D" << 0 << "R&D.dwg";
}

void SaveDialogTest::savesUnderTypedName()
{
    QFETCH(QString, typed);
    QFETCH(int, type);
    QFETCH(QString, saved);
    DrawingFolder folder;
    HostRequest request = saveRequest(folder.path());
    request.typeIndex = type;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>()->setText(typed);
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.mode, CVyUserIO::Save);
    QCOMPARE(request.typeIndex, type);
    QCOMPARE(request.paths, QStringList{folder.filePath(saved)});
}

void SaveDialogTest::presetName()
{
    DrawingFolder folder;
    HostRequest request = saveRequest(folder.filePath("new.dwg"));
    request.withTypeIndex = false;
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), QStringLiteral("new.dwg"));
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    })});
    QCOMPARE(request.paths, QStringList{folder.filePath("new.dwg")});
}

void SaveDialogTest::asksBeforeOverwriting_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<bool>("asks");
    QTest::newRow("novice") << 0 << true;
    QTest::newRow("level 1") << 1 << true;
    QTest::newRow("level 2") << 2 << false;
    QTest::newRow("level 9") << 9 << false;
    QTest::newRow("negative level") << -1 << true;
}

void SaveDialogTest::asksBeforeOverwriting()
{
    QFETCH(int, level);
    QFETCH(bool, asks);
    GetVySystemServices()->GetSettings().SetExpertLevel(level);
    DrawingFolder folder;
    const QString plan = folder.addFile("plan.dwg");
    HostRequest request = saveRequest(plan);
    std::vector<DialogDriver::Step> steps{onFileDialog([](QFileDialog& dialog) {
        waitForFile(dialog, "plan.dwg");
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    })};
    if (asks)
        steps.push_back(answer(QMessageBox::Yes));
    QCOMPARE(request.getFileName(steps), VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList{plan});
}

void SaveDialogTest::keepsTheFileWhenTheUserSaysNo()
{
    DrawingFolder folder;
    const QString plan = folder.addFile("plan.dwg");
    HostRequest request = saveRequest(plan);
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
                             waitForFile(dialog, "plan.dwg");
                             QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
                             QVERIFY(dialog.isVisible());
                             dialog.reject();
                         }),
                         answer(QMessageBox::No)});
    QCOMPARE(request.status, VyStatus::Cancelled);
    QVERIFY(request.paths.isEmpty());
    QVERIFY(QFile::exists(plan));
}

void SaveDialogTest::typeChangeAdaptsTheName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("shown");
    QTest::newRow("another extension") << "plan.txt" << 1 << "plan.dwg";
    QTest::newRow("first extension") << "plan.dwg" << 1 << "plan.dwg";
    QTest::newRow("second extension") << "plan.dxf" << 1 << "plan.dxf";
    QTest::newRow("second extension, upper case") << "plan.DXF" << 1 << "plan.DXF";
    QTest::newRow("double extension") << "archive.tar.gz" << 1 << "archive.tar.dwg";
    QTest::newRow("no extension") << "plan" << 1 << "plan.dwg";
    QTest::newRow("existing folder") << "folder.txt" << 1 << "folder.txt";
    QTest::newRow("upper-case type") << "plan.dwg" << 3 << "plan.DWT";
    QTest::newRow("type without extension stops the rule for all") << "plan.dxf" << 4 << "plan.dxf";
}

void SaveDialogTest::typeChangeAdaptsTheName()
{
    QFETCH(QString, typed);
    QFETCH(int, type);
    QFETCH(QString, shown);
    DrawingFolder folder;
    folder.addFolder("folder.txt");
    HostRequest request = saveRequest(folder.path());
    if (type != 4) // a type without extensions makes the two lists differ in length
        request.filter.chop(6);
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        typeName(dialog, typed);
        chooseType(dialog, type);
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), shown);
        dialog.reject();
    })});
}

void SaveDialogTest::firstTypeAdaptsTheName()
{
    const DrawingFolder folder;
    HostRequest request = saveRequest(folder.path());
    request.filter = "Drawing&*.dwg&Exchange&*.dxf";
    request.typeIndex = 1;
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        typeName(dialog, "plan.dxf");
        chooseType(dialog, 0);
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), QString("plan.dwg"));
        dialog.reject();
    })});
}

void SaveDialogTest::sameTypeAgainKeepsTheName()
{
    HostRequest request = saveRequest(QString());
    request.filter = QStringLiteral("Both&*.dwg;*.dxf");
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        typeName(dialog, "plan.DXF");
        chooseType(dialog, 0);
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), QStringLiteral("plan.DXF"));
        dialog.reject();
    })});
}

void SaveDialogTest::typesOfOneNameKeepTheName()
{
    HostRequest request = saveRequest(QString());
    request.filter = QStringLiteral("Drawing&*.dwg&Drawing&*.dwg&Web&*.dwf");
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        for (const char* name : {"first.dwg", "second.dwg"}) {
            typeName(dialog, name);
            chooseType(dialog, 1);
            QCOMPARE(dialog.findChild<QLineEdit*>()->text(), QLatin1String(name));
        }
        dialog.reject();
    })});
}

void SaveDialogTest::typeChangeThenSave()
{
    DrawingFolder folder;
    HostRequest request = saveRequest(folder.path());
    request.filter = QStringLiteral("Drawing&*.dwg&Web&*.dwf");
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        typeName(dialog, "plan.dwg");
        chooseType(dialog, 1);
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    })});
    QCOMPARE(request.paths, QStringList{folder.filePath("plan.dwf")});
    QCOMPARE(request.typeIndex, 1);
}

void SaveDialogTest::templateTypeSwitchesTheFolder_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<bool>("switches");
    QTest::newRow("template") << 0x4U << 2 << true;
    QTest::newRow("template, with a bit that only opening reads") << 0x404U << 2 << true;
    QTest::newRow("upper case") << 0x4U << 3 << false;
    QTest::newRow("another type") << 0x4U << 1 << false;
}

void SaveDialogTest::templateTypeSwitchesTheFolder()
{
    QFETCH(unsigned, type);
    QFETCH(int, chosen);
    QFETCH(bool, switches);
    DrawingFolder drawings;
    DrawingFolder templates;
    GetVySystemServices()->SetTemplateFolder(CVyString(templates.path()));
    HostRequest request = saveRequest(drawings.path());
    request.type = type;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        chooseType(dialog, chosen);
        QCOMPARE(dialog.directory().absolutePath(), switches ? templates.path() : drawings.path());
        dialog.reject();
    })});
}

void SaveDialogTest::templateSwitchNeedsAPreselectedType()
{
    DrawingFolder drawings;
    DrawingFolder templates;
    GetVySystemServices()->SetTemplateFolder(CVyString(templates.path()));
    HostRequest request = saveRequest(drawings.path());
    request.withTypeIndex = false;
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        chooseType(dialog, 2);
        QCOMPARE(dialog.directory().absolutePath(), drawings.path());
        dialog.reject();
    })});
}

void SaveDialogTest::severalPathsRequestSavesOne()
{
    DrawingFolder folder;
    HostRequest request = saveRequest(folder.filePath("plan"));
    request.getFileNames({onFileDialog([](QFileDialog& dialog) {
        QCOMPARE(dialog.fileMode(), QFileDialog::AnyFile);
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList{folder.filePath("plan")});
}

QTEST_MAIN(SaveDialogTest)
#include "SaveDialogTest.moc"

// SPDX-License-Identifier: MIT
// On a desktop whose platform theme brings a file dialog of its own, ours is
// still Qt's.
#include "DrawingFolder.h"
#include "HostRequest.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QtTest>

class NativeThemeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ourDialogIsQts();
};

void NativeThemeTest::ourDialogIsQts()
{
    const QFileDialog plain;
    if (plain.findChild<QDialogButtonBox*>())
        QSKIP("no platform theme with a file dialog is installed");

    DrawingFolder folder;
    const QString plan = folder.addFile("plan.dwg");
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    for (const unsigned type : {0x1U, 0x2U, 0x4U}) {
        HostRequest request;
        request.type = type;
        request.flags = CVyUserIO::FileNameModeChoices;
        request.start = folder.path();
        request.withTypeIndex = false;
        request.defaultExtension = QStringLiteral("dwg");
        request.getFileName({onFileDialog([&](QFileDialog& dialog) {
            QVERIFY(dialog.testOption(QFileDialog::DontUseNativeDialog));
            QCOMPARE(dialog.windowTitle(), request.title);
            QVERIFY(dialog.findChild<QDialogButtonBox*>()->isVisible());
            const auto* row = dialog.findChild<QHBoxLayout*>(QStringLiteral("pathBar"));
            QVERIFY(row->count() > 1);
            QCOMPARE(dialog.directory().absolutePath(), folder.path());
            QCOMPARE(dialog.nameFilters().size(), 3);
            if (type == CVyUserIO::FileNameSave) {
                typeName(dialog, "new");
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
                return;
            }
            QVERIFY(clickFile(dialog, "plan.dwg"));
            typeAndAccept(dialog, "plan.dwg");
        })});
        QCOMPARE(request.status, VyStatus::Accepted);
        QCOMPARE(request.paths, QStringList{type == 4 ? folder.filePath("new.dwg") : plan});
    }
}

int main(int argc, char** argv)
{
    // Comes with Qt itself; it asks the desktop over D-Bus for its dialogs.
    qputenv("QT_QPA_PLATFORMTHEME", "xdgdesktopportal");
    QApplication application(argc, argv);
    NativeThemeTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "NativeThemeTest.moc"

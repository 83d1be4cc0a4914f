// SPDX-License-Identifier: MIT
#include "VyFileTypeList.h"

#include <QTemporaryDir>
#include <QtTest>

/// The name that a typed name becomes when the user chooses another type.
class NameForTypeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheExtension_data();
    void givesTheExtension();
    void keepsTheName_data();
    void keepsTheName();
    void keepsAbsoluteNameWithTheExtension();
    void leavesTheFolderOut();
    void repeatsADottedExtension();
};

void NameForTypeTest::givesTheExtension_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");

    QTest::newRow("other extension") << "plan.txt"
                                     << "plan.dwg";
    QTest::newRow("no extension") << "plan"
                                  << "plan.dwg";
    QTest::newRow("two extensions") << "archive.tar.gz"
                                    << "archive.tar.dwg";
    QTest::newRow("wanted extension before another") << "plan.dwg.bak"
                                                     << "plan.dwg.dwg";
    QTest::newRow("beginning of the extension") << "plan.dw"
                                                << "plan.dwg";
    QTest::newRow("more than the extension") << "plan.dwgs"
                                             << "plan.dwg";
    QTest::newRow("extension as a name") << "dwg"
                                         << "dwg.dwg";
    QTest::newRow("both extensions joined") << "plan.dwg;dxf"
                                            << "plan.dwg";
    QTest::newRow("dot at the end") << "plan."
                                    << "plan.dwg";
    QTest::newRow("two dots at the end") << "plan.."
                                         << "plan..dwg";
    QTest::newRow("hidden") << ".profile"
                            << ".dwg";
    QTest::newRow("hidden, with extension") << ".profile.txt"
                                            << ".profile.dwg";
    QTest::newRow("in a folder") << "existing.old/plan.txt"
                                 << "plan.dwg";
    QTest::newRow("in a missing folder") << "missing/plan.txt"
                                         << "plan.dwg";
    QTest::newRow("in the folder above") << "../plan.txt"
                                         << "plan.dwg";
    QTest::newRow("of an existing file") << "file.txt"
                                         << "file.dwg";
    QTest::newRow("of a missing folder, nearly") << "existing.older"
                                                 << "existing.dwg";
    QTest::newRow("ampersand") << "R&D.txt"
                               << "R&D.dwg";
    QTest::newRow("line end") << "a\nb.txt"
                              << "a\nb.dwg";
    QTest::newRow("line end in the extension") << "plan.tx\nt"
                                               << "plan.dwg";
    QTest::newRow("Cyrillic") << QStringLiteral("План.чер") << QStringLiteral("План.dwg");
    QTest::newRow("beyond the basic plane")
        << QStringLiteral("\U0001F600.txt") << QStringLiteral("\U0001F600.dwg");
    QTest::newRow("surrogate alone")
        << QString(QString(QChar(0xd83d)) + ".txt") << QString(QString(QChar(0xd83d)) + ".dwg");
    QTest::newRow("blanks at the ends") << " plan .txt"
                                        << " plan .dwg";
    QTest::newRow("blank behind the extension") << "plan.dwg "
                                                << "plan.dwg";
    QTest::newRow("colon and number sign") << "some:fi#le.txt"
                                           << "some:fi#le.dwg";
    QTest::newRow("percent") << "100%1.txt"
                             << "100%1.dwg";
}

void NameForTypeTest::givesTheExtension()
{
    QFETCH(QString, typed);
    QFETCH(QString, name);

    QTemporaryDir folder;
    const QDir dir(folder.path());
    QVERIFY(dir.mkdir("existing.old"));
    QFile file(dir.filePath("file.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));

    const QStringList extensions{"dwg", "dxf"};
    QCOMPARE(VyFileTypeList::nameForType(dir, typed, extensions), name);
    QCOMPARE(VyFileTypeList::nameForType(dir, name, extensions), name);
}

void NameForTypeTest::keepsTheName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("extensions");

    const QStringList two{"dwg", "dxf"};
    QTest::newRow("first extension") << "plan.dwg" << two;
    QTest::newRow("second extension") << "plan.dxf" << two;
    QTest::newRow("in capitals") << "plan.DXF" << two;
    QTest::newRow("in mixed case") << "plan.DwG" << two;
    QTest::newRow("type in capitals") << "plan.dwg" << QStringList{"DWG"};
    QTest::newRow("Cyrillic in capitals")
        << QStringLiteral("План.ЧЕР") << QStringList{QStringLiteral("чер")};
    QTest::newRow("behind another extension") << "archive.tar.dwg" << two;
    QTest::newRow("behind two dots") << "plan..dwg" << two;
    QTest::newRow("hidden") << ".dwg" << two;
    QTest::newRow("in a folder") << "existing.old/plan.dwg" << two;
    QTest::newRow("existing folder") << "existing.old" << two;
    QTest::newRow("existing folder, with separator") << "existing.old/" << two;
    QTest::newRow("folder in a folder") << "existing.old/deep" << two;
    QTest::newRow("link to a folder") << "link.old" << two;
    QTest::newRow("this folder") << "." << two;
    QTest::newRow("folder above") << ".." << two;
    QTest::newRow("root") << "/" << two;
    QTest::newRow("nothing typed") << "" << two;
    QTest::newRow("type without extensions") << "plan.txt" << QStringList();
    QTest::newRow("type without extensions, none typed") << "plan" << QStringList();
}

void NameForTypeTest::keepsTheName()
{
    QFETCH(QString, typed);
    QFETCH(QStringList, extensions);

    QTemporaryDir folder;
    const QDir dir(folder.path());
    QVERIFY(dir.mkpath("existing.old/deep"));
    QVERIFY(QFile::link("existing.old", dir.filePath("link.old")));
    QCOMPARE(VyFileTypeList::nameForType(dir, typed, extensions), typed);
}

void NameForTypeTest::keepsAbsoluteNameWithTheExtension()
{
    const QTemporaryDir folder;
    const QString typed = folder.filePath("plan.dwg");
    QCOMPARE(VyFileTypeList::nameForType(QDir::root(), typed, {"dwg"}), typed);
}

void NameForTypeTest::leavesTheFolderOut()
{
    const QTemporaryDir folder;
    const QString typed = folder.filePath("plan.txt");
    QCOMPARE(VyFileTypeList::nameForType(QDir::root(), typed, {"dwg"}), QString("plan.dwg"));
}

// What follows a name's last dot never equals an extension with a dot.
void NameForTypeTest::repeatsADottedExtension()
{
    const QTemporaryDir folder;
    const QDir dir(folder.path());
    QCOMPARE(VyFileTypeList::nameForType(dir, "plan.txt", {"tar.gz"}), QString("plan.tar.gz"));
    QCOMPARE(VyFileTypeList::nameForType(dir, "plan.tar.gz", {"tar.gz"}),
             QString("plan.tar.tar.gz"));
}

QTEST_GUILESS_MAIN(NameForTypeTest)
#include "NameForTypeTest.moc"

// SPDX-License-Identifier: MIT
// Names that a user's files may have. OpenDialogTest::strangeNamesComeBack has those
// that need less room.
#include "DrawingFolder.h"
#include "UnharmedHost.h"

#include <QLineEdit>
#include <QtTest>

#include <fcntl.h>
#include <unistd.h>

namespace {

// With the name as its content.
void addRawFile(const DrawingFolder& folder, const QByteArray& name)
{
    const QByteArray path = QFile::encodeName(folder.path()) + '/' + name;
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    const ssize_t written = write(file, name.constData(), static_cast<size_t>(name.size()));
    close(file);
    QCOMPARE(written, ssize_t(name.size()));
}

// What a host reads of the file that it is given.
QByteArray contentOf(const QStringList& paths)
{
    QFile file(paths.value(0));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class StrangeNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void opensTheVeryFile_data();
    void opensTheVeryFile();
    void savedUnderTheLongestName();
    void nameTooLongIsNotSaved();
    void undecodableNameIsNotListed();
    void undecodableNameCannotBeTyped();
    void replacementCharacterIsItself();
};

void StrangeNamesTest::opensTheVeryFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("255 bytes") << QString(251, 'n') + ".dwg";
    QTest::newRow("255 bytes of Cyrillic") << QString(125, QChar(0x43f)) + "n.dwg";
    QTest::newRow("right-to-left override") << QStringLiteral("plan\u202egwd.exe");
    QTest::newRow("right-to-left mark") << QStringLiteral("\u200fplan\u200f.dwg");
    QTest::newRow("line ends alone") << "\n\r\n";
    QTest::newRow("line end last") << "plan.dwg\n";
    QTest::newRow("option") << "--help";
    QTest::newRow("dash alone") << "-";
    QTest::newRow("dots at the end") << "plan.dwg...";
    QTest::newRow("blanks at the end") << "plan.dwg   ";
    QTest::newRow("dot and blank at the end") << "plan. ";
    QTest::newRow("three dots") << "...";
}

// Beside a file whose name a careless reader would take for the same.
void StrangeNamesTest::opensTheVeryFile()
{
    QFETCH(QString, name);
    UnharmedHost host;
    DrawingFolder folder;
    const QString file = folder.addFile(name, "this one");
    folder.addFile("plan.dwg", "another one");
    folder.addFile("help", "another one");
    HostRequest request = openRequest(folder.path());
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        if (name.startsWith('.'))
            dialog.setFilter(dialog.filter() | QDir::Hidden); // as the list's menu does
        QVERIFY(clickFile(dialog, name));
        QVERIFY(listedNames(dialog).contains(name));
        clickButton(dialog, QDialogButtonBox::Open);
    })});
    expectChosen(request, file);
    QCOMPARE(contentOf(request.paths), QByteArray("this one"));
    host.expectUnharmed();
}

void StrangeNamesTest::savedUnderTheLongestName()
{
    UnharmedHost host;
    DrawingFolder folder;
    const QString name = QString(251, 'n') + ".dwg";
    HostRequest request = openRequest(folder.path());
    request.type = CVyUserIO::FileNameSave;
    request.withTypeIndex = false; // the name stays as it was typed
    request.getFileName({onFileDialog([&](QFileDialog& dialog) { typeAndAccept(dialog, name); })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList{folder.filePath(name)});
    QVERIFY(QFile(request.paths.constFirst()).open(QIODevice::WriteOnly));
    host.expectUnharmed();
}

// The dialog stays open for a shorter one.
void StrangeNamesTest::nameTooLongIsNotSaved()
{
    UnharmedHost host;
    DrawingFolder folder;
    HostRequest request = openRequest(folder.path());
    request.type = CVyUserIO::FileNameSave;
    request.withTypeIndex = false; // the name stays as it was typed
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        typeAndAccept(dialog, QString(252, 'n') + ".dwg");
        QVERIFY(dialog.isVisible());
        typeAndAccept(dialog, "n.dwg");
    })});
    QCOMPARE(request.paths, QStringList{folder.filePath("n.dwg")});
    host.expectUnharmed();
}

// Qt has no way to name it. A file that it can name is not taken for it.
void StrangeNamesTest::undecodableNameIsNotListed()
{
    UnharmedHost host;
    DrawingFolder folder;
    addRawFile(folder, "bad\xff\xfe.dwg");
    addRawFile(folder, "good.dwg");
    HostRequest request = openRequest(folder.path());
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(waitForFile(dialog, "good.dwg"));
        QTest::qWait(200);
        QCOMPARE(listedNames(dialog), QStringList{"good.dwg"});
        clickButton(dialog, QDialogButtonBox::Cancel);
    })});
    expectCancelled(request);
    host.expectUnharmed();
}

void StrangeNamesTest::undecodableNameCannotBeTyped()
{
    UnharmedHost host;
    DrawingFolder folder;
    const QByteArray name("bad\xff\xfe.dwg");
    addRawFile(folder, name);
    HostRequest request = openRequest(folder.path());
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
                             typeName(dialog, QString());
                             dialog.findChild<QLineEdit*>()->insert(QFile::decodeName(name));
                             QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
                             QVERIFY(dialog.isVisible());
                             clickButton(dialog, QDialogButtonBox::Cancel);
                         }),
                         [](QDialog& message) { message.accept(); }});
    expectCancelled(request);
    host.expectUnharmed();
}

// As which Qt shows what it cannot decode.
void StrangeNamesTest::replacementCharacterIsItself()
{
    UnharmedHost host;
    DrawingFolder folder;
    const QByteArray undecodable("bad\xff\xfe.dwg");
    const QString name = QFile::decodeName(undecodable);
    QVERIFY(QFile::encodeName(name) != undecodable);
    addRawFile(folder, undecodable);
    addRawFile(folder, QFile::encodeName(name));
    HostRequest request = openRequest(folder.path());
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, name));
        QCOMPARE(listedNames(dialog), QStringList{name});
        clickButton(dialog, QDialogButtonBox::Open);
    })});
    expectChosen(request, folder.filePath(name));
    QCOMPARE(contentOf(request.paths), QFile::encodeName(name));
    host.expectUnharmed();
}

QTEST_MAIN(StrangeNamesTest)
#include "StrangeNamesTest.moc"

// SPDX-License-Identifier: MIT
// A host that has no display for a Qt dialog: its requests fail, and it goes on. Qt ends
// a host that makes a QApplication without one; ProgramTest::noDisplay tells what the
// sample host does instead.
#include "HostRequest.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QtTest>

namespace {

void addRequests()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<bool>("several");
    for (const bool several : {false, true}) {
        const char* const files = several ? "several files" : "one file";
        QTest::addRow("new, %s", files) << 0x1U << several;
        QTest::addRow("open, %s", files) << 0x2U << several;
        QTest::addRow("save, %s", files) << 0x4U << several;
    }
}

} // namespace

class WithoutDisplayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestFails_data() { addRequests(); }
    void requestFails();
};

// The outputs stay as they were, but for the mode, which tells what was asked for.
void WithoutDisplayTest::requestFails()
{
    QFETCH(unsigned, type);
    QFETCH(bool, several);
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    const QString before = QDir::currentPath();
    for (int time = 0; time < 2; ++time) {
        HostRequest request;
        request.type = type;
        request.typeIndex = 2;
        several ? request.getFileNames({}) : request.getFileName({});
        QCOMPARE(request.status, VyStatus::Failed);
        QCOMPARE(request.paths, QStringList());
        QCOMPARE(request.typeIndex, 2);
        QCOMPARE(request.codePage, nullptr);
        QCOMPARE(request.mode, type == 0x4U   ? CVyUserIO::Save
                               : type == 0x1U ? CVyUserIO::NewFromTemplate
                                              : CVyUserIO::Open);
        QCOMPARE(QDir::currentPath(), before);
    }
}

// A host without an application object, one without windows, and one that has windows
// but no widgets.
int main(int argc, char* argv[])
{
    WithoutDisplayTest test;
    int failures = QTest::qExec(&test, argc, argv);
    {
        const QCoreApplication application(argc, argv);
        failures += QTest::qExec(&test, argc, argv);
    }
    const QGuiApplication application(argc, argv);
    return failures + QTest::qExec(&test, argc, argv);
}

#include "WithoutDisplayTest.moc"

// SPDX-License-Identifier: MIT
#include "HostRequest.h"

#include "VyFileDialogImpl.h"

#include <QtTest>

/// A build without native panels.
class NoNativeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsNoBackEnd();
    void requestsFail();
};

void NoNativeTest::thereIsNoBackEnd()
{
    for (unsigned kind = 0; kind < 0x100; ++kind) {
        for (const bool flag : {false, true}) {
            const std::unique_ptr<CVyFileDialogImpl> impl(CVyFileDialogImpl::createMac(
                static_cast<CVyUserIO::_FileNameType>(kind), flag, flag));
            QVERIFY(!impl);
        }
    }
}

void NoNativeTest::requestsFail()
{
    CVyFileDialog::Create();
    HostRequest open;
    QCOMPARE(open.getFileName({}), -5001);
    QCOMPARE(open.getFileNames({}), -5001);
    QCOMPARE(open.mode, HostRequest::untouchedMode());
    QCOMPARE(open.paths, QStringList());
    QCOMPARE(open.typeIndex, 0);
}

QTEST_GUILESS_MAIN(NoNativeTest)
#include "NoNativeTest.moc"

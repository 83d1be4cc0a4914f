// SPDX-License-Identifier: MIT
#include "VyUtilsMacNative.h"

#include <QOperatingSystemVersion>
#include <QtTest>

/// Which macOS this is, if it is one: the native panels choose by it how hidden
/// files are shown.
class SystemVersionContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsMajorMinorAndPatch();
    void staysTheSame();
};

// 100700 is 10.7; elsewhere it is 0, which is older than any.
void SystemVersionContract::holdsMajorMinorAndPatch()
{
    const int version = CVyUtilsMacNative::getSystemVersion();
    const auto system = QOperatingSystemVersion::current();
    if (system.type() != QOperatingSystemVersion::MacOS) {
        QCOMPARE(version, 0);
        return;
    }
    QCOMPARE(version / 10000, system.majorVersion());
    QCOMPARE(version / 100 % 100, system.minorVersion());
}

void SystemVersionContract::staysTheSame()
{
    const int version = CVyUtilsMacNative::getSystemVersion();
    QCOMPARE(CVyUtilsMacNative::getSystemVersion(), version);
}

QTEST_GUILESS_MAIN(SystemVersionContract)
#include "SystemVersionContract.moc"

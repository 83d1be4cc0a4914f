// SPDX-License-Identifier: MIT
#include "VyUtilsMacNative.h"

#include <QOperatingSystemVersion>
#include <QSysInfo>
#include <QVersionNumber>
#include <QtTest>

/// Which macOS this is, if it is one.
class SystemVersionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isZeroElsewhere();
    void holdsTheParts();
    void staysTheSame();

private:
    static bool isMacOS()
    {
        return QOperatingSystemVersion::currentType() == QOperatingSystemVersion::MacOS;
    }
};

void SystemVersionTest::isZeroElsewhere()
{
    if (isMacOS())
        QVERIFY(CVyUtilsMacNative::getSystemVersion() >= 100000);
    else
        QCOMPARE(CVyUtilsMacNative::getSystemVersion(), 0);
}

// As the system writes it; it leaves out a patch that is zero.
void SystemVersionTest::holdsTheParts()
{
    if (!isMacOS())
        QSKIP("this is no macOS");
    const int version = CVyUtilsMacNative::getSystemVersion();
    const QVersionNumber parts(version / 10000, version / 100 % 100, version % 100);
    const QVersionNumber product = QVersionNumber::fromString(QSysInfo::productVersion());
    QCOMPARE(parts.normalized(), product.normalized());
}

void SystemVersionTest::staysTheSame()
{
    const int version = CVyUtilsMacNative::getSystemVersion();
    QCOMPARE(CVyUtilsMacNative::getSystemVersion(), version);
}

QTEST_MAIN(SystemVersionTest)
#include "SystemVersionTest.moc"

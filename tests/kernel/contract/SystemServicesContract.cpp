// SPDX-License-Identifier: MIT
#include "KernelUnderTest.h"
#include "VySystemServices.h"

#include <QtTest>

namespace {

QString templateFolder()
{
    return GetVySystemServices()->GetTemplateFolder();
}

int expertLevel()
{
    return GetVySystemServices()->GetSettings().GetExpertLevel();
}

} // namespace

/// What the dialogs ask the host about its user.
class SystemServicesContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answerFromTheStart();
    void areTheSameForAll();
    void knowTheTemplateFolder_data();
    void knowTheTemplateFolder();
    void knowTheExpertLevel_data();
    void knowTheExpertLevel();
};

// Before the host has said anything: there is a level, and a folder to look in.
void SystemServicesContract::answerFromTheStart()
{
    QVERIFY(GetVySystemServices());
    QVERIFY(expertLevel() >= 0);
    QVERIFY(!templateFolder().isEmpty());
}

void SystemServicesContract::areTheSameForAll()
{
    QCOMPARE(GetVySystemServices(), GetVySystemServices());
}

void SystemServicesContract::knowTheTemplateFolder_data()
{
    QTest::addColumn<QString>("folder");

    QTest::newRow("absolute") << "/srv/templates";
    QTest::newRow("separator at the end") << "/srv/templates/";
    QTest::newRow("blank") << "/srv/my templates";
    QTest::newRow("Cyrillic") << QStringLiteral("/Шаблоны");
    QTest::newRow("beyond the basic plane") << QStringLiteral("/\U0001F600");
}

// As it stands: the folder is the host's, and need not exist.
void SystemServicesContract::knowTheTemplateFolder()
{
    QFETCH(QString, folder);

    KernelUnderTest::setTemplateFolder(folder);
    QCOMPARE(templateFolder(), folder);
    QCOMPARE(templateFolder(), folder);
}

void SystemServicesContract::knowTheExpertLevel_data()
{
    QTest::addColumn<int>("level");

    QTest::newRow("beginner") << 0;
    QTest::newRow("asks before overwriting") << 1;
    QTest::newRow("overwrites") << 2;
    QTest::newRow("more") << 3;
}

void SystemServicesContract::knowTheExpertLevel()
{
    QFETCH(int, level);

    KernelUnderTest::setExpertLevel(level);
    QCOMPARE(expertLevel(), level);
}

QTEST_MAIN(SystemServicesContract)
#include "SystemServicesContract.moc"

// SPDX-License-Identifier: MIT
#include "VySystemServices.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <climits>

namespace {

CVySystemServices& services()
{
    return *GetVySystemServices();
}

} // namespace

/// What the host tells the dialogs about its user.
class SystemServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void areTheSameForAll();
    void defaultTemplateFolder_data();
    void defaultTemplateFolder();
    void keepsTheTemplateFolder_data();
    void keepsTheTemplateFolder();
    void emptyFolderBringsTheDefaultBack();
    void keepsTheExpertLevel_data();
    void keepsTheExpertLevel();

private:
    const QByteArray m_dataHome = qgetenv("XDG_DATA_HOME");
};

// As the library was loaded.
void SystemServicesTest::initTestCase()
{
    QCOMPARE(services().GetSettings().GetExpertLevel(), 0);
}

void SystemServicesTest::cleanup()
{
    qputenv("XDG_DATA_HOME", m_dataHome);
    services().SetTemplateFolder(CVyString());
    services().GetSettings().ResetExpertLevel();
}

void SystemServicesTest::areTheSameForAll()
{
    QVERIFY(GetVySystemServices());
    QCOMPARE(GetVySystemServices(), GetVySystemServices());
    QCOMPARE(&services().GetSettings(), &services().GetSettings());
}

void SystemServicesTest::defaultTemplateFolder_data()
{
    QTest::addColumn<QString>("application");

    QTest::newRow("plain") << "Draughts";
    QTest::newRow("blank and Cyrillic") << QStringLiteral("Мои планы");
}

void SystemServicesTest::defaultTemplateFolder()
{
    QFETCH(QString, application);

    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", QFile::encodeName(data.path()));
    const QString previous = QCoreApplication::applicationName();
    QCoreApplication::setApplicationName(application);
    const QString folder = services().GetTemplateFolder();
    QCoreApplication::setApplicationName(previous);

    QCOMPARE(folder, data.filePath(application + "/templates"));
    QVERIFY(!QFile::exists(folder));
}

void SystemServicesTest::keepsTheTemplateFolder_data()
{
    QTest::addColumn<QString>("folder");

    QTest::newRow("absolute") << "/srv/templates";
    QTest::newRow("separator at the end") << "/srv/templates/";
    QTest::newRow("relative") << "templates";
    QTest::newRow("blank") << " ";
    QTest::newRow("Cyrillic") << QStringLiteral("/Шаблоны");
}

void SystemServicesTest::keepsTheTemplateFolder()
{
    QFETCH(QString, folder);

    services().SetTemplateFolder(CVyString(folder));
    QCOMPARE(QString(services().GetTemplateFolder()), folder);
}

void SystemServicesTest::emptyFolderBringsTheDefaultBack()
{
    const QString before = services().GetTemplateFolder();
    services().SetTemplateFolder(L"/srv/templates");
    services().SetTemplateFolder(CVyString());
    QCOMPARE(QString(services().GetTemplateFolder()), before);
    QVERIFY(before.endsWith("/templates"));
}

void SystemServicesTest::keepsTheExpertLevel_data()
{
    QTest::addColumn<int>("level");

    QTest::newRow("beginner") << 0;
    QTest::newRow("asks before overwriting") << 1;
    QTest::newRow("overwrites") << 2;
    QTest::newRow("largest") << INT_MAX;
    QTest::newRow("negative") << -1;
}

void SystemServicesTest::keepsTheExpertLevel()
{
    QFETCH(int, level);

    services().GetSettings().SetExpertLevel(level);
    QCOMPARE(GetVySystemServices()->GetSettings().GetExpertLevel(), level);
}

QTEST_GUILESS_MAIN(SystemServicesTest)
#include "SystemServicesTest.moc"

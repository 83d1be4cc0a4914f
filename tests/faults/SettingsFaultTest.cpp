// SPDX-License-Identifier: MIT
// Qt's dialogs save how the user left them when they go, in a file of the user's. The
// answer of a request does not depend on it.
#include "DrawingFolder.h"
#include "FullDisk.h"
#include "PlainUser.h"
#include "UnharmedHost.h"

#include <QSettings>
#include <QtTest>

#include <optional>

#include <sys/stat.h>

namespace {

// Asked for once: a QSettings writes what one before it could not.
const QString& settingsFile()
{
    static const QString name =
        QSettings(QSettings::UserScope, QStringLiteral("QtProject")).fileName();
    return name;
}

QByteArray savedSettings()
{
    QFile file(settingsFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The folder of the settings cannot be written to, whoever runs the test: modes count
// for a plain user alone.
class ReadOnlyHome
{
public:
    ReadOnlyHome()
    {
        setMode(0555);
        m_user.emplace();
    }
    ~ReadOnlyHome()
    {
        m_user.reset();
        setMode(0755);
    }
    Q_DISABLE_COPY(ReadOnlyHome)

private:
    static void setMode(mode_t mode)
    {
        if (chmod(QFile::encodeName(QFileInfo(settingsFile()).path()).constData(), mode) != 0)
            qFatal("the folder of the settings keeps its mode");
    }

    std::optional<PlainUser> m_user;
};

} // namespace

class SettingsFaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void answerComes_data();
    void answerComes();
};

void SettingsFaultTest::answerComes_data()
{
    QTest::addColumn<bool>("fullDisk");
    QTest::addColumn<bool>("readOnlyHome");
    QTest::newRow("nothing in the way") << false << false;
    QTest::newRow("disk full") << true << false;
    QTest::newRow("home read-only") << false << true;
}

void SettingsFaultTest::answerComes()
{
    QFETCH(bool, fullDisk);
    QFETCH(bool, readOnlyHome);
    UnharmedHost host;
    DrawingFolder folder;
    QCOMPARE(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    const QString plan = folder.addFile("plan.dwg");
    {
        QSettings settings(QSettings::UserScope, QStringLiteral("QtProject"));
        settings.setValue(QStringLiteral("FileDialog/viewMode"), QStringLiteral("List"));
    }
    const QByteArray before = savedSettings();
    QVERIFY(before.contains("viewMode=List"));

    HostRequest request = openRequest(folder.path());
    {
        std::optional<FullDisk> disk;
        std::optional<ReadOnlyHome> home;
        if (readOnlyHome)
            home.emplace();
        request.getFileName({onFileDialog([&](QFileDialog& dialog) {
            dialog.setViewMode(QFileDialog::Detail);
            QVERIFY(clickFile(dialog, "plan.dwg"));
            if (fullDisk)
                disk.emplace(0);
            clickButton(dialog, QDialogButtonBox::Open);
        })});
    }
    expectChosen(request, plan);
    if (fullDisk || readOnlyHome)
        QCOMPARE(savedSettings(), before);
    else
        QVERIFY(savedSettings().contains("viewMode=Detail"));
    host.expectUnharmed();
}

QTEST_MAIN(SettingsFaultTest)
#include "SettingsFaultTest.moc"

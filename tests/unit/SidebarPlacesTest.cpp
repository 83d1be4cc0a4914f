// SPDX-License-Identifier: MIT
#include "VySidebarPlaces.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using Urls = QList<QUrl>;

namespace {

QStringList texts(const Urls& urls)
{
    QStringList result;
    for (const QUrl& url : urls)
        result.append(url.toString(QUrl::FullyEncoded));
    return result;
}

} // namespace

/// The places that a request adds to the sidebar.
class SidebarPlacesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lists_data();
    void lists();
    void standsForTheFolder_data();
    void standsForTheFolder();
    void mediaIsTheHost_data();
    void mediaIsTheHost();
    void takesTheFoldersOfThisMachine();
};

void SidebarPlacesTest::lists_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QStringList>("media");
    QTest::addColumn<QStringList>("user");
    QTest::addColumn<QStringList>("urls");

    const QStringList none;
    QTest::newRow("start folder") << "/plans" << none << none << QStringList{"file:///plans"};
    QTest::newRow("no start folder") << "" << none << none << QStringList{"file://"};
    QTest::newRow("all, in order") << "/z" << QStringList{"USB", "CD"} << QStringList{"/b", "/a"}
                                   << QStringList{"file:///z", "file://media/USB",
                                                  "file://media/CD", "file:///b", "file:///a"};
    QTest::newRow("no start folder, but the others")
        << "" << QStringList{"USB"} << QStringList{"/b"}
        << QStringList{"file://", "file://media/USB", "file:///b"};
    QTest::newRow("hidden media") << "/z" << QStringList{".hidden", "USB", ".", ".."} << none
                                  << QStringList{"file:///z", "file://media/USB"};
    QTest::newRow("empty media entry")
        << "/z" << QStringList{"", "USB"} << none << QStringList{"file:///z", "file://media/USB"};
    QTest::newRow("dot inside a media entry")
        << "/z" << QStringList{"a.b"} << none << QStringList{"file:///z", "file://media/a.b"};
    QTest::newRow("the same folder twice")
        << "/b" << none << QStringList{"/b"} << QStringList{"file:///b", "file:///b"};
    QTest::newRow("hidden user folder")
        << "/z" << none << QStringList{"/.b"} << QStringList{"file:///z", "file:///.b"};
    QTest::newRow("root") << "/" << none << none << QStringList{"file:///"};
}

void SidebarPlacesTest::lists()
{
    QFETCH(QString, start);
    QFETCH(QStringList, media);
    QFETCH(QStringList, user);
    QFETCH(QStringList, urls);
    QCOMPARE(texts(VySidebarPlaces::urls(start, media, user)), urls);
}

void SidebarPlacesTest::standsForTheFolder_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << "plans";
    QTest::newRow("number sign") << "#1 plans #2";
    QTest::newRow("question mark") << "plans?new";
    QTest::newRow("percent") << "100%";
    QTest::newRow("percent and digits") << "100%41";
    QTest::newRow("escaped number sign") << "a%23b";
    QTest::newRow("all three") << "%#?%25#%";
    QTest::newRow("blanks") << " plans of mine ";
    QTest::newRow("line end") << "a\nb";
    QTest::newRow("tab") << "a\tb";
    QTest::newRow("ampersand") << "R&D";
    QTest::newRow("colon and at sign") << "a:b@c";
    QTest::newRow("brackets") << "[a]{b}<c>|\"^`";
    QTest::newRow("backslash") << "a\\b";
    QTest::newRow("Cyrillic") << QStringLiteral("Чертежи");
    QTest::newRow("beyond the basic plane") << QStringLiteral("\U0001F600");
    QTest::newRow("capitals") << "USB";
}

void SidebarPlacesTest::standsForTheFolder()
{
    QFETCH(QString, name);

    const QString folder = "/home/" + name;
    const Urls urls = VySidebarPlaces::urls(folder, {}, {folder});
    QCOMPARE(urls.size(), 2);
    for (const QUrl& url : urls) {
        QVERIFY2(url.isValid(), qPrintable(url.errorString()));
        QVERIFY(url.isLocalFile());
        QCOMPARE(url.host(), QString());
        QCOMPARE(url.toLocalFile(), folder);
        QVERIFY(!url.hasFragment());
        QVERIFY(!url.hasQuery());
    }
}

void SidebarPlacesTest::mediaIsTheHost_data()
{
    standsForTheFolder_data();
}

void SidebarPlacesTest::mediaIsTheHost()
{
    QFETCH(QString, name);

    const QUrl url = VySidebarPlaces::urls("/home", {name}, {}).value(1);
    QCOMPARE(url.scheme(), QString("file"));
    QCOMPARE(url.host(), QString("media"));
    QCOMPARE(url.path(QUrl::FullyDecoded), QString("/" + name));
    QVERIFY(!url.hasFragment());
    QVERIFY(!url.hasQuery());
}

void SidebarPlacesTest::takesTheFoldersOfThisMachine()
{
    const QTemporaryDir config;
    const QByteArray saved = qgetenv("XDG_CONFIG_HOME");
    QFile file(config.filePath("user-dirs.dirs"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("XDG_VIDEOS_DIR=\"/films\"\nXDG_DOCUMENTS_DIR=\"/papers\"\n"
               "XDG_PICTURES_DIR=\"/photos\"\nXDG_MUSIC_DIR=\"/songs\"\n");
    file.close();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config.path()));
    const Urls urls = VySidebarPlaces::urls("/start");
    qputenv("XDG_CONFIG_HOME", saved);

    const QStringList media = QDir("/media").entryList();
    QCOMPARE(urls, VySidebarPlaces::urls("/start", media, {"/papers", "/photos", "/films"}));
}

QTEST_GUILESS_MAIN(SidebarPlacesTest)
#include "SidebarPlacesTest.moc"

// SPDX-License-Identifier: MIT
// The text that bookmarks are kept in: what is written comes back, and what is
// damaged takes nothing else with it.
#include "VyBookmarkFormat.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace {

const QByteArray firstLine = "{\"entries\":2,\"format\":\"bookmarks\",\"version\":1}\n";
const QByteArray lineA = "{\"chosen\":\"2024-05-17T09:30:00.125Z\",\"path\":\"/a\"}\n";
const QByteArray lineB = "{\"chosen\":\"2024-05-16T09:30:00.000Z\",\"path\":\"/b\"}\n";
const QByteArray facts = "\"born\":\"2024-05-02T07:00:00.250Z\",\"device\":\"65024\",\"inode\":"
                         "\"18446744073709551615\",\"modified\":\"2024-05-16T15:12:44.001Z\","
                         "\"size\":48213";

QByteArray lineWith(const QByteArray& field)
{
    return "{\"chosen\":\"2024-05-17T09:30:00.125Z\",\"path\":\"/a\"," + field + "}\n";
}

QStringList paths(const VyBookmarkFormat::Contents& contents)
{
    QStringList list;
    for (const VyBookmarkEntry& entry : contents.entries)
        list.append(entry.bookmark.path);
    return list;
}

VyBookmarkEntry entry(const QString& path)
{
    VyBookmarkEntry result;
    result.bookmark.path = path;
    result.bookmark.chosen = QDateTime({2024, 5, 17}, {9, 30, 0, 125}, Qt::UTC);
    return result;
}

} // namespace

class BookmarkFormatTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOneLineAnEntry();
    void isAsDocumented();
    void keepsPaths_data();
    void keepsPaths();
    void keepsBytes_data();
    void keepsBytes();
    void keepsFacts();
    void keepsTheSystemsRecord();
    void holdsTheLongestEntries();
    void takesOtherWriting_data();
    void takesOtherWriting();
    void saysWhatIsDamaged_data();
    void saysWhatIsDamaged();
    void dropsWhatIsWrongInPart_data();
    void dropsWhatIsWrongInPart();
    void survivesEveryCut();
    void readsFewLines();
};

void BookmarkFormatTest::isOneLineAnEntry()
{
    const QByteArray text = VyBookmarkFormat::write({entry("/a\nb"), entry("/c\r\nd\u2028e")});
    QCOMPARE(text.count('\n'), 3);
    QVERIFY(text.endsWith('\n'));
    QVERIFY(!text.contains('\r'));
    for (const QByteArray& line : text.trimmed().split('\n'))
        QVERIFY(QJsonDocument::fromJson(line).isObject());
}

// A person and another program read it: to the byte.
void BookmarkFormatTest::isAsDocumented()
{
    QCOMPARE(VyBookmarkFormat::write({}),
             QByteArray("{\"entries\":0,\"format\":\"bookmarks\",\"version\":1}\n"));
    VyBookmarkEntry whole = entry(QStringLiteral("/pläne/\"a\"\\\t\uFFFD"));
    whole.bookmark.bytes = "/pl\xc3\xa4ne/a b%\xff";
    whole.system = QByteArray("\0\xff", 2);
    whole.file.device = 65024;
    whole.file.inode = 9007199254740993;
    whole.file.size = 48213;
    whole.file.modified = QDateTime({2024, 5, 16}, {15, 12, 44}, Qt::UTC);
    whole.file.born = QDateTime({2024, 5, 2}, {7, 0, 0, 250}, Qt::UTC);
    QCOMPARE(
        VyBookmarkFormat::write({whole}),
        QByteArray("{\"entries\":1,\"format\":\"bookmarks\",\"version\":1}\n"
                   "{\"bookmark\":\"AP8=\",\"bytes\":\"/pl%C3%A4ne/a%20b%25%FF\","
                   "\"chosen\":\"2024-05-17T09:30:00.125Z\",\"file\":{"
                   "\"born\":\"2024-05-02T07:00:00.250Z\",\"device\":\"65024\","
                   "\"inode\":\"9007199254740993\",\"modified\":\"2024-05-16T15:12:44.000Z\","
                   "\"size\":48213},\"path\":\"/pl\xc3\xa4ne/\\\"a\\\"\\\\\\t\xef\xbf\xbd\"}\n"));
}

void BookmarkFormatTest::keepsPaths_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("plain") << "/plans/gear.dwg";
    QTest::newRow("Cyrillic") << QStringLiteral("/планы/Чертёж №1.dwg");
    QTest::newRow("combining accent") << QStringLiteral("/re\u0301seau");
    QTest::newRow("composed accent") << QStringLiteral("/r\u00e9seau");
    QTest::newRow("beyond the basic plane") << QStringLiteral("/\U0001F600.dwg");
    QTest::newRow("line end") << "/a\nb";
    QTest::newRow("carriage return") << "/a\rb";
    QTest::newRow("line separator") << QStringLiteral("/a\u2028b");
    QTest::newRow("control characters") << QStringLiteral("/\u0001\u001f\u007f\u0085");
    QTest::newRow("zero character") << QString(QStringLiteral("/a") + QChar(0) + "b");
    QTest::newRow("quotes and backslashes") << "/\"a\"\\\\b\\";
    QTest::newRow("like JSON") << "\"},{\"path\":\"/other\"";
    QTest::newRow("replacement character") << QStringLiteral("/a\uFFFD");
    QTest::newRow("byte order mark") << QStringLiteral("/\uFEFFa");
    QTest::newRow("no character") << QStringLiteral("/a\uFFFF");
    QTest::newRow("high surrogate alone") << QString(QStringLiteral("/a") + QChar(0xd800) + "b");
    QTest::newRow("low surrogate alone") << QString(QStringLiteral("/a") + QChar(0xdcff));
    QTest::newRow("surrogates in the wrong order") << QString(QChar(0xdc00)).append(QChar(0xd800));
    QTest::newRow("blanks at both ends") << "  /a  ";
    QTest::newRow("longest") << QString(VyBookmarkLimits::path, 'x');
}

void BookmarkFormatTest::keepsPaths()
{
    QFETCH(QString, path);
    const auto read = VyBookmarkFormat::read(VyBookmarkFormat::write({entry(path), entry("/b")}));
    QCOMPARE(read.damage, QStringList());
    QCOMPARE(paths(read), QStringList({path, "/b"}));
    QCOMPARE(read.entries.constFirst().bookmark.chosen, entry({}).bookmark.chosen);
    QCOMPARE(read.entries.constFirst().bookmark.chosen.timeSpec(), Qt::UTC);
}

void BookmarkFormatTest::keepsBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QByteArray all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    QTest::newRow("no UTF-8") << QByteArray("/a\xff");
    QTest::newRow("cut UTF-8") << QByteArray("/a\xe2\x82");
    QTest::newRow("percent") << QByteArray("/100%FF\xff");
    QTest::newRow("line end") << QByteArray("/\n\xff");
    QTest::newRow("every byte") << all;
    QTest::newRow("longest") << QByteArray(VyBookmarkLimits::path, '\xff');
}

void BookmarkFormatTest::keepsBytes()
{
    QFETCH(QByteArray, bytes);
    VyBookmarkEntry odd = entry("/a");
    odd.bookmark.bytes = bytes;
    const auto read = VyBookmarkFormat::read(VyBookmarkFormat::write({odd}));
    QCOMPARE(read.damage, QStringList());
    QCOMPARE(read.entries.value(0).bookmark.bytes, bytes);
}

void BookmarkFormatTest::keepsFacts()
{
    VyBookmarkEntry known = entry("/a");
    known.file.device = 0;
    known.file.inode = std::numeric_limits<quint64>::max();
    known.file.modified = QDateTime({1969, 12, 31}, {23, 59, 59, 999}, Qt::UTC);
    VyBookmarkEntry whole = known;
    whole.file.born = QDateTime({2024, 5, 2}, {7, 0, 0, 250}, Qt::UTC);
    whole.file.size = qint64(1) << 50;
    const auto read = VyBookmarkFormat::read(VyBookmarkFormat::write({known, whole, entry("/b")}));
    QCOMPARE(read.damage, QStringList());
    QCOMPARE(read.entries.size(), 3);
    QCOMPARE(read.entries[0].file.inode, known.file.inode);
    QCOMPARE(read.entries[0].file.modified, known.file.modified);
    QVERIFY(!read.entries[0].file.born.isValid());
    QCOMPARE(read.entries[1].file.born, whole.file.born);
    QCOMPARE(read.entries[1].file.size, whole.file.size);
    QVERIFY(!read.entries[2].file.isKnown());
}

void BookmarkFormatTest::keepsTheSystemsRecord()
{
    VyBookmarkEntry known = entry("/a");
    known.system = QByteArray(VyBookmarkLimits::systemRecord, '\xff');
    const auto read = VyBookmarkFormat::read(VyBookmarkFormat::write({known}));
    QCOMPARE(read.damage, QStringList());
    QCOMPARE(read.entries.value(0).system, known.system);
}

// What is written can be read again, however long it gets.
void BookmarkFormatTest::holdsTheLongestEntries()
{
    VyBookmarkEntry longest = entry(QString(VyBookmarkLimits::path, QChar(1)));
    longest.bookmark.bytes = QByteArray(VyBookmarkLimits::path, '\xff');
    longest.system = QByteArray(VyBookmarkLimits::systemRecord, '\xff');
    QList<VyBookmarkEntry> entries;
    for (int i = 0; i < VyBookmarkLimits::entries; ++i)
        entries.append(longest);
    const QByteArray text = VyBookmarkFormat::write(entries);
    QVERIFY(text.size() <= VyBookmarkFormat::mostFileBytes);
    const auto read = VyBookmarkFormat::read(text);
    QCOMPARE(read.damage, QStringList());
    QCOMPARE(read.entries.size(), VyBookmarkLimits::entries);
}

void BookmarkFormatTest::takesOtherWriting_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("as written") << firstLine + lineA + lineB;
    QTest::newRow("no line end at the end") << firstLine + lineA + lineB.trimmed();
    QTest::newRow("other line ends") << QByteArray(firstLine + lineA + lineB).replace("\n", "\r\n");
    QTest::newRow("empty lines") << "\n\n" + firstLine + "\n" + lineA + " \t\n" + lineB + "\n";
    QTest::newRow("blanks in the lines")
        << QByteArray(firstLine + lineA + lineB).replace("\":", "\" : ");
    QTest::newRow("fields in another order")
        << firstLine + "{\"path\":\"/a\",\"chosen\":\"2024-05-17T09:30:00.125Z\"}\n" + lineB;
    QTest::newRow("no number of entries")
        << QByteArray("{\"format\":\"bookmarks\",\"version\":1}\n") + lineA + lineB;
    QTest::newRow("more entries than declared")
        << QByteArray("{\"entries\":1,\"format\":\"bookmarks\",\"version\":1}\n") + lineA + lineB;
    QTest::newRow("unknown fields") << firstLine + lineWith("\"colour\":[1,{}]") + lineB;
    QTest::newRow("time of another zone")
        << firstLine + "{\"path\":\"/a\",\"chosen\":\"2024-05-17T11:30:00.125+02:00\"}\n" + lineB;
    QTest::newRow("escaped") << firstLine + QByteArray(lineA).replace("/a", "\\u002fa") + lineB;
}

void BookmarkFormatTest::takesOtherWriting()
{
    QFETCH(QByteArray, text);
    const auto read = VyBookmarkFormat::read(text);
    QCOMPARE(read.damage, QStringList());
    QCOMPARE(paths(read), QStringList({"/a", "/b"}));
    QCOMPARE(read.entries.constFirst().bookmark.chosen, entry({}).bookmark.chosen);
}

void BookmarkFormatTest::saysWhatIsDamaged_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("damage");

    const auto row = [](const char* name, const QByteArray& text, const char* left,
                        const char* damage) { QTest::newRow(name) << text << left << damage; };
    const auto line = [&row](const char* name, const QByteArray& bad) {
        row(name, firstLine + lineA + bad + "\n" + lineB, "/a /b",
            "has 1 lines that are no entries");
    };
    const char* const noBeginning = "does not begin as a file of bookmarks";
    row("no bytes", "", "", "is empty");
    row("empty lines alone", "\n \n", "", "is empty");
    row("zero bytes", QByteArray(4096, '\0'), "",
        "does not begin as a file of bookmarks, has 1 lines that are no entries");
    row("another format", "{\"format\":\"plans\",\"version\":1}\n" + lineA, "/a",
        "does not begin as a file of bookmarks, has 1 lines that are no entries");
    row("a picture", "\x89PNG\r\n\x1a\nIHDR", "",
        "does not begin as a file of bookmarks, has 3 lines that are no entries");
    row("no first line", lineA + lineB, "/a /b", noBeginning);
    row("no version", "{\"format\":\"bookmarks\"}\n" + lineA, "/a",
        "does not begin as a file of bookmarks, has 1 lines that are no entries");
    row("version zero", "{\"format\":\"bookmarks\",\"version\":0}\n" + lineA, "/a",
        "does not begin as a file of bookmarks, has 1 lines that are no entries");
    row("next version", "{\"format\":\"bookmarks\",\"version\":2}\n" + lineA, "",
        "is of version 2, which is not known yet");
    row("cut after an entry", firstLine + lineA, "/a", "is cut by 1 entries");
    row("cut after the first line", firstLine, "", "is cut by 2 entries");
    row("cut in an entry", firstLine + lineA + lineB.left(20), "/a",
        "has 1 lines that are no entries");
    row("cut in the first line", firstLine.left(9), "",
        "does not begin as a file of bookmarks, has 1 lines that are no entries");
    line("no JSON", "path=/c");
    line("zero bytes among entries", QByteArray(100, '\0'));
    line("no object", "[\"/c\"]");
    line("no path", "{\"chosen\":\"2024-05-17T09:30:00.125Z\"}");
    line("empty path", "{\"chosen\":\"2024-05-17T09:30:00.125Z\",\"path\":\"\"}");
    line("path of another type", "{\"chosen\":\"2024-05-17T09:30:00.125Z\",\"path\":7}");
    line("path too long",
         "{\"chosen\":\"2024-05-17T09:30:00.125Z\",\"path\":\"" + QByteArray(8193, 'x') + "\"}");
    line("no UTF-8", "{\"chosen\":\"2024-05-17T09:30:00.125Z\",\"path\":\"/\xff\"}");
    line("no time", "{\"path\":\"/c\"}");
    line("no such time", "{\"chosen\":\"2024-13-17T09:30:00.125Z\",\"path\":\"/c\"}");
    line("time of another type", "{\"chosen\":1715938200,\"path\":\"/c\"}");
    line("two entries", lineA.trimmed() + lineB.trimmed());
    line("too long a line", "{\"path\":\"/c\",\"chosen\":\"2024-05-17T09:30:00.125Z\"" +
                                QByteArray(VyBookmarkFormat::mostLineBytes, ' ') + "}");
    line("nested too deep", QByteArray(5000, '['));
    row("several", firstLine + "x\ny\n" + lineB + "z", "/b", "has 3 lines that are no entries");
    QByteArray tooMany = "{\"format\":\"bookmarks\",\"version\":1}\n";
    for (int i = 0; i < 101; ++i)
        tooMany += lineA;
    row("too many entries", tooMany, qPrintable(QString("/a ").repeated(101).trimmed()),
        "has more than 100 entries");
}

void BookmarkFormatTest::saysWhatIsDamaged()
{
    QFETCH(QByteArray, text);
    const auto read = VyBookmarkFormat::read(text);
    QTEST(paths(read).join(' '), "left");
    QTEST(read.damage.join(", "), "damage");
}

void BookmarkFormatTest::dropsWhatIsWrongInPart_data()
{
    QTest::addColumn<QByteArray>("field");

    const auto wrongFact = [](const char* name, const char* right, const char* wrong) {
        const QByteArray object = "\"file\":{" + QByteArray(facts).replace(right, wrong) + "}";
        QTest::newRow(name) << object;
    };
    wrongFact("no time of change", "\"modified\"", "\"other\"");
    wrongFact("no such time of birth", "2024-05-02", "2024-05-42");
    wrongFact("device is no number", "\"65024\"", "\"disk\"");
    wrongFact("device is negative", "\"65024\"", "\"-1\"");
    wrongFact("inode is too large", "\"18446744073709551615\"", "\"18446744073709551616\"");
    wrongFact("inode as a number", "\"18446744073709551615\"", "5");
    wrongFact("no size", "\"size\"", "\"other\"");
    wrongFact("negative size", "48213", "-1");
    QTest::newRow("facts are no object") << QByteArray("\"file\":\"/a\"");
    QTest::newRow("bytes are no text") << QByteArray("\"bytes\":5");
    QTest::newRow("empty bytes") << QByteArray("\"bytes\":\"\"");
    QTest::newRow("cut percent encoding") << QByteArray("\"bytes\":\"/a%F\"");
    QTest::newRow("blank in the bytes") << QByteArray("\"bytes\":\"/a b\"");
    QTest::newRow("zero byte") << QByteArray("\"bytes\":\"/a%00b\"");
    QTest::newRow("not percent-encoded") << QByteArray("\"bytes\":\"/\xc3\xa4\"");
    QTest::newRow("too many bytes") << "\"bytes\":\"" + QByteArray(8193, 'x') + '"';
    QTest::newRow("no base64") << QByteArray("\"bookmark\":\"!\"");
    QTest::newRow("empty base64") << QByteArray("\"bookmark\":\"\"");
    QTest::newRow("too long a record") << "\"bookmark\":\"" + QByteArray(16388, 'x') + '"';
}

// The path is what counts.
void BookmarkFormatTest::dropsWhatIsWrongInPart()
{
    QFETCH(QByteArray, field);
    QCOMPARE(
        VyBookmarkFormat::read(firstLine + lineWith("\"file\":{" + facts + "}") + lineB).damage,
        QStringList());
    const auto read = VyBookmarkFormat::read(firstLine + lineWith(field) + lineB);
    QCOMPARE(read.damage, QStringList("has 1 entries that are wrong in part"));
    QCOMPARE(paths(read), QStringList({"/a", "/b"}));
    const VyBookmarkEntry& first = read.entries.constFirst();
    QVERIFY(!first.file.isKnown());
    QCOMPARE(first.bookmark.bytes, QByteArray());
    QCOMPARE(first.system, QByteArray());
}

// Wherever the file ends, the entries before are read, and the cut is noticed.
void BookmarkFormatTest::survivesEveryCut()
{
    const QByteArray text = VyBookmarkFormat::write({entry("/a"), entry("/b"), entry("/c")});
    const QList<QByteArray> lines = text.split('\n');
    for (int size = 0; size < text.size() - 1; ++size) {
        const auto read = VyBookmarkFormat::read(text.left(size));
        QVERIFY2(!read.damage.isEmpty(), QByteArray::number(size).constData());
        int whole = 0;
        int end = lines[0].size();
        while (whole < 3 && (end += 1 + lines[whole + 1].size()) <= size)
            ++whole;
        QCOMPARE(paths(read), QStringList({"/a", "/b", "/c"}).mid(0, whole));
    }
}

// A large file of something else does not stop the interface.
void BookmarkFormatTest::readsFewLines()
{
    const QByteArray text = firstLine + lineA + QByteArray("x\n").repeated(7 * 1024 * 1024) + lineB;
    QElapsedTimer timer;
    timer.start();
    const auto read = VyBookmarkFormat::read(text);
    QCOMPARE(paths(read), QStringList("/a"));
    QCOMPARE(read.damage.value(0), QString("has more than 1000 lines"));
    QVERIFY2(timer.elapsed() < 2000, QByteArray::number(timer.elapsed()).constData());
}

QTEST_GUILESS_MAIN(BookmarkFormatTest)
#include "BookmarkFormatTest.moc"

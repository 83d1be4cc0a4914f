// SPDX-License-Identifier: MIT
// What the command prints for an answer.
#include "Answer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace {

QString withUnit(const char* before, ushort unit, const char* after)
{
    return QString::fromUtf8(before) + QChar(unit) + QString::fromUtf8(after);
}

// The JSON text between the brackets of "paths".
QByteArray jsonPaths(const QByteArray& json)
{
    const int start = json.indexOf("\"paths\":[") + 9;
    return json.mid(start, json.indexOf("],\"typeIndex\"") - start);
}

Answer withPaths(const QStringList& paths)
{
    Answer answer;
    answer.status = VyStatus::Accepted;
    answer.paths = paths;
    return answer;
}

} // namespace

class AnswerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paths_data();
    void paths();
    void severalPaths();
    void wholeObject_data();
    void wholeObject();
    void jsonIsRead();
    void local_data();
    void local();
    void exitStatuses_data();
    void exitStatuses();
};

void AnswerTest::paths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("json");

    const auto same = [](const char* name, const char* path) {
        const QByteArray bytes(path);
        QTest::newRow(name) << QString::fromUtf8(bytes) << bytes << '"' + bytes + '"';
    };
    same("plain", "/plans/floor.dwg");
    same("blanks", "/ a  b ");
    same("R&D", "/R&D/it's.dwg");
    same("Cyrillic", "/Чертёж.dwg");
    same("combining accent", "/a\xcc\x81.dwg");
    same("beyond the basic plane", "/\xf0\x9d\x84\x9e.dwg");
    same("delete character", "/a\x7f.dwg");

    const auto row = [](const char* name, const QString& path, const QByteArray& json) {
        QTest::newRow(name) << path << path.toUtf8() << json;
    };
    row("double quotes", R"(/3" pipe.dwg)", R"("/3\" pipe.dwg")");
    row("backslash", R"(/a\b.dwg)", R"("/a\\b.dwg")");
    row("newline", "/a\nb.dwg", R"("/a\u000ab.dwg")");
    row("tab", "/a\tb.dwg", R"("/a\u0009b.dwg")");
    row("first control character", "/\x01.dwg", R"("/\u0001.dwg")");
    row("last control character", "/\x1f.dwg", R"("/\u001f.dwg")");
    row("escape sequence", "/\x1b[31m.dwg", R"("/\u001b[31m.dwg")");
    row("percent sign", "/%1.dwg", R"("/%1.dwg")");
}

void AnswerTest::paths()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, bytes);
    const Answer answer = withPaths({path});
    QCOMPARE(format(answer, Options::Form::Lines), bytes + '\n');
    QCOMPARE(format(answer, Options::Form::NullSeparated), bytes + '\0');
    QTEST(jsonPaths(format(answer, Options::Form::Json)), "json");
}

void AnswerTest::severalPaths()
{
    const Answer none = withPaths({});
    QCOMPARE(format(none, Options::Form::Lines), QByteArray());
    QCOMPARE(format(none, Options::Form::NullSeparated), QByteArray());
    QCOMPARE(jsonPaths(format(none, Options::Form::Json)), QByteArray());

    const Answer two = withPaths({"/b", "/a\n"});
    QCOMPARE(format(two, Options::Form::Lines), QByteArray("/b\n/a\n\n"));
    QCOMPARE(format(two, Options::Form::NullSeparated), QByteArray("/b\0/a\n\0", 7));
    QCOMPARE(jsonPaths(format(two, Options::Form::Json)), QByteArray(R"("/b","/a\u000a")"));
}

void AnswerTest::wholeObject_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<unsigned>("mode");
    QTest::addColumn<int>("typeIndex"); // -1: none
    QTest::addColumn<int>("codePage");
    QTest::addColumn<QByteArray>("expected");

    const auto row = [](const char* name, int status, unsigned mode, int typeIndex, int codePage,
                        const char* expected) {
        QTest::newRow(name) << status << mode << typeIndex << codePage << QByteArray(expected);
    };
    row("open", 5100, 256, 2, 0,
        R"({"status":5100,"mode":{"name":"open","number":256},"paths":[],"typeIndex":2,"codePage":null})");
    row("read-only with code page", 5100, 768, 0, 30,
        R"({"status":5100,"mode":{"name":"open-read-only","number":768},"paths":[],"typeIndex":0,"codePage":"ANSI_1252"})");
    row("cancelled", -5002, 65536, -1, 0,
        R"({"status":-5002,"mode":{"name":"save","number":65536},"paths":[],"typeIndex":null,"codePage":null})");
    row("template", 5100, 1, 0, 0,
        R"({"status":5100,"mode":{"name":"new-from-template","number":1},"paths":[],"typeIndex":0,"codePage":null})");
    row("imperial", 5000, 2, 0, 0,
        R"({"status":5000,"mode":{"name":"new-imperial","number":2},"paths":[],"typeIndex":0,"codePage":null})");
    row("metric", 5100, 3, 0, 0,
        R"({"status":5100,"mode":{"name":"new-metric","number":3},"paths":[],"typeIndex":0,"codePage":null})");
    row("unknown mode and page", 5100, 0xffffffff, INT_MAX, 999,
        R"({"status":5100,"mode":{"name":null,"number":4294967295},"paths":[],"typeIndex":2147483647,"codePage":null})");
}

void AnswerTest::wholeObject()
{
    QFETCH(int, status);
    QFETCH(unsigned, mode);
    QFETCH(int, typeIndex);
    QFETCH(int, codePage);
    QFETCH(QByteArray, expected);
    Answer answer;
    answer.status = status;
    answer.mode = static_cast<CVyUserIO::_FileNameRetVal>(mode);
    if (typeIndex >= 0)
        answer.typeIndex = typeIndex;
    answer.codePage = static_cast<OdCodePageId>(codePage);
    QCOMPARE(format(answer, Options::Form::Json), expected + '\n');
}

// A reader of JSON gets back every unit, also those that are no text.
void AnswerTest::jsonIsRead()
{
    const QStringList paths{"/\"\\\n\x01/é\U0001d11e", withUnit("/", 0xd834, ".dwg"),
                            withUnit("/", 0xdd1e, ".dwg"), withUnit("", 0xd834, ""),
                            withUnit("/a", 0xdfff, "") + QChar(0xd800) + QChar(0xd834)};
    const QByteArray json = format(withPaths(paths), Options::Form::Json);
    QCOMPARE(json, QString::fromUtf8(json).toUtf8());
    QVERIFY(json.contains(R"("/\ud834.dwg","/\udd1e.dwg","\ud834","/a\udfff\ud800\ud834"])"));

    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(json, &error).object();
    QCOMPARE(error.errorString(), QStringLiteral("no error occurred"));
    QCOMPARE(object.size(), 5);
    QCOMPARE(object.value("paths").toArray().size(), paths.size());
    QCOMPARE(object.value("paths").toArray().first().toString(), paths.first());
}

void AnswerTest::local_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("expected");
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("plain") << QStringLiteral("/a.dwg") << true;
    QTest::newRow("newline") << QStringLiteral("/a\n") << true;
    QTest::newRow("high surrogate alone") << withUnit("/", 0xd834, ".dwg") << false;
    QTest::newRow("low surrogate at the end") << withUnit("/a", 0xdd1e, "") << false;
}

void AnswerTest::local()
{
    QFETCH(QString, path);
    QTEST(isLocal(path), "expected");
}

void AnswerTest::exitStatuses_data()
{
    QTest::addColumn<int>("expected");
    QTest::addColumn<int>("status");
    QTest::newRow("accepted") << 0 << VyStatus::Accepted;
    QTest::newRow("accepted without selection") << 0 << VyStatus::NothingSelected;
    QTest::newRow("cancelled") << 1 << VyStatus::Cancelled;
    QTest::newRow("failed") << 3 << VyStatus::Failed;
    QTest::newRow("unheard of") << 3 << 0;
}

void AnswerTest::exitStatuses()
{
    QFETCH(int, status);
    QTEST(int(exitStatus(status)), "expected");
}

QTEST_GUILESS_MAIN(AnswerTest)
#include "AnswerTest.moc"

// SPDX-License-Identifier: MIT
#include "HostLog.h"
#include "VyDxfText.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

// A drawing with one entity of these groups.
QByteArray drawing(const QByteArray& groups)
{
    return "  0\r\nSECTION\r\n  2\r\nENTITIES\r\n  0\r\nTEXT\r\n" + groups +
           "  0\r\nENDSEC\r\n  0\r\nEOF\r\n";
}

QByteArray group(int code, const QByteArray& value)
{
    return QByteArray::number(code).rightJustified(3) + "\r\n" + value + "\r\n";
}

const QByteArray high = "H\xf6he"; // in several pages, "Höhe"

} // namespace

/// The texts of a DXF file that need a code page.
class DxfTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void stopsAtEnough();
    void readsTheBeginning();
    void readsRegularFilesOnly();
};

void DxfTextTest::finds_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArrayList>("texts");
    const auto row = [](const char* name, const QByteArray& bytes, const QByteArrayList& texts) {
        QTest::newRow(name) << bytes << texts;
    };
    const QByteArray other = "\x90\x7d\x96\xca";
    row("text", drawing(group(1, high)), {high});
    row("ASCII", drawing(group(1, "Hoehe")), {});
    row("two", drawing(group(1, high) + group(10, "0.0") + group(1, other)), {high, other});
    row("twice the same", drawing(group(1, high) + group(1, other) + group(1, high)),
        {high, other});
    row("name of a layer", drawing(group(8, high)), {high});
    row("extended data", drawing(group(1000, high)), {high});
    row("page of a layout", drawing(group(410, high)), {high});
    row("name of a colour", drawing(group(430, high)), {high});
    row("comment", group(999, high) + drawing({}), {high});
    row("no text: a coordinate", drawing(group(10, high)), {});
    row("no text: binary data", drawing(group(310, high)), {});
    row("no text: a subclass", drawing(group(100, high)), {});
    row("byte 0x80", drawing(group(1, "\x80")), {"\x80"});
    row("byte 0x7f", drawing(group(1, "\x7f")), {});
    row("blanks around it", drawing(group(1, "  " + high + " ")), {"  " + high + " "});
    row("empty value", drawing(group(1, "") + group(1, high)), {high});
    row("LF", drawing(group(1, high)).replace("\r\n", "\n"), {high});
    row("codes without blanks", drawing(group(1, high)).replace("\n ", "\n"), {high});

    row("chunks put together",
        drawing(group(3, "\x90\x7d\x96") + group(3, "\xca.") + group(1, "end")), {other + ".end"});
    row("chunk without an end", drawing(group(3, high) + group(72, "65") + group(1, other)),
        {high, other});
    row("chunk that begins a text anew",
        drawing(group(3, high) + group(8, other) + group(1, "end")), {high, other});

    row("empty file", "", {});
    row("no drawing", "This is no drawing.\nH\xf6he\n", {});
    row("binary drawing", QByteArray("AC1015\0\0\0\n\xf6\n\xf6\n", 14), {});
    row("number too large", drawing(group(1, high)) + "99999999999\n" + other + "\n", {high});
    row("damaged place", drawing(group(1, high)) + "x\nx\n" + group(1, other), {high});
    row("last line cut", group(1, high) + "  1\r\n" + other, {high});
    row("last code cut", group(1, high) + "  ", {high});
    row("carriage returns alone", drawing(group(1, high)).replace("\r\n", "\r"), {});
}

void DxfTextTest::finds()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArrayList, texts);
    QCOMPARE(QByteArrayList(VyDxfText::values(bytes)), texts);
}

void DxfTextTest::stopsAtEnough()
{
    QByteArray groups;
    for (int i = 0; i < 2 * VyDxfText::mostValues; ++i)
        groups += group(1, high + QByteArray::number(i));
    const QList<QByteArray> texts = VyDxfText::values(drawing(groups));
    QCOMPARE(texts.size(), VyDxfText::mostValues);
    QCOMPARE(texts.last(), high + QByteArray::number(VyDxfText::mostValues - 1));
    // Also where two come at once.
    groups = group(3, "\xe0") + group(8, "\xe1");
    for (int i = 1; i < VyDxfText::mostValues; ++i)
        groups.prepend(group(1, high + QByteArray::number(i)));
    QCOMPARE(VyDxfText::values(drawing(groups)).size(), VyDxfText::mostValues);
}

void DxfTextTest::readsTheBeginning()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("large.dxf")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(group(1, high));
    const QByteArray filling = group(10, QByteArray(1000, '0'));
    while (file.pos() < VyDxfText::windowSize)
        file.write(filling);
    file.write(group(1, "behind\xf6"));
    file.close();
    QCOMPARE(VyDxfText::read(file.fileName()), QList<QByteArray>{high});
    QVERIFY(file.rename(folder.filePath(QStringLiteral("gr\u00f6\u00dfer.dxf"))));
    QCOMPARE(VyDxfText::read(file.fileName()), QList<QByteArray>{high});
}

void DxfTextTest::readsRegularFilesOnly()
{
    const QTemporaryDir folder;
    const QByteArray pipe = QFile::encodeName(folder.filePath(QStringLiteral("pipe.dxf")));
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    QFile plan(folder.filePath(QStringLiteral("plan.dxf")));
    QVERIFY(plan.open(QIODevice::WriteOnly));
    plan.write(group(1, high));
    plan.close();
    const QString link = folder.filePath(QStringLiteral("link.dxf"));
    QVERIFY(plan.link(link));

    const HostLog log;
    QCOMPARE(VyDxfText::read(link), QList<QByteArray>{high});
    for (const QString& path :
         {QFile::decodeName(pipe), folder.path(), folder.filePath(QStringLiteral("absent.dxf")),
          QString(), QString(plan.fileName() + QChar(QChar::Null))})
        QCOMPARE(VyDxfText::read(path), QList<QByteArray>());
    QCOMPARE(log.messages(), QStringList());
}

QTEST_GUILESS_MAIN(DxfTextTest)
#include "DxfTextTest.moc"

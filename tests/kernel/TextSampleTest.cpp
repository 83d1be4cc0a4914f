// SPDX-License-Identifier: MIT
#include "VyTextSample.h"

#include <QTextCodec>
#include <QtTest>

#include <algorithm>

using Id = OdCodePageId;
Q_DECLARE_METATYPE(OdCodePageId)

namespace {

const CVyCodePage& pageOf(Id id)
{
    return *VyFindCodePage(id);
}

} // namespace

/// Text as it reads in a code page. What is expected of the pages comes from
/// their published tables, not from Qt.
class TextSampleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodes_data();
    void decodes();
    void decodesEveryPageItCan();
    void shows_data();
    void shows();
    void hasALineForEachValue();
    void hasTypicalTextForEveryPage_data();
    void hasTypicalTextForEveryPage();
    void saysNothingWithoutCodec();
};

void TextSampleTest::decodes_data()
{
    QTest::addColumn<OdCodePageId>("id");
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QString>("text");
    const auto row = [](Id id, const char* hex, const char16_t* text) {
        QTest::newRow(VyCodePageName(id)) << id << QByteArray(hex) << QString::fromUtf16(text);
    };
    row(Id::Ansi1252, "dfd680", u"ßÖ€");
    row(Id::Iso8859_1, "dfd6bc", u"ßÖ¼");
    row(Id::Macintosh, "a785db", u"ßÖ€");
    row(Id::Dos850, "e1999d", u"ßÖØ");
    row(Id::Dos437, "e199f1", u"ßÖ±");
    row(Id::Ascii, "4142", u"AB");
    row(Id::Iso8859_3, "b1f8", u"ħĝ");
    row(Id::Dos860, "8499", u"ãÕ");
    row(Id::Dos861, "8d8c", u"Þð");
    row(Id::Dos863, "928e", u"ÊÀ");
    row(Id::Dos865, "9b8f", u"øÅ");
    row(Id::Ansi1250, "f8a3", u"řŁ");
    row(Id::Iso8859_2, "f8a3", u"řŁ");
    row(Id::Dos852, "fd9d", u"řŁ");
    row(Id::Ansi1257, "ebef", u"ėļ");
    row(Id::Iso8859_4, "ecb6", u"ėļ");
    row(Id::Ansi1251, "c6ff", u"Жя");
    row(Id::Iso8859_5, "b6ef", u"Жя");
    row(Id::Dos866, "86ef", u"Жя");
    row(Id::Dos855, "eade", u"Жя");
    row(Id::Ansi1253, "d9de", u"Ωή");
    row(Id::Iso8859_7, "d9de", u"Ωή");
    row(Id::Dos869, "d59e", u"Ωή");
    row(Id::Ansi1254, "f0de", u"ğŞ");
    row(Id::Iso8859_9, "f0de", u"ğŞ");
    row(Id::Dos857, "a79e", u"ğŞ");
    row(Id::Ansi1255, "e0f9", u"אש");
    row(Id::Iso8859_8, "e0f9", u"אש");
    row(Id::Ansi1256, "d481", u"شپ");
    row(Id::Iso8859_6, "d4d9", u"شع");
    row(Id::Dos864, "c7fd", u"\uFE8D\uFEF1");
    row(Id::Ansi932, "907d8740", u"図①");
    row(Id::Dos932, "907d8d82", u"図高");
    row(Id::Ansi936, "cdbc8844", u"图圖");
    row(Id::Gb2312, "cdbcb8df", u"图高");
    row(Id::Ansi950, "b9cfb0aa", u"圖高");
    row(Id::Big5, "b9cfb0aa", u"圖高");
    row(Id::Ansi949, "b5b58c63", u"도똠");
    row(Id::Ksc5601, "b5b5b8e9", u"도면");
    row(Id::Ansi1361, "95a1a165", u"도면");
    row(Id::Johab, "95a1a165", u"도면");
    row(Id::Ansi874, "a1e2", u"กโ");
    row(Id::Ansi1258, "f0f5", u"đơ");
    row(Id::Utf8, "c3a9e59bb3", u"é図");
    row(Id::Utf16, "e900f356", u"é図");
}

void TextSampleTest::decodes()
{
    QFETCH(OdCodePageId, id);
    QFETCH(QByteArray, hex);
    QFETCH(QString, text);
    if (!VyTextSample::canDecode(pageOf(id)))
        QSKIP("this Qt has no codec for the page");
    QCOMPARE(VyTextSample::decoded(pageOf(id), {QByteArray::fromHex(hex)}), text);
}

// Which pages there are codecs for depends on how Qt was built; those that Qt
// always has are decoded in any case.
void TextSampleTest::decodesEveryPageItCan()
{
    for (const Id id : {Id::Utf8, Id::Utf16, Id::Iso8859_1})
        QVERIFY2(VyTextSample::canDecode(pageOf(id)), VyCodePageName(id));
    const QList<QByteArray> codecs = QTextCodec::availableCodecs();
    if (!codecs.contains("ibm-437_P100-1995") && !codecs.contains("IBM437"))
        QSKIP("this Qt was built without ICU");
    for (const CVyCodePage& page : VyCodePages())
        QCOMPARE(VyTextSample::canDecode(page), page.id != Id::Johab && page.id != Id::Ansi1361);
}

void TextSampleTest::shows_data()
{
    QTest::addColumn<OdCodePageId>("id");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("text");
    const QChar none = QChar::ReplacementCharacter;
    QTest::newRow("ASCII") << Id::Ansi932 << QByteArray("1:50") << "1:50";
    QTest::newRow("empty") << Id::Ansi932 << QByteArray() << "";
    QTest::newRow("cut character") << Id::Ansi932 << QByteArray("x\x90") << "x";
    QTest::newRow("broken UTF-8") << Id::Utf8 << QByteArray("H\xf6he")
                                  << QString("H" + none + "he");
    QTest::newRow("outside ASCII") << Id::Ascii << QByteArray("\xf6") << QString(none);
    QTest::newRow("invisible in ISO") << Id::Iso8859_1 << QByteArray("\x90") << QString(none);
    QTest::newRow("line end in it")
        << Id::Ansi1252 << QByteArray("a\r\nb") << QString("a" + none + none + "b");
    QTest::newRow("accent apart") << Id::Ansi1258 << QByteArray("e\xec") << QStringLiteral("é");
    QTest::newRow("longest") << Id::Ansi1252 << QByteArray(200, 'x') << QString(200, 'x');
    QTest::newRow("too long") << Id::Ansi1252 << QByteArray(201, 'x')
                              << QString(QString(200, 'x') + QChar(0x2026));
    const QString pair = QStringLiteral("\U00020000");
    QTest::newRow("too long, with a pair at the end")
        << Id::Utf8 << QByteArray(199, 'x') + pair.toUtf8()
        << QString(QString(199, 'x') + QChar(0x2026));
}

void TextSampleTest::shows()
{
    QFETCH(OdCodePageId, id);
    QFETCH(QByteArray, value);
    QFETCH(QString, text);
    if (!VyTextSample::canDecode(pageOf(id)))
        QSKIP("this Qt has no codec for the page");
    QCOMPARE(VyTextSample::decoded(pageOf(id), {value}), text);
}

void TextSampleTest::hasALineForEachValue()
{
    QCOMPARE(VyTextSample::decoded(pageOf(Id::Utf8), {"a", "b", "a"}), QString("a\nb\na"));
    QCOMPARE(VyTextSample::decoded(pageOf(Id::Utf8), {}), QString());
}

void TextSampleTest::hasTypicalTextForEveryPage_data()
{
    QTest::addColumn<OdCodePageId>("id");
    for (const CVyCodePage& page : VyCodePages())
        QTest::newRow(page.fileName) << page.id;
}

// The page holds all of the text, and the text shows what the page is for.
void TextSampleTest::hasTypicalTextForEveryPage()
{
    QFETCH(OdCodePageId, id);
    if (!VyTextSample::canDecode(pageOf(id)))
        QSKIP("this Qt has no codec for the page");
    const QString text = VyTextSample::typical(pageOf(id));
    QVERIFY(text.size() > 15);
    QVERIFY(!text.contains(QChar(QChar::ReplacementCharacter)));
    QVERIFY(!text.contains(QChar('?')));
    QVERIFY(!text.contains(QChar(0x1a)));
    QVERIFY(!text.contains(QChar(0xfeff)));
    const bool hasLetters = std::any_of(text.begin(), text.end(), [](QChar unit) {
        return unit.unicode() > 0x7f && unit.isLetter();
    });
    QCOMPARE(hasLetters, id != Id::Ascii);
}

void TextSampleTest::saysNothingWithoutCodec()
{
    CVyCodePage page = pageOf(Id::Ansi1252);
    page.otherNames = "no-such-codec neither-this";
    QVERIFY(!VyTextSample::canDecode(page));
    QCOMPARE(VyTextSample::typical(page), QString());
    QCOMPARE(VyTextSample::decoded(page, {"x"}), QString());
    page.otherNames = "no-such-codec UTF-8";
    QVERIFY(VyTextSample::canDecode(page));
}

QTEST_GUILESS_MAIN(TextSampleTest)
#include "TextSampleTest.moc"

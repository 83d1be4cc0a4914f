// SPDX-License-Identifier: MIT
#include "NativeTest.h"

#include "VyNativeStrings.h"

#include <algorithm>
#include <string>

/// A string of any code units: the platform's own classes refuse those that make
/// no sense, which names on a disk can still hold.
@interface VyUnitsString : NSString {
@public
    std::u16string units;
}
@end

@implementation VyUnitsString
- (NSUInteger)length
{
    return units.size();
}
- (unichar)characterAtIndex:(NSUInteger)index
{
    return units.at(index);
}
@end

namespace {

// Length of the buffer that short strings are copied through.
constexpr int bufferUnits = 1024;

NSString* platformString(const QString& text)
{
    return [NSString stringWithCharacters:reinterpret_cast<const unichar*>(text.utf16())
                                   length:static_cast<NSUInteger>(text.size())];
}

// Letters that differ from place to place.
QString letters(int length)
{
    QString result;
    for (int i = 0; i < length; ++i)
        result += QChar(0x400 + i % 251);
    return result;
}

QString withAt(QString string, int position, const QString& part)
{
    return string.replace(position, part.size(), part);
}

const QString house = QString::fromUcs4(U"\U0001F3E0");
const QString highSurrogate = house.left(1);
const QString lowSurrogate = house.mid(1);

} // namespace

/// Strings and lists on their way from and to the platform.
class NativeStringsTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void nilIsNull();
    void emptyIsNotNull();
    void stringsArrive_data();
    void stringsArrive();
    void oddUnitsArrive_data();
    void oddUnitsArrive();
    void copiesWhatItConverts();
    void textsComeBack_data();
    void textsComeBack();
    void emptyTextsGiveAnEmptyString();
    void textsEndAtAZero();
    void halvesOfPairsDoNotLoseTheText_data();
    void halvesOfPairsDoNotLoseTheText();
    void listsKeepTheirOrder_data();
    void listsKeepTheirOrder();
    void listsAreCopied();
};

void NativeStringsTest::nilIsNull()
{
    QVERIFY(qStringfromNSString(nil).isNull());
}

void NativeStringsTest::emptyIsNotNull()
{
    const QString empty = qStringfromNSString(@"");
    QVERIFY(empty.isEmpty());
    QVERIFY(!empty.isNull());
}

void NativeStringsTest::stringsArrive_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("one letter") << "a";
    QTest::newRow("path") << "/Users/a/R&D/plan 1.dwg";
    QTest::newRow("Cyrillic") << QStringLiteral("Чертёж");
    QTest::newRow("composed accent") << QStringLiteral("\u00e9");
    QTest::newRow("combining accent") << QStringLiteral("e\u0301");
    QTest::newRow("newline and tab") << "a\n\tb";
    QTest::newRow("beyond the basic plane") << "a" + house + "b";
    QTest::newRow("zero within") << QString("a") + QChar(0) + "b";
    QTest::newRow("zero at the end") << QString("a") + QChar(0);
    QTest::newRow("zero alone") << QString(QChar(0));

    for (const int length : {bufferUnits - 1, bufferUnits, bufferUnits + 1, 5000})
        QTest::addRow("%d units", length) << letters(length);
    for (const int position : {bufferUnits - 2, bufferUnits - 1, bufferUnits}) {
        QTest::addRow("pair at %d", position) << withAt(letters(1100), position, house);
        QTest::addRow("pair at the end, at %d", position) << letters(position) + house;
        QTest::addRow("zero at %d", position) << withAt(letters(1100), position, QChar(0));
    }
}

void NativeStringsTest::stringsArrive()
{
    QFETCH(QString, text);
    const QString converted = qStringfromNSString(platformString(text));
    QCOMPARE(converted.size(), text.size());
    QCOMPARE(converted, text);
}

void NativeStringsTest::oddUnitsArrive_data()
{
    QTest::addColumn<QString>("units");

    QTest::newRow("byte order mark") << QString(QChar(0xfeff)) + "a";
    QTest::newRow("no character") << QString("a") + QChar(0xffff);
    QTest::newRow("high surrogate alone") << "a" + highSurrogate + "b";
    QTest::newRow("low surrogate alone") << "a" + lowSurrogate + "b";
    QTest::newRow("high surrogate at the end") << "a" + highSurrogate;
    QTest::newRow("low surrogate at the beginning") << lowSurrogate + "b";
    QTest::newRow("surrogates in the wrong order") << lowSurrogate + highSurrogate;
    for (const int position : {bufferUnits - 2, bufferUnits - 1, bufferUnits}) {
        QTest::addRow("half a pair at the end, at %d", position)
            << letters(position) + highSurrogate;
        QTest::addRow("half a pair at %d", position)
            << withAt(letters(1100), position, lowSurrogate);
    }
}

void NativeStringsTest::oddUnitsArrive()
{
    QFETCH(QString, units);
    VyUnitsString* const string = [[[VyUnitsString alloc] init] autorelease];
    string->units = units.toStdU16String();
    const QString converted = qStringfromNSString(string);
    QCOMPARE(converted.size(), units.size());
    QCOMPARE(converted, units);
}

void NativeStringsTest::copiesWhatItConverts()
{
    for (const int length : {3, bufferUnits + 1}) {
        NSMutableString* const string =
            [NSMutableString stringWithString:platformString(letters(length))];
        const QString converted = qStringfromNSString(string);
        [string setString:@"another"];
        QCOMPARE(converted, letters(length));
    }
}

void NativeStringsTest::textsComeBack_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("one letter") << "a";
    QTest::newRow("path") << "/Users/a/R&D/plan 1.dwg";
    QTest::newRow("percent") << "100%s%@";
    QTest::newRow("Cyrillic") << QStringLiteral("Чертёж");
    QTest::newRow("composed accent") << QStringLiteral("\u00e9");
    QTest::newRow("combining accent") << QStringLiteral("e\u0301");
    QTest::newRow("newline and tab") << "a\n\tb";
    QTest::newRow("beyond the basic plane") << "a" + house + "b";
    QTest::newRow("1024 units") << letters(bufferUnits);
    QTest::newRow("1025 units") << letters(bufferUnits + 1);
    QTest::newRow("pair over the 1024th unit") << withAt(letters(1100), bufferUnits - 1, house);
}

void NativeStringsTest::textsComeBack()
{
    QFETCH(QString, text);
    NSString* const string = nsStringFromQString(text);
    QVERIFY([string isEqualToString:platformString(text)]);
    QCOMPARE(qStringfromNSString(string), text);
}

void NativeStringsTest::emptyTextsGiveAnEmptyString()
{
    QVERIFY([nsStringFromQString(QString()) isEqualToString:@""]);
    QVERIFY([nsStringFromQString(QStringLiteral("")) isEqualToString:@""]);
}

void NativeStringsTest::textsEndAtAZero()
{
    QCOMPARE(text(nsStringFromQString(QString("a") + QChar(0) + "b")), QString("a"));
    QVERIFY([nsStringFromQString(QString(QChar(0)) + "b") isEqualToString:@""]);
}

void NativeStringsTest::halvesOfPairsDoNotLoseTheText_data()
{
    QTest::addColumn<QString>("half");

    QTest::newRow("high surrogate") << highSurrogate;
    QTest::newRow("low surrogate") << lowSurrogate;
    QTest::newRow("wrong order") << lowSurrogate + highSurrogate;
}

void NativeStringsTest::halvesOfPairsDoNotLoseTheText()
{
    QFETCH(QString, half);
    const QString converted = text(nsStringFromQString("before" + half + "after"));
    QVERIFY2(converted.startsWith("before"), qPrintable(converted));
    QVERIFY2(converted.endsWith("after"), qPrintable(converted));
    const auto isHalf = [](QChar c) { return c.isSurrogate(); };
    QVERIFY(std::none_of(converted.begin(), converted.end(), isHalf));
}

void NativeStringsTest::listsKeepTheirOrder_data()
{
    QTest::addColumn<QStringList>("list");

    QTest::newRow("empty") << QStringList();
    QTest::newRow("one") << QStringList{"dwg"};
    QTest::newRow("not sorted") << QStringList{"dwt", "dwg", "dxf"};
    QTest::newRow("equal strings") << QStringList{"dwg", "dxf", "dwg"};
    QTest::newRow("empty strings") << QStringList{"", "dwg", ""};
    QTest::newRow("Cyrillic") << QStringList{"dwg", QStringLiteral("чер")};
    QTest::newRow("five hundred") << letters(500).split(QString(), Qt::SkipEmptyParts);
}

void NativeStringsTest::listsKeepTheirOrder()
{
    QFETCH(QStringList, list);
    NSArray* const array = [CVyViewFilterToolMacNative getArrayFilter:&list];
    QVERIFY([array isKindOfClass:[NSArray class]]);
    QCOMPARE(texts(array), list);
}

void NativeStringsTest::listsAreCopied()
{
    QStringList list{"dwg", "dxf"};
    NSArray* const array = [CVyViewFilterToolMacNative getArrayFilter:&list];
    list[0] = "dwt";
    list.removeLast();
    QCOMPARE(texts(array), QStringList({"dwg", "dxf"}));
}

QTEST_MAIN(NativeStringsTest)
#include "NativeStringsTest.moc"

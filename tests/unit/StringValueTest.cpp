// SPDX-License-Identifier: MIT
#include "VyString.h"

#include <QLocale>
#include <QVector>
#include <QtTest>

#include <initializer_list>

namespace {

using Characters = QVector<uint>;

// A text by its UTF-16 units, for those that no literal can spell.
QString units(std::initializer_list<ushort> values)
{
    QString text;
    for (const ushort value : values)
        text += QChar(value);
    return text;
}

Characters charactersOf(const CVyString& text)
{
    Characters characters;
    for (int i = 0; i < text.getLength(); ++i)
        characters.append(static_cast<uint>(text.c_str()[i]));
    return characters;
}

CVyString fromCharacters(const Characters& characters)
{
    std::wstring text;
    for (const uint character : characters)
        text += static_cast<wchar_t>(character);
    return CVyString(text.c_str());
}

const QString smile = QStringLiteral("\U0001F600");

} // namespace

/// What a host's string holds, as a value: where it comes from, what it becomes,
/// and which others it equals.
class StringValueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void keepsEveryCharacter_data();
    void keepsEveryCharacter();
    void comesFromWideCharacters_data();
    void comesFromWideCharacters();
    void endsAtTheTerminatingZero();
    void nullIsTheEmptyString();
    void startsEmpty();
    void compares_data();
    void compares();
    void comparesElements();
    void ignoresCase_data();
    void ignoresCase();
    void concatenates_data();
    void concatenates();
    void addsToItself();
};

void StringValueTest::keepsEveryCharacter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Characters>("characters");

    QTest::newRow("empty") << QString() << Characters{};
    QTest::newRow("ASCII") << "a~" << Characters{'a', '~'};
    QTest::newRow("Latin-1") << QStringLiteral("\u00e9\u00ff") << Characters{0xe9, 0xff};
    QTest::newRow("Cyrillic") << QStringLiteral("Ёж") << Characters{0x401, 0x436};
    QTest::newRow("combining accent") << QStringLiteral("e\u0301") << Characters{'e', 0x301};
    QTest::newRow("composed and combining")
        << QStringLiteral("\u00e9e\u0301") << Characters{0xe9, 'e', 0x301};
    QTest::newRow("beyond the basic plane")
        << QString("a" + smile + "b") << Characters{'a', 0x1f600, 'b'};
    QTest::newRow("first beyond the basic plane") << units({0xd800, 0xdc00}) << Characters{0x10000};
    QTest::newRow("last character") << units({0xdbff, 0xdfff}) << Characters{0x10ffff};
    QTest::newRow("last of the basic plane") << units({0xffff}) << Characters{0xffff};
    QTest::newRow("high surrogate alone") << units({0xd83d}) << Characters{0xd83d};
    QTest::newRow("high surrogate at the start") << units({0xd83d, 'a'}) << Characters{0xd83d, 'a'};
    QTest::newRow("high surrogate in the middle")
        << units({'a', 0xd83d, 'b'}) << Characters{'a', 0xd83d, 'b'};
    QTest::newRow("high surrogate at the end") << units({'a', 0xd83d}) << Characters{'a', 0xd83d};
    QTest::newRow("low surrogate alone") << units({0xde00}) << Characters{0xde00};
    QTest::newRow("low surrogate at the start") << units({0xde00, 'a'}) << Characters{0xde00, 'a'};
    QTest::newRow("low surrogate in the middle")
        << units({'a', 0xde00, 'b'}) << Characters{'a', 0xde00, 'b'};
    QTest::newRow("low surrogate at the end") << units({'a', 0xde00}) << Characters{'a', 0xde00};
    QTest::newRow("low before high") << units({0xde00, 0xd83d}) << Characters{0xde00, 0xd83d};
    QTest::newRow("high before a pair")
        << units({0xd83d, 0xd83d, 0xde00}) << Characters{0xd83d, 0x1f600};
    QTest::newRow("low after a pair")
        << units({0xd83d, 0xde00, 0xde00}) << Characters{0x1f600, 0xde00};
    QTest::newRow("zero inside") << units({'a', 0, 'b'}) << Characters{'a', 0, 'b'};
    QTest::newRow("zero alone") << units({0}) << Characters{0};
}

void StringValueTest::keepsEveryCharacter()
{
    QFETCH(QString, text);
    QFETCH(Characters, characters);

    const CVyString string(text);
    QCOMPARE(charactersOf(string), characters);
    QCOMPARE(string.c_str()[string.getLength()], L'\0');
    QCOMPARE(string.isEmpty(), characters.isEmpty());
    QCOMPARE(QString(string), text);
}

void StringValueTest::comesFromWideCharacters_data()
{
    QTest::addColumn<Characters>("characters");
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << Characters{} << QString("");
    QTest::newRow("basic plane") << Characters{'a', 0xe9, 0x401, 0xffff}
                                 << units({'a', 0xe9, 0x401, 0xffff});
    QTest::newRow("beyond the basic plane") << Characters{0x1f600} << smile;
    QTest::newRow("last character") << Characters{0x10ffff} << units({0xdbff, 0xdfff});
    QTest::newRow("first value above")
        << Characters{'a', 0x110000, 'b'} << units({'a', 0xfffd, 'b'});
    QTest::newRow("largest value") << Characters{0x7fffffff} << units({0xfffd});
    QTest::newRow("all bits set") << Characters{0xffffffff} << units({0xfffd});
    QTest::newRow("surrogates as two elements") << Characters{0xd83d, 0xde00} << smile;
    QTest::newRow("surrogate alone") << Characters{0xde00} << units({0xde00});
}

void StringValueTest::comesFromWideCharacters()
{
    QFETCH(Characters, characters);
    QFETCH(QString, text);

    const CVyString string = fromCharacters(characters);
    QCOMPARE(charactersOf(string), characters);
    QCOMPARE(QString(string), text);
}

void StringValueTest::endsAtTheTerminatingZero()
{
    QCOMPARE(charactersOf(L"ab\0cd"), (Characters{'a', 'b'}));
}

void StringValueTest::nullIsTheEmptyString()
{
    const wchar_t* const none = nullptr;
    QVERIFY(CVyString(none).isEmpty());
}

void StringValueTest::startsEmpty()
{
    const CVyString string;
    QVERIFY(string.isEmpty());
    QCOMPARE(string.getLength(), 0);
    QCOMPARE(*string.c_str(), L'\0');
    QCOMPARE(QString(string), QString(""));
}

void StringValueTest::compares_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("equal");

    QTest::newRow("the same") << "plan"
                              << "plan" << true;
    QTest::newRow("both empty") << QString() << "" << true;
    QTest::newRow("other case") << "plan"
                                << "Plan" << false;
    QTest::newRow("one shorter") << "plan"
                                 << "plans" << false;
    QTest::newRow("one empty") << ""
                               << "plan" << false;
    QTest::newRow("behind a zero") << units({'a', 0, 'b'}) << units({'a', 0, 'c'}) << false;
    QTest::newRow("one ends at a zero") << "a" << units({'a', 0}) << false;
    QTest::newRow("different lone surrogates") << units({0xd83d}) << units({0xd83e}) << false;
    QTest::newRow("composed and combining")
        << QStringLiteral("\u00e9") << QStringLiteral("e\u0301") << false;
}

void StringValueTest::compares()
{
    QFETCH(QString, one);
    QFETCH(QString, other);
    QFETCH(bool, equal);

    QCOMPARE(CVyString(one) == CVyString(other), equal);
    QCOMPARE(CVyString(other) == CVyString(one), equal);
    QCOMPARE(CVyString(one) != CVyString(other), !equal);
}

// Equal strings have equal positions.
void StringValueTest::comparesElements()
{
    QVERIFY(fromCharacters({0xd83d, 0xde00}) != fromCharacters({0x1f600}));
    QVERIFY(fromCharacters({0x110000}) != fromCharacters({0xfffd}));
}

void StringValueTest::ignoresCase_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("equal");

    QTest::newRow("the same") << "dwg"
                              << "dwg" << true;
    QTest::newRow("both empty") << ""
                                << "" << true;
    QTest::newRow("one empty") << ""
                               << "dwg" << false;
    QTest::newRow("one longer") << "dwg"
                                << "dwgs" << false;
    QTest::newRow("other letters") << "dwg"
                                   << "dwt" << false;
    QTest::newRow("ASCII") << "dWg"
                           << "DwG" << true;
    QTest::newRow("no letters") << "["
                                << "{" << false;
    QTest::newRow("Latin-1") << QStringLiteral("é") << QStringLiteral("É") << true;
    QTest::newRow("Cyrillic") << QStringLiteral("ЧЕРТЁЖ") << QStringLiteral("чертёж") << true;
    QTest::newRow("beyond the basic plane")
        << QStringLiteral("\U00010400") << QStringLiteral("\U00010428") << true;
    QTest::newRow("sharp s is not two letters") << QStringLiteral("Maß") << "MASS" << false;
    QTest::newRow("capital sharp s") << QStringLiteral("ß") << QStringLiteral("\u1e9e") << true;
    QTest::newRow("i has a dot in every language") << "i"
                                                   << "I" << true;
    QTest::newRow("dotless i has no capital") << QStringLiteral("\u0131") << "I" << false;
    QTest::newRow("dotless i is not i") << QStringLiteral("\u0131") << "i" << false;
    QTest::newRow("capital i with dot is not i") << QStringLiteral("\u0130") << "i" << false;
    QTest::newRow("final sigma") << QStringLiteral("ς") << QStringLiteral("Σ") << true;
    QTest::newRow("both small sigmas") << QStringLiteral("ς") << QStringLiteral("σ") << true;
    QTest::newRow("Kelvin sign") << QStringLiteral("\u212a") << "k" << true;
    QTest::newRow("ligature is not two letters") << QStringLiteral("\ufb01") << "FI" << false;
    QTest::newRow("accent is not dropped") << QStringLiteral("é") << "e" << false;
    QTest::newRow("behind a zero") << units({'a', 0, 'b'}) << units({'A', 0, 'C'}) << false;
}

void StringValueTest::ignoresCase()
{
    QFETCH(QString, one);
    QFETCH(QString, other);
    QFETCH(bool, equal);

    for (const auto language : {QLocale::C, QLocale::Turkish, QLocale::German}) {
        QLocale::setDefault(QLocale(language));
        QCOMPARE(CVyString(one).equalNoCase(CVyString(other)), equal);
        QCOMPARE(CVyString(other).equalNoCase(CVyString(one)), equal);
    }
}

void StringValueTest::concatenates_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<Characters>("characters");

    QTest::newRow("two texts") << "ab"
                               << "c" << Characters{'a', 'b', 'c'};
    QTest::newRow("nothing on the left") << ""
                                         << "c" << Characters{'c'};
    QTest::newRow("nothing on the right") << "ab"
                                          << "" << Characters{'a', 'b'};
    QTest::newRow("nothing at all") << ""
                                    << "" << Characters{};
    QTest::newRow("zeros") << units({'a', 0}) << units({0, 'b'}) << Characters{'a', 0, 0, 'b'};
    QTest::newRow("halves of a pair")
        << units({0xd83d}) << units({0xde00}) << Characters{0xd83d, 0xde00};
}

void StringValueTest::concatenates()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(Characters, characters);

    QCOMPARE(charactersOf(CVyString(left) + CVyString(right)), characters);
    CVyString grown(left);
    QCOMPARE(&(grown += CVyString(right)), &grown);
    QCOMPARE(charactersOf(grown), characters);
    QCOMPARE(QString(grown), QString(left + right));
}

void StringValueTest::addsToItself()
{
    CVyString text(L"ab");
    text += text;
    QCOMPARE(QString(text), QString("abab"));
    QCOMPARE(QString(L"<" + text + L">"), QString("<abab>"));
}

QTEST_GUILESS_MAIN(StringValueTest)
#include "StringValueTest.moc"

// SPDX-License-Identifier: MIT
// What the command's arguments mean, and what is said about wrong ones.
#include "CommandLine.h"
#include "HostPlatform.h"
#include "VyFileTypeList.h"
#include "VyUtils.h"

#include <QRegularExpression>
#include <QtTest>

#include <climits>

using CommandLine::parse;
using CommandLine::Parsed;

namespace {

// The fields that are not as they are without any option, in the order of the
// structure.
QStringList told(const Options& options)
{
    QStringList list;
    const auto tell = [&](bool differs, const char* name, const QString& value) {
        if (differs)
            list.append(QLatin1String(name) + QLatin1Char('=') + value);
    };
    tell(options.action == Options::Action::Help, "action", QStringLiteral("help"));
    tell(options.action == Options::Action::Version, "action", QStringLiteral("version"));
    tell(options.form == Options::Form::NullSeparated, "form", QStringLiteral("null"));
    tell(options.form == Options::Form::Json, "form", QStringLiteral("json"));
    tell(options.style != HostPlatform::defaultStyle(), "style", QString::number(options.style));
    tell(options.type != CVyUserIO::FileNameOpen, "type", QString::number(options.type, 16));
    tell(options.flags != 0, "flags", QString::number(options.flags));
    tell(options.multiple, "multiple", QStringLiteral("yes"));
    tell(!options.title.isEmpty(), "title", options.title);
    tell(!options.defaultExtension.isEmpty(), "extension", options.defaultExtension);
    tell(!options.startPath.isEmpty(), "start", options.startPath);
    tell(!options.templateFolder.isEmpty(), "templates", options.templateFolder);
    tell(options.parentWindow != 0, "parent", QString::number(options.parentWindow));
    tell(options.expertLevel.has_value(), "expert", QString::number(options.expertLevel.value_or(0)));
    tell(options.filter.has_value(), "filter", options.filter.value_or(QString()));
    tell(options.templateName.has_value(), "template", options.templateName.value_or(QString()));
    tell(options.typeIndex.has_value(), "index", QString::number(options.typeIndex.value_or(0)));
    return list;
}

Parsed parsed(const QStringList& arguments)
{
    return parse(QStringList{QStringLiteral("vyfiledialog")} + arguments);
}

// Whether the module's open panel has an extension list for each of its entries.
bool suitsOpenPanel(const QString& filter)
{
    const VyFileTypeList::Types types =
        VyFileTypeList::fromConverted(CVyUtils::ConvertToQtFilter(filter));
    return VyFileTypeList::entries(types.qtFilter).size() ==
           VyFileTypeList::splitLists(types.extensionLists).size();
}

// What is said about an entry of the panel.
QString withoutExtension(const char* entry)
{
    return QStringLiteral("'%1' has no extension; '*.*' stands for any file")
        .arg(QString::fromUtf8(entry));
}

QString parted(const char* entry)
{
    return QStringLiteral("the ';' in '%1' would part it into several types")
        .arg(QString::fromUtf8(entry));
}

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void understands_data();
    void understands();
    void rejects_data();
    void rejects();
    void nativeTypes_data();
    void nativeTypes();
    void nativeTypesAmongOtherErrors();
    void numbers_data();
    void numbers();
    void windowNumbers_data();
    void windowNumbers();
    void helpNamesEveryOption();
    void helpShowsTypesForEveryDialog();
};

void CommandLineTest::understands_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("expected");

    const auto row = [](const char* name, const QStringList& arguments,
                        const QStringList& expected) {
        QTest::newRow(name) << arguments << expected;
    };
    row("open alone", {"open"}, {});
    row("save alone", {"save"}, {"type=4"});
    row("new alone", {"new"}, {"type=1"});
    row("request after options", {"--title", "T", "save"}, {"type=4", "title=T"});
    row("value after equals sign", {"open", "--title=A=B"}, {"title=A=B"});
    row("value beginning with a dash", {"open", "--title", "--json"}, {"title=--json"});
    row("last of two values", {"open", "--title", "A", "--title", "B"}, {"title=B"});
    row("empty title", {"open", "--title", ""}, {});
    row("style", {"open", "--style", "native"},
        HostPlatform::defaultStyle() == CVyFileDialog::StyleNative ? QStringList{}
                                                                   : QStringList{"style=3"});
    row("positional start path", {"open", "a b.dwg"}, {"start=a b.dwg"});
    row("start option", {"open", "--start", "plans"}, {"start=plans"});
    row("empty start option", {"open", "--start", ""}, {});
    row("start path with a dash", {"open", "--", "-plan.dwg"}, {"start=-plan.dwg"});
    row("start path like an option", {"open", "--", "--json"}, {"start=--json"});
    row("request after two dashes", {"--", "save", "--"}, {"type=4", "start=--"});
    row("start option with a dash", {"open", "--start", "-x"}, {"start=-x"});
    row("filter", {"open", "--filter", "D&*.dwg"}, {"filter=D&*.dwg"});
    row("empty filter", {"open", "--filter", ""}, {"filter="});
    row("empty filter after equals sign", {"open", "--filter="}, {"filter="});
    row("extension", {"save", "--default-extension", "dwg"}, {"type=4", "extension=dwg"});
    row("template", {"new", "--template", "A.dwt"}, {"type=1", "template=A.dwt"});
    row("empty template", {"new", "--template", ""}, {"type=1", "template="});
    row("template folder", {"open", "--template-folder", "t"}, {"templates=t"});
    row("several", {"open", "--multiple"}, {"multiple=yes"});
    row("several to save", {"save", "--multiple"}, {"type=4", "multiple=yes"});
    row("modes", {"open", "--modes"}, {"flags=1"});
    row("no preview", {"open", "--no-preview"}, {"type=102"});
    row("open only", {"open", "--open-only"}, {"type=202"});
    row("no template folder", {"open", "--no-template-folder"}, {"type=402"});
    row("every qualifier", {"--open-only", "--no-preview", "--no-template-folder", "open"},
        {"type=702"});
    row("qualifier to save", {"save", "--no-preview"}, {"type=104"});
    row("parent", {"open", "--parent", "0x400006"}, {"parent=4194310"});
    row("expert level", {"save", "--expert-level", "2"}, {"type=4", "expert=2"});
    row("type index", {"open", "--type-index", "0"}, {"index=0"});
    row("zero bytes, short", {"open", "-0"}, {"form=null"});
    row("zero bytes, long", {"open", "--null"}, {"form=null"});
    row("json", {"open", "--json"}, {"form=json"});
    row("help", {"--help"}, {"action=help"});
    row("help, short", {"-h"}, {"action=help"});
    row("help beats wrong values", {"opne", "--type-index", "x", "--help"}, {"action=help"});
    row("help beats version", {"--version", "--help"}, {"action=help"});
    row("version", {"--version"}, {"action=version"});
}

void CommandLineTest::understands()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, expected);
    const Parsed result = parsed(arguments);
    QCOMPARE(result.error, QString());
    if (result.options.action == Options::Action::Ask)
        QCOMPARE(told(result.options), expected);
    else
        QCOMPARE(told(result.options).mid(0, 1), expected);
}

void CommandLineTest::rejects_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    const auto row = [](const char* name, const QStringList& arguments, const char* error) {
        QTest::newRow(name) << arguments << QString::fromLatin1(error);
    };
    row("nothing", {}, "no request is given: open, save or new");
    row("options alone", {"--json"}, "no request is given: open, save or new");
    row("unknown request", {"opne"}, "'opne' is no request: open, save or new");
    row("empty request", {""}, "'' is no request: open, save or new");
    row("request in capitals", {"Open"}, "'Open' is no request: open, save or new");
    row("path first", {"a.dwg", "open"}, "'a.dwg' is no request: open, save or new");
    row("unknown option", {"open", "--bogus"}, "Unknown option 'bogus'");
    row("unknown short options", {"open", "-xy"}, "Unknown options: x, y");
    row("option without value", {"open", "--title"}, "Missing value after '--title'");
    row("switch with value", {"open", "--json=1"}, "Unexpected value after '--json'");
    row("unknown style", {"open", "--style", "gtk"}, "--style: 'gtk' is no style: qt or native");
    row("empty style", {"open", "--style", ""}, "--style: '' is no style: qt or native");
    row("style in capitals", {"open", "--style=QT"}, "--style: 'QT' is no style: qt or native");
    row("two forms", {"open", "-0", "--json"}, "--null and --json exclude each other");
    row("two paths", {"open", "a", "b"}, "'b' is one argument too many");
    row("three paths", {"open", "a", "b", "c"}, "'b' is one argument too many");
    row("start path twice", {"open", "a", "--start", "b"},
        "the start path is given twice: 'b' and 'a'");
    row("empty start path and another", {"open", "a", "--start", ""},
        "the start path is given twice: '' and 'a'");
    row("percent signs", {"open", "%1", "--start", "%2"},
        "the start path is given twice: '%2' and '%1'");
    row("wrong expert level", {"save", "--expert-level", "high"},
        "--expert-level: 'high' is no whole number from -2147483648 to 2147483647");
    row("first error of two", {"open", "--style", "x", "--type-index", "y"},
        "--style: 'x' is no style: qt or native");
}

void CommandLineTest::rejects()
{
    QFETCH(QStringList, arguments);
    QTEST(parsed(arguments).error, "error");
}

// What an open panel of the system would stop the program at, and nothing else.
void CommandLineTest::nativeTypes_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("fault"); // empty: none

    const auto good = [](const char* name, const char* filter) {
        QTest::newRow(name) << QString::fromUtf8(filter) << QString();
    };
    const auto without = [](const char* name, const char* filter, const char* entry) {
        QTest::newRow(name) << QString::fromUtf8(filter) << withoutExtension(entry);
    };
    const auto apart = [](const char* name, const char* filter, const char* entry) {
        QTest::newRow(name) << QString::fromUtf8(filter) << parted(entry);
    };
    good("one type", "Drawings&*.dwg");
    good("any file by extension", "Drawings&*.dwg;*.dxf&All files&*.*");
    good("no types", "");
    good("separators alone", "&&&");
    good("separator at the end", "Drawings&*.dwg&");
    good("empty pair in the middle", "A&*.a&&&B&*.b");
    good("long extension", "Archives&*.tar.gz");
    good("empty extension before another", "A&*.;*.a");
    good("extension before any file", "A&*.a;*");
    good("without description", "&*.dwg");
    good("semicolon in parentheses", "Drawings (*.dwg;*.dxf)&*.dwg;*.dxf");
    good("description of a semicolon", ";&*.dwg");
    good("semicolon at the end of the entry", "Drawings (;&*.dwg");
    good("semicolons alone around a parenthesis", ";(;&*.dwg");
    good("not ASCII", "Zeichnungen für Ämter&*.dwg");
    without("any file", "All files&*", "All files (*)");
    without("any file, last", "Drawings&*.dwg&All files&*", "All files (*)");
    without("any file, first", "All files&*&Drawings&*.dwg", "All files (*)");
    without("any file before an extension", "A&*;*.a", "A (* *.a)");
    without("separator before an extension", "A&;*.a", "A ( *.a)");
    without("empty extension", "A&*.", "A (*.)");
    without("file name", "Makefiles&Makefile", "Makefiles (Makefile)");
    without("description alone", "Drawings", "Drawings ()");
    without("description before an empty field", "Drawings&", "Drawings ()");
    without("any file, not ASCII", "Ärger&*", "Ärger (*)");
    apart("semicolon", "Plans; sections&*.dwg", "Plans; sections (*.dwg)");
    apart("semicolon before parentheses", "A;B (*.dwg)&*.dwg", "A;B (*.dwg)");
    apart("semicolon behind an open parenthesis", "A(;B&*.dwg", "A(;B");
    apart("semicolon at the end of the description", "A;&*.a", "A; (*.a)");
    apart("semicolon, last", "A&*.a&B;C&*.b", "B;C (*.b)");
    apart("semicolon and no extension", "A;B&*", "A;B (*)");
    without("the first of two faults", "A&*&B;C&*.b", "A (*)");
}

void CommandLineTest::nativeTypes()
{
    QFETCH(QString, filter);
    QFETCH(QString, fault);
    const QString error =
        fault.isEmpty() ? fault : "--filter: no type for a native open panel: " + fault;
    QCOMPARE(parsed({"open", "--style", "native", "--filter", filter}).error, error);
    QCOMPARE(parsed({"open", "--style=native", "--open-only", "--filter", filter}).error, error);
    QCOMPARE(fault.isEmpty(), suitsOpenPanel(filter));

    for (const char* request : {"save", "new"}) {
        const Parsed result = parsed({request, "--style", "native", "--filter", filter});
        QCOMPARE(result.error, QString());
        QCOMPARE(result.options.filter, std::optional(filter));
    }
    QCOMPARE(parsed({"open", "--style", "qt", "--filter", filter}).error, QString());
}

// The last style counts, and without one the platform's.
void CommandLineTest::nativeTypesAmongOtherErrors()
{
    const QStringList open{"open", "--filter", "All files&*"};
    const bool nativeByDefault = HostPlatform::defaultStyle() == CVyFileDialog::StyleNative;
    QCOMPARE(parsed(open).error.isEmpty(), !nativeByDefault);
    QCOMPARE(parsed(open + QStringList{"--style", "native", "--style", "qt"}).error, QString());
    QVERIFY(parsed(open + QStringList{"--style", "qt", "--style", "native"})
                .error.startsWith("--filter: "));
    QVERIFY(parsed(open + QStringList{"--style", "native", "--json", "--null"})
                .error.startsWith("--filter: "));
    QVERIFY(parsed({"--filter", "All files&*", "--style", "native", "opne"})
                .error.startsWith("'opne' is no request"));
}

void CommandLineTest::numbers_data()
{
    QTest::addColumn<bool>("good");
    QTest::addColumn<int>("value");
    QTest::newRow("0") << true << 0;
    QTest::newRow("7") << true << 7;
    QTest::newRow("007") << true << 7;
    QTest::newRow("-1") << true << -1;
    QTest::newRow("2147483647") << true << INT_MAX;
    QTest::newRow("-2147483648") << true << INT_MIN;
    QTest::newRow("2147483648") << false << 0;
    QTest::newRow("-2147483649") << false << 0;
    QTest::newRow("99999999999999999999") << false << 0;
    QTest::newRow("1x") << false << 0;
    QTest::newRow("x1") << false << 0;
    QTest::newRow("0x10") << false << 0;
    QTest::newRow("1.5") << false << 0;
    QTest::newRow("1e3") << false << 0;
    QTest::newRow("1,000") << false << 0;
    QTest::newRow("--1") << false << 0;
    QTest::newRow("-") << false << 0;
    QTest::newRow("") << false << 0;
    QTest::newRow("٣") << false << 0;
}

void CommandLineTest::numbers()
{
    QFETCH(bool, good);
    const QString text = QString::fromUtf8(QTest::currentDataTag());
    for (const char* option : {"--type-index", "--expert-level"}) {
        const Parsed result = parsed({"open", option, text});
        QCOMPARE(result.error.isEmpty(), good);
        if (!good)
            QVERIFY2(result.error.startsWith(QStringLiteral("%1: '%2' is no").arg(option, text)),
                     qPrintable(result.error));
    }
    if (good) {
        QTEST(*parsed({"open", "--type-index", text}).options.typeIndex, "value");
        QTEST(*parsed({"open", "--expert-level", text}).options.expertLevel, "value");
    }
}

void CommandLineTest::windowNumbers_data()
{
    QTest::addColumn<bool>("good");
    QTest::addColumn<unsigned>("value");
    QTest::newRow("0") << true << 0U;
    QTest::newRow("4194310") << true << 0x400006U;
    QTest::newRow("010") << true << 10U;
    QTest::newRow("0x400006") << true << 0x400006U;
    QTest::newRow("0X1F") << true << 0x1fU;
    QTest::newRow("0xabCD") << true << 0xabcdU;
    QTest::newRow("4294967295") << true << UINT_MAX;
    QTest::newRow("0xffffffff") << true << UINT_MAX;
    QTest::newRow("4294967296") << false << 0U;
    QTest::newRow("0x100000000") << false << 0U;
    QTest::newRow("-1") << false << 0U;
    QTest::newRow("0x-1") << false << 0U;
    QTest::newRow("0x") << false << 0U;
    QTest::newRow("x10") << false << 0U;
    QTest::newRow("abc") << false << 0U;
    QTest::newRow("0x1g") << false << 0U;
    QTest::newRow("0x0x1") << false << 0U;
    QTest::newRow("1.0") << false << 0U;
    QTest::newRow("") << false << 0U;
}

void CommandLineTest::windowNumbers()
{
    QFETCH(bool, good);
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    const Parsed result = parsed({"open", "--parent", text});
    if (good) {
        QCOMPARE(result.error, QString());
        QTEST(unsigned(result.options.parentWindow), "value");
    } else {
        QCOMPARE(
            result.error,
            QStringLiteral("--parent: '%1' is no window number from 0 to 4294967295").arg(text));
    }
}

void CommandLineTest::helpNamesEveryOption()
{
    const QString help = CommandLine::helpText();
    QVERIFY(CommandLine::options().size() > 10);
    for (const QCommandLineOption& option : CommandLine::options()) {
        for (const QString& name : option.names()) {
            const QString dashes = name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--");
            QVERIFY2(help.contains(dashes + name), qPrintable(name));
        }
    }
}

void CommandLineTest::helpShowsTypesForEveryDialog()
{
    const QRegularExpression quoted(QStringLiteral("The file types, for example \\s*\"([^\"]+)\""));
    const QString filter = quoted.match(CommandLine::helpText().simplified()).captured(1);
    QVERIFY2(filter.contains('&'), qPrintable(filter));
    QCOMPARE(parsed({"open", "--style", "native", "--filter", filter}).error, QString());
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "CommandLineTest.moc"

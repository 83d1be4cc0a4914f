// SPDX-License-Identifier: MIT
#include "VyStartingType.h"

#include <QtTest>

namespace {

const QStringList drawings{"Drawing", "Exchange", "Template"};
const QStringList drawingLists{"dwg", "dxf;dxb", "dwt"};

} // namespace

/// Which file type a native panel starts with.
class StartingTypeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openBySuffix_data();
    void openBySuffix();
    void openBySelection_data();
    void openBySelection();
    void openWithOddLists_data();
    void openWithOddLists();
    void newDrawing_data();
    void newDrawing();
    void save_data();
    void save();
    void saveWithOddLists_data();
    void saveWithOddLists();
    void nothingGivenIsNull();
};

void StartingTypeTest::openBySuffix_data()
{
    QTest::addColumn<QStringList>("descriptions");
    QTest::addColumn<QStringList>("lists");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QStringList>("extensions");

    const QStringList abc{"A", "B", "C"};
    const QStringList first{"dwg"};
    const auto row = [](const char* name, const QStringList& descriptions, const QStringList& lists,
                        const char* suffix, const char* description,
                        const QStringList& extensions) {
        QTest::newRow(name) << descriptions << lists << suffix << description << extensions;
    };
    row("none", drawings, drawingLists, "", "Drawing", first);
    row("first list", drawings, drawingLists, "dwg", "Drawing", first);
    row("last list", drawings, drawingLists, "dwt", "Template", {"dwt"});
    row("whole list of several", drawings, drawingLists, "dxf;dxb", "Exchange", {"dxf", "dxb"});
    row("first part of a list", drawings, drawingLists, "dxf", "Exchange", {"dxf", "dxb"});
    row("last part of a list", drawings, drawingLists, "dxb", "Exchange", {"dxf", "dxb"});
    row("part of the second", {"T", "D"}, {"dwt", "dwg;dxf"}, "dwg", "D", {"dwg", "dxf"});
    row("whole list after a part", abc, {"dwg;dxf", "dxf", "dwt"}, "dxf", "B", {"dxf"});
    row("first of several parts", abc, {"dwt", "dwg;dxf", "dxf;dwg"}, "dxf", "B", {"dwg", "dxf"});
    row("first of equal lists", abc, {"dwt", "dwg", "dwg"}, "dwg", "B", {"dwg"});
    row("matches nothing", drawings, drawingLists, "pdf", "Drawing", first);
    row("parts in another order", drawings, drawingLists, "dxb;dxf", "Drawing", first);
    row("two of three parts", abc, {"dwg", "a;b;c", "d"}, "a;b", "A", first);
    row("beginning of an extension", drawings, drawingLists, "dx", "Drawing", first);
    row("more than an extension", drawings, drawingLists, "dwts", "Drawing", first);
    row("other case, list", drawings, drawingLists, "DWT", "Drawing", first);
    row("other case, part", drawings, drawingLists, "DXB", "Drawing", first);
    row("other case in the list", {"A", "B"}, {"dwg", "DXF"}, "DXF", "B", {"DXF"});
    row("with a dot", drawings, drawingLists, ".dwt", "Drawing", first);
    row("any file", {"A", "B"}, {"dwg", "*"}, "*", "B", {"*"});
    row("any file among others", {"A", "B"}, {"dwg", "dxf;*"}, "*", "B", {"dxf", "*"});
    row("separator", drawings, drawingLists, ";", "Drawing", first);
}

void StartingTypeTest::openBySuffix()
{
    QFETCH(QStringList, descriptions);
    QFETCH(QStringList, lists);
    QFETCH(QString, suffix);
    const VyStartingType type = VyStartingType::forOpen(descriptions, lists, suffix, QString());
    QTEST(type.description, "description");
    QTEST(type.extensions, "extensions");
}

void StartingTypeTest::openBySelection_data()
{
    QTest::addColumn<QStringList>("lists");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QStringList>("extensions");

    const auto row = [](const char* name, const QStringList& lists, const char* suffix,
                        const char* selected, const char* description,
                        const QStringList& extensions) {
        QTest::newRow(name) << lists << suffix << selected << description << extensions;
    };
    row("second", drawingLists, "", "Exchange", "Exchange", {"dxf", "dxb"});
    row("wins over the suffix", drawingLists, "dwt", "Exchange", "Exchange", {"dxf", "dxb"});
    row("first wins over the suffix", drawingLists, "dwt", "Drawing", "Drawing", {"dwg"});
    row("wins over an unknown suffix", drawingLists, "pdf", "Template", "Template", {"dwt"});
    row("no such type, suffix", drawingLists, "dwt", "Sheet", "Template", {"dwt"});
    row("no such type, part", drawingLists, "dxb", "Sheet", "Exchange", {"dxf", "dxb"});
    row("no such type, no suffix", drawingLists, "", "Sheet", "Drawing", {"dwg"});
    row("other case", drawingLists, "dwt", "exchange", "Template", {"dwt"});
    row("beginning", drawingLists, "dwt", "Exch", "Template", {"dwt"});
    row("with more", drawingLists, "dwt", "Exchange ", "Template", {"dwt"});
    row("an extension", drawingLists, "dwt", "dwg", "Template", {"dwt"});
    row("equal lists", {"dwg", "dxf", "dxf"}, "", "Template", "Exchange", {"dxf"});
    row("a list that is a part before", {"dwg;dwt", "dxf", "dwt"}, "", "Template", "Template",
        {"dwt"});
    row("type without extension", {"dwg", "", "dwt"}, "dwt", "Exchange", "Exchange", {});
    row("second type without extension", {"", "dwg", ""}, "dwg", "Template", "Drawing", {});
}

void StartingTypeTest::openBySelection()
{
    QFETCH(QStringList, lists);
    QFETCH(QString, suffix);
    QFETCH(QString, selected);
    const VyStartingType type = VyStartingType::forOpen(drawings, lists, suffix, selected);
    QTEST(type.description, "description");
    QTEST(type.extensions, "extensions");
}

void StartingTypeTest::openWithOddLists_data()
{
    QTest::addColumn<QStringList>("descriptions");
    QTest::addColumn<QStringList>("lists");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QStringList>("extensions");

    const auto row = [](const char* name, const QStringList& descriptions, const QStringList& lists,
                        const char* suffix, const char* selected, const char* description,
                        const QStringList& extensions) {
        QTest::newRow(name) << descriptions << lists << suffix << selected << description
                            << extensions;
    };
    row("no types", {}, {}, "", "", "", {});
    row("no types, suffix", {}, {}, "dwg", "", "", {});
    row("no types, selection", {}, {}, "", "Drawing", "", {});
    row("no types, both", {}, {}, "dwg", "Drawing", "", {});
    row("first list empty", {"All", "D"}, {"", "dwg"}, "", "", "All", {});
    row("first list empty, suffix", {"All", "D"}, {"", "dwg"}, "dwg", "", "D", {"dwg"});
    row("later list empty, no suffix", {"D", "All"}, {"dwg", ""}, "", "", "D", {"dwg"});
    row("selection of equal descriptions", {"A", "B", "B"}, {"dwg", "dxf", "dwt"}, "dwt", "B", "B",
        {"dxf"});
    row("first list empty, unknown suffix", {"All", "D"}, {"", "dwg"}, "dxf", "", "All", {});
    row("empty parts", {"A", "B"}, {"dwg", ";dxf;;dxb;"}, "dxb", "", "B", {"dxf", "dxb"});
    row("separators alone", {"A", "B"}, {";;", "dwg"}, "", "", "A", {});
    row("description empty, whole list", {"A", "", "C"}, {"dwg", "dxf", "dwt"}, "dxf", "", "A",
        {"dwg"});
    row("description empty, part elsewhere", {"A", "", "C"}, {"dwg", "dxf", "dwt;dxf"}, "dxf", "",
        "A", {"dwg"});
    row("description empty, part before", {"A", "B", ""}, {"dwg", "dwt;dxf", "dxf"}, "dxf", "", "B",
        {"dwt", "dxf"});
    row("description empty, part", {"A", ""}, {"dwg", "dxf;dwt"}, "dwt", "", "A", {"dwg"});
    row("first description empty", {"", "B"}, {"dwg", "dxf"}, "", "", "", {"dwg"});
    row("Cyrillic", {"A", "Чертёж"}, {"dwg", "чер"}, "чер", "", "Чертёж", {"чер"});
    row("Cyrillic selection", {"A", "Чертёж"}, {"dwg", "чер"}, "", "Чертёж", "Чертёж", {"чер"});
}

void StartingTypeTest::openWithOddLists()
{
    QFETCH(QStringList, descriptions);
    QFETCH(QStringList, lists);
    QFETCH(QString, suffix);
    QFETCH(QString, selected);
    const VyStartingType type = VyStartingType::forOpen(descriptions, lists, suffix, selected);
    QTEST(type.description, "description");
    QTEST(type.extensions, "extensions");
}

void StartingTypeTest::newDrawing_data()
{
    QTest::addColumn<QStringList>("descriptions");
    QTest::addColumn<QStringList>("lists");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QStringList>("extensions");

    const auto row = [](const char* name, const QStringList& descriptions, const QStringList& lists,
                        const char* description, const QStringList& extensions) {
        QTest::newRow(name) << descriptions << lists << description << extensions;
    };
    row("several types", drawings, drawingLists, "Drawing", {"dwg"});
    row("several extensions", {"A", "B"}, {"dwt;dwg", "dxf"}, "A", {"dwt", "dwg"});
    row("empty parts", {"A"}, {";dwt;;dwg;"}, "A", {"dwt", "dwg"});
    row("first list empty", {"All", "D"}, {"", "dwg"}, "All", {});
    row("any file", {"All"}, {"*"}, "All", {"*"});
    row("no types", {}, {}, "", {});
    row("descriptions alone", {"A", "B"}, {}, "", {});
    row("lists alone", {}, {"dwt;dwg", "dxf"}, "", {"dwt", "dwg"});
    row("more descriptions", {"A", "B", "C"}, {"dwg"}, "A", {"dwg"});
    row("more lists", {"A"}, {"dwg", "dxf"}, "A", {"dwg"});
    row("description empty", {"", "B"}, {"dwg", "dxf"}, "", {"dwg"});
}

void StartingTypeTest::newDrawing()
{
    QFETCH(QStringList, descriptions);
    QFETCH(QStringList, lists);
    const VyStartingType type = VyStartingType::forNew(descriptions, lists);
    QTEST(type.description, "description");
    QTEST(type.extensions, "extensions");
}

void StartingTypeTest::save_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("description");

    const auto row = [](const char* name, const char* suffix, const char* selected,
                        const char* description) {
        QTest::newRow(name) << suffix << selected << description;
    };
    row("nothing preset", "", "", "Drawing");
    row("suffix of the first", "dwg", "", "Drawing");
    row("suffix of the last", "dwt", "", "Template");
    row("whole list", "dxf;dxb", "", "Exchange");
    row("a part is no whole list", "dxf", "", "Drawing");
    row("parts in another order", "dxb;dxf", "", "Drawing");
    row("other case", "DWT", "", "Drawing");
    row("no such suffix", "pdf", "", "Drawing");
    row("selection", "", "Exchange", "Exchange");
    row("selection wins over the suffix", "dwt", "Exchange", "Exchange");
    row("selection wins over an unknown suffix", "pdf", "Exchange", "Exchange");
    row("selection that is no type", "", "Sheet", "Sheet");
    row("selection that is no type, suffix", "dwt", "Sheet", "Sheet");
    row("selection in other case", "dwt", "exchange", "exchange");
}

void StartingTypeTest::save()
{
    QFETCH(QString, suffix);
    QFETCH(QString, selected);
    QTEST(VyStartingType::forSave(drawings, drawingLists, suffix, selected), "description");
}

void StartingTypeTest::saveWithOddLists_data()
{
    QTest::addColumn<QStringList>("descriptions");
    QTest::addColumn<QStringList>("lists");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("description");

    const auto row = [](const char* name, const QStringList& descriptions, const QStringList& lists,
                        const char* suffix, const char* selected, const char* description) {
        QTest::newRow(name) << descriptions << lists << suffix << selected << description;
    };
    row("no types", {}, {}, "", "", "");
    row("no types, suffix", {}, {}, "dwg", "", "");
    row("no types, selection", {}, {}, "", "Sheet", "Sheet");
    row("first of equal lists", {"A", "B", "C"}, {"dwt", "dwg", "dwg"}, "dwg", "", "B");
    row("first list empty", {"All", "D"}, {"", "dwg"}, "", "", "All");
    row("first list empty, suffix", {"All", "D"}, {"", "dwg"}, "dwg", "", "D");
    row("later list empty, no suffix", {"A", "All"}, {"dwg", ""}, "", "", "All");
    row("descriptions alone", {"A", "B"}, {}, "", "", "");
    row("descriptions alone, suffix", {"A", "B"}, {}, "dwg", "", "");
    row("lists alone", {}, {"dwg", "dxf"}, "dxf", "", "");
    row("more descriptions", {"A", "B", "C"}, {"dwg", "dxf"}, "dxf", "", "B");
    row("more descriptions, unknown suffix", {"A", "B", "C"}, {"dwg"}, "dxf", "", "A");
    row("more lists", {"A", "B"}, {"dwg", "dxf", "dwt"}, "dxf", "", "B");
    row("more lists, unknown suffix", {"A"}, {"dwg", "dxf"}, "dwt", "", "A");
    row("more lists, selection", {"A"}, {"dwg", "dxf"}, "dxf", "B", "B");
    // Without a description to tell, the popup starts with its first item.
    row("list without description", {"A"}, {"dwg", "dxf"}, "dxf", "", "");
}

void StartingTypeTest::saveWithOddLists()
{
    QFETCH(QStringList, descriptions);
    QFETCH(QStringList, lists);
    QFETCH(QString, suffix);
    QFETCH(QString, selected);
    QTEST(VyStartingType::forSave(descriptions, lists, suffix, selected), "description");
}

// A null description is what leaves the popup to itself.
void StartingTypeTest::nothingGivenIsNull()
{
    QVERIFY(VyStartingType::forOpen({}, {}, "dwg", "Drawing").description.isNull());
    QVERIFY(VyStartingType::forNew({}, {}).description.isNull());
    QVERIFY(VyStartingType::forNew({"A"}, {}).description.isNull());
    QVERIFY(VyStartingType::forNew({}, {"dwg"}).description.isNull());
    QVERIFY(VyStartingType::forSave({}, {}, "dwg", "").isNull());
    QVERIFY(VyStartingType::forSave({"A"}, {}, "dwg", "").isNull());
    QVERIFY(VyStartingType::forSave({"A"}, {"dwg", "dxf"}, "dxf", "").isNull());
}

QTEST_GUILESS_MAIN(StartingTypeTest)
#include "StartingTypeTest.moc"

// SPDX-License-Identifier: MIT
#include "VyFileTypeList.h"

#include "VyUtils.h"

#include <QtTest>

#include <climits>

namespace {

QStringList toStringList(const std::vector<CVyString>& texts)
{
    return QStringList(texts.begin(), texts.end());
}

} // namespace

/// The lists that a converted filter becomes, and the entry that an index names.
class FileTypeListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTypes_data();
    void listsTypes();
    void readsConvertedFilters_data();
    void readsConvertedFilters();
    void findsExtensions_data();
    void findsExtensions();
    void splitsEntries_data();
    void splitsEntries();
    void splitsLists_data();
    void splitsLists();
    void splitsExtensions_data();
    void splitsExtensions();
    void clampsTheIndex_data();
    void clampsTheIndex();
    void findsTheIndex_data();
    void findsTheIndex();
};

void FileTypeListTest::listsTypes_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("qtFilter");
    QTest::addColumn<QString>("extensionLists");
    QTest::addColumn<int>("types");

    QTest::newRow("no types") << ""
                              << ""
                              << "" << 0;
    QTest::newRow("one type") << "Drawing&*.dwg"
                              << "Drawing (*.dwg);;"
                              << "dwg&" << 1;
    QTest::newRow("two types") << "Drawing&*.dwg;*.dxf&Web&*.dwf"
                               << "Drawing (*.dwg *.dxf);;Web (*.dwf);;"
                               << "dwg;dxf&dwf&" << 2;
    QTest::newRow("empty pair between two") << "A&*.a&&&B&*.b"
                                            << "A (*.a);;B (*.b);;"
                                            << "a&b&" << 2;
    QTest::newRow("type without extension alone") << "All&*"
                                                  << "All (*);;"
                                                  << "&" << 1;
    QTest::newRow("type without extension between two") << "A&*.a&All&*&B&*.b"
                                                        << "A (*.a);;All (*);;B (*.b);;"
                                                        << "a&&b&" << 3;
    QTest::newRow("type of all extensions") << "All&*.*"
                                            << "All (*.*);;"
                                            << "*&" << 1;
    QTest::newRow("type without patterns") << "A&*.a&B"
                                           << "A (*.a);;B ();;"
                                           << "a&&" << 2;
    QTest::newRow("semicolon in the description") << "A;B&*.a&C&*.c"
                                                  << "A;B (*.a);;C (*.c);;"
                                                  << "a&c&" << 3;
    QTest::newRow("Cyrillic") << QStringLiteral("Чертёж&*.чер")
                              << QStringLiteral("Чертёж (*.чер);;") << QStringLiteral("чер&") << 1;
}

void FileTypeListTest::listsTypes()
{
    QFETCH(QString, filter);
    QFETCH(QString, qtFilter);
    QFETCH(QString, extensionLists);
    QFETCH(int, types);

    const VyFileTypeList::Types lists =
        VyFileTypeList::fromConverted(CVyUtils::ConvertToQtFilter(CVyString(filter)));
    QCOMPARE(QString(lists.qtFilter), qtFilter);
    QCOMPARE(QString(lists.extensionLists), extensionLists);
    QCOMPARE(VyFileTypeList::entries(lists.qtFilter).size(), types);
}

void FileTypeListTest::readsConvertedFilters_data()
{
    QTest::addColumn<QString>("converted");
    QTest::addColumn<QString>("qtFilter");
    QTest::addColumn<QStringList>("extensionLists");

    QTest::newRow("nothing") << ""
                             << "" << QStringList();
    QTest::newRow("no types") << "&"
                              << "" << QStringList{""};
    QTest::newRow("one type") << "A (*.a)&*.a&&"
                              << "A (*.a);;" << QStringList{"a", ""};
    QTest::newRow("two types") << "A (*.a *.b)&*.a;*.b&C (*.c)&*.c&&"
                               << "A (*.a *.b);;C (*.c);;" << QStringList{"a;b", "c", ""};
    QTest::newRow("type without extension") << "A (*)&*&B (*.b)&*.b&&"
                                            << "A (*);;B (*.b);;" << QStringList{"", "b", ""};
    QTest::newRow("entry without partner") << "A (*.a)"
                                           << "" << QStringList();
    QTest::newRow("last entry without partner") << "A (*.a)&*.a&B"
                                                << "A (*.a)" << QStringList{"a"};
    QTest::newRow("not closed") << "A (*.a)&*.a"
                                << "A (*.a)" << QStringList{"a"};
}

void FileTypeListTest::readsConvertedFilters()
{
    QFETCH(QString, converted);
    QFETCH(QString, qtFilter);
    QFETCH(QStringList, extensionLists);

    const CVyString filter(converted);
    QCOMPARE(toStringList(VyFileTypeList::extensionLists(filter)), extensionLists);
    const VyFileTypeList::Types lists = VyFileTypeList::fromConverted(filter);
    QCOMPARE(QString(lists.qtFilter), qtFilter);
    QCOMPARE(QString(lists.extensionLists), extensionLists.join('&'));
}

void FileTypeListTest::findsExtensions_data()
{
    QTest::addColumn<QString>("patterns");
    QTest::addColumn<QString>("extensions");

    QTest::newRow("one pattern") << "*.dwg"
                                 << "dwg";
    QTest::newRow("two patterns") << "*.dwg;*.dxf"
                                  << "dwg;dxf";
    QTest::newRow("three patterns") << "*.dwg;*.dxf;*.dws"
                                    << "dwg;dxf;dws";
    QTest::newRow("the same twice") << "*.dwg;*.dwg"
                                    << "dwg;dwg";
    QTest::newRow("all files with a dot") << "*.*"
                                          << "*";
    QTest::newRow("extension with a dot") << "*.tar.gz"
                                          << "tar.gz";
    QTest::newRow("no patterns") << ""
                                 << "";
    QTest::newRow("no dot") << "*"
                            << "";
    QTest::newRow("no dot at the start") << "*;*.dwg"
                                         << "";
    QTest::newRow("no dot in the middle") << "*.dwg;*;*.dxf"
                                          << "dwg";
    QTest::newRow("no dot at the end") << "*.dwg;*"
                                       << "dwg";
    QTest::newRow("empty pattern at the start") << ";*.dwg"
                                                << "";
    QTest::newRow("empty pattern in the middle") << "*.dwg;;*.dxf"
                                                 << "dwg";
    QTest::newRow("separator at the end") << "*.dwg;"
                                          << "dwg";
    QTest::newRow("separator alone") << ";"
                                     << "";
    QTest::newRow("dot alone") << "."
                               << "";
    QTest::newRow("dot at the end of the first") << "*.;*.dwg"
                                                 << "dwg";
    QTest::newRow("dot at the end of the last") << "*.dwg;*."
                                                << "dwg;";
    QTest::newRow("two dots") << "*..dwg"
                              << ".dwg";
    QTest::newRow("no star") << ".dwg"
                             << "dwg";
    QTest::newRow("whole name") << "plan.dwg"
                                << "dwg";
    QTest::newRow("blank behind the separator") << "*.dwg; *.dxf"
                                                << "dwg;dxf";
    QTest::newRow("blank at the end") << "*.dwg "
                                      << "dwg ";
    QTest::newRow("comma is no separator") << "*.dwg,*.dxf"
                                           << "dwg,*.dxf";
    QTest::newRow("letter case stays") << "*.DwG"
                                       << "DwG";
    QTest::newRow("Cyrillic") << QStringLiteral("*.чер;*.dwg") << QStringLiteral("чер;dwg");
}

void FileTypeListTest::findsExtensions()
{
    QFETCH(QString, patterns);
    QFETCH(QString, extensions);
    QCOMPARE(QString(VyFileTypeList::extensionList(CVyString(patterns))), extensions);
}

void FileTypeListTest::splitsEntries_data()
{
    QTest::addColumn<QString>("qtFilter");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("separators alone") << ";;;" << QStringList();
    QTest::newRow("one, closed") << "A (*.a);;" << QStringList{"A (*.a)"};
    QTest::newRow("one, not closed") << "A (*.a)" << QStringList{"A (*.a)"};
    QTest::newRow("two") << "A (*.a);;B (*.b);;" << QStringList{"A (*.a)", "B (*.b)"};
    QTest::newRow("empty one between")
        << "A (*.a);;;;B (*.b);;" << QStringList{"A (*.a)", "B (*.b)"};
    QTest::newRow("semicolon of a description")
        << "A;B (*.a);;C (*.c);;" << QStringList{"A", "B (*.a)", "C (*.c)"};
    QTest::newRow("blanks stay") << " ;; (*.a);;" << QStringList{" ", " (*.a)"};
}

void FileTypeListTest::splitsEntries()
{
    QFETCH(QString, qtFilter);
    QFETCH(QStringList, entries);
    QCOMPARE(VyFileTypeList::entries(CVyString(qtFilter)), entries);
}

void FileTypeListTest::splitsLists_data()
{
    QTest::addColumn<QString>("extensionLists");
    QTest::addColumn<QStringList>("lists");

    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("separators alone") << "&&" << QStringList();
    QTest::newRow("one") << "dwg;dxf&" << QStringList{"dwg;dxf"};
    QTest::newRow("two") << "dwg;dxf&dwf&" << QStringList{"dwg;dxf", "dwf"};
    QTest::newRow("an empty one counts as none") << "dwg&&dwf&" << QStringList{"dwg", "dwf"};
}

void FileTypeListTest::splitsLists()
{
    QFETCH(QString, extensionLists);
    QFETCH(QStringList, lists);
    QCOMPARE(VyFileTypeList::splitLists(CVyString(extensionLists)), lists);
}

void FileTypeListTest::splitsExtensions_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QStringList>("extensions");

    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("one") << "dwg" << QStringList{"dwg"};
    QTest::newRow("two") << "dwg;dxf" << QStringList{"dwg", "dxf"};
    QTest::newRow("with a dot") << "tar.gz;dwg" << QStringList{"tar.gz", "dwg"};
    QTest::newRow("an empty one counts as none") << ";dwg;;dxf;" << QStringList{"dwg", "dxf"};
}

void FileTypeListTest::splitsExtensions()
{
    QFETCH(QString, list);
    QFETCH(QStringList, extensions);
    QCOMPARE(VyFileTypeList::splitExtensions(list), extensions);
}

void FileTypeListTest::clampsTheIndex_data()
{
    QTest::addColumn<QString>("qtFilter");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("entry");

    const QString three = QStringLiteral("A (*.a);;B (*.b);;C (*.c);;");
    QTest::newRow("first") << three << 0 << "A (*.a)";
    QTest::newRow("second") << three << 1 << "B (*.b)";
    QTest::newRow("last") << three << 2 << "C (*.c)";
    QTest::newRow("behind the last") << three << 3 << "C (*.c)";
    QTest::newRow("far behind the last") << three << 99 << "C (*.c)";
    QTest::newRow("largest number") << three << INT_MAX << "C (*.c)";
    QTest::newRow("before the first") << three << -1 << "A (*.a)";
    QTest::newRow("far before the first") << three << -7 << "A (*.a)";
    QTest::newRow("smallest number") << three << INT_MIN << "A (*.a)";
    QTest::newRow("behind an only one") << "A (*.a);;" << 1 << "A (*.a)";
    QTest::newRow("no types") << "" << 0 << "";
    QTest::newRow("no types, smallest number") << "" << INT_MIN << "";
    QTest::newRow("no types, largest number") << "" << INT_MAX << "";
    QTest::newRow("separators alone") << ";;" << 0 << "";
    QTest::newRow("first half of a description") << "A;B (*.a);;C (*.c);;" << 0 << "A";
    QTest::newRow("second half of a description") << "A;B (*.a);;C (*.c);;" << 1 << "B (*.a)";
    QTest::newRow("behind such a description") << "A;B (*.a);;C (*.c);;" << 2 << "C (*.c)";
}

void FileTypeListTest::clampsTheIndex()
{
    QFETCH(QString, qtFilter);
    QFETCH(int, index);
    QFETCH(QString, entry);
    QCOMPARE(QString(VyFileTypeList::entryAt(CVyString(qtFilter), index)), entry);
}

void FileTypeListTest::findsTheIndex_data()
{
    QTest::addColumn<QString>("qtFilter");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<int>("index");

    const QString three = QStringLiteral("A (*.a);;B (*.b);;Я (*.я);;");
    QTest::newRow("first") << three << "A (*.a)" << 0;
    QTest::newRow("second") << three << "B (*.b)" << 1;
    QTest::newRow("last") << three << QStringLiteral("Я (*.я)") << 2;
    QTest::newRow("other case") << three << "b (*.B)" << 1;
    QTest::newRow("other case, Cyrillic") << three << QStringLiteral("я (*.Я)") << 2;
    QTest::newRow("first of equal ones") << "A (*.a);;a (*.A);;"
                                         << "a (*.A)" << 0;
    QTest::newRow("no such entry") << three << "D (*.d)" << -1;
    QTest::newRow("beginning of an entry") << three << "A" << -1;
    QTest::newRow("entry with more") << three << "A (*.a) " << -1;
    QTest::newRow("two entries") << three << "A (*.a);;B (*.b)" << -1;
    QTest::newRow("nothing selected") << three << "" << -1;
    QTest::newRow("no types") << ""
                              << "A (*.a)" << -1;
    QTest::newRow("no types, nothing selected") << ""
                                                << "" << -1;
    QTest::newRow("behind a description with a semicolon") << "A;B (*.a);;C (*.c);;"
                                                           << "C (*.c)" << 2;
    QTest::newRow("whole description with a semicolon") << "A;B (*.a);;C (*.c);;"
                                                        << "A;B (*.a)" << -1;
}

void FileTypeListTest::findsTheIndex()
{
    QFETCH(QString, qtFilter);
    QFETCH(QString, selected);
    QFETCH(int, index);
    QCOMPARE(VyFileTypeList::indexOf(CVyString(qtFilter), CVyString(selected)), index);
}

QTEST_GUILESS_MAIN(FileTypeListTest)
#include "FileTypeListTest.moc"

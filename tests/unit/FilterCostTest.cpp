// SPDX-License-Identifier: MIT
#include "AllocationCount.h"
#include "VyFileDialogImpl.h"
#include "VyFileTypeList.h"
#include "VyUtils.h"

#include <QtTest>

#include <functional>
#include <memory>

namespace {

QString typeNumber(int number)
{
    return QStringLiteral("Drawing of kind %1&*.d%1;*.e%1").arg(number, 5, 10, QLatin1Char('0'));
}

QString manyTypes(int count)
{
    QStringList types;
    for (int i = 0; i < count; ++i)
        types.append(typeNumber(i));
    return types.join(QLatin1Char('&'));
}

QString manyPatterns(int count)
{
    return QLatin1String("Drawing&") + QStringLiteral("*.drawing;").repeated(count);
}

QString manyParentheses(int count)
{
    return QLatin1String("Drawing") + QStringLiteral(" (drawing)").repeated(count) +
           QLatin1String("&*.drawing");
}

using Filter = QString (*)(int count);
using Request = std::unique_ptr<CVyFileDialogImpl>;

} // namespace
Q_DECLARE_METATYPE(Filter)

/// Lists of file types of any length cost memory in proportion to their length:
/// what is counted is the heap's work, which time follows.
class FilterCostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void counterCounts();
    void filters_data();
    void filters();
    void indexOfLongText();

private:
    static void compareCosts(const char* what, const QString& filter, std::size_t blocksPerPart,
                             const std::function<void()>& action);
};

// Lest everything be cheap because nothing is counted.
void FilterCostTest::counterCounts()
{
    QString text;
    const AllocationCount::Taken taken =
        AllocationCount::during([&text] { text = QString(1000, QLatin1Char('x')); });
    QVERIFY(taken.blocks >= 1);
    QVERIFY(taken.bytes >= 2000);
}

void FilterCostTest::filters_data()
{
    QTest::addColumn<Filter>("filter");
    QTest::addColumn<int>("count");

    for (const int count : {1, 10, 100, 1000, 10000}) {
        QTest::addRow("%d types", count) << Filter(manyTypes) << count;
        QTest::addRow("%d patterns", count) << Filter(manyPatterns) << count;
        QTest::addRow("%d parentheses", count) << Filter(manyParentheses) << count;
    }
}

void FilterCostTest::filters()
{
    QFETCH(Filter, filter);
    QFETCH(int, count);
    const QString text = filter(count);
    const CVyString given(text);
    const CVyString converted = CVyUtils::ConvertToQtFilter(given);
    const VyFileTypeList::Types types = VyFileTypeList::fromConverted(converted);
    const int last = VyFileTypeList::entries(types.qtFilter).size() - 1;
    const CVyString lastEntry = VyFileTypeList::entryAt(types.qtFilter, last);

    compareCosts("conversion", text, 0, [&] { CVyUtils::ConvertToQtFilter(given); });
    compareCosts("both lists", text, 3, [&] { VyFileTypeList::fromConverted(converted); });
    compareCosts("extensions", text, 3, [&] { VyFileTypeList::extensionLists(converted); });
    compareCosts("entry", text, 0, [&] { VyFileTypeList::entryAt(types.qtFilter, last); });
    compareCosts("index", text, 0, [&] { VyFileTypeList::indexOf(types.qtFilter, lastEntry); });

    const Request request(CVyFileDialogImpl::createQt(CVyUserIO::FileNameOpen, false, false));
    int index = -1;
    compareCosts("request", text, 3, [&] {
        request->setFileTypes(given);
        request->setFileTypeIndex(last);
        request->getFileTypeIndex(&index);
    });
    QCOMPARE(index, last);
}

void FilterCostTest::indexOfLongText()
{
    const QString text = manyTypes(10000);
    const CVyString types =
        VyFileTypeList::fromConverted(CVyUtils::ConvertToQtFilter(text)).qtFilter;
    const CVyString selected(QString(1000000, QLatin1Char('x')));
    compareCosts("index", text + QString(selected), 0,
                 [&] { QCOMPARE(VyFileTypeList::indexOf(types, selected), -1); });
}

// Besides what its parts may take, an action has some blocks for strings and
// lists that grow, and it copies the text, 4 bytes a character, a few times.
void FilterCostTest::compareCosts(const char* what, const QString& filter,
                                  std::size_t blocksPerPart, const std::function<void()>& action)
{
    const auto parts = static_cast<std::size_t>(filter.count(QLatin1Char('&')) +
                                                filter.count(QLatin1Char(';')) + 1);
    const AllocationCount::Taken taken = AllocationCount::during(action);
    const std::size_t mostBlocks = blocksPerPart * parts + 60;
    const std::size_t mostBytes = 96 * static_cast<std::size_t>(filter.size()) + 1000;
    QVERIFY2(
        taken.blocks <= mostBlocks,
        qPrintable(QStringLiteral("%1: %2 blocks").arg(QLatin1String(what)).arg(taken.blocks)));
    QVERIFY2(taken.bytes <= mostBytes,
             qPrintable(QStringLiteral("%1: %2 bytes").arg(QLatin1String(what)).arg(taken.bytes)));
}

QTEST_GUILESS_MAIN(FilterCostTest)
#include "FilterCostTest.moc"

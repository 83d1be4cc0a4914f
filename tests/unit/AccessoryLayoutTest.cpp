// SPDX-License-Identifier: MIT
#include "VyAccessoryLayout.h"

#include <QRect>
#include <QtTest>

#include <cmath>

namespace {

QRect toQRect(const VyAccessoryLayout::Rect& rect)
{
    return {rect.x, rect.y, rect.width, rect.height};
}

} // namespace

/// Where the accessory view's parts stand.
class AccessoryLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelWidth_data();
    void labelWidth();
    void wholeWidthsGetAWholeFifthMore();
    void textsFitTheirLabel();
    void rows_data();
    void rows();
    void views_data();
    void views();
    void partsKeepApart();
};

void AccessoryLayoutTest::labelWidth_data()
{
    QTest::addColumn<float>("filterText");
    QTest::addColumn<float>("modeText");
    QTest::addColumn<int>("width");

    QTest::newRow("modes' text is wider") << 70.2F << 80.7F << 118;
    QTest::newRow("types' text is wider") << 80.7F << 70.2F << 118;
    QTest::newRow("both alike") << 80.7F << 80.7F << 118;
    QTest::newRow("same width after rounding") << 80.1F << 80.9F << 118;
    QTest::newRow("types alone") << 70.2F << 0.0F << 106;
    QTest::newRow("whole number") << 80.0F << 0.0F << 116;
    QTest::newRow("whole number that gives a fraction") << 81.0F << 0.0F << 118;
    QTest::newRow("next below a whole number") << std::nextafter(81.0F, 0.0F) << 0.0F << 118;
    QTest::newRow("next above a whole number") << std::nextafter(80.0F, 100.0F) << 0.0F << 118;
    QTest::newRow("next above a whole number, modes")
        << 0.0F << std::nextafter(80.0F, 100.0F) << 118;
    QTest::newRow("no text") << 0.0F << 0.0F << 20;
    QTest::newRow("no types' text") << 0.0F << 80.7F << 118;
    QTest::newRow("next above nothing") << std::nextafter(0.0F, 1.0F) << 0.0F << 22;
    QTest::newRow("one point") << 1.0F << 0.0F << 22;
    QTest::newRow("large") << 10000.0F << 9999.0F << 12020;
    QTest::newRow("very large") << 1000000.0F << 0.0F << 1200020;
}

void AccessoryLayoutTest::labelWidth()
{
    QFETCH(float, filterText);
    QFETCH(float, modeText);
    QFETCH(int, width);
    QCOMPARE(VyAccessoryLayout::labelWidth(filterText, modeText), width);
}

// Five points become six exactly: no rounding error may add another.
void AccessoryLayoutTest::wholeWidthsGetAWholeFifthMore()
{
    for (int fives = 0; fives <= 2000; ++fives)
        QCOMPARE(VyAccessoryLayout::labelWidth(static_cast<float>(fives * 5), 0.0F),
                 fives * 6 + 20);
}

void AccessoryLayoutTest::textsFitTheirLabel()
{
    for (int tenths = 0; tenths <= 10000; ++tenths) {
        const float text = static_cast<float>(tenths) / 10.0F;
        for (const int width : {VyAccessoryLayout::labelWidth(text, 0.0F),
                                VyAccessoryLayout::labelWidth(text / 2.0F, text),
                                VyAccessoryLayout::labelWidth(text, text / 2.0F)}) {
            QVERIFY2(static_cast<float>(width) >= text * 1.2F + 19.9F,
                     qPrintable(QString::number(text)));
            QVERIFY2(static_cast<float>(width) <= text * 1.2F + 22.3F,
                     qPrintable(QString::number(text)));
        }
    }
}

void AccessoryLayoutTest::rows_data()
{
    QTest::addColumn<int>("labelWidth");
    QTest::addColumn<int>("rowY");
    QTest::addColumn<QRect>("label");
    QTest::addColumn<QRect>("popup");

    QTest::newRow("mode row") << 118 << 0 << QRect(20, 5, 118, 25) << QRect(138, 0, 318, 25);
    QTest::newRow("type row over modes") << 118 << VyAccessoryLayout::filterRowY(true)
                                         << QRect(20, 35, 118, 25) << QRect(138, 30, 318, 25);
    QTest::newRow("type row alone") << 118 << VyAccessoryLayout::filterRowY(false)
                                    << QRect(20, 5, 118, 25) << QRect(138, 0, 318, 25);
    QTest::newRow("no text") << 20 << 30 << QRect(20, 35, 20, 25) << QRect(40, 30, 220, 25);
    QTest::newRow("long text") << 1000 << 30 << QRect(20, 35, 1000, 25)
                               << QRect(1020, 30, 1200, 25);
}

void AccessoryLayoutTest::rows()
{
    QFETCH(int, labelWidth);
    QFETCH(int, rowY);
    QTEST(toQRect(VyAccessoryLayout::label(labelWidth, rowY)), "label");
    QTEST(toQRect(VyAccessoryLayout::popup(labelWidth, rowY)), "popup");
}

void AccessoryLayoutTest::views_data()
{
    QTest::addColumn<int>("labelWidth");
    QTest::addColumn<bool>("hasFilters");
    QTest::addColumn<bool>("hasModes");
    QTest::addColumn<QRect>("view");
    QTest::addColumn<QRect>("finished");

    QTest::newRow("types and modes")
        << 118 << true << true << QRect(0, 0, 618, 60) << QRect(0, 0, 638, 70);
    QTest::newRow("types") << 118 << true << false << QRect(0, 0, 618, 30) << QRect(0, 0, 638, 40);
    QTest::newRow("modes") << 118 << false << true << QRect(0, 0, 618, 30) << QRect(0, 0, 638, 40);
    QTest::newRow("neither") << 118 << false << false << QRect(0, 0, 618, 0)
                             << QRect(0, 0, 638, 10);
    QTest::newRow("no text") << 20 << true << true << QRect(0, 0, 520, 60) << QRect(0, 0, 540, 70);
    QTest::newRow("long text") << 1000 << true << true << QRect(0, 0, 1500, 60)
                               << QRect(0, 0, 1520, 70);
}

void AccessoryLayoutTest::views()
{
    QFETCH(int, labelWidth);
    QFETCH(bool, hasFilters);
    QFETCH(bool, hasModes);
    QTEST(toQRect(VyAccessoryLayout::view(labelWidth, hasFilters, hasModes)), "view");
    QTEST(toQRect(VyAccessoryLayout::finishedView(labelWidth, hasFilters, hasModes)), "finished");
}

void AccessoryLayoutTest::partsKeepApart()
{
    const int width = VyAccessoryLayout::labelWidth(70.2F, 80.7F);
    const int rowY = VyAccessoryLayout::filterRowY(true);
    const QRect parts[] = {toQRect(VyAccessoryLayout::label(width, 0)),
                           toQRect(VyAccessoryLayout::popup(width, 0)),
                           toQRect(VyAccessoryLayout::label(width, rowY)),
                           toQRect(VyAccessoryLayout::popup(width, rowY))};
    const QRect view = toQRect(VyAccessoryLayout::view(width, true, true));
    for (const QRect& part : parts) {
        QVERIFY(view.contains(part));
        for (const QRect& other : parts)
            QCOMPARE(part.intersects(other), &part == &other);
    }
}

QTEST_GUILESS_MAIN(AccessoryLayoutTest)
#include "AccessoryLayoutTest.moc"

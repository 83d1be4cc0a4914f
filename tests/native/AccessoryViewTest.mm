// SPDX-License-Identifier: MIT
#include "NativeTest.h"

#include "AccessoryParts.h"
#include "NSOpenPanelExt.h"
#include "VyAccessoryLayout.h"

#include <QTranslator>

#include <limits>

namespace {

NSTextField* labelOf(NSView* view, const QString& words)
{
    for (NSView* child in [view subviews]) {
        if ([child isKindOfClass:[NSTextField class]] &&
            text([static_cast<NSTextField*>(child) stringValue]) == words)
            return static_cast<NSTextField*>(child);
    }
    return nil;
}

QRectF frame(NSView* view)
{
    const NSRect rect = [view frame];
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

/// Says other words for one text.
class OneTextTranslator : public QTranslator
{
public:
    OneTextTranslator(const char* context, const char* source, const QString& words)
        : m_context(context)
        , m_source(source)
        , m_words(words)
    {
        QCoreApplication::installTranslator(this);
    }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return m_context == context && m_source == source ? m_words : QString();
    }

private:
    QByteArray m_context;
    QByteArray m_source;
    QString m_words;
};

} // namespace

/// The view below a panel's files: its layout, its choices and its answers.
class AccessoryViewTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void geometry_data();
    void geometry();
    void growsWithThePanel();
    void labelsAreTextOnly();
    void labelsFitTheirTranslation_data();
    void labelsFitTheirTranslation();
    void measuresText();
    void popupsOfferEverything();
    void startingType_data();
    void startingType();
    void startingMode();
    void nothingIsPickedAtFirst();
    void picksTypes();
    void picksModes();
    void tellsEqualTitlesApart();
    void standsListsOfOtherLengths();
    void extensionsOfTypes_data();
    void extensionsOfTypes();
    void answersPrintPanels();
};

void AccessoryViewTest::geometry_data()
{
    QTest::addColumn<bool>("withTypes");
    QTest::addColumn<bool>("withModes");
    QTest::addColumn<bool>("savePanel");
    QTest::addColumn<int>("typeY");
    QTest::addColumn<int>("height");

    QTest::newRow("types and modes") << true << true << false << 30 << 70;
    QTest::newRow("types") << true << false << false << 0 << 40;
    QTest::newRow("types, save panel") << true << false << true << 0 << 40;
    QTest::newRow("modes") << false << true << false << -1 << 40;
    QTest::newRow("neither") << false << false << false << -1 << 10;
}

void AccessoryViewTest::geometry()
{
    QFETCH(bool, withTypes);
    QFETCH(bool, withModes);
    QFETCH(bool, savePanel);
    QFETCH(int, typeY);
    QFETCH(int, height);
    Parts parts;
    parts.withTypes = withTypes;
    parts.withModes = withModes;
    NSView* const view = build(savePanel ? [NSSavePanel savePanel] : [NSOpenPanelExt openPanel],
                               savePanel ? nil : newDelegate(), parts);

    const float filterText = widthForStringDrawing(@"Files of Type:", nil);
    const float modeText = withModes ? widthForStringDrawing(@"Open mode:", nil) : 0;
    const double labelWidth = VyAccessoryLayout::labelWidth(filterText, modeText);
    QCOMPARE(frame(view), QRectF(0, 0, labelWidth + 520, height));
    QCOMPARE([view autoresizingMask], NSUInteger(NSViewWidthSizable | NSViewHeightSizable));
    QCOMPARE([[view subviews] count], NSUInteger((withTypes ? 2 : 0) + (withModes ? 2 : 0)));
    QCOMPARE(typePopup(view) != nil, withTypes);
    QCOMPARE(modePopup(view) != nil, withModes);
    if (withTypes) {
        QCOMPARE(frame(typePopup(view)), QRectF(labelWidth + 20, typeY, labelWidth + 200, 25));
        QCOMPARE(frame(labelOf(view, "Files of Type:")), QRectF(20, typeY + 5, labelWidth, 25));
    }
    if (withModes) {
        QCOMPARE(frame(modePopup(view)), QRectF(labelWidth + 20, 0, labelWidth + 200, 25));
        QCOMPARE(frame(labelOf(view, "Open mode:")), QRectF(20, 5, labelWidth, 25));
    }
}

void AccessoryViewTest::growsWithThePanel()
{
    NSView* const view = build([NSOpenPanelExt openPanel], newDelegate(), Parts());
    NSView* const popups[] = {typePopup(view), modePopup(view)};
    const QRectF before[] = {frame(popups[0]), frame(popups[1])};
    const QRectF label = frame(labelOf(view, "Open mode:"));
    const QRectF whole = frame(view);
    for (NSView* popup : popups)
        QCOMPARE([popup autoresizingMask], NSUInteger(NSViewWidthSizable | NSViewMinYMargin));

    [view setFrameSize:NSMakeSize(whole.width() + 100, whole.height() + 15)];
    QCOMPARE(frame(popups[0]), before[0].translated(0, 15).adjusted(0, 0, 100, 0));
    QCOMPARE(frame(popups[1]), before[1].translated(0, 15).adjusted(0, 0, 100, 0));
    QCOMPARE(frame(labelOf(view, "Open mode:")), label);
}

void AccessoryViewTest::labelsAreTextOnly()
{
    NSView* const view = build([NSOpenPanelExt openPanel], newDelegate(), Parts());
    for (const QString& words : {"Files of Type:", "Open mode:"}) {
        NSTextField* const label = labelOf(view, words);
        QVERIFY2(label, qPrintable(words));
        QVERIFY(![label isBezeled]);
        QVERIFY(![label drawsBackground]);
        QVERIFY(![label isEditable]);
        QVERIFY(![label isSelectable]);
    }
}

void AccessoryViewTest::labelsFitTheirTranslation_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("withModes");
    QTest::addColumn<bool>("translated");
    QTest::addColumn<bool>("wider");

    QTest::newRow("types") << "CVyFileDialogs"
                           << "Files of Type:" << true << true << true;
    QTest::newRow("types without modes") << "CVyFileDialogs"
                                         << "Files of Type:" << false << true << true;
    QTest::newRow("modes") << "CVyFileDialogs"
                           << "Open mode:" << true << true << true;
    QTest::newRow("modes that are not shown") << "CVyFileDialogs"
                                              << "Open mode:" << false << false << false;
    QTest::newRow("another's translation") << "CVyFileDialog"
                                           << "Files of Type:" << true << false << false;
}

void AccessoryViewTest::labelsFitTheirTranslation()
{
    QFETCH(QString, context);
    QFETCH(QString, source);
    QFETCH(bool, withModes);
    QFETCH(bool, translated);
    QFETCH(bool, wider);
    Parts parts;
    parts.withModes = withModes;
    const qreal usualWidth = frame(build([NSOpenPanelExt openPanel], nil, parts)).width();

    const QString words = QStringLiteral("Типы файлов, которые показаны в этом списке (все):");
    const OneTextTranslator translator(context.toLatin1(), source.toLatin1(), words);
    NSView* const view = build([NSOpenPanelExt openPanel], nil, parts);
    NSTextField* const label = labelOf(view, words);
    QCOMPARE(label != nil, translated);
    QCOMPARE(frame(view).width() > usualWidth, wider);
    for (NSView* child in [view subviews]) {
        if (![child isKindOfClass:[NSTextField class]])
            continue;
        NSTextField* const each = static_cast<NSTextField*>(child);
        QVERIFY(widthForStringDrawing([each stringValue], [each font]) <= frame(each).width());
        QVERIFY([[each cell] cellSize].width <= frame(each).width());
        QCOMPARE(frame(each).width(), frame(view).width() - 520);
    }
}

void AccessoryViewTest::measuresText()
{
    NSFont* const font = [NSFont systemFontOfSize:12];
    NSFont* const large = [NSFont systemFontOfSize:24];
    for (NSFont* each : {static_cast<NSFont*>(nil), font, large}) {
        float previous = widthForStringDrawing(@"", each);
        QVERIFY(previous >= 0 && previous <= 1); // for where the insertion point would be
        for (NSString* string : {@"F", @"Fi", @"Files", @"Files of Type:"}) {
            const float width = widthForStringDrawing(string, each);
            QVERIFY(width > previous);
            QCOMPARE(widthForStringDrawing(string, each), width);
            previous = width;
        }
    }
    const float width = widthForStringDrawing(@"Files of Type:", font);
    const float ratio = widthForStringDrawing(@"Files of Type:", large) / width;
    QVERIFY2(ratio > 1.8F && ratio < 2.2F, qPrintable(QString::number(double(ratio))));

    // There is no width at which a line is broken.
    const QString thousand = QString("m").repeated(1000);
    const float one = widthForStringDrawing(@"m", font);
    QVERIFY(widthForStringDrawing(nsStringFromQString(thousand), font) > 900 * one);
    // Nor is there any space around a text.
    QVERIFY(widthForStringDrawing(@"mm", font) > 2 * one - 1);
}

void AccessoryViewTest::popupsOfferEverything()
{
    const Parts parts;
    NSView* const view = build([NSOpenPanelExt openPanel], newDelegate(), parts);
    for (NSPopUpButton* popup : {typePopup(view), modePopup(view)}) {
        QVERIFY(![popup pullsDown]);
        QVERIFY([popup target] == view);
    }
    QCOMPARE(titles(typePopup(view)), parts.descriptions);
    QCOMPARE(titles(modePopup(view)), parts.modes);
}

void AccessoryViewTest::startingType_data()
{
    QTest::addColumn<QStringList>("descriptions");
    QTest::addColumn<QString>("description");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("names");

    const QStringList usual = Parts().descriptions;
    QTest::newRow("none") << usual << QString() << 0 << QStringList{"a.dwg"};
    QTest::newRow("first") << usual << "Drawing" << 0 << QStringList{"a.dwg"};
    QTest::newRow("second") << usual << "Exchange" << 1 << QStringList{"b.dxf", "c.dxb"};
    QTest::newRow("any file") << usual << "All" << 3 << everyName;
    QTest::newRow("unknown") << usual << "Sheet" << -1 << everyName;
    QTest::newRow("other case") << usual << "drawing" << -1 << everyName;
    QTest::newRow("empty") << usual << "" << -1 << everyName;
    QTest::newRow("first of equal ones")
        << QStringList{"A", "B", "B", "C"} << "B" << 1 << QStringList{"b.dxf", "c.dxb"};
    QTest::newRow("empty description")
        << QStringList{"", "B", "C", "D"} << "" << 0 << QStringList{"a.dwg"};
    QTest::newRow("no types") << QStringList() << QString() << -1 << everyName;
    QTest::newRow("unknown of no types") << QStringList() << "Sheet" << -1 << everyName;
}

void AccessoryViewTest::startingType()
{
    QFETCH(QStringList, descriptions);
    QFETCH(QString, description);
    QFETCH(int, index);
    QFETCH(QStringList, names);
    Parts parts;
    parts.descriptions = descriptions;
    parts.description = description;
    if (descriptions.isEmpty())
        parts.lists.clear();
    CVyNSOpenSavePanelDelegate* const delegate = newDelegate();
    [delegate setAllowedFileTypes:[NSArray arrayWithObject:@"from before"]];
    CVyViewFilterMacNative* const view = build([NSOpenPanelExt openPanel], delegate, parts);
    QCOMPARE(titles(typePopup(view)), descriptions);
    QCOMPARE(int([typePopup(view) indexOfSelectedItem]), index);
    QCOMPARE(shown(delegate), names);
    QVERIFY(![view selectedFilter]);
    if (index < 0) {
        [view filterChanged:typePopup(view)];
        QVERIFY(![view selectedFilter]);
        QCOMPARE(shown(delegate), names);
    }
}

void AccessoryViewTest::startingMode()
{
    NSOpenPanel* const panel = [NSOpenPanelExt openPanel];
    NSArray* const modes = [NSArray arrayWithObjects:@"One", @"Two", @"Three", nil];
    struct
    {
        NSString* mode;
        NSString* selected;
    } const rows[] = {{@"One", @"One"}, {@"Three", @"Three"}, {@"Four", nil}};
    for (const auto& row : rows) {
        CVyViewFilterMacNative* const view =
            [[[CVyViewFilterMacNative alloc] initWithFilter:nil
                                           setFilterFileExt:nil
                                            setDefaultValue:nil
                                                   setPanel:panel
                                           setPanelDelegate:nil
                                                setOpenMode:modes
                                         setDefaultOpenMode:row.mode
                                         setTemplateDWGPath:@""
                                      setNoTemplateHandling:NO] autorelease];
        QCOMPARE(text([modePopup(view) titleOfSelectedItem]), text(row.selected));
        QVERIFY(![view selectedOpenMode]);
        [view openmodeChanged:nil];
        QCOMPARE(text([view selectedOpenMode]), text(row.selected));
    }
}

void AccessoryViewTest::nothingIsPickedAtFirst()
{
    CVyViewFilterMacNative* const view = build([NSOpenPanelExt openPanel], newDelegate(), Parts());
    QCOMPARE(text([typePopup(view) titleOfSelectedItem]), QString("Drawing"));
    QCOMPARE(text([modePopup(view) titleOfSelectedItem]), QString("Open"));
    QVERIFY(![view selectedFilter]);
    QVERIFY(![view selectedOpenMode]);

    // A selection alone is not the user's.
    [typePopup(view) selectItemAtIndex:1];
    [modePopup(view) selectItemAtIndex:1];
    QVERIFY(![view selectedFilter]);
    QVERIFY(![view selectedOpenMode]);
}

void AccessoryViewTest::picksTypes()
{
    CVyNSOpenSavePanelDelegate* const delegate = newDelegate();
    NSOpenPanel* const panel = [NSOpenPanelExt openPanel];
    CVyViewFilterMacNative* const view = build(panel, delegate, Parts());
    choose(typePopup(view), 1);
    QCOMPARE(text([view selectedFilter]), QString("Exchange"));
    QCOMPARE(shown(delegate), QStringList({"b.dxf", "c.dxb"}));
    QCOMPARE(texts([panel allowedFileTypes]), QStringList({"dxf", "dxb"}));
    choose(typePopup(view), 3);
    QCOMPARE(text([view selectedFilter]), QString("All"));
    QCOMPARE(shown(delegate), everyName);
    QVERIFY(![panel allowedFileTypes]);
    choose(typePopup(view), 0);
    QCOMPARE(text([view selectedFilter]), QString("Drawing"));
    QCOMPARE(shown(delegate), QStringList("a.dwg"));
    QCOMPARE(texts([panel allowedFileTypes]), QStringList("dwg"));
    QVERIFY(![view selectedOpenMode]);
}

void AccessoryViewTest::picksModes()
{
    CVyNSOpenSavePanelDelegate* const delegate = newDelegate();
    CVyViewFilterMacNative* const view = build([NSOpenPanelExt openPanel], delegate, Parts());
    for (const int index : {2, 1, 0}) {
        choose(modePopup(view), index);
        QCOMPARE(text([view selectedOpenMode]), Parts().modes.at(index));
    }
    QVERIFY(![view selectedFilter]);
    QCOMPARE(shown(delegate), QStringList("a.dwg"));

    Parts withoutModes;
    withoutModes.withModes = false;
    CVyViewFilterMacNative* const other = build([NSOpenPanelExt openPanel], delegate, withoutModes);
    [other openmodeChanged:nil];
    QVERIFY(![other selectedOpenMode]);
}

void AccessoryViewTest::tellsEqualTitlesApart()
{
    Parts parts;
    parts.descriptions = QStringList{"Same", "", "Same", ""};
    parts.modes = QStringList{"Mode", "Mode", "Other"};
    CVyNSOpenSavePanelDelegate* const delegate = newDelegate();
    CVyViewFilterMacNative* const view = build([NSOpenPanelExt openPanel], delegate, parts);
    QCOMPARE(titles(typePopup(view)), parts.descriptions);
    QCOMPARE(titles(modePopup(view)), parts.modes);
    QCOMPARE(shown(delegate), QStringList("a.dwg"));
    choose(typePopup(view), 2);
    QCOMPARE(shown(delegate), QStringList({"d.dwt", "e.DWT"}));
    QCOMPARE(text([view selectedFilter]), QString("Same"));
    choose(typePopup(view), 1);
    QCOMPARE(shown(delegate), QStringList({"b.dxf", "c.dxb"}));
    QCOMPARE(text([view selectedFilter]), QString(""));
    choose(modePopup(view), 2);
    QCOMPARE(text([view selectedOpenMode]), QString("Other"));
}

void AccessoryViewTest::standsListsOfOtherLengths()
{
    Parts parts;
    parts.lists = QStringList{"dwg"};
    CVyNSOpenSavePanelDelegate* const delegate = newDelegate();
    CVyViewFilterMacNative* view = build([NSOpenPanelExt openPanel], delegate, parts);
    choose(typePopup(view), 2);
    QCOMPARE(text([view selectedFilter]), QString("Template"));
    QCOMPARE(shown(delegate), everyName);

    parts.descriptions = QStringList{"Drawing"};
    parts.lists = QStringList{"dwg", "dxf"};
    view = build([NSOpenPanelExt openPanel], delegate, parts);
    QCOMPARE(titles(typePopup(view)), parts.descriptions);
    QCOMPARE(shown(delegate), QStringList("a.dwg"));
}

void AccessoryViewTest::extensionsOfTypes_data()
{
    QTest::addColumn<QStringList>("lists");
    QTest::addColumn<qint64>("index");
    QTest::addColumn<QStringList>("extensions");

    const QStringList lists{"dwg", "dxf;dxb", "", ";a;;b;", "*"};
    QTest::newRow("one") << lists << qint64(0) << QStringList{"dwg"};
    QTest::newRow("two") << lists << qint64(1) << QStringList{"dxf", "dxb"};
    QTest::newRow("none") << lists << qint64(2) << QStringList();
    QTest::newRow("empty parts") << lists << qint64(3) << QStringList{"a", "b"};
    QTest::newRow("any file") << lists << qint64(4) << QStringList{"*"};
    QTest::newRow("behind the last") << lists << qint64(5) << QStringList();
    QTest::newRow("no selection") << lists << qint64(-1) << QStringList();
    QTest::newRow("far behind") << lists << std::numeric_limits<qint64>::max() << QStringList();
    QTest::newRow("far before") << lists << std::numeric_limits<qint64>::min() << QStringList();
    QTest::newRow("first of no types") << QStringList() << qint64(0) << QStringList();
}

void AccessoryViewTest::extensionsOfTypes()
{
    QFETCH(QStringList, lists);
    QFETCH(qint64, index);
    Parts parts;
    parts.lists = lists;
    CVyViewFilterMacNative* const view = build([NSOpenPanelExt openPanel], nil, parts);
    NSArray* const extensions = [view getAllowedFileType:static_cast<NSInteger>(index)];
    QVERIFY(extensions);
    QTEST(texts(extensions), "extensions");
}

void AccessoryViewTest::answersPrintPanels()
{
    CVyViewFilterMacNative* const view = build([NSOpenPanelExt openPanel], nil, Parts());
    QVERIFY([[view keyPathsForValuesAffectingPreview] isEqual:[NSSet setWithObject:@"dummyValue"]]);
    QVERIFY(
        [[view localizedSummaryItems] isEqual:[NSArray arrayWithObject:[NSDictionary dictionary]]]);
}

QTEST_MAIN(AccessoryViewTest)
#include "AccessoryViewTest.moc"

// SPDX-License-Identifier: MIT
// What the native back-end says to its native dialog, and in which order.
#include "FakeNativeDialog.h"
#include "HostTemplates.h"
#include "NativeTest.h"

#include "VyUtils.h"

#include <climits>
#include <thread>

class MacBackEndTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void drivesTheDialogInOrder();
    void handsTextsOver_data();
    void handsTextsOver();
    void handsNoWildcardOver();
    void handsTheTypesOver_data();
    void handsTheTypesOver();
    void laterNameCounts();
    void asksForTheTemplateFolderWhenShown();
    void convertsFilters();
    void showsOneAtATime_data();
    void showsOneAtATime();
    void showsOnItsOwnThreadOnly();
    void deletesItsDialog();
};

void MacBackEndTest::drivesTheDialogInOrder()
{
    Talk talk;
    talk.fileNames = QStringList("/plans/a.dwg");
    BackEnd impl(talk);
    impl.m_hasPreview = true;
    const HostTemplates templates("/templates");
    QCOMPARE(impl.setDefaultFileName(L"a.dwg"), 5100);
    QCOMPARE(impl.setDefaultFolder(L"/plans"), 5100);
    QCOMPARE(impl.setTitle(L"Choose"), 5100);
    QCOMPARE(impl.setFileTypes(L"Drawings&*.dwg;*.dxf&Web&*.dwf"), 5100);
    QCOMPARE(impl.setFileTypeIndex(1), 5100);
    QCOMPARE(impl.setDefaultExtension(L"dxf"), 5100);
    QCOMPARE(talk.calls, QStringList()); // before it is shown

    QCOMPARE(impl.show(0), 5100);
    const QStringList calls{"SetListFilter(Drawings (*.dwg *.dxf)|Web (*.dwf))",
                            "SetListFilterFileExt(dwg;dxf|dwf)",
                            "SetDefSuffix(dxf)",
                            "SetSelectedFilter(Web (*.dwf))",
                            "SetDirectory(/plans)",
                            "SetTemplateDWGPath(/templates)",
                            "SetCaption(Choose)",
                            "SetDefaultFileName(a.dwg)",
                            "SetHasPreview(yes)",
                            "DoModal()",
                            "GetFileNames()",
                            "GetSelectedFilter(Web (*.dwf))",
                            "GetOpenMode()"};
    QCOMPARE(talk.calls, calls);
    for (const unsigned long long parent : {1ULL, ULLONG_MAX}) { // no windows
        talk.calls.clear();
        QCOMPARE(impl.show(parent), 5100);
        QCOMPARE(talk.calls, calls);
    }
    impl.m_hasPreview = false;
    talk.calls.clear();
    impl.show(0);
    QCOMPARE(call(talk, "SetHasPreview"), QString("SetHasPreview(no)"));
    QCOMPARE(impl.told, 0);
}

void MacBackEndTest::handsTextsOver_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << "";
    QTest::newRow("path") << "/plans/old";
    QTest::newRow("other separators") << "C:\\plans/old\\";
    QTest::newRow("separator at the end") << "/plans/";
    QTest::newRow("wildcard") << "*";
    QTest::newRow("Cyrillic") << QStringLiteral("/планы/Чертёж");
    QTest::newRow("beyond the basic plane") << QStringLiteral("a\U0001F600b");
    QTest::newRow("combining accent") << QStringLiteral("re\u0301seau");
    QTest::newRow("separators of lists") << "R&D;a|b";
    QTest::newRow("line end and blanks") << " a\nb ";
    QTest::newRow("percent") << "100%1 %@";
}

void MacBackEndTest::handsTextsOver()
{
    QFETCH(QString, text);

    Talk talk;
    BackEnd impl(talk);
    impl.setTitle(CVyString(text));
    impl.setDefaultFolder(CVyString(text));
    impl.setDefaultFileName(CVyString(text));
    impl.show(0);
    QCOMPARE(call(talk, "SetCaption"), QString("SetCaption(" + text + ')'));
    QCOMPARE(call(talk, "SetDirectory"),
             QString("SetDirectory(" + QDir::toNativeSeparators(text) + ')'));
    QCOMPARE(call(talk, "SetDefaultFileName"), QString("SetDefaultFileName(" + text + ')'));
}

void MacBackEndTest::handsNoWildcardOver()
{
    Talk talk;
    BackEnd impl(talk);
    const auto handedOver = [&](const QString& extension) {
        talk.calls.clear();
        impl.setDefaultExtension(CVyString(extension));
        impl.show(0);
        return call(talk, "SetDefSuffix");
    };
    for (const QString wildcard : {"*", "*.*"})
        QCOMPARE(handedOver(wildcard), QString("SetDefSuffix()"));
    for (const QString kept :
         {"", "dwg", "*.dwg", ".dwg", "DWG", "dwg;dxf", "**", "*.", ".*", "* ", "*.*.*", "*.*;*"})
        QCOMPARE(handedOver(kept), QString("SetDefSuffix(" + kept + ')'));
}

void MacBackEndTest::handsTheTypesOver_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("handed"); // entries, extension lists, selected entry

    QTest::newRow("none") << "" << 3 << QStringList({"", "", ""});
    QTest::newRow("one") << "A&*.a" << 0 << QStringList({"A (*.a)", "a", "A (*.a)"});
    QTest::newRow("three") << "A&*.a&B&*.b;*.c&D&*.*" << 1
                           << QStringList(
                                  {"A (*.a)|B (*.b *.c)|D (*.*)", "a|b;c|*", "B (*.b *.c)"});
    QTest::newRow("empty pair") << "A&*.a&&&B&*.b" << 9
                                << QStringList({"A (*.a)|B (*.b)", "a|b", "B (*.b)"});
    QTest::newRow("before the first")
        << "A&*.a&B&*.b" << -7 << QStringList({"A (*.a)|B (*.b)", "a|b", "A (*.a)"});
    QTest::newRow("no extension") << "A&*&B&*.b" << 0
                                  << QStringList({"A (*)|B (*.b)", "b", "A (*)"});
    QTest::newRow("semicolon in the description")
        << "A;B&*.a" << 1 << QStringList({"A|B (*.a)", "a", "B (*.a)"});
    QTest::newRow("Cyrillic") << QStringLiteral("Чертежи&*.чер") << 0
                              << QStringList({"Чертежи (*.чер)", "чер", "Чертежи (*.чер)"});
}

void MacBackEndTest::handsTheTypesOver()
{
    QFETCH(QString, filter);
    QFETCH(int, index);
    QFETCH(QStringList, handed);

    Talk talk;
    BackEnd impl(talk);
    impl.setFileTypes(L"Earlier&*.x&One&*.y");
    impl.setFileTypeIndex(1);
    QCOMPARE(impl.setFileTypes(CVyString(filter)), 5100);
    QCOMPARE(impl.setFileTypeIndex(index), 5100);
    impl.show(0);
    QCOMPARE(call(talk, "SetListFilter"), "SetListFilter(" + handed.at(0) + ')');
    QCOMPARE(call(talk, "SetListFilterFileExt"), "SetListFilterFileExt(" + handed.at(1) + ')');
    QCOMPARE(call(talk, "SetSelectedFilter"), "SetSelectedFilter(" + handed.at(2) + ')');
}

// File and template name share a field.
void MacBackEndTest::laterNameCounts()
{
    Talk talk;
    BackEnd impl(talk);
    QCOMPARE(impl.setDefaultFileName(L"plan.dwg"), 5100);
    QCOMPARE(impl.setDefaultTemplateName(L"metric.dwt"), 5100);
    impl.show(0);
    QCOMPARE(call(talk, "SetDefaultFileName"), QString("SetDefaultFileName(metric.dwt)"));
    talk.calls.clear();
    impl.setDefaultFileName(L"plan.dwg");
    impl.show(0);
    QCOMPARE(call(talk, "SetDefaultFileName"), QString("SetDefaultFileName(plan.dwg)"));
    talk.calls.clear();
    impl.setDefaultTemplateName(CVyString());
    impl.show(0);
    QCOMPARE(call(talk, "SetDefaultFileName"), QString("SetDefaultFileName()"));

    CVyString name(L"untouched");
    QCOMPARE(impl.getTemplateName(&name), 0);
    QCOMPARE(QString(name), QString("untouched"));
    QCOMPARE(impl.getTemplateName(nullptr), 0);
}

void MacBackEndTest::asksForTheTemplateFolderWhenShown()
{
    Talk talk;
    const HostTemplates templates("/early");
    BackEnd impl(talk);
    for (const QString folder : {"/plans/templates", "/other"}) {
        HostTemplates::set(folder);
        talk.calls.clear();
        impl.show(0);
        QCOMPARE(call(talk, "SetTemplateDWGPath"), QString("SetTemplateDWGPath(" + folder + ')'));
    }
}

// As the host's own conversion does, of which it is another name.
void MacBackEndTest::convertsFilters()
{
    const QMap<QString, QString> conversions{
        {"Drawing&*.dwg", "Drawing (*.dwg)&*.dwg&&"},
        {"Drawing (*.dwg;*.dxf)&*.dwg;*.dxf", "Drawing (*.dwg *.dxf)&*.dwg;*.dxf&&"},
        {"Text files (txt)&*.txt", "Text files (*.txt)&*.txt&&"},
        {"A (x,y*)&p", "A (x y*)&p&&"},
        {"A&*.a&&&B", "A (*.a)&*.a&B ()&&&"},
        {"A (b&*.a", "A (b&*.a&&"},
        {"&", "&"},
        {"", "&"}};
    Talk talk;
    const BackEnd impl(talk);
    for (auto row = conversions.begin(); row != conversions.end(); ++row) {
        const CVyString converted = impl.convertToQtFilter(row.key());
        QCOMPARE(QString(converted), row.value());
        QCOMPARE(converted, CVyUtils::ConvertToQtFilter(row.key()));
    }
}

void MacBackEndTest::showsOneAtATime_data()
{
    QTest::addColumn<QString>("during");

    QTest::newRow("while the panel is prepared") << "SetListFilter";
    QTest::newRow("while the panel is up") << "DoModal";
    QTest::newRow("while the answer is read") << "GetOpenMode";
}

void MacBackEndTest::showsOneAtATime()
{
    QFETCH(QString, during);

    Talk talk;
    Talk otherTalk;
    talk.fileNames = QStringList("/a.dwg");
    otherTalk.fileNames = QStringList("/b.dwg");
    BackEnd impl(talk);
    BackEnd other(otherTalk);
    QList<int> refused;
    talk.onCall = [&](const QString& call) {
        if (call == during && refused.isEmpty()) // the first does not free the way
            refused << other.show(0) << impl.show(0) << other.show(0);
    };
    QCOMPARE(impl.show(0), 5100);
    QCOMPARE(refused, QList<int>({-5002, -5002, -5002}));
    QCOMPARE(talk.calls.size(), 13);
    QCOMPARE(otherTalk.calls, QStringList());
    CVyString path;
    QCOMPARE(impl.getResult(&path), 5100);
    QCOMPARE(QString(path), QString("/a.dwg"));
    QCOMPARE(other.getResult(&path), 5000);

    QCOMPARE(other.show(0), 5100);
    talk.onCall = [](const QString&) {};
    QCOMPARE(impl.show(0), 5100);
}

void MacBackEndTest::showsOnItsOwnThreadOnly()
{
    Talk talk;
    talk.fileNames = QStringList("/a.dwg");
    BackEnd impl(talk);
    int status = 0;
    std::thread([&] { status = impl.show(0); }).join();
    QCOMPARE(status, -5001);
    QCOMPARE(talk.calls, QStringList());
    CVyString path;
    QCOMPARE(impl.getResult(&path), 5000);
    QCOMPARE(takeMessages(), QStringList("VyFileDialogs: no native panel can be shown: this is "
                                         "not the user-interface thread"));
    QCOMPARE(impl.show(0), 5100);
}

void MacBackEndTest::deletesItsDialog()
{
    Talk talk;
    auto impl = std::make_unique<BackEnd>(talk);
    QCOMPARE(talk.alive, 1);
    impl->show(0);
    impl->show(0);
    QCOMPARE(talk.alive, 1);
    std::unique_ptr<CVyFileDialogImpl>(std::move(impl)).reset(); // as the front does
    QCOMPARE(talk.alive, 0);
}

QTEST_MAIN(MacBackEndTest)
#include "MacBackEndTest.moc"

// SPDX-License-Identifier: MIT
// What the native back-ends do when they are told of a type or a mode, as the Qt
// ones are.
#include "HostTemplates.h"
#include "NativeTest.h"

#include "VyFileDialogMac.h"
#include "VyFileDialogMacMacNative.h"

#include <QFileDialog>
#include <QLineEdit>

using Impl = std::unique_ptr<CVyFileDialogImpl>;
using Native = std::unique_ptr<CVyFileDialogMacMacNative>;

namespace {

CVyUserIO::_FileNameType typeOf(unsigned value)
{
    return static_cast<CVyUserIO::_FileNameType>(value);
}

// A back-end to which a test can attach a Qt dialog.
template <typename Kind>
class Attached : public Kind
{
public:
    template <typename... Arguments>
    explicit Attached(Arguments... arguments)
        : Kind(std::move(arguments)...)
    {}

    using Kind::m_extensionLists;
    using Kind::m_keepTypeFolder;
    using Kind::m_lineEdit;
    using Kind::m_qtDialog;
    using Kind::m_qtFilter;
};

// A Qt dialog in a folder and a name field of it.
struct QtParts
{
    explicit QtParts(const QString& folder)
    {
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setDirectory(folder);
    }

    template <typename Kind>
    void attachTo(Attached<Kind>& impl, const QString& typed)
    {
        edit.setText(typed);
        impl.m_qtDialog = &dialog;
        impl.m_lineEdit = &edit;
    }

    QFileDialog dialog;
    QLineEdit edit;
};

} // namespace

class MacTypeChangeTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void actionsChooseTheMode_data();
    void actionsChooseTheMode();
    void typeChangeAdaptsTheName_data();
    void typeChangeAdaptsTheName();
    void typeChangeLeavesTheName_data();
    void typeChangeLeavesTheName();
    void typeChangeNeedsTheQtDialog();
    void openGoesToTheTemplates_data();
    void openGoesToTheTemplates();
    void saveGoesToTheTemplates_data();
    void saveGoesToTheTemplates();
    void saveAdaptsTheNameBeforeItGoes();
};

void MacTypeChangeTest::actionsChooseTheMode_data()
{
    QTest::addColumn<unsigned>("kind");
    QTest::addColumn<QList<int>>("openModes");
    QTest::addColumn<QList<int>>("newModes");

    const QList<int> none{0, 0, 0};
    const QList<int> each{1, 2, 0};
    QTest::newRow("common") << 0x0U << none << none;
    QTest::newRow("new") << 0x1U << none << each;
    QTest::newRow("open") << 0x2U << each << none;
    QTest::newRow("save") << 0x4U << none << none;
}

void MacTypeChangeTest::actionsChooseTheMode()
{
    QFETCH(unsigned, kind);
    QFETCH(QList<int>, openModes);
    QFETCH(QList<int>, newModes);

    const Impl made(kind ? CVyFileDialogImpl::createMac(typeOf(kind), false, true)
                         : new Attached<CVyFileDialogMac>(0, 0, false, Native()));
    auto& impl = dynamic_cast<CVyFileDialogMac&>(*made);
    QList<int> seen;
    for (const auto action :
         {&CVyFileDialogMac::onActionOpenReadOnly, &CVyFileDialogMac::onActionOpenWithEncoding,
          &CVyFileDialogMac::onActionOpen}) {
        (impl.*action)();
        QCOMPARE(impl.getNewMode(), 0);
        seen += impl.getOpenMode();
    }
    QCOMPARE(seen, openModes);

    seen.clear();
    for (const auto action :
         {&CVyFileDialogMac::onActionNewNoTemplateImperial,
          &CVyFileDialogMac::onActionNewNoTemplateMetric, &CVyFileDialogMac::onActionNew}) {
        (impl.*action)();
        QCOMPARE(impl.getOpenMode(), 0);
        seen += impl.getNewMode();
    }
    QCOMPARE(seen, newModes);
}

void MacTypeChangeTest::typeChangeAdaptsTheName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("name");

    const QString drawings("Drawings (*.dwg *.dxf)");
    const QString templates("Templates (*.dwt)");
    QTest::newRow("other extension") << "plan.txt" << drawings << "plan.dwg";
    QTest::newRow("extension of the type") << "plan.dxf" << drawings << "plan.dxf";
    QTest::newRow("in capitals") << "plan.DXF" << drawings << "plan.DXF";
    QTest::newRow("no extension") << "plan" << drawings << "plan.dwg";
    QTest::newRow("two extensions") << "archive.tar.gz" << drawings << "archive.tar.dwg";
    QTest::newRow("in a folder") << "sub/plan.txt" << drawings << "plan.dwg";
    QTest::newRow("existing folder") << "sub" << drawings << "sub";
    QTest::newRow("nothing typed") << "" << drawings << "";
    QTest::newRow("second type") << "plan.dwg" << templates << "plan.dwt";
    QTest::newRow("unknown type") << "plan.txt"
                                  << "Others (*.oth)"
                                  << "plan.txt";
    QTest::newRow("type in other case") << "plan.txt" << templates.toLower() << "plan.txt";
    QTest::newRow("no type") << "plan.txt"
                             << ""
                             << "plan.txt";
    QTest::newRow("Cyrillic") << QStringLiteral("План.чер") << drawings
                              << QStringLiteral("План.dwg");
}

// In the common back-end and in that of saving; opening has names of files that
// are there.
void MacTypeChangeTest::typeChangeAdaptsTheName()
{
    QFETCH(QString, typed);
    QFETCH(QString, type);
    QFETCH(QString, name);

    addFolder("sub");
    QtParts qt(path());
    const auto nameAfter = [&](auto&& impl) {
        qt.attachTo(impl, typed);
        impl.setFileTypes(L"Drawings&*.dwg;*.dxf&Templates&*.dwt");
        impl.onTypeChange(type);
        return qt.edit.text();
    };
    QCOMPARE(nameAfter(Attached<CVyFileDialogMac>(0, 0, false, Native())), name);
    QCOMPARE(nameAfter(Attached<CVyFileDialogMacNew>(true)), name);
    QCOMPARE(nameAfter(Attached<CVyFileDialogMacSave>(true)), name);
    QCOMPARE(nameAfter(Attached<CVyFileDialogMacOpen>(true, true, false, true, true)), typed);
    QCOMPARE(qt.dialog.directory().path(), path());
}

void MacTypeChangeTest::typeChangeLeavesTheName_data()
{
    QTest::addColumn<QString>("entries");
    QTest::addColumn<QString>("lists");

    QTest::newRow("no types") << ""
                              << "";
    QTest::newRow("fewer lists than entries") << "A (*);;B (*.b)"
                                              << "b";
    QTest::newRow("more lists than entries") << "B (*.b)"
                                             << "b&c";
    QTest::newRow("list without extensions") << "B (*.b)"
                                             << ";";
}

void MacTypeChangeTest::typeChangeLeavesTheName()
{
    QFETCH(QString, entries);
    QFETCH(QString, lists);

    QtParts qt(path());
    Attached<CVyFileDialogMac> impl(0, 0, false, Native());
    qt.attachTo(impl, "plan.txt");
    impl.m_qtFilter = CVyString(entries);
    impl.m_extensionLists = CVyString(lists);
    impl.onTypeChange("B (*.b)");
    QCOMPARE(qt.edit.text(), QString("plan.txt"));
}

// Nothing is attached to a back-end that shows a native panel.
void MacTypeChangeTest::typeChangeNeedsTheQtDialog()
{
    QtParts qt(path());
    const HostTemplates templates(path());
    const auto nameAfter = [&](auto&& impl, bool withDialog, bool withEdit) {
        qt.attachTo(impl, "plan.txt");
        impl.m_qtDialog = withDialog ? &qt.dialog : nullptr;
        impl.m_lineEdit = withEdit ? &qt.edit : nullptr;
        impl.m_qtFilter = L"dwt;;.dwt";
        impl.m_extensionLists = L"dwt&dwt";
        impl.setFileTypeIndex(0);
        impl.onTypeChange("dwt");
        impl.onTypeChange(".dwt");
        return qt.edit.text();
    };
    for (const auto& parts : {std::pair(false, false), {false, true}, {true, false}}) {
        const auto name = [&](auto&& impl) { return nameAfter(impl, parts.first, parts.second); };
        QCOMPARE(name(Attached<CVyFileDialogMac>(0, 0, false, Native())), QString("plan.txt"));
        QCOMPARE(name(Attached<CVyFileDialogMacOpen>(true, true, false, true, true)),
                 QString("plan.txt"));
        QCOMPARE(name(Attached<CVyFileDialogMacSave>(true)), QString("plan.txt"));
    }
    qt.dialog.setFileMode(QFileDialog::ExistingFile);
    QCOMPARE(qt.dialog.selectedFiles(), QStringList());
    QCOMPARE(nameAfter(Attached<CVyFileDialogMacSave>(true), true, true), QString("plan.txt"));
}

void MacTypeChangeTest::openGoesToTheTemplates_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("goes");

    QTest::newRow("templates") << "Templates (*.dwt)" << true;
    QTest::newRow("in capitals") << "Template (*.DWT)" << true;
    QTest::newRow("among others") << "All (*.dwg *.Dwt *.dxf)" << true;
    QTest::newRow("alone") << ".dwt" << true;
    QTest::newRow("longer extension") << "Others (*.dwtx)" << true;
    QTest::newRow("word without a dot") << "dwt" << false;
    QTest::newRow("drawings") << "Drawings (*.dwg)" << false;
    QTest::newRow("none") << "" << false;
}

void MacTypeChangeTest::openGoesToTheTemplates()
{
    QFETCH(QString, type);
    QFETCH(bool, goes);

    addFolder("templates");
    const HostTemplates templates(path("templates"));
    for (const bool templateFolderSwitch : {true, false}) {
        for (const bool openOnly : {true, false}) {
            QtParts qt(path());
            Attached<CVyFileDialogMacOpen> impl(true, true, openOnly, true, templateFolderSwitch);
            qt.attachTo(impl, "plan.txt");
            impl.onTypeChange(type);
            const bool gone = goes && templateFolderSwitch;
            QCOMPARE(qt.dialog.directory().path(), path(gone ? "templates" : QString()));
        }
    }
}

void MacTypeChangeTest::saveGoesToTheTemplates_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<int>("selected");
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("goes");

    // A description with a semicolon counts as two types.
    QTest::newRow("the word") << "dwt;B&*.b" << 0 << "dwt" << true;
    QTest::newRow("in capitals") << "DWT;B&*.b" << 0 << "DWT" << true;
    QTest::newRow("with its extension")
        << "Drawing Template&*.dwt" << 0 << "Drawing Template (*.dwt)" << false;
    QTest::newRow("the word, with its extension") << "dwt&*.dwt" << 0 << "dwt (*.dwt)" << false;
    QTest::newRow("with a dot") << ".dwt;B&*.b" << 0 << ".dwt" << false;
    QTest::newRow("selected, another chosen") << "dwt;B&*.b" << 0 << "B (*.b)" << true;
    QTest::newRow("chosen, another selected") << "dwt;B&*.b" << 1 << "dwt" << false;
    QTest::newRow("unknown chosen") << "dwt;B&*.b" << 0 << "unknown" << true;
    QTest::newRow("none selected") << "dwt;B&*.b" << -1 << "dwt" << false;
    QTest::newRow("no types") << "" << 0 << "dwt" << false;
}

void MacTypeChangeTest::saveGoesToTheTemplates()
{
    QFETCH(QString, filter);
    QFETCH(int, selected);
    QFETCH(QString, type);
    QFETCH(bool, goes);

    addFolder("templates");
    const HostTemplates templates(path("templates"));
    for (const bool keepTypeFolder : {false, true}) {
        QtParts qt(path());
        Attached<CVyFileDialogMacSave> impl(true);
        qt.attachTo(impl, "plan.txt");
        impl.m_keepTypeFolder = keepTypeFolder;
        impl.setFileTypes(CVyString(filter));
        if (selected >= 0)
            impl.setFileTypeIndex(selected);
        impl.onTypeChange(type);
        const bool gone = goes && !keepTypeFolder;
        QCOMPARE(qt.dialog.directory().path(), path(gone ? "templates" : QString()));
    }
}

// A name that is a folder's stays, and it is looked for where it was typed.
void MacTypeChangeTest::saveAdaptsTheNameBeforeItGoes()
{
    addFolder("templates/there");
    addFolder("here");
    const HostTemplates templates(path("templates"));
    QtParts qt(path());
    Attached<CVyFileDialogMacSave> impl(true);
    const auto nameAfter = [&](const QString& typed) {
        qt.dialog.setDirectory(path());
        qt.attachTo(impl, typed);
        impl.m_qtFilter = L"dwt";
        impl.m_extensionLists = L"dwt";
        impl.setFileTypeIndex(0);
        impl.onTypeChange("dwt");
        return qt.edit.text();
    };
    QCOMPARE(nameAfter("here"), QString("here"));
    QCOMPARE(qt.dialog.directory().path(), path("templates"));
    QCOMPARE(nameAfter("there"), QString("there.dwt"));
}

QTEST_MAIN(MacTypeChangeTest)
#include "MacTypeChangeTest.moc"

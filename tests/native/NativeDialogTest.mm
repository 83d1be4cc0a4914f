// SPDX-License-Identifier: MIT
// The native dialogs as their back-ends see them, and their records.
#include "NativeTest.h"

#include "VyFileDialogMacNewMacNative.h"
#include "VyFileDialogMacOpenMacNative.h"
#include "VyFileDialogMacOpenMacNativePrivate.h"
#include "VyFileDialogMacSaveMacNative.h"

using Native = std::unique_ptr<CVyFileDialogMacMacNative>;
using MakeNative = CVyFileDialogMacMacNative* (*)();
Q_DECLARE_METATYPE(MakeNative)

namespace {

// An open panel of GNUstep goes back to a folder that it shows when another one
// in it is deleted, as tests do in the system's folder of temporary files. That
// one is out of sight from down there.
const QString depth = QStringLiteral("far/below/the/others/");

} // namespace

class NativeDialogTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void dialogsStartEmpty_data();
    void dialogsStartEmpty();
    void dialogsReadBackTheType_data();
    void dialogsReadBackTheType();
    void dialogsTakeTheLastValue_data();
    void dialogsTakeTheLastValue();
    void recordsShareTheirLists();

private:
    static void dialogRows();
};

void NativeDialogTest::dialogRows()
{
    QTest::addColumn<MakeNative>("make");

    QTest::newRow("new") << MakeNative(
        []() -> CVyFileDialogMacMacNative* { return new CVyFileDialogMacNewMacNative; });
    QTest::newRow("open") << MakeNative([]() -> CVyFileDialogMacMacNative* {
        return new CVyFileDialogMacOpenMacNative(false, true, false);
    });
    QTest::newRow("open, one file") << MakeNative([]() -> CVyFileDialogMacMacNative* {
        return new CVyFileDialogMacOpenMacNative(true, false, true);
    });
    QTest::newRow("save") << MakeNative(
        []() -> CVyFileDialogMacMacNative* { return new CVyFileDialogMacSaveMacNative; });
}

void NativeDialogTest::dialogsStartEmpty_data()
{
    dialogRows();
}

// And what is set for a run is no answer of it.
void NativeDialogTest::dialogsStartEmpty()
{
    QFETCH(MakeNative, make);

    const Native native(make());
    for (const bool set : {false, true}) {
        if (set) {
            native->SetListFilter({"A", "B"});
            native->SetListFilterFileExt({"a", "b"});
            native->SetDirectory("/plans");
            native->SetTemplateDWGPath("/templates");
            native->SetDefSuffix("a");
            native->SetCaption("Choose");
            native->SetDefaultFileName("plan.a");
            native->SetHasPreview(true);
        }
        QStringList fileNames("untouched");
        native->GetFileNames(fileNames);
        QCOMPARE(fileNames, QStringList());
        QString type("untouched");
        native->GetSelectedFilter(type);
        QVERIFY(type.isNull());
        QString mode("untouched");
        native->GetOpenMode(mode);
        QVERIFY(mode.isNull());
    }
}

void NativeDialogTest::dialogsReadBackTheType_data()
{
    dialogRows();
}

void NativeDialogTest::dialogsReadBackTheType()
{
    QFETCH(MakeNative, make);

    const Native native(make());
    const Native other(make());
    other->SetSelectedFilter("Other");
    for (const QString& type :
         {QString("A (*.a)"), QString("no such type"), QString(""), QString("last"), QString()}) {
        QString mine = type;
        native->SetSelectedFilter(mine);
        mine += "changed";
        QString read("untouched");
        native->GetSelectedFilter(read);
        QCOMPARE(read, type);
        QCOMPARE(read.isNull(), type.isNull());
        read += "changed";
        native->GetSelectedFilter(read);
        QCOMPARE(read, type);
    }
    QString read;
    other->GetSelectedFilter(read);
    QCOMPARE(read, QString("Other"));
    QString mode("untouched");
    native->GetOpenMode(mode);
    QVERIFY(mode.isNull());
}

void NativeDialogTest::dialogsTakeTheLastValue_data()
{
    dialogRows();
}

// Seen in the panel; the setters come in another order than the back-end's.
void NativeDialogTest::dialogsTakeTheLastValue()
{
    QFETCH(MakeNative, make);

    const Native native(make());
    const auto inDepth = [this](const QString& word) { return path(depth + word); };
    for (const QString word : {"first", "second", "last"}) {
        native->SetHasPreview(word == "first");
        native->SetDefaultFileName(word + ".b");
        native->SetCaption("Choose the " + word);
        native->SetTemplateDWGPath(inDepth(word));
        native->SetDirectory(inDepth(word));
        native->SetSelectedFilter("B " + word);
        native->SetDefSuffix(word);
        native->SetListFilterFileExt({"a", "b"});
        native->SetListFilter({"A " + word, "B " + word});
        addFile(depth + word + "/" + word + ".b");
    }
    const bool isOpen = dynamic_cast<CVyFileDialogMacOpenMacNative*>(native.get()) != nullptr;
    const PanelDriver driver({onPanel([&](NSSavePanel* panel) {
                                  QCOMPARE(text([panel title]), QString("Choose the last"));
                                  QCOMPARE(titles(popup(panel, @selector(filterChanged:))),
                                           QStringList({"A last", "B last"}));
                                  QCOMPARE(text([panel directory]), inDepth("last"));
                                  QCOMPARE(text([panel nameFieldStringValue]),
                                           QString(isOpen ? "" : "last.b"));
                              }),
                              cancel()});
    native->DoModal();
    QString type;
    native->GetSelectedFilter(type);
    QCOMPARE(type, QString("B last"));
    QStringList fileNames("untouched");
    native->GetFileNames(fileNames);
    QCOMPARE(fileNames, QStringList());
}

void NativeDialogTest::recordsShareTheirLists()
{
    CVyFileDialogMacOpenMacNativePrivate record(true, false, true);
    QVERIFY(record.m_bNoOpenModes && !record.m_bMultiSelect && record.m_bNoTemplateHandling);
    QVERIFY(!record.m_panelController && !record.m_bHasPreview);
    const QStringList first{"a", "b"};
    const QStringList last{"c"};
    for (const QStringList& list : {first, first, last, last, QStringList()}) {
        record.SetListFilter(list);
        record.SetListFilterFileExt(list);
        record.SetFileNames(list);
        QStringList read("untouched");
        for (int time = 0; time < 2; ++time) { // the second is of the same data
            record.GetFileNames(read);
            QVERIFY(read.isSharedWith(list));
        }
        QVERIFY(record.m_listFilter.isSharedWith(list));
        QVERIFY(record.m_listFilterFileExt.isSharedWith(list));
    }
}

QTEST_MAIN(NativeDialogTest)
#include "NativeDialogTest.moc"

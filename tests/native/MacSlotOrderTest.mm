// SPDX-License-Identifier: MIT
// The order of virtual operations of the native family, read from the binary:
// hosts and back-ends built apart rely on it.
#include "NativeTest.h"

#include "VyFileDialogMac.h"
#include "VyFileDialogMacMacNative.h"

#include <cstring>

namespace {

QString s_called;

int called(const char* name)
{
    s_called = QLatin1String(name);
    return 0;
}

// Say which operation a call of a table slot has reached.
class BackEndRecorder : public CVyFileDialogMac
{
public:
    BackEndRecorder()
        : CVyFileDialogMac(0, 0, false, nullptr)
    {}
    ~BackEndRecorder() override { called("destructor"); }

    int setTitle(const CVyString&) override { return called("setTitle"); }
    int setDefaultExtension(const CVyString&) override { return called("setDefaultExtension"); }
    int setDefaultFolder(const CVyString&) override { return called("setDefaultFolder"); }
    int setDefaultFileName(const CVyString&) override { return called("setDefaultFileName"); }
    int setFileTypes(const CVyString&) override { return called("setFileTypes"); }
    int setFileTypeIndex(int) override { return called("setFileTypeIndex"); }
    int setDefaultTemplateName(const CVyString&) override
    {
        return called("setDefaultTemplateName");
    }
    int show(unsigned long long) override { return called("show"); }
    int getResult(CVyString*) override { return called("getResult"); }
    int getResults(std::vector<CVyString>*) override { return called("getResults"); }
    int getFileTypeIndex(int*) override { return called("getFileTypeIndex"); }
    int getTemplateName(CVyString*) override { return called("getTemplateName"); }
    int getNewMode() override { return called("getNewMode"); }
    int getOpenMode() override { return called("getOpenMode"); }
    void onTypeChange(const QString&) override { called("onTypeChange"); }
    void onActionOpen() override { called("onActionOpen"); }
    void onActionOpenReadOnly() override { called("onActionOpenReadOnly"); }
    void onActionOpenWithEncoding() override { called("onActionOpenWithEncoding"); }
    void onActionNew() override { called("onActionNew"); }
    void onActionNewNoTemplateImperial() override { called("onActionNewNoTemplateImperial"); }
    void onActionNewNoTemplateMetric() override { called("onActionNewNoTemplateMetric"); }
};

class NativeRecorder : public CVyFileDialogMacMacNative
{
public:
    ~NativeRecorder() override { called("destructor"); }

    void GetFileNames(QStringList&) const override { called("GetFileNames"); }
    void SetListFilter(QStringList) override { called("SetListFilter"); }
    void SetListFilterFileExt(QStringList) override { called("SetListFilterFileExt"); }
    void SetDirectory(QString) override { called("SetDirectory"); }
    void SetTemplateDWGPath(QString) override { called("SetTemplateDWGPath"); }
    void SetDefSuffix(QString) override { called("SetDefSuffix"); }
    void SetSelectedFilter(QString) override { called("SetSelectedFilter"); }
    void SetCaption(QString) override { called("SetCaption"); }
    void SetDefaultFileName(QString) override { called("SetDefaultFileName"); }
    void SetHasPreview(bool) override { called("SetHasPreview"); }
    void GetSelectedFilter(QString&) const override { called("GetSelectedFilter"); }
    void GetOpenMode(QString&) const override { called("GetOpenMode"); }
    void DoModal() override { called("DoModal"); }
};

// Calls a slot of the object's table as its first argument's member function.
// The recorders read none of the arguments. (The sanitizer would tell, rightly,
// that the slot's type is another.)
__attribute__((no_sanitize("undefined"))) void callSlot(void* object, int slot)
{
    using Slot = void (*)(void*, const void*);
    Slot* table = nullptr;
    std::memcpy(&table, object, sizeof table);
    table[slot](object, nullptr);
}

// The names of what the slots reach, from the first behind the two of the
// destructor on, of which the second also frees.
QStringList slotOrder(void* object, int count)
{
    QStringList order;
    for (int slot = 2; slot < count + 2; ++slot) {
        s_called = "nothing";
        callSlot(object, slot);
        order += s_called;
    }
    s_called = "nothing";
    callSlot(object, 1);
    return QStringList(s_called) + order;
}

} // namespace

class MacSlotOrderTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheOrderOfItsOperations();
    void keepsTheOrderOfTheNativeOperations();
};

void MacSlotOrderTest::keepsTheOrderOfItsOperations()
{
    const QStringList order{"destructor",
                            "setTitle",
                            "setDefaultExtension",
                            "setDefaultFolder",
                            "setDefaultFileName",
                            "setFileTypes",
                            "setFileTypeIndex",
                            "setDefaultTemplateName",
                            "show",
                            "getResult",
                            "getResults",
                            "getFileTypeIndex",
                            "getTemplateName",
                            "getNewMode",
                            "getOpenMode",
                            "onTypeChange",
                            "onActionOpen",
                            "onActionOpenReadOnly",
                            "onActionOpenWithEncoding",
                            "onActionNew",
                            "onActionNewNoTemplateImperial",
                            "onActionNewNoTemplateMetric"};
    QCOMPARE(slotOrder(static_cast<CVyFileDialogImpl*>(new BackEndRecorder), 21), order);
}

void MacSlotOrderTest::keepsTheOrderOfTheNativeOperations()
{
    const QStringList order{"destructor",    "GetFileNames",
                            "SetListFilter", "SetListFilterFileExt",
                            "SetDirectory",  "SetTemplateDWGPath",
                            "SetDefSuffix",  "SetSelectedFilter",
                            "SetCaption",    "SetDefaultFileName",
                            "SetHasPreview", "GetSelectedFilter",
                            "GetOpenMode",   "DoModal"};
    QCOMPARE(slotOrder(static_cast<CVyFileDialogMacMacNative*>(new NativeRecorder), 13), order);
}

QTEST_MAIN(MacSlotOrderTest)
#include "MacSlotOrderTest.moc"

// SPDX-License-Identifier: MIT
// The order of virtual operations and of meta-object members, read from the
// binary: hosts and back-ends built apart rely on it.
#include "VyDirPushButton.h"
#include "VyFileDialogQt.h"
#include "VyFileDialogWidget.h"

#include <QtTest>

#include <cstring>

namespace {

QString s_called;

int called(const char* name)
{
    s_called = QLatin1String(name);
    return 0;
}

// Says which operation a call of a table slot has reached.
class Recorder : public CVyFileDialogQt
{
public:
    Recorder()
        : CVyFileDialogQt(0, 0)
    {}
    ~Recorder() override { called("destructor"); }

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
    void setExpert(int) override { called("setExpert"); }
    void onTypeChange(const QString&) override { called("onTypeChange"); }
    void onActionOpen() override { called("onActionOpen"); }
    void onActionOpenReadOnly() override { called("onActionOpenReadOnly"); }
    void onActionOpenWithEncoding() override { called("onActionOpenWithEncoding"); }
    void onActionNew() override { called("onActionNew"); }
    void onActionNewNoTemplateImperial() override { called("onActionNewNoTemplateImperial"); }
    void onActionNewNoTemplateMetric() override { called("onActionNewNoTemplateMetric"); }
    void HandleDialogInitialization() override { called("HandleDialogInitialization"); }
};

// Calls a slot of the object's table as its first argument's member function.
// The recorder reads none of the arguments. (The sanitizer would tell, rightly,
// that the slot's type is another.)
__attribute__((no_sanitize("undefined"))) void callSlot(CVyFileDialogImpl* object, int slot)
{
    using Slot = void (*)(CVyFileDialogImpl*, const void*);
    Slot* table = nullptr;
    std::memcpy(&table, static_cast<void*>(object), sizeof table);
    table[slot](object, nullptr);
}

QStringList ownMethods(const QMetaObject& meta)
{
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const QString kind = method.methodType() == QMetaMethod::Signal ? "signal" : "slot";
        const QStringList access{"private", "protected", "public"};
        methods.append(access.at(method.access()) + ' ' + kind + ' ' +
                       QString::fromLatin1(method.methodSignature()));
    }
    return methods;
}

} // namespace

class SlotOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void interface_data();
    void interface();
    void destructorComesFirst();
    void widgetMetaObject();
    void folderButtonMetaObject();
    void previewMetaObject();
};

void SlotOrderTest::interface_data()
{
    QTest::addColumn<int>("slot");
    const QStringList order{"setTitle",
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
                            "setExpert",
                            "onTypeChange",
                            "onActionOpen",
                            "onActionOpenReadOnly",
                            "onActionOpenWithEncoding",
                            "onActionNew",
                            "onActionNewNoTemplateImperial",
                            "onActionNewNoTemplateMetric",
                            "HandleDialogInitialization"};
    int slot = 2; // the destructor takes two, one of which also frees
    for (const QString& name : order)
        QTest::newRow(qPrintable(name)) << slot++;
}

void SlotOrderTest::interface()
{
    QFETCH(int, slot);
    Recorder recorder;
    callSlot(&recorder, slot);
    QCOMPARE(s_called, QString::fromLatin1(QTest::currentDataTag()));
}

void SlotOrderTest::destructorComesFirst()
{
    auto* recorder = new Recorder;
    callSlot(recorder, 1); // the one that frees
    QCOMPARE(s_called, QStringLiteral("destructor"));
}

void SlotOrderTest::widgetMetaObject()
{
    const QMetaObject& meta = CVyFileDialogWidget::staticMetaObject;
    QCOMPARE(meta.superClass(), &QFileDialog::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(ownMethods(meta),
             (QStringList{
                 "private slot onCurrentFile(QString)", "private slot onChangedDirectory(QString)",
                 "private slot onChangedDirectory()", "private slot dirButtonPressed(QPushButton*)",
                 "private slot filterChanged(QString)", "private slot onActionOpen()",
                 "private slot onActionOpenReadOnly()", "private slot onActionOpenWithEncoding()",
                 "private slot onActionNew()", "private slot onActionNewNoTemplateImperial()",
                 "private slot onActionNewNoTemplateMetric()"}));
}

void SlotOrderTest::folderButtonMetaObject()
{
    const QMetaObject& meta = CVyDirPushButton::staticMetaObject;
    QCOMPARE(meta.superClass(), &QPushButton::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(ownMethods(meta), (QStringList{"public signal dirClicked(QPushButton*)",
                                            "public slot onClicked(bool)"}));
    CVyDirPushButton button(QStringLiteral("plans"), nullptr);
    QSignalSpy spy(&button, SIGNAL(dirClicked(QPushButton*)));
    button.click();
    QCOMPARE(spy.at(0).at(0).value<QPushButton*>(), &button);
}

void SlotOrderTest::previewMetaObject()
{
    const QMetaObject& meta = CVyFileDialogPreview::staticMetaObject;
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(ownMethods(meta), QStringList());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

QTEST_MAIN(SlotOrderTest)
#include "SlotOrderTest.moc"

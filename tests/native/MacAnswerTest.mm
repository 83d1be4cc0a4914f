// SPDX-License-Identifier: MIT
// What the native back-end makes of its native dialog's answer.
#include "FakeNativeDialog.h"
#include "NativeTest.h"

#include <QTranslator>

namespace {

// Translates the texts that it knows, in one context.
class Translator : public QTranslator
{
public:
    Translator(const char* context, const QMap<QString, QString>& texts)
        : m_context(context)
        , m_texts(texts)
    {
        QCoreApplication::installTranslator(this);
    }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int count) const override
    {
        const bool mine = m_context == context && !disambiguation && count == -1;
        return mine ? m_texts.value(source) : QString();
    }

private:
    const QByteArray m_context;
    const QMap<QString, QString> m_texts;
};

const char openMode[] = "Open";
const char readOnly[] = "Open Read-Only";
const char encoding[] = "Open with Encoding...";
const char imperial[] = "Open with no Template - Imperial";
const char metric[] = "Open with no Template - Metric";

} // namespace

using Texts = QMap<QString, QString>;

class MacAnswerTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void answersWhatWasChosen_data();
    void answersWhatWasChosen();
    void forgetsTheEarlierAnswer();
    void readsTheType_data();
    void readsTheType();
    void readsTheMode_data();
    void readsTheMode();
    void readsTranslatedModes_data();
    void readsTranslatedModes();
    void keepsTheNewModeOnly();
};

void MacAnswerTest::answersWhatWasChosen_data()
{
    QTest::addColumn<QStringList>("fileNames");
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("got");

    QTest::newRow("nothing") << QStringList() << -5002 << 5000;
    QTest::newRow("one") << QStringList("/plans/a.dwg") << 5100 << 5100;
    QTest::newRow("several, not sorted")
        << QStringList({"/b.dwg", "/a.dwg", "/b.dwg"}) << 5100 << 5100;
    QTest::newRow("odd names") << QStringList({QStringLiteral("/планы/Чертёж.dwg"),
                                               QStringLiteral("/\U0001F600"),
                                               " /R&D;a\nb 100%.dwg "})
                               << 5100 << 5100;
    QTest::newRow("name that is empty") << QStringList("") << 5100 << 5100;
}

void MacAnswerTest::answersWhatWasChosen()
{
    QFETCH(QStringList, fileNames);
    QFETCH(int, shown);
    QFETCH(int, got);

    Talk talk;
    talk.fileNames = fileNames;
    BackEnd impl(talk);
    CVyString path(L"untouched");
    QCOMPARE(impl.getResult(&path), 5000); // not yet
    QCOMPARE(impl.show(0), shown);
    QCOMPARE(impl.getResult(&path), got);
    QCOMPARE(QString(path), fileNames.value(0, "untouched"));
    std::vector<CVyString> paths{CVyString(L"already there")};
    QCOMPARE(impl.getResults(&paths), got);
    QCOMPARE(QStringList(paths.begin(), paths.end()), QStringList("already there") + fileNames);
    QCOMPARE(impl.getResult(nullptr), -5001);
    QCOMPARE(impl.getResults(nullptr), -5001);
}

void MacAnswerTest::forgetsTheEarlierAnswer()
{
    Talk talk;
    BackEnd impl(talk);
    CVyString path;
    for (const QString name : {"/a.dwg", "/b.dwg"}) {
        talk.fileNames = QStringList(name);
        QCOMPARE(impl.show(0), 5100);
        std::vector<CVyString> paths;
        QCOMPARE(impl.getResults(&paths), 5100);
        QCOMPARE(paths, std::vector<CVyString>{CVyString(name)});
    }
    talk.fileNames.clear();
    QCOMPARE(impl.show(0), -5002);
    QCOMPARE(impl.getResult(&path), 5000);
}

void MacAnswerTest::readsTheType_data()
{
    QTest::addColumn<bool>("answers");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("index");

    QTest::newRow("none") << false << "" << 5100 << 1;
    QTest::newRow("null") << true << QString() << 5100 << 1;
    QTest::newRow("empty") << true << "" << 5100 << 1;
    QTest::newRow("the same") << true << "B (*.b)" << 5100 << 1;
    QTest::newRow("another") << true << "A (*.a)" << 5100 << 0;
    QTest::newRow("in other case") << true << "c (*.C)" << 5100 << 2;
    QTest::newRow("no type") << true << "D (*.d)" << -5001 << 77;
    QTest::newRow("blank") << true << " " << -5001 << 77;
}

void MacAnswerTest::readsTheType()
{
    QFETCH(bool, answers);
    QFETCH(QString, answer);
    QFETCH(int, status);
    QFETCH(int, index);

    Talk talk;
    talk.answersFilter = answers;
    talk.selectedFilter = answer;
    BackEnd impl(talk);
    impl.setFileTypes(L"A&*.a&B&*.b&C&*.c");
    int got = 77;
    QCOMPARE(impl.getFileTypeIndex(&got), -5001); // nothing selected yet
    impl.setFileTypeIndex(1);
    impl.show(0);
    QCOMPARE(impl.getFileTypeIndex(&got), status);
    QCOMPARE(got, index);
    QCOMPARE(impl.getFileTypeIndex(nullptr), -5001);

    talk.calls.clear(); // and the next panel starts with it
    impl.show(0);
    QCOMPARE(call(talk, "SetSelectedFilter"),
             "SetSelectedFilter(" + (answer.isEmpty() ? QString("B (*.b)") : answer) + ')');
}

void MacAnswerTest::readsTheMode_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("open");
    QTest::addColumn<int>("fresh");

    QTest::newRow("open") << openMode << 0 << 0;
    QTest::newRow("read-only") << readOnly << 1 << 0;
    QTest::newRow("encoding") << encoding << 2 << 0;
    QTest::newRow("imperial") << imperial << 0 << 1;
    QTest::newRow("metric") << metric << 0 << 2;
    QTest::newRow("null") << QString() << 0 << 0;
    for (const char* none : {"", "Save", "open read-only", "Open Read-Only ", "&Open Read-Only",
                             "Open with Encoding", "OPEN WITH NO TEMPLATE - METRIC"})
        QTest::newRow(qPrintable(QString("none: \"%1\"").arg(none))) << none << 0 << 0;
}

void MacAnswerTest::readsTheMode()
{
    QFETCH(QString, label);
    QFETCH(int, open);
    QFETCH(int, fresh);

    Talk talk;
    talk.mode = label;
    BackEnd impl(talk);
    QCOMPARE(impl.getOpenMode(), 0);
    QCOMPARE(impl.getNewMode(), 0);
    for (const QStringList& fileNames : {QStringList("/a.dwg"), QStringList()}) {
        talk.fileNames = fileNames; // also without an answer
        impl.show(0);
        QCOMPARE(impl.getOpenMode(), open);
        QCOMPARE(impl.getNewMode(), fresh);
    }
}

void MacAnswerTest::readsTranslatedModes_data()
{
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<Texts>("texts");
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("open");
    QTest::addColumn<int>("fresh");

    const QByteArray ours("CVyFileDialogs");
    const QString word("Otevřít");
    const Texts all{
        {openMode, word}, {readOnly, word}, {encoding, word}, {imperial, word}, {metric, word}};
    QTest::newRow("its own language") << ours << Texts{{metric, word}} << word << 0 << 2;
    QTest::newRow("not in ours") << ours << Texts{{metric, word}} << metric << 0 << 0;
    QTest::newRow("in another context")
        << QByteArray("CVyFileDialogQt") << Texts{{metric, word}} << metric << 0 << 2;
    QTest::newRow("two open modes alike")
        << ours << Texts{{readOnly, word}, {encoding, word}} << word << 2 << 0;
    QTest::newRow("open and read-only alike")
        << ours << Texts{{openMode, word}, {readOnly, word}} << word << 1 << 0;
    QTest::newRow("two new modes alike")
        << ours << Texts{{imperial, word}, {metric, word}} << word << 0 << 2;
    QTest::newRow("open and imperial alike")
        << ours << Texts{{openMode, word}, {imperial, word}} << word << 0 << 1;
    QTest::newRow("of either kind")
        << ours << Texts{{readOnly, word}, {imperial, word}} << word << 1 << 1;
    QTest::newRow("all alike") << ours << all << word << 2 << 2;
    QTest::newRow("swapped") << ours << Texts{{readOnly, encoding}, {encoding, readOnly}}
                             << readOnly << 2 << 0;
}

void MacAnswerTest::readsTranslatedModes()
{
    QFETCH(QByteArray, context);
    QFETCH(Texts, texts);
    QFETCH(QString, label);
    QFETCH(int, open);
    QFETCH(int, fresh);

    const Translator translator(context, texts);
    Talk talk;
    talk.mode = label;
    BackEnd impl(talk);
    impl.show(0);
    QCOMPARE(impl.getOpenMode(), open);
    QCOMPARE(impl.getNewMode(), fresh);
}

void MacAnswerTest::keepsTheNewModeOnly()
{
    struct Step
    {
        const char* label;
        int open;
        int fresh;
    };
    Talk talk;
    BackEnd impl(talk);
    for (const Step& step :
         {Step{metric, 0, 2}, Step{nullptr, 0, 2}, Step{readOnly, 1, 2}, Step{"unknown", 0, 2},
          Step{encoding, 2, 2}, Step{imperial, 0, 1}, Step{openMode, 0, 0}}) {
        talk.mode = step.label;
        impl.show(0);
        QCOMPARE(impl.getOpenMode(), step.open);
        QCOMPARE(impl.getNewMode(), step.fresh);
    }
}

QTEST_MAIN(MacAnswerTest)
#include "MacAnswerTest.moc"

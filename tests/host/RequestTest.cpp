// SPDX-License-Identifier: MIT
// What the command asks of the dialogs, and what it takes from their answer.
#include "Request.h"
#include "CodePages.h"
#include "HostPlatform.h"
#include "HostRequest.h"
#include "VySystemServices.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const DialogDriver::Step cancel = onFileDialog([](QFileDialog& dialog) { dialog.reject(); });

Answer answerOf(const Options& options, std::vector<DialogDriver::Step> steps)
{
    const DialogDriver driver(std::move(steps));
    return ask(options);
}

DialogDriver::Step accepting(const QString& name)
{
    return onFileDialog([name](QFileDialog& dialog) { typeAndAccept(dialog, name); });
}

QMenu* modeMenu(QFileDialog& dialog)
{
    return dialog.findChild<QMenu*>(QStringLiteral("modeMenu"));
}

// Triggers the entry of the mode menu at \a index.
DialogDriver::Step choosingMode(int index, const QString& name = QString())
{
    return onFileDialog([=](QFileDialog& dialog) {
        if (!name.isEmpty())
            typeName(dialog, name);
        QVERIFY(modeMenu(dialog));
        modeMenu(dialog)->actions().at(index)->trigger();
    });
}

} // namespace

class RequestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void cancelled_data();
    void cancelled();
    void showsWhatTheOptionsSay();
    void opensOne();
    void opensSeveral();
    void opensWithEncoding();
    void saves_data();
    void saves();
    void startsWithoutTemplate_data();
    void startsWithoutTemplate();
    void presetsTheTemplate();
    void tellsTheServices();
    void qualifiersReachTheDialog();
    void nativeFailsWithoutDisplay_data();
    void nativeFailsWithoutDisplay();

private:
    QString path(const QString& name) const
    {
        return QDir(m_folder->path()).canonicalPath() + QLatin1Char('/') + name;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    Options m_options;
};

void RequestTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    for (const char* name : {"a.dwg", "b.dwg", "c.dwt"}) {
        QFile file(path(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    GetVySystemServices()->SetTemplateFolder(CVyString());
    m_options = Options();
    m_options.filter = QStringLiteral("Drawings&*.dwg&Exchange&*.dxf&Templates&*.dwt");
    m_options.startPath = m_folder->path();
}

void RequestTest::cancelled_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<bool>("multiple");
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("open") << 0x2U << false << 256U;
    QTest::newRow("open several") << 0x2U << true << 256U;
    QTest::newRow("save") << 0x4U << false << 65536U;
    QTest::newRow("save several") << 0x4U << true << 65536U;
    QTest::newRow("new") << 0x1U << false << 1U;
    QTest::newRow("new several") << 0x1U << true << 1U;
}

void RequestTest::cancelled()
{
    QFETCH(unsigned, type);
    m_options.type = static_cast<CVyUserIO::_FileNameType>(type);
    m_options.startPath = path("a.dwg");
    m_options.typeIndex = 1;
    QFETCH(bool, multiple);
    m_options.multiple = multiple;

    const Answer answer = answerOf(m_options, {cancel});
    QCOMPARE(answer.status, VyStatus::Cancelled);
    QTEST(unsigned(answer.mode), "mode");
    QCOMPARE(answer.paths, QStringList());
    QVERIFY(!answer.typeIndex);
    QCOMPARE(answer.codePage, OdCodePageId::Undefined);
}

void RequestTest::showsWhatTheOptionsSay()
{
    m_options.title = QStringLiteral("Pick one");
    m_options.defaultExtension = QStringLiteral("dxf");
    m_options.typeIndex = 2;
    m_options.startPath = path("c.dwt");
    answerOf(m_options, {onFileDialog([&](QFileDialog& dialog) {
                 QCOMPARE(dialog.windowTitle(), QStringLiteral("Pick one"));
                 QCOMPARE(dialog.defaultSuffix(), QStringLiteral("dxf"));
                 QCOMPARE(dialog.selectedNameFilter(), QStringLiteral("Templates (*.dwt)"));
                 QCOMPARE(dialog.directory().canonicalPath(), QFileInfo(path("c.dwt")).path());
                 QCOMPARE(dialog.selectedFiles(), QStringList{path("c.dwt")});
                 QVERIFY(!modeMenu(dialog));
                 dialog.reject();
             })});
}

void RequestTest::opensOne()
{
    const Answer answer = answerOf(m_options, {accepting("b.dwg")});
    QCOMPARE(answer.status, VyStatus::Accepted);
    QCOMPARE(answer.mode, CVyUserIO::Open);
    QCOMPARE(answer.paths, QStringList{path("b.dwg")});
    QCOMPARE(answer.typeIndex, std::optional<int>(0));
}

void RequestTest::opensSeveral()
{
    m_options.multiple = true;
    const Answer answer = answerOf(m_options, {accepting(QStringLiteral("\"b.dwg\" \"a.dwg\""))});
    QCOMPARE(answer.status, VyStatus::Accepted);
    QCOMPARE(answer.paths, (QStringList{path("b.dwg"), path("a.dwg")}));
}

void RequestTest::opensWithEncoding()
{
    m_options.flags = CVyUserIO::FileNameModeChoices;
    const DialogDriver::Step choosePage = [](QDialog& dialog) {
        chooseCodePage(dialog, OdCodePageId::Iso8859_4);
        dialog.accept();
    };
    const Answer answer = answerOf(m_options, {choosingMode(2, "a.dwg"), choosePage});
    QCOMPARE(answer.status, VyStatus::Accepted);
    QCOMPARE(answer.paths, QStringList{path("a.dwg")});
    QCOMPARE(answer.codePage, OdCodePageId::Iso8859_4);
}

void RequestTest::saves_data()
{
    QTest::addColumn<QString>("filter"); // null: none
    QTest::addColumn<int>("typeIndex");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("saved");
    QTest::addColumn<int>("chosen"); // -1: none
    const QString types = QStringLiteral("Drawings&*.dwg&Exchange&*.dxf");
    QTest::newRow("without extension") << types << 1 << "plan"
                                       << "plan.dxf" << 1;
    QTest::newRow("with extension") << types << 0 << "plan.dwg"
                                    << "plan.dwg" << 0;
    QTest::newRow("index behind the list") << types << 99 << "plan"
                                           << "plan.dxf" << 1;
    QTest::newRow("no filter") << QString() << 0 << "plan.dwg"
                               << "plan.dwg" << -1;
    QTest::newRow("no filter, an index") << QString() << 5 << "plan"
                                         << "plan" << -1;
    QTest::newRow("filter without types") << "&" << 0 << "plan.dwg"
                                          << "plan.dwg" << -1;
}

void RequestTest::saves()
{
    QFETCH(QString, filter);
    QFETCH(int, typeIndex);
    QFETCH(QString, name);
    QFETCH(QString, saved);
    QFETCH(int, chosen);
    m_options.type = CVyUserIO::FileNameSave;
    m_options.filter = filter.isNull() ? std::nullopt : std::optional(filter);
    m_options.typeIndex = typeIndex;
    const Answer answer =
        answerOf(m_options, {onFileDialog([&](QFileDialog& dialog) {
                     typeName(dialog, name);
                     dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
                 })});
    QCOMPARE(answer.status, VyStatus::Accepted);
    QCOMPARE(answer.mode, CVyUserIO::Save);
    QCOMPARE(answer.paths, QStringList{path(saved)});
    QCOMPARE(answer.typeIndex.value_or(-1), chosen);
}

void RequestTest::startsWithoutTemplate_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<unsigned>("mode");
    QTest::newRow("imperial") << 1 << 2U;
    QTest::newRow("metric") << 2 << 3U;
}

void RequestTest::startsWithoutTemplate()
{
    QFETCH(int, entry);
    m_options.type = CVyUserIO::FileNameNew;
    m_options.flags = CVyUserIO::FileNameModeChoices;
    const Answer answer = answerOf(m_options, {choosingMode(entry)});
    QCOMPARE(exitStatus(answer.status), ExitAccepted);
    QCOMPARE(answer.paths, QStringList());
    QTEST(unsigned(answer.mode), "mode");
}

void RequestTest::presetsTheTemplate()
{
    m_options.type = CVyUserIO::FileNameNew;
    m_options.typeIndex = 2;
    m_options.templateName = QStringLiteral("c.dwt");
    QString preset;
    const Answer answer = answerOf(m_options, {onFileDialog([&](QFileDialog& dialog) {
                                       preset = dialog.selectedFiles().value(0);
                                       typeAndAccept(dialog, "c.dwt");
                                   })});
    QCOMPARE(preset, path("c.dwt"));
    QCOMPARE(answer.mode, CVyUserIO::NewFromTemplate);
    QCOMPARE(answer.paths, QStringList{path("c.dwt")});
    QCOMPARE(answer.templateName, m_options.templateName);
}

void RequestTest::tellsTheServices()
{
    m_options.expertLevel = 2;
    m_options.templateFolder = QStringLiteral("my templates");
    m_options.type = CVyUserIO::FileNameSave;
    answerOf(m_options, {onFileDialog([](QFileDialog& dialog) {
                 QVERIFY(dialog.testOption(QFileDialog::DontConfirmOverwrite));
                 dialog.reject();
             })});
    QCOMPARE(QString(GetVySystemServices()->GetTemplateFolder()),
             QDir::current().absoluteFilePath("my templates"));
}

void RequestTest::qualifiersReachTheDialog()
{
    m_options.type = static_cast<CVyUserIO::_FileNameType>(CVyUserIO::FileNameOpen |
                                                           CVyUserIO::FileNameOpenOnly);
    m_options.flags = CVyUserIO::FileNameModeChoices;
    answerOf(m_options, {onFileDialog([](QFileDialog& dialog) {
                 QCOMPARE(modeMenu(dialog)->actions().size(), 1);
                 dialog.reject();
             })});
}

void RequestTest::nativeFailsWithoutDisplay_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<bool>("multiple");
    QTest::newRow("open") << 0x2U << false;
    QTest::newRow("open several") << 0x2U << true;
    QTest::newRow("save") << 0x4U << false;
    QTest::newRow("save several") << 0x4U << true;
    QTest::newRow("new") << 0x1U << false;
    QTest::newRow("new several") << 0x1U << true;
}

void RequestTest::nativeFailsWithoutDisplay()
{
    if (HostPlatform::defaultStyle() == CVyFileDialog::StyleNative)
        QSKIP("this platform always has a display");
    QFETCH(unsigned, type);
    m_options.type = static_cast<CVyUserIO::_FileNameType>(type);
    QFETCH(bool, multiple);
    m_options.multiple = multiple;
    m_options.style = CVyFileDialog::StyleNative;
    m_options.typeIndex = 1;
    if (VY_HAS_NATIVE)
        QTest::ignoreMessage(QtWarningMsg, "VyFileDialogs: no native panel can be shown: "
                                           "no X display answers; see DISPLAY");
    const Answer answer = ask(m_options);
    QCOMPARE(answer.status, VyStatus::Failed);
    QCOMPARE(exitStatus(answer.status), ExitFailure);
    QCOMPARE(answer.paths, QStringList());
    QVERIFY(!answer.typeIndex);
    QCOMPARE(answer.codePage, OdCodePageId::Undefined);
}

QTEST_MAIN(RequestTest)
#include "RequestTest.moc"

// SPDX-License-Identifier: MIT
// What the dialog that asks for a code page shows: the file's name, a sample of
// its text, and controls that everybody can work.
#include "CodePages.h"
#include "EncodingDialogParts.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QTextDocumentFragment>

#include <sys/stat.h>

using namespace EncodingDialogParts;

namespace {

const QByteArray drawing = "  0\nSECTION\n  2\nENTITIES\n  0\nTEXT\n  1\n"
                           "\x90\x7d\x96\xca\n  8\nStra\xdf"
                           "e\n  0\nENDSEC\n  0\nEOF\n";

QString caption(const QDialog& dialog)
{
    return part<QLabel>(dialog, "sampleCaption")->text();
}

} // namespace

class EncodingSampleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(m_folder.isValid()); }

    void showsTheDrawingsText();
    void showsTypicalText_data();
    void showsTypicalText();
    void readsNothingElse();
    void tellsOfAPageThatQtCannotShow();
    void namesTheFile_data();
    void namesTheFile();
    void elidesALongName();
    void mnemonics_data();
    void mnemonics();
    void tabFollowsTheReading();
    void everyPartHasAName();
    void mirrors();
    void fitsASmallScreen();
    void namesAreWhole();

private:
    QString addFile(const QString& name, const QByteArray& content);

    QTemporaryDir m_folder;
};

QString EncodingSampleTest::addFile(const QString& name, const QByteArray& content)
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

void EncodingSampleTest::showsTheDrawingsText()
{
    CVyDlgEncoding dialog(nullptr, CVyString(addFile("plan.dxf", drawing)));
    QCOMPARE(caption(dialog), QString("&Text of the drawing in this encoding:"));
    QCOMPARE(sample(dialog), QStringLiteral("\uFFFD}\u2013\u00CA\nStra\u00DFe"));
    QCOMPARE(note(dialog), QString("Not all of this text exists in this encoding."));
    chooseCodePage(dialog, OdCodePageId::Iso8859_7);
    QVERIFY(sample(dialog).endsWith(QStringLiteral("\nStra\u03AFe")));
    chooseCodePage(dialog, OdCodePageId::Dos850);
    QCOMPARE(sample(dialog), QStringLiteral("\u00C9}\u00FB\u2569\nStra\u2580e"));
    QCOMPARE(note(dialog), QString());
    if (!QTextCodec::codecForName("Shift_JIS"))
        QSKIP("this Qt has no codec for Shift-JIS");
    chooseCodePage(dialog, OdCodePageId::Ansi932);
    QCOMPARE(sample(dialog).section('\n', 0, 0), QStringLiteral("図面"));
}

void EncodingSampleTest::showsTypicalText_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("DWG") << addFile("plan.dwg", QByteArray("AC1015\0\0\0\n\xf6\n", 12));
    QTest::newRow("DXF without such text") << addFile("ascii.dxf", "  0\nSECTION\n  1\ntext\n");
    QTest::newRow("empty file") << addFile("empty.dxf", "");
    QTest::newRow("no file") << m_folder.filePath("absent.dxf");
    QTest::newRow("folder") << m_folder.path();
    QTest::newRow("several files") << "Multiple files";
    QTest::newRow("no name") << "";
}

void EncodingSampleTest::showsTypicalText()
{
    QFETCH(QString, path);
    CVyDlgEncoding dialog(nullptr, CVyString(path));
    QCOMPARE(caption(dialog), QString("&Typical text in this encoding:"));
    chooseCodePage(dialog, OdCodePageId::Ansi1252);
    QVERIFY(sample(dialog).contains(QStringLiteral("façade")));
    chooseCodePage(dialog, OdCodePageId::Ansi1251);
    QVERIFY(sample(dialog).contains(QStringLiteral("масштаб")));
    chooseCodePage(dialog, OdCodePageId::Utf8);
    QVERIFY(sample(dialog).contains(QStringLiteral("高さ")));
    QCOMPARE(note(dialog), QString());
}

// A name that only looks like a file's is none, and a pipe would not answer.
void EncodingSampleTest::readsNothingElse()
{
    addFile("Multiple files", drawing);
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder.path()));
    const CVyDlgEncoding several(nullptr, CVyString(L"Multiple files"));
    QDir::setCurrent(before);
    QCOMPARE(caption(several), QString("&Typical text in this encoding:"));

    const QString pipe = m_folder.filePath("pipe.dxf");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const CVyDlgEncoding dialog(nullptr, CVyString(pipe));
    QCOMPARE(caption(dialog), QString("&Typical text in this encoding:"));
}

void EncodingSampleTest::tellsOfAPageThatQtCannotShow()
{
    if (QTextCodec::codecForName("Johab") || QTextCodec::codecForName("windows-1361") ||
        QTextCodec::codecForName("cp1361"))
        QSKIP("this Qt has a codec for every page");
    CVyDlgEncoding dialog(nullptr, CVyString(addFile("plan.dxf", drawing)));
    const DialogDriver driver({[](QDialog& shown) {
        chooseCodePage(shown, OdCodePageId::Johab);
        QCOMPARE(sample(shown), QString());
        QCOMPARE(note(shown), QString("It cannot be shown here, but can be chosen."));
        QCOMPARE(part<QPlainTextEdit>(shown, "sample")->accessibleDescription(), note(shown));
        QTest::mouseClick(ok(shown), Qt::LeftButton);
    }});
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(*dialog.GetCodepage(), OdCodePageId::Johab);
}

void EncodingSampleTest::namesTheFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* name, const QString& path, const QString& shown) {
        QTest::newRow(name) << path << shown;
    };
    row("path", "/plans/gear.dwg", "gear.dwg");
    row("several", "Multiple files", "Multiple files");
    row("several, in a language with a slash", "Fichiers/dossiers", "Fichiers/dossiers");
    row("none", "", "");
    row("folder", "/plans/", "/plans/");
    row("ampersand", "/plans/R&D.dwg", "R&D.dwg");
    row("ampersand as in markup", "/plans/R&lt;D.dwg", "R&lt;D.dwg");
    row("markup", "/plans/<b>x.dwg", "<b>x.dwg");
    row("line end", "/plans/a\nb.dwg", QStringLiteral("a\uFFFDb.dwg"));
}

void EncodingSampleTest::namesTheFile()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    CVyDlgEncoding dialog(nullptr, CVyString(path));
    dialog.show();
    const auto* label = part<QLabel>(dialog, "fileName");
    QCOMPARE(label->text(), name);
    QCOMPARE(label->accessibleName(), name);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(label->isVisible(), !path.isEmpty());
    QCOMPARE(Qt::mightBeRichText(label->toolTip()), !path.isEmpty());
    QCOMPARE(QTextDocumentFragment::fromHtml(label->toolTip()).toPlainText(),
             QString(path).replace('\n', ' '));
}

void EncodingSampleTest::elidesALongName()
{
    const QString name = "begin-" + QString(200, 'x') + "-end.dwg";
    CVyDlgEncoding dialog(nullptr, CVyString("/plans/" + name));
    CVyDlgEncoding usual(nullptr, CVyString(L"/plans/gear.dwg"));
    QCOMPARE(dialog.sizeHint(), usual.sizeHint());
    QCOMPARE(dialog.minimumSizeHint(), usual.minimumSizeHint());
    dialog.show();
    const auto* label = part<QLabel>(dialog, "fileName");
    int shownBefore = 0;
    const int least = dialog.minimumSizeHint().width();
    for (const int width : {least, least + 200, least + 500, 4000}) {
        dialog.resize(width, dialog.height());
        QCOMPARE(dialog.width(), width);
        QTRY_VERIFY(label->width() > width - 50);
        const QString shown = label->text();
        QVERIFY(label->fontMetrics().horizontalAdvance(shown) <= label->width());
        QVERIFY(shown.startsWith("begin-"));
        QVERIFY(shown.endsWith("-end.dwg"));
        QVERIFY(shown.size() > shownBefore);
        QCOMPARE(shown.contains(QChar(0x2026)), width < 4000);
        shownBefore = shown.size();
    }
    QCOMPARE(label->text(), name);
    QCOMPARE(label->accessibleName(), name);
    dialog.resize(least, dialog.height());
    QTRY_VERIFY(label->text().contains(QChar(0x2026)));
}

void EncodingSampleTest::mnemonics_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QByteArray>("part");
    QTest::newRow("search") << Qt::Key_S << QByteArray("search");
    QTest::newRow("pages") << Qt::Key_E << QByteArray("codePages");
    QTest::newRow("sample") << Qt::Key_T << QByteArray("sample");
    QTest::newRow("read-only") << Qt::Key_R << QByteArray("readOnly");
}

void EncodingSampleTest::mnemonics()
{
    QFETCH(Qt::Key, key);
    QFETCH(QByteArray, part);
    CVyDlgEncoding dialog(nullptr, CVyString());
    const DialogDriver driver({[=](QDialog& shown) {
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        ok(shown)->setFocus();
        QTest::keyClick(&shown, key, Qt::AltModifier);
        QTRY_COMPARE(shown.focusWidget()->objectName(), QString(part));
        if (key == Qt::Key_R)
            QTRY_VERIFY(shown.findChild<QCheckBox*>()->isChecked());
        shown.accept();
    }});
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.IsReadOnly(), key == Qt::Key_R);
}

void EncodingSampleTest::tabFollowsTheReading()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    const DialogDriver driver({[](QDialog& shown) {
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        QStringList order;
        for (int i = 0; i < 7; ++i) {
            order += shown.focusWidget()->objectName();
            QTest::keyClick(shown.focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order, (QStringList{"search", "codePages", "sample", "readOnly", "ok", "cancel",
                                     "search"}));
        part<QWidget>(shown, "sample")->setFocus();
        QTest::keyClick(shown.focusWidget(), Qt::Key_Return);
        QVERIFY(!shown.isVisible());
    }});
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
}

void EncodingSampleTest::everyPartHasAName()
{
    const CVyDlgEncoding dialog(nullptr, CVyString(L"/plans/gear.dwg"));
    const auto parts = dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(parts.size() > 8);
    for (const QWidget* widget : parts)
        QVERIFY2(!widget->objectName().isEmpty(), widget->metaObject()->className());
    QCOMPARE(search(dialog)->accessibleName(), QString("Search"));
    QCOMPARE(pages(dialog)->accessibleName(), QString("Encoding of the drawing's text"));
    QCOMPARE(part<QWidget>(dialog, "sample")->accessibleName(),
             QString("Typical text in this encoding"));
}

void EncodingSampleTest::mirrors()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    CVyDlgEncoding dialog(nullptr, CVyString(L"/plans/gear.dwg"));
    dialog.show();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    CVyDlgEncoding usual(nullptr, CVyString(L"/plans/gear.dwg"));
    usual.show();
    QVERIFY(part<QLabel>(dialog, "searchCaption")->x() > search(dialog)->x());
    QVERIFY(part<QLabel>(usual, "searchCaption")->x() < search(usual)->x());
    QCOMPARE(dialog.size(), usual.size());
}

// A screen of 1280 by 1024 at twice the size.
void EncodingSampleTest::fitsASmallScreen()
{
    const CVyDlgEncoding dialog(nullptr, CVyString(L"/plans/gear.dwg"));
    QVERIFY(dialog.minimumSizeHint().width() <= 640);
    QVERIFY(dialog.minimumSizeHint().height() <= 480);
}

void EncodingSampleTest::namesAreWhole()
{
    CVyDlgEncoding dialog(nullptr, CVyString(L"/plans/gear.dwg"));
    dialog.show();
    dialog.resize(dialog.minimumSizeHint());
    QTRY_VERIFY(dialog.width() < 640);
    for (int row = 0; row < pages(dialog)->count(); ++row) {
        const QRect place = pages(dialog)->visualItemRect(pages(dialog)->item(row));
        QVERIFY(place.right() <= pages(dialog)->viewport()->width());
    }
}

QTEST_MAIN(EncodingSampleTest)
#include "EncodingSampleTest.moc"

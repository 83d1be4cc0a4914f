// SPDX-License-Identifier: MIT
// The dialog that asks for a code page, worked by hand.
#include "DialogDriver.h"
#include "VyDlgEncoding.h"

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QtTest>

namespace {

QListWidget* pages(QDialog& dialog)
{
    return dialog.findChild<QListWidget*>(QStringLiteral("codePages"));
}

} // namespace

class EncodingDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersEveryPage();
    void choosesByKeyboard();
    void answerOutlivesTheDialog();
    void readOnly();
    void cancels();
    void namesTheFile_data();
    void namesTheFile();
};

void EncodingDialogTest::offersEveryPage()
{
    CVyDlgEncoding dialog(nullptr, CVyString(L"/plans/gear.dwg"));
    QCOMPARE(pages(dialog)->count(), static_cast<int>(VyCodePages().size()));
    for (int row = 0; row < pages(dialog)->count(); ++row) {
        const CVyCodePage& page = VyCodePages().at(static_cast<std::size_t>(row));
        QVERIFY(pages(dialog)->item(row)->text().contains(QLatin1String(page.fileName)));
        QVERIFY(pages(dialog)->item(row)->text().contains(QLatin1String(page.description)));
    }
    QCOMPARE(*dialog.GetCodepage(), OdCodePageId::Ansi1252);
    QVERIFY(!dialog.IsReadOnly());
}

void EncodingDialogTest::choosesByKeyboard()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    const DialogDriver driver({[](QDialog& shown) {
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        QCOMPARE(shown.focusWidget(), pages(shown));
        QTest::keyClicks(pages(shown), QStringLiteral("Greek (W"));
        QTest::keyClick(pages(shown), Qt::Key_Return);
    }});
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(*dialog.GetCodepage(), OdCodePageId::Ansi1253);
}

void EncodingDialogTest::answerOutlivesTheDialog()
{
    OdCodePageId* page = nullptr;
    {
        CVyDlgEncoding dialog(nullptr, CVyString());
        pages(dialog)->setCurrentRow(0);
        page = dialog.GetCodepage();
    }
    CVyDlgEncoding another(nullptr, CVyString());
    pages(another)->setCurrentRow(5);
    QCOMPARE(*page, VyCodePages().at(0).id);
    QVERIFY(another.GetCodepage() != page);
    pages(another)->setCurrentRow(-1);
    QCOMPARE(another.GetCodepage(), nullptr);
}

void EncodingDialogTest::readOnly()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    const DialogDriver driver({[](QDialog& shown) {
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        QTest::keyClick(&shown, Qt::Key_R, Qt::AltModifier);
        QTRY_VERIFY(shown.findChild<QCheckBox*>(QStringLiteral("readOnly"))->isChecked());
        shown.accept();
    }});
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(dialog.IsReadOnly());
}

void EncodingDialogTest::cancels()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    const DialogDriver driver({[](QDialog& shown) { QTest::keyClick(&shown, Qt::Key_Escape); }});
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void EncodingDialogTest::namesTheFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("shown");
    QTest::newRow("path") << "/plans/gear.dwg"
                          << "gear.dwg";
    QTest::newRow("several") << "Multiple files"
                             << "Multiple files";
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("ampersand") << "/plans/R&D.dwg"
                               << "R&D.dwg";
    QTest::newRow("markup") << "/plans/<b>x.dwg"
                            << "<b>x.dwg";
}

void EncodingDialogTest::namesTheFile()
{
    QFETCH(QString, path);
    QFETCH(QString, shown);
    CVyDlgEncoding dialog(nullptr, CVyString(path));
    const auto* label = dialog.findChild<QLabel*>(QStringLiteral("fileName"));
    QCOMPARE(label->text(), shown);
    QCOMPARE(label->textFormat(), Qt::PlainText);
}

QTEST_MAIN(EncodingDialogTest)
#include "EncodingDialogTest.moc"

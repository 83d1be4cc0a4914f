// SPDX-License-Identifier: MIT
#include "VyDlgEncoding.h"

#include <QTimer>
#include <QtTest>

#include <memory>

namespace {

int accepted(QDialog& dialog)
{
    QTimer::singleShot(0, &dialog, SLOT(accept()));
    return dialog.exec();
}

int rejected(QDialog& dialog)
{
    QTimer::singleShot(0, &dialog, SLOT(reject()));
    return dialog.exec();
}

} // namespace

/// The dialog that asks for a code page, as "Open with Encoding..." runs it. It
/// is closed as its own buttons close it, since no two kernels' dialogs look alike.
class EncodingContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptedAnswersAPage();
    void pageOutlivesTheDialog();
    void cancelledIsRejected();
    void isWritableAtFirst();
    void twoDoNotDisturbEachOther();
    void runsAgain();
    void takesAnyName_data();
    void takesAnyName();
    void takesAParent();
};

void EncodingContract::acceptedAnswersAPage()
{
    CVyDlgEncoding dialog(nullptr, CVyString(L"/plans/gear.dwg"));
    QCOMPARE(accepted(dialog), int(QDialog::Accepted));
    QVERIFY(dialog.GetCodepage());
    QVERIFY(*dialog.GetCodepage() != OdCodePageId::Undefined);
}

// The request hands the pointer to its caller when the dialog has gone, and the
// caller may keep it over further requests.
void EncodingContract::pageOutlivesTheDialog()
{
    auto dialog = std::make_unique<CVyDlgEncoding>(nullptr, CVyString());
    QCOMPARE(accepted(*dialog), int(QDialog::Accepted));
    const OdCodePageId* const page = dialog->GetCodepage();
    QVERIFY(page);
    const OdCodePageId chosen = *page;
    dialog.reset();
    QCOMPARE(*page, chosen);

    dialog = std::make_unique<CVyDlgEncoding>(nullptr, CVyString());
    accepted(*dialog);
    dialog.reset();
    QCOMPARE(*page, chosen);
}

void EncodingContract::cancelledIsRejected()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    QCOMPARE(rejected(dialog), int(QDialog::Rejected));
    QVERIFY(!dialog.IsReadOnly()); // asked all the same
}

void EncodingContract::isWritableAtFirst()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    QVERIFY(!dialog.IsReadOnly());
    accepted(dialog);
    QVERIFY(!dialog.IsReadOnly());
}

// A host with two windows may ask twice at once.
void EncodingContract::twoDoNotDisturbEachOther()
{
    CVyDlgEncoding first(nullptr, CVyString(L"/plans/first.dwg"));
    auto second = std::make_unique<CVyDlgEncoding>(nullptr, CVyString(L"/plans/second.dwg"));
    QCOMPARE(rejected(*second), int(QDialog::Rejected));
    QCOMPARE(accepted(first), int(QDialog::Accepted));
    QCOMPARE(second->result(), int(QDialog::Rejected));
    QVERIFY(first.GetCodepage());
    const OdCodePageId chosen = *first.GetCodepage();
    second.reset();
    QCOMPARE(*first.GetCodepage(), chosen);
}

void EncodingContract::runsAgain()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    QCOMPARE(rejected(dialog), int(QDialog::Rejected));
    QCOMPARE(accepted(dialog), int(QDialog::Accepted));
    QVERIFY(dialog.GetCodepage());
}

void EncodingContract::takesAnyName_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("none") << "";
    QTest::newRow("several files") << "Multiple files";
    QTest::newRow("path that does not exist") << "/no/such/folder/plan.dwg";
    QTest::newRow("folder") << QDir::tempPath();
    QTest::newRow("file") << QCoreApplication::applicationFilePath();
    QTest::newRow("not a regular file") << "/dev/null";
    QTest::newRow("very long") << QString("/plans/" + QString(5000, 'x') + ".dwg");
    QTest::newRow("line end") << "/plans/a\nb.dwg";
    QTest::newRow("markup") << "/plans/<b>&amp;.dwg";
    QTest::newRow("zero") << QString(QLatin1String("/plans/a\0b.dwg", 14));
    QTest::newRow("lone surrogate") << QString("/plans/" + QString(QChar(0xd800)) + ".dwg");
    QTest::newRow("right to left") << QStringLiteral("/plans/\u05d0\u05d1.dwg");
}

void EncodingContract::takesAnyName()
{
    QFETCH(QString, name);
    CVyDlgEncoding dialog(nullptr, CVyString(name));
    QCOMPARE(accepted(dialog), int(QDialog::Accepted));
    QVERIFY(dialog.GetCodepage());
}

void EncodingContract::takesAParent()
{
    auto window = std::make_unique<QWidget>();
    const QPointer<CVyDlgEncoding> dialog = new CVyDlgEncoding(window.get(), CVyString());
    QCOMPARE(dialog->parentWidget(), window.get());
    QCOMPARE(accepted(*dialog), int(QDialog::Accepted));
    const OdCodePageId* const page = dialog->GetCodepage();
    QVERIFY(page);
    const OdCodePageId chosen = *page;
    window.reset();
    QVERIFY(!dialog);
    QCOMPARE(*page, chosen);
}

QTEST_MAIN(EncodingContract)
#include "EncodingContract.moc"

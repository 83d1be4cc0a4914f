// SPDX-License-Identifier: MIT
// The dialog that asks for a code page, worked by hand: choosing.
#include "CodePages.h"
#include "EncodingDialogParts.h"

#include <QCheckBox>
#include <QProxyStyle>
#include <QTextCodec>

using namespace EncodingDialogParts;

class EncodingDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { letFadingEnd(); }

    void groupsThePages();
    void headingsCannotBeChosen();
    void keysVisitEveryPage();
    void showsTheHeadingAboveAPage();
    void proposesTheSystemsPage_data();
    void proposesTheSystemsPage();
    void showsTheProposedPage();
    void choosesByMouse();
    void looksByOneClick();
    void answerOutlivesTheDialog();
    void remembersNothing();
};

void EncodingDialogTest::groupsThePages()
{
    const CVyDlgEncoding dialog(nullptr, CVyString());
    QStringList expected;
    const CVyCodePageRegion* region = nullptr;
    for (const CVyCodePage& page : VyCodePages()) {
        if (page.region != region)
            expected += page.region->name;
        region = page.region;
        expected += page.fileName;
    }
    QCOMPARE(shown(dialog), expected);
    for (const CVyCodePage& page : VyCodePages()) {
        const QString text = QStringLiteral("%1 \u2013 %2").arg(page.description, page.fileName);
        QCOMPARE(pages(dialog)->findItems(text, Qt::MatchExactly).size(), 1);
    }
}

void EncodingDialogTest::headingsCannotBeChosen()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    run(dialog, [&dialog] {
        pages(dialog)->scrollToTop();
        QListWidgetItem* const heading = pages(dialog)->item(0);
        QVERIFY(isHeading(*heading));
        const QPoint place = pages(dialog)->visualItemRect(heading).center();
        QTest::mouseClick(pages(dialog)->viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(chosen(dialog), QByteArray("ANSI_1252"));
        QTest::mouseDClick(pages(dialog)->viewport(), Qt::LeftButton, {}, place);
        QVERIFY(dialog.isVisible());
        // Nor is the chosen page taken away by Ctrl.
        const QPoint page = pages(dialog)->visualItemRect(pages(dialog)->item(1)).center();
        QTest::mouseClick(pages(dialog)->viewport(), Qt::LeftButton, Qt::ControlModifier, page);
        QCOMPARE(chosen(dialog), QByteArray("ANSI_1252"));
        dialog.reject();
    });
}

void EncodingDialogTest::keysVisitEveryPage()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    run(dialog, [&dialog] {
        pages(dialog)->setFocus();
        press(dialog, Qt::Key_End);
        QCOMPARE(chosen(dialog), QByteArray(VyCodePages().back().fileName));
        press(dialog, Qt::Key_Home);
        QStringList forth{chosen(dialog)};
        for (std::size_t i = 1; i < VyCodePages().size(); ++i) {
            press(dialog, Qt::Key_Down);
            forth += chosen(dialog);
        }
        QStringList back{chosen(dialog)};
        for (std::size_t i = 1; i < VyCodePages().size(); ++i) {
            press(dialog, Qt::Key_Up);
            back.prepend(chosen(dialog));
        }
        QStringList all;
        for (const CVyCodePage& page : VyCodePages())
            all += page.fileName;
        QCOMPARE(forth, all);
        QCOMPARE(back, all);
        search(dialog)->setText("greek");
        press(dialog, Qt::Key_End);
        QCOMPARE(chosen(dialog), QByteArray("dos869"));
        press(dialog, Qt::Key_Home);
        QCOMPARE(chosen(dialog), QByteArray("ANSI_1253"));
        dialog.reject();
    });
}

void EncodingDialogTest::showsTheHeadingAboveAPage()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    run(dialog, [&dialog] {
        const auto seesHeading = [&dialog] {
            const QRect heading = pages(dialog)->visualItemRect(pages(dialog)->item(0));
            return pages(dialog)->viewport()->rect().contains(heading);
        };
        QVERIFY(seesHeading()); // from the start
        pages(dialog)->setFocus();
        press(dialog, Qt::Key_End);
        QVERIFY(!seesHeading());
        press(dialog, Qt::Key_Home);
        QVERIFY(seesHeading());
        dialog.reject();
    });
}

void EncodingDialogTest::proposesTheSystemsPage_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("page");
    // These tests run in the locale C.UTF-8, whose language needs no other page.
    QTest::newRow("UTF-8") << QByteArray("UTF-8") << QByteArray("ANSI_1252");
    QTest::newRow("Western European") << QByteArray("ISO-8859-1") << QByteArray("8859_1");
    QTest::newRow("not a page of drawings") << QByteArray("UTF-32") << QByteArray("ANSI_1252");
}

void EncodingDialogTest::proposesTheSystemsPage()
{
    QFETCH(QByteArray, codec);
    QFETCH(QByteArray, page);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(codec));
    CVyDlgEncoding dialog(nullptr, CVyString());
    QTextCodec::setCodecForLocale(nullptr);
    QCOMPARE(chosen(dialog), page);
    QVERIFY(!dialog.IsReadOnly());
    const int status = run(dialog, [&dialog] { press(dialog, Qt::Key_Return); });
    QCOMPARE(status, int(QDialog::Accepted));
    QCOMPARE(chosen(dialog), page);
}

// It may be far down in the list.
void EncodingDialogTest::showsTheProposedPage()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("EUC-KR"));
    CVyDlgEncoding dialog(nullptr, CVyString());
    QTextCodec::setCodecForLocale(nullptr);
    QCOMPARE(chosen(dialog), QByteArray("ANSI_949"));
    dialog.show();
    const QRect page = pages(dialog)->visualItemRect(pages(dialog)->currentItem());
    const int middle = pages(dialog)->viewport()->rect().center().y();
    QVERIFY(qAbs(page.center().y() - middle) < page.height());
}

void EncodingDialogTest::choosesByMouse()
{
    const auto placeOf = [](const QDialog& dialog, int row) {
        return pages(dialog)->visualItemRect(pages(dialog)->item(row)).center();
    };
    CVyDlgEncoding dialog(nullptr, CVyString());
    int status = run(dialog, [&] {
        QTest::mouseClick(pages(dialog)->viewport(), Qt::LeftButton, {}, placeOf(dialog, 3));
        QCOMPARE(chosen(dialog), QByteArray("mac-roman"));
        QTest::mouseClick(part<QCheckBox>(dialog, "readOnly"), Qt::LeftButton, {}, {5, 5});
        QTest::mouseClick(ok(dialog), Qt::LeftButton);
    });
    QCOMPARE(status, int(QDialog::Accepted));
    QCOMPARE(chosen(dialog), QByteArray("mac-roman"));
    QVERIFY(dialog.IsReadOnly());

    CVyDlgEncoding another(nullptr, CVyString());
    const QSignalSpy acceptances(&another, SIGNAL(accepted()));
    status = run(another, [&] {
        QTest::mouseClick(pages(another)->viewport(), Qt::LeftButton, {}, placeOf(another, 2));
        QTest::mouseDClick(pages(another)->viewport(), Qt::LeftButton, {}, placeOf(another, 2));
    });
    QCOMPARE(status, int(QDialog::Accepted));
    QCOMPARE(acceptances.size(), 1);
    QCOMPARE(chosen(another), QByteArray("8859_1"));
}

// Also where the desktop opens things with one click.
void EncodingDialogTest::looksByOneClick()
{
    class OneClick : public QProxyStyle
    {
    public:
        int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                      QStyleHintReturn* result) const override
        {
            return hint == SH_ItemView_ActivateItemOnSingleClick
                       ? 1
                       : QProxyStyle::styleHint(hint, option, widget, result);
        }
    } style;
    CVyDlgEncoding dialog(nullptr, CVyString());
    pages(dialog)->setStyle(&style);
    run(dialog, [&dialog] {
        const QPoint place = pages(dialog)->visualItemRect(pages(dialog)->item(3)).center();
        QTest::mouseClick(pages(dialog)->viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(chosen(dialog), QByteArray("mac-roman"));
        QVERIFY(dialog.isVisible());
        dialog.reject();
    });
}

void EncodingDialogTest::answerOutlivesTheDialog()
{
    OdCodePageId* page = nullptr;
    {
        CVyDlgEncoding dialog(nullptr, CVyString());
        chooseCodePage(dialog, OdCodePageId::Big5);
        page = dialog.GetCodepage();
    }
    CVyDlgEncoding another(nullptr, CVyString());
    chooseCodePage(another, OdCodePageId::Johab);
    QCOMPARE(*page, OdCodePageId::Big5);
    QCOMPARE(*another.GetCodepage(), OdCodePageId::Johab);
}

void EncodingDialogTest::remembersNothing()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    const QStringList all = shown(dialog);
    run(dialog, [&dialog] {
        write(dialog, "jap");
        part<QCheckBox>(dialog, "readOnly")->setChecked(true);
        dialog.resize(dialog.size() + QSize(50, 50));
        dialog.accept();
    });
    CVyDlgEncoding another(nullptr, CVyString());
    QCOMPARE(chosen(another), QByteArray("ANSI_1252"));
    QVERIFY(!another.IsReadOnly());
    QCOMPARE(search(another)->text(), QString());
    QCOMPARE(shown(another), all);
}

QTEST_MAIN(EncodingDialogTest)
#include "EncodingDialogTest.moc"

// SPDX-License-Identifier: MIT
// The dialog that asks for a code page, worked by hand: searching.
#include "CodePages.h"
#include "EncodingDialogParts.h"

using namespace EncodingDialogParts;

class EncodingSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { letFadingEnd(); }

    void searches_data();
    void searches();
    void searchesInTheUsersLanguage();
    void choosesBySearching_data();
    void choosesBySearching();
    void keepsThePageThatIsFound();
    void saysThatNothingIsFound();
    void escapes();
};

void EncodingSearchTest::searches_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("found");
    const auto row = [](const char* typed, const char* found) {
        QTest::newRow(typed) << QString(typed) << QString(found).split(',');
    };
    row("jap", "Japanese,ANSI_932,dos932");
    row("932", "Japanese,ANSI_932,dos932");
    row("Shift JIS", "Japanese,ANSI_932,dos932");
    row("ansi 932", "Japanese,ANSI_932");
    row("ANSI_1252", "Western European,ANSI_1252");
    row("russian", "Cyrillic,ANSI_1251,8859_5,dos866,dos855");
    row("dos russian", "Cyrillic,dos866,dos855");
    row("polish windows", "Central European,ANSI_1250");
    row("latin1", "Western European,8859_1");
    row("ISO-8859-1", "Western European,8859_1");
    row("utf8", "Unicode,UTF-8");
    row("65001", "Unicode,UTF-8");
    row("unicode", "Unicode,UTF-8,UTF-16");
    row("mac", "Western European,mac-roman,Cyrillic,ANSI_1251,8859_5,dos866,dos855"); // Macedonian
    row("gbk", "Chinese,ANSI_936");
    row("traditional", "Chinese,ANSI_950,big5");
    row("wansung", "Korean,ksc5601");
    row("johab", "Korean,ANSI_1361,johab");
    row("thai", "Thai,ANSI_874");
    row("icelandic dos", "Western European,dos850,dos437,dos860,dos861,dos863,dos865");
    row("klingon", "No encoding matches the search.");
}

void EncodingSearchTest::searches()
{
    QFETCH(QString, typed);
    QFETCH(QStringList, found);
    const CVyDlgEncoding dialog(nullptr, CVyString());
    const QStringList all = shown(dialog);
    search(dialog)->setText(typed);
    QCOMPARE(shown(dialog), found);
    search(dialog)->clear();
    QCOMPARE(shown(dialog), all);
}

void EncodingSearchTest::searchesInTheUsersLanguage()
{
    class Swedish : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char* context, const char* text, const char*, int) const override
        {
            if (qstrcmp(context, "CVyDlgEncoding") != 0)
                return {};
            const QMap<QByteArray, QString> words = {
                {"Central European", QStringLiteral("Öst")},
                {"Baltic", QStringLiteral("Baltisk")},
                {"Baltic (ISO)", QStringLiteral("Baltisk (ISO)")},
                {"Greek (DOS)", QStringLiteral("Grekisk (DOS)")},
                {"Arabic, Persian, Urdu", QStringLiteral("arabiska, persiska, urdu")},
                {"No encoding matches the search.", QStringLiteral("Ingenting")}};
            return words.value(text);
        }
    } swedish;
    QVERIFY(QCoreApplication::installTranslator(&swedish));
    const CVyDlgEncoding dialog(nullptr, CVyString());
    QCoreApplication::removeTranslator(&swedish);

    const auto found = [&dialog](const char* typed) {
        search(dialog)->setText(QString::fromUtf8(typed));
        return shown(dialog).join(',');
    };
    QCOMPARE(found("ÖST"), QStringLiteral("Öst,ANSI_1250,8859_2,dos852"));
    QCOMPARE(found("ost 852"), QStringLiteral("Öst,dos852"));
    QCOMPARE(found("central european"), QStringLiteral("Öst,ANSI_1250,8859_2,dos852"));
    QCOMPARE(found("baltic iso"), QStringLiteral("Baltisk,8859_4"));
    QCOMPARE(found("grekisk"), QStringLiteral("Greek,dos869"));
    QCOMPARE(found("persiska"), QStringLiteral("Arabic,ANSI_1256,8859_6,dos864"));
    QCOMPARE(found("xyz"), QStringLiteral("Ingenting"));
}

using Keys = QList<Qt::Key>;
Q_DECLARE_METATYPE(Keys)

void EncodingSearchTest::choosesBySearching_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<QByteArray>("page");
    const auto row = [](const char* name, const char* typed, const Keys& keys, const char* page) {
        QTest::newRow(name) << QString(typed) << keys << QByteArray(page);
    };
    row("the first at once", "jap", {}, "ANSI_932");
    row("Down goes into the list", "jap", {Qt::Key_Down}, "ANSI_932");
    row("Down again to the next", "jap", {Qt::Key_Down, Qt::Key_Down}, "dos932");
    row("Page Down to the last", "jap", {Qt::Key_PageDown}, "dos932");
    row("Page Up to the first", "greek", {Qt::Key_PageDown, Qt::Key_PageUp}, "ANSI_1253");
    row("Up and Down", "greek", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}, "ANSI_1253");
    row("Up from the field", "", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Backtab, Qt::Key_Up},
        "ANSI_1252");
    row("a begun parenthesis", "Greek (W", {}, "ANSI_1253");
    row("nothing typed", "", {Qt::Key_Down, Qt::Key_Down}, "8859_1");
}

void EncodingSearchTest::choosesBySearching()
{
    QFETCH(QString, typed);
    QFETCH(Keys, keys);
    QFETCH(QByteArray, page);
    CVyDlgEncoding dialog(nullptr, CVyString());
    const QSignalSpy acceptances(&dialog, SIGNAL(accepted()));
    const int status = run(dialog, [&] {
        QCOMPARE(dialog.focusWidget(), search(dialog)); // from the start
        write(dialog, typed);
        for (const Qt::Key key : keys)
            press(dialog, key);
        QCOMPARE(dialog.focusWidget() == pages(dialog), !keys.isEmpty());
        press(dialog, Qt::Key_Return);
    });
    QCOMPARE(status, int(QDialog::Accepted));
    QCOMPARE(acceptances.size(), 1);
    QCOMPARE(chosen(dialog), page);

    // Typing in the list is typing in the search.
    CVyDlgEncoding another(nullptr, CVyString());
    run(another, [&] {
        press(another, Qt::Key_Down);
        QCOMPARE(another.focusWidget(), pages(another));
        write(another, typed);
        QCOMPARE(search(another)->text(), typed);
        QCOMPARE(another.focusWidget() == search(another), !typed.isEmpty());
        another.reject();
    });
}

void EncodingSearchTest::keepsThePageThatIsFound()
{
    const CVyDlgEncoding dialog(nullptr, CVyString());
    search(dialog)->setText("windows");
    QCOMPARE(chosen(dialog), QByteArray("ANSI_1252"));
    search(dialog)->setText("greek");
    QCOMPARE(chosen(dialog), QByteArray("ANSI_1253"));
    chooseCodePage(const_cast<CVyDlgEncoding&>(dialog), OdCodePageId::Dos869);
    search(dialog)->setText("gree");
    QCOMPARE(chosen(dialog), QByteArray("dos869"));
    search(dialog)->clear();
    QCOMPARE(chosen(dialog), QByteArray("dos869"));
}

void EncodingSearchTest::saysThatNothingIsFound()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    const int status = run(dialog, [&dialog] {
        write(dialog, "greekx");
        QCOMPARE(shown(dialog), QStringList("No encoding matches the search."));
        QCOMPARE(search(dialog)->accessibleDescription(),
                 QString("No encoding matches the search."));
        QCOMPARE(dialog.GetCodepage(), nullptr);
        QVERIFY(!ok(dialog)->isEnabled());
        QCOMPARE(sample(dialog), QString());
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Down, Qt::Key_PageDown})
            press(dialog, key);
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.focusWidget(), search(dialog));

        press(dialog, Qt::Key_Backspace);
        QCOMPARE(chosen(dialog), QByteArray("ANSI_1253"));
        QCOMPARE(search(dialog)->accessibleDescription(), QString());
        QVERIFY(ok(dialog)->isEnabled());
        write(dialog, "x");
        press(dialog, Qt::Key_Escape);
        QCOMPARE(chosen(dialog), QByteArray("ANSI_1253"));
        press(dialog, Qt::Key_Return);
    });
    QCOMPARE(status, int(QDialog::Accepted));
    QCOMPARE(chosen(dialog), QByteArray("ANSI_1253"));
}

// A filled search is what Escape ends first.
void EncodingSearchTest::escapes()
{
    CVyDlgEncoding dialog(nullptr, CVyString());
    int status = run(dialog, [&dialog] {
        write(dialog, "jap");
        press(dialog, Qt::Key_Escape);
        QVERIFY(dialog.isVisible());
        QCOMPARE(search(dialog)->text(), QString());
        press(dialog, Qt::Key_Escape);
    });
    QCOMPARE(status, int(QDialog::Rejected));
    status = run(dialog, [&dialog] {
        write(dialog, "jap");
        press(dialog, Qt::Key_Down);
        press(dialog, Qt::Key_Escape);
    });
    QCOMPARE(status, int(QDialog::Rejected));
}

QTEST_MAIN(EncodingSearchTest)
#include "EncodingSearchTest.moc"

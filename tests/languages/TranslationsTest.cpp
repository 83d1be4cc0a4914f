// SPDX-License-Identifier: MIT
// The translations: what each language must keep of the English texts, and how a
// host gets them.
#include "Language.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QSet>

namespace {

struct Text
{
    QString context;
    QString source;
    QString translation;
};

QList<Text> textsOf(const QString& language)
{
    QFile file(QStringLiteral(VY_SOURCES "/translations/VyFileDialogs_%1.ts").arg(language));
    QDomDocument document;
    if (!file.open(QFile::ReadOnly) || !document.setContent(&file))
        return {};
    QList<Text> texts;
    const QDomNodeList messages = document.elementsByTagName("message");
    for (int i = 0; i < messages.size(); ++i) {
        const QDomElement message = messages.at(i).toElement();
        texts.append({message.parentNode().firstChildElement("name").text(),
                      message.firstChildElement("source").text(),
                      message.firstChildElement("translation").text()});
    }
    return texts;
}

QString translationOf(const QList<Text>& texts, const QString& source)
{
    for (const Text& text : texts) {
        if (text.source == source)
            return text.translation;
    }
    return {};
}

// The letter after "&", in lower case; null without one.
QChar mnemonic(const QString& text)
{
    const int mark = text.indexOf('&');
    return mark < 0 ? QChar() : text.at(mark + 1).toLower();
}

QString open()
{
    return QCoreApplication::translate("CVyFileDialogs", "Open Read-Only");
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languages();
    void isFaithful_data() { translatedRows(); }
    void isFaithful();
    void modesDiffer_data() { addLanguageRows(); }
    void modesDiffer();
    void keysOfTheEncodingDialogDiffer_data() { translatedRows(); }
    void keysOfTheEncodingDialogDiffer();
    void loads_data();
    void loads();
    void followsTheLastCall();
    void bringsQtsCatalogue();
    void withoutTranslations();

private:
    static void translatedRows();
};

// All but English, which has no translations of its own.
void TranslationsTest::translatedRows()
{
    QTest::addColumn<QString>("language");
    QStringList languages = allLanguages();
    languages.removeOne("en");
    for (const QString& language : qAsConst(languages))
        QTest::newRow(qPrintable(language)) << language;
}

void TranslationsTest::languages()
{
    QCOMPARE(allLanguages(), QStringList({"cs", "de", "en", "es", "fr", "it", "ja", "ko", "pl",
                                          "pt_BR", "ru", "zh_CN", "zh_TW"}));
}

void TranslationsTest::isFaithful()
{
    QFETCH(QString, language);
    const QList<Text> texts = textsOf(language);
    QVERIFY(texts.size() > 80);
    for (const Text& text : texts) {
        const QByteArray about = (text.source + " -> " + text.translation).toUtf8();
        QVERIFY2(!text.translation.trimmed().isEmpty(), about);
        QVERIFY2(text.translation == text.translation.trimmed(), about);
        QVERIFY2(text.translation.count('&') == text.source.count('&'), about);
        QVERIFY2(text.translation.endsWith("...") == text.source.endsWith("..."), about);
        const bool colon = text.translation.endsWith(':') || text.translation.endsWith(u'\uff1a');
        QVERIFY2(colon == text.source.endsWith(':'), about);
        for (const QString tag : {"(Windows)", "(ISO)", "(DOS)", "(Mac)", "UTF-8", "UTF-16"})
            QVERIFY2(text.translation.contains(tag) == text.source.contains(tag), about);
    }
}

// The panel answers a mode by its label.
void TranslationsTest::modesDiffer()
{
    QFETCH(QString, language);
    const Language loaded(language);
    QVERIFY(loaded.isThere());
    for (const char* context : {"CVyFileDialogs", "CVyFileDialogQt"}) {
        QStringList labels = newModes(context);
        if (context == QByteArray("CVyFileDialogs"))
            labels += openModes(context).mid(1);
        QCOMPARE(labels.removeDuplicates(), 0);
    }
}

void TranslationsTest::keysOfTheEncodingDialogDiffer()
{
    QFETCH(QString, language);
    const QList<Text> texts = textsOf(language);
    for (const char* sample :
         {"&Typical text in this encoding:", "&Text of the drawing in this encoding:"}) {
        QSet<QChar> keys;
        for (const char* source :
             {"&Search:", "&Encoding of the drawing's text:", sample, "Open &read-only"}) {
            const QChar key = mnemonic(translationOf(texts, source));
            QVERIFY2(key.isLetter() && !keys.contains(key), source);
            keys.insert(key);
        }
    }
}

void TranslationsTest::loads_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("there");
    QTest::addColumn<QString>("text");

    const QString english = "Open Read-Only";
    QTest::newRow("German") << "de_DE" << true << QString("Schreibgeschützt öffnen");
    QTest::newRow("of another country") << "de_CH" << true << QString("Schreibgeschützt öffnen");
    QTest::newRow("English") << "en_GB" << true << english;
    QTest::newRow("Simplified Chinese") << "zh_CN" << true << QString("以只读方式打开");
    QTest::newRow("of Singapore") << "zh_SG" << true << QString("以只读方式打开");
    QTest::newRow("Traditional Chinese") << "zh_TW" << true << QString("以唯讀方式開啟");
    QTest::newRow("of Hong Kong") << "zh_HK" << true << QString("以唯讀方式開啟");
    QTest::newRow("none") << "fi_FI" << false << english;
    QTest::newRow("no language") << "C" << false << english;
}

void TranslationsTest::loads()
{
    QFETCH(QString, locale);
    QFETCH(bool, there);
    QFETCH(QString, text);

    const Language loaded(locale);
    QCOMPARE(loaded.isThere(), there);
    QCOMPARE(open(), text);
}

void TranslationsTest::followsTheLastCall()
{
    const CVyString folder(VY_TRANSLATIONS_FOLDER);
    QVERIFY(CVyFileDialog::LoadTranslations(QLocale("de"), folder));
    const int translators = qApp->findChildren<QTranslator*>().size();
    QVERIFY(CVyFileDialog::LoadTranslations(QLocale("cs"), folder));
    QCOMPARE(open(), QString("Otevřít jen pro čtení"));
    QCOMPARE(qApp->findChildren<QTranslator*>().size(), translators);
    QVERIFY(CVyFileDialog::LoadTranslations(QLocale("en"), folder));
    QCOMPARE(open(), QString("Open Read-Only"));
    QVERIFY(CVyFileDialog::LoadTranslations(QLocale("de"), folder));
    QVERIFY(!CVyFileDialog::LoadTranslations(QLocale("fi"), folder));
    QCOMPARE(open(), QString("Open Read-Only"));
}

void TranslationsTest::bringsQtsCatalogue()
{
    const QString qt = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    if (!QFile::exists(qt + "/qtbase_de.qm"))
        QSKIP("Qt's own translations are not installed");
    const Language german("de");
    QCOMPARE(QCoreApplication::translate("QFileDialog", "Directory:"), QString("Verzeichnis:"));
}

void TranslationsTest::withoutTranslations()
{
    const QTemporaryDir empty;
    QVERIFY(!CVyFileDialog::LoadTranslations(QLocale("de"), CVyString(empty.path())));
    QVERIFY(!CVyFileDialog::LoadTranslations(QLocale("de"), CVyString("/nowhere")));
    QCOMPARE(open(), QString("Open Read-Only"));
    CVyFileDialog::LoadTranslations(QLocale::c());
}

QTEST_MAIN(TranslationsTest)
#include "TranslationsTest.moc"

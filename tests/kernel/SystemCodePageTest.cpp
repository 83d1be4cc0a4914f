// SPDX-License-Identifier: MIT
#include "VySystemCodePage.h"

#include <QLocale>
#include <QtTest>

/// The page that is proposed, from what the system writes text in and the
/// user's locale.
class SystemCodePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void proposes_data();
    void proposes();

private:
    static void languageRows();
    static void characterSetRows();
};

void SystemCodePageTest::proposes_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QByteArray>("page");
    languageRows();
    characterSetRows();
}

void SystemCodePageTest::languageRows()
{
    const auto row = [](const char* locale, const char* page) {
        QTest::addRow("UTF-8, %s", locale)
            << QByteArray("UTF-8") << QString(locale) << QByteArray(page);
    };
    for (const char* locale : {"C", "en_US", "de_DE", "fr_CA", "sv_SE", "is_IS", "id_ID", "sw_KE"})
        row(locale, "ANSI_1252");
    for (const char* locale : {"pl_PL", "cs_CZ", "hu_HU", "ro_RO", "sk_SK", "sl_SI", "hr_HR",
                               "sq_AL", "bs_BA", "sr_Latn_RS", "tk_TM"})
        row(locale, "ANSI_1250");
    for (const char* locale : {"ru_RU", "uk_UA", "bg_BG", "be_BY", "mk_MK", "sr_RS", "kk_KZ",
                               "mn_MN", "ky_KG", "uz_Cyrl_UZ"})
        row(locale, "ANSI_1251");
    row("el_GR", "ANSI_1253");
    for (const char* locale : {"tr_TR", "az_AZ", "uz_UZ"})
        row(locale, "ANSI_1254");
    for (const char* locale : {"he_IL", "yi_001"})
        row(locale, "ANSI_1255");
    for (const char* locale : {"ar_EG", "fa_IR", "ur_PK"})
        row(locale, "ANSI_1256");
    for (const char* locale : {"et_EE", "lv_LV", "lt_LT"})
        row(locale, "ANSI_1257");
    row("vi_VN", "ANSI_1258");
    row("th_TH", "ANSI_874");
    row("ja_JP", "ANSI_932");
    for (const char* locale : {"zh_CN", "zh_SG"})
        row(locale, "ANSI_936");
    row("ko_KR", "ANSI_949");
    for (const char* locale : {"zh_TW", "zh_HK"})
        row(locale, "ANSI_950");
}

// Older systems, and those without a usable locale.
void SystemCodePageTest::characterSetRows()
{
    const auto row = [](const char* codec, const char* locale, const char* page) {
        QTest::addRow("%s, %s", codec, locale)
            << QByteArray(codec) << QString(locale) << QByteArray(page);
    };
    row("ISO-8859-1", "de_DE", "8859_1");
    row("iso-8859-2", "pl_PL", "8859_2");
    row("windows-1251", "en_US", "ANSI_1251");
    row("Shift_JIS", "ja_JP", "ANSI_932");
    row("GBK", "zh_CN", "ANSI_936");
    row("GB2312", "zh_CN", "gb2312");
    row("EUC-KR", "ko_KR", "ANSI_949");
    row("Big5", "zh_TW", "ANSI_950");
    row("macintosh", "fr_FR", "mac-roman");
    row("KOI8-R", "ru_RU", "ANSI_1251");
    row("EUC-JP", "ja_JP", "ANSI_932");
    row("ISO-8859-15", "fr_FR", "ANSI_1252");
    row("US-ASCII", "el_GR", "ANSI_1253");
    row("UTF-16LE", "ja_JP", "ANSI_932");
    row("", "ru_RU", "ANSI_1251");
    row("windows", "ru_RU", "ANSI_1251");
}

void SystemCodePageTest::proposes()
{
    QFETCH(QByteArray, codec);
    QFETCH(QString, locale);
    QFETCH(QByteArray, page);
    QCOMPARE(QByteArray(VyCodePageName(VySystemCodePage(codec, QLocale(locale)))), page);
}

QTEST_GUILESS_MAIN(SystemCodePageTest)
#include "SystemCodePageTest.moc"

// SPDX-License-Identifier: MIT
#include "VyPathBar.h"

#include <QtTest>

namespace {

const QString ellipsis = QStringLiteral("…");

QFontMetrics metricsOf(int pixelSize, bool bold)
{
    QFont font;
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    return QFontMetrics(font);
}

} // namespace

/// The rules of the row of folder buttons.
class PathBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesPathsApart_data();
    void takesPathsApart();
    void keepsButtons_data();
    void keepsButtons();
    void namesTheFolder_data();
    void namesTheFolder();
    void comesBackToThePath_data();
    void comesBackToThePath();
    void writesInOneLine_data();
    void writesInOneLine();
    void oneLineIsOneLineHigh_data();
    void oneLineIsOneLineHigh();
    void padsTheWidth_data();
    void padsTheWidth();
    void showsWhatFits_data();
    void showsWhatFits();
    void showsAtLeastAnEllipsis_data();
    void showsAtLeastAnEllipsis();

private:
    static void fontRows();
};

void PathBarTest::takesPathsApart_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("parts");

    QTest::newRow("root") << "/" << QStringList{"/"};
    QTest::newRow("folder of the root") << "/Users" << QStringList{"/", "Users"};
    QTest::newRow("deep folder") << "/Users/ann/Plans" << QStringList{"/", "Users", "ann", "Plans"};
    QTest::newRow("separator at the end") << "/Users/ann/" << QStringList{"/", "Users", "ann"};
    QTest::newRow("relative") << "ann/Plans" << QStringList{"ann", "Plans"};
    QTest::newRow("relative, one part") << "ann" << QStringList{"ann"};
    QTest::newRow("relative, separator at the end") << "ann/" << QStringList{"ann"};
    QTest::newRow("empty") << "" << QStringList{"/"};
    QTest::newRow("doubled separator") << "/Users//ann" << QStringList{"/", "Users", "", "ann"};
    QTest::newRow("the same name twice") << "/ann/ann" << QStringList{"/", "ann", "ann"};
    QTest::newRow("line end") << "/a\nb/c" << QStringList{"/", "a\nb", "c"};
    QTest::newRow("ampersand") << "/R&D" << QStringList{"/", "R&D"};
    QTest::newRow("backslash") << "/a\\b" << QStringList{"/", "a\\b"};
    QTest::newRow("blanks") << "/ a / /" << QStringList{"/", " a ", " "};
    QTest::newRow("Cyrillic") << QStringLiteral("/Чертежи")
                              << QStringList{"/", QStringLiteral("Чертежи")};
}

void PathBarTest::takesPathsApart()
{
    QFETCH(QString, path);
    QFETCH(QStringList, parts);
    QCOMPARE(VyPathBar::parts(path), parts);
}

void PathBarTest::keepsButtons_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("staying");

    QTest::newRow("the same path") << "/Users/ann/Plans"
                                   << "/Users/ann/Plans" << 4;
    QTest::newRow("to a parent") << "/Users/ann/Plans"
                                 << "/Users" << 4;
    QTest::newRow("to the root") << "/Users/ann/Plans"
                                 << "/" << 4;
    QTest::newRow("to a sibling") << "/Users/ann/Plans"
                                  << "/Users/bob" << 2;
    QTest::newRow("to a sibling's folder") << "/Users/ann/Plans"
                                           << "/Users/bob/Plans" << 2;
    QTest::newRow("the last differs") << "/Users/ann/Plans"
                                      << "/Users/ann/Papers" << 3;
    QTest::newRow("into a folder") << "/Users"
                                   << "/Users/ann" << 2;
    QTest::newRow("from the root") << "/"
                                   << "/Users/ann" << 1;
    QTest::newRow("to another folder of the root") << "/Users/ann"
                                                   << "/tmp" << 1;
    QTest::newRow("to a relative path") << "/Users/ann"
                                        << "Users/ann" << 0;
    QTest::newRow("other case") << "/Users/ann"
                                << "/Users/Ann" << 2;
    QTest::newRow("beginning of a name") << "/Users/ann"
                                         << "/Users/an" << 2;
    QTest::newRow("same name, other place") << "/a/b/b"
                                            << "/b/b" << 1;
}

void PathBarTest::keepsButtons()
{
    QFETCH(QString, shown);
    QFETCH(QString, path);
    QFETCH(int, staying);

    const QStringList parts = VyPathBar::parts(path);
    QCOMPARE(VyPathBar::staying(VyPathBar::parts(shown), parts), staying);
    QCOMPARE(VyPathBar::staying({}, parts), 0);
}

void PathBarTest::namesTheFolder_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("folder");

    const QStringList names{"/", "Users", "ann", "Plans"};
    QTest::newRow("root") << names << 0 << "";
    QTest::newRow("first") << names << 1 << "/Users";
    QTest::newRow("middle") << names << 2 << "/Users/ann";
    QTest::newRow("last") << names << 3 << "/Users/ann/Plans";
    QTest::newRow("root alone") << QStringList{"/"} << 0 << "";
    QTest::newRow("odd names") << QStringList{"/", "R&D", "a\nb", " "} << 3 << "/R&D/a\nb/ ";
    QTest::newRow("first of a relative path") << QStringList{"ann", "Plans"} << 0 << "/ann";
}

void PathBarTest::namesTheFolder()
{
    QFETCH(QStringList, names);
    QFETCH(int, index);
    QFETCH(QString, folder);
    QCOMPARE(VyPathBar::folderOf(names, index), folder);
}

void PathBarTest::comesBackToThePath_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("one folder") << "/Users";
    QTest::newRow("several folders") << "/Users/ann/Plans";
    QTest::newRow("the same name twice") << "/ann/ann";
    QTest::newRow("odd names") << QStringLiteral("/R&D/a\nb/ c /Чертежи/..dwg");
}

void PathBarTest::comesBackToThePath()
{
    QFETCH(QString, path);

    const QStringList names = VyPathBar::parts(path);
    QCOMPARE(VyPathBar::folderOf(names, names.size() - 1), path);
}

void PathBarTest::writesInOneLine_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("line");

    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("plain") << "Plans"
                           << "Plans";
    QTest::newRow("line end") << "a\nb"
                              << "a b";
    QTest::newRow("carriage return and line end") << "a\r\nb"
                                                  << "a  b";
    QTest::newRow("tab") << "a\tb"
                         << "a b";
    QTest::newRow("vertical tab and form feed") << "a\vb\fc"
                                                << "a b c";
    QTest::newRow("other control characters")
        << QStringLiteral("a\u0001b\u001bc\u007fd\u0085e") << "a b c d e";
    QTest::newRow("zero") << QString("a" + QString(QChar()) + "b") << "a b";
    QTest::newRow("line separator") << QStringLiteral("a\u2028b") << "a b";
    QTest::newRow("paragraph separator") << QStringLiteral("a\u2029b") << "a b";
    QTest::newRow("at the ends") << "\na\n"
                                 << " a ";
    QTest::newRow("line end alone") << "\n"
                                    << " ";
    QTest::newRow("blanks stay") << " a  b "
                                 << " a  b ";
    QTest::newRow("ampersand stays") << "R&D"
                                     << "R&D";
    QTest::newRow("backslash stays") << "a\\nb"
                                     << "a\\nb";
    QTest::newRow("no-break space stays")
        << QStringLiteral("a\u00a0b") << QStringLiteral("a\u00a0b");
    QTest::newRow("zero width joiner stays")
        << QStringLiteral("a\u200db") << QStringLiteral("a\u200db");
    QTest::newRow("beyond the basic plane stays")
        << QStringLiteral("\U0001F600") << QStringLiteral("\U0001F600");
    QTest::newRow("Cyrillic stays") << QStringLiteral("Чертежи") << QStringLiteral("Чертежи");
}

void PathBarTest::writesInOneLine()
{
    QFETCH(QString, name);
    QFETCH(QString, line);
    QCOMPARE(VyPathBar::singleLine(name), line);
    QCOMPARE(VyPathBar::singleLine(line), line);
}

void PathBarTest::oneLineIsOneLineHigh_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("line end") << "a\nb";
    QTest::newRow("carriage return") << "a\rb";
    QTest::newRow("vertical tab") << "a\vb";
    QTest::newRow("form feed") << "a\fb";
    QTest::newRow("next line") << QStringLiteral("a\u0085b");
    QTest::newRow("line separator") << QStringLiteral("a\u2028b");
    QTest::newRow("paragraph separator") << QStringLiteral("a\u2029b");
}

// As a button measures and draws its text.
void PathBarTest::oneLineIsOneLineHigh()
{
    QFETCH(QString, name);

    const QFontMetrics metrics = metricsOf(13, false);
    QCOMPARE(metrics.size(Qt::TextShowMnemonic, VyPathBar::singleLine(name)).height(),
             metrics.size(Qt::TextShowMnemonic, "a b").height());
}

void PathBarTest::fontRows()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<bool>("bold");

    QTest::newRow("short") << "ann" << 13 << false;
    QTest::newRow("bold") << "Plans" << 13 << true;
    QTest::newRow("small") << "Plans" << 8 << false;
    QTest::newRow("large") << "Plans" << 40 << false;
    QTest::newRow("long") << QString("Plans of the old town ").repeated(10) << 13 << false;
    QTest::newRow("narrow letters") << "illilli" << 13 << false;
    QTest::newRow("wide letters") << "WMWMWM" << 13 << true;
    QTest::newRow("Cyrillic") << QStringLiteral("Чертежи") << 13 << false;
    QTest::newRow("ampersand") << "R&D&Co" << 13 << false;
}

void PathBarTest::padsTheWidth_data()
{
    fontRows();
    QTest::newRow("empty") << "" << 13 << false;
    QTest::newRow("root") << "/" << 13 << false;
    QTest::newRow("blank") << " " << 13 << false;
}

void PathBarTest::padsTheWidth()
{
    QFETCH(QString, name);
    QFETCH(int, pixelSize);
    QFETCH(bool, bold);

    const QFontMetrics metrics = metricsOf(pixelSize, bold);
    QCOMPARE(VyPathBar::paddedWidth(metrics, name), metrics.boundingRect(name).width() + 15);
}

void PathBarTest::showsWhatFits_data()
{
    fontRows();
}

void PathBarTest::showsWhatFits()
{
    QFETCH(QString, name);
    QFETCH(int, pixelSize);
    QFETCH(bool, bold);

    const QFontMetrics metrics = metricsOf(pixelSize, bold);
    const int fullWidth = VyPathBar::paddedWidth(metrics, name);
    QCOMPARE(VyPathBar::fittingText(metrics, name, fullWidth), name);
    QCOMPARE(VyPathBar::fittingText(metrics, name, fullWidth + 1), name);
    QCOMPARE(VyPathBar::fittingText(metrics, name, fullWidth + 1000), name);

    for (int width = VyPathBar::MinimumWidth; width < fullWidth; ++width) {
        const QString elided = metrics.elidedText(name, Qt::ElideRight, width - 15);
        QCOMPARE(VyPathBar::fittingText(metrics, name, width),
                 elided.isEmpty() ? QString(ellipsis) : elided);
    }

    const QString shown = VyPathBar::fittingText(metrics, name, fullWidth - 1);
    QVERIFY2(shown.endsWith(ellipsis), qPrintable(shown));
    QVERIFY2(name.startsWith(shown.chopped(1)), qPrintable(shown));
}

void PathBarTest::showsAtLeastAnEllipsis_data()
{
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("width");
    QTest::newRow("narrowest button, large letters") << 40 << int(VyPathBar::MinimumWidth);
    QTest::newRow("one pixel for the text") << 13 << 16;
    QTest::newRow("none for the text") << 13 << 15;
    QTest::newRow("no width") << 13 << 0;
    QTest::newRow("negative width") << 13 << -5;
}

// A button never stands there blank.
void PathBarTest::showsAtLeastAnEllipsis()
{
    QFETCH(int, pixelSize);
    QFETCH(int, width);
    const QFontMetrics metrics = metricsOf(pixelSize, false);
    QCOMPARE(VyPathBar::fittingText(metrics, "Plans of the town", width), QString(ellipsis));
}

QTEST_MAIN(PathBarTest)
#include "PathBarTest.moc"

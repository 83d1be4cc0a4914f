// SPDX-License-Identifier: MIT
// The tables of docs/filter-strings.md, row by row, against the dialogs.
#include "DocumentTables.h"
#include "HostRequest.h"
#include "VyFileTypeList.h"
#include "VyUtils.h"

#include <QDir>
#include <QTemporaryDir>

class FilterTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void types_data() { m_tables.addRows(QStringLiteral("Filter string")); }
    void types();
    void indexes_data() { m_tables.addRows(QStringLiteral("Types")); }
    void indexes();
    void saves_data() { m_tables.addRows(QStringLiteral("Patterns")); }
    void saves();

private:
    HostRequest saved(const QString& filter, int typeIndex, const QString& name,
                      QString* preselected = nullptr) const;
    QString nameOf(const HostRequest& request) const;

    const DocumentTables m_tables{QStringLiteral(VY_FILTER_STRINGS)};
    const QTemporaryDir m_folder;
};

// No table goes unread.
void FilterTableTest::initTestCase()
{
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    const QRegularExpression unread(QStringLiteral("^\\| (?!Filter string|Types|Patterns|---|`)"));
    QCOMPARE(m_tables.lines().filter(unread), QStringList());
}

// A save request in which the user types a name.
HostRequest FilterTableTest::saved(const QString& filter, int typeIndex, const QString& name,
                                   QString* preselected) const
{
    HostRequest request;
    request.type = CVyUserIO::FileNameSave;
    request.filter = filter;
    request.typeIndex = typeIndex;
    request.start = m_folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        if (preselected)
            *preselected = dialog.selectedNameFilter();
        typeAndAccept(dialog, name);
    })});
    return request;
}

QString FilterTableTest::nameOf(const HostRequest& request) const
{
    return QDir(m_folder.path()).relativeFilePath(request.paths.value(0));
}

void FilterTableTest::types()
{
    QFETCH(QStringList, cells);
    const QString filter = DocumentTables::code(cells.value(0));
    const VyFileTypeList::Types types =
        VyFileTypeList::fromConverted(CVyUtils::ConvertToQtFilter(CVyString(filter)));
    // Behind the last type is an empty one, which no reader sees.
    const QString entries = types.qtFilter;
    QCOMPARE(entries.split(QStringLiteral(";;"), Qt::SkipEmptyParts),
             DocumentTables::codes(cells.value(1)));
    QStringList lists = QString(types.extensionLists).split(QLatin1Char('&'));
    lists.removeLast();
    QCOMPARE(lists, DocumentTables::codes(cells.value(2)));

    QStringList names;
    const int count = VyFileTypeList::entries(types.qtFilter).size();
    for (int index = 0; index < count; ++index)
        names += nameOf(saved(filter, index, QStringLiteral("plan")));
    QCOMPARE(names, DocumentTables::codes(cells.value(3)));
}

void FilterTableTest::indexes()
{
    QFETCH(QStringList, cells);
    QString preselected;
    const HostRequest request =
        saved(DocumentTables::code(cells.value(0)), DocumentTables::code(cells.value(1)).toInt(),
              QStringLiteral("plan"), &preselected);
    QCOMPARE(preselected, DocumentTables::code(cells.value(2)));
    QCOMPARE(QString::number(request.typeIndex), DocumentTables::code(cells.value(3)));
    QCOMPARE(nameOf(request), DocumentTables::code(cells.value(4)));
}

void FilterTableTest::saves()
{
    QFETCH(QStringList, cells);
    const QString filter = QStringLiteral("Type&") + DocumentTables::code(cells.value(0));
    const HostRequest request = saved(filter, 0, DocumentTables::code(cells.value(1)));
    QCOMPARE(nameOf(request), DocumentTables::code(cells.value(2)));
}

QTEST_MAIN(FilterTableTest)
#include "FilterTableTest.moc"

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
    void defaultExtensions_data() { m_tables.addRows(QStringLiteral("Default extension")); }
    void defaultExtensions();

private:
    HostRequest saveRequest(const QString& filter, int typeIndex = 0) const;
    QString nameOf(const HostRequest& request) const;
    QString savedName(HostRequest request, const QString& typed) const;

    const DocumentTables m_tables{QStringLiteral(VY_FILTER_STRINGS)};
    const QTemporaryDir m_folder;
};

// No table goes unread.
void FilterTableTest::initTestCase()
{
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    const QRegularExpression unread(
        QStringLiteral("^\\| (?!Filter string|Types|Patterns|Default extension|---|`)"));
    QCOMPARE(m_tables.lines().filter(unread), QStringList());
}

HostRequest FilterTableTest::saveRequest(const QString& filter, int typeIndex) const
{
    HostRequest request;
    request.type = CVyUserIO::FileNameSave;
    request.filter = filter;
    request.typeIndex = typeIndex;
    request.start = m_folder.path();
    return request;
}

QString FilterTableTest::nameOf(const HostRequest& request) const
{
    return QDir(m_folder.path()).relativeFilePath(request.paths.value(0));
}

QString FilterTableTest::savedName(HostRequest request, const QString& typed) const
{
    request.getFileName({onFileDialog([&](QFileDialog& dialog) { typeAndAccept(dialog, typed); })});
    return nameOf(request);
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
        names += savedName(saveRequest(filter, index), QStringLiteral("plan"));
    QCOMPARE(names, DocumentTables::codes(cells.value(3)));
}

void FilterTableTest::indexes()
{
    QFETCH(QStringList, cells);
    HostRequest request = saveRequest(DocumentTables::code(cells.value(0)),
                                      DocumentTables::code(cells.value(1)).toInt());
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QCOMPARE(dialog.selectedNameFilter(), DocumentTables::code(cells.value(2)));
        typeAndAccept(dialog, QStringLiteral("plan"));
    })});
    QCOMPARE(QString::number(request.typeIndex), DocumentTables::code(cells.value(3)));
    QCOMPARE(nameOf(request), DocumentTables::code(cells.value(4)));
}

void FilterTableTest::saves()
{
    QFETCH(QStringList, cells);
    const HostRequest request = saveRequest("Type&" + DocumentTables::code(cells.value(0)));
    QCOMPARE(savedName(request, DocumentTables::code(cells.value(1))),
             DocumentTables::code(cells.value(2)));
}

void FilterTableTest::defaultExtensions()
{
    QFETCH(QStringList, cells);
    HostRequest request = saveRequest("Type&" + DocumentTables::code(cells.value(1)));
    request.defaultExtension = DocumentTables::code(cells.value(0));
    QCOMPARE(savedName(request, DocumentTables::code(cells.value(2))),
             DocumentTables::code(cells.value(3)));
}

QTEST_MAIN(FilterTableTest)
#include "FilterTableTest.moc"

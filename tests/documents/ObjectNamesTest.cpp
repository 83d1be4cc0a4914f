// SPDX-License-Identifier: MIT
// The object names that docs/testing-your-host.md lists, against live dialogs.
#include "DocumentTables.h"
#include "HostRequest.h"
#include "VyDlgEncoding.h"

class ObjectNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileDialogs_data();
    void fileDialogs();
    void encodingDialog();

private:
    void lookFor(const QString& table, const QObject& dialog) const;

    const DocumentTables m_tables{QStringLiteral(VY_TESTING_YOUR_HOST)};
};

void ObjectNamesTest::lookFor(const QString& table, const QObject& dialog) const
{
    const auto rows = m_tables.rows(table);
    QVERIFY2(!rows.isEmpty(), qPrintable(table));
    for (const QStringList& cells : rows) {
        const QString name = DocumentTables::code(cells.value(0));
        const QString className = DocumentTables::code(cells.value(1));
        const QObject* found =
            dialog.objectName() == name ? &dialog : dialog.findChild<QObject*>(name);
        QVERIFY2(found, qPrintable(name));
        QVERIFY2(found->inherits(qPrintable(className)), found->metaObject()->className());
    }
}

void ObjectNamesTest::fileDialogs_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("table");
    QTest::newRow("new") << 0x1U << "In a new dialog with modes";
    QTest::newRow("open") << 0x2U << "In an open dialog";
    QTest::newRow("save") << 0x4U << "In every dialog";
}

void ObjectNamesTest::fileDialogs()
{
    QFETCH(unsigned, type);
    QFETCH(QString, table);
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    HostRequest request;
    request.type = type;
    request.flags = CVyUserIO::FileNameModeChoices;
    request.getFileName({[&](QDialog& dialog) {
        lookFor(QStringLiteral("In every dialog"), dialog);
        lookFor(table, dialog);
        dialog.reject();
    }});
}

void ObjectNamesTest::encodingDialog()
{
    const CVyDlgEncoding dialog(nullptr, CVyString(L"/plans/gear.dwg"));
    lookFor(QStringLiteral("In the encoding dialog"), dialog);
}

QTEST_MAIN(ObjectNamesTest)
#include "ObjectNamesTest.moc"

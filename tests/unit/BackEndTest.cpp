// SPDX-License-Identifier: MIT
#include "VyFileDialogQt.h"

#include <QtTest>

#include <climits>
#include <memory>

namespace {

std::unique_ptr<CVyFileDialogQt> backEnd(unsigned kind)
{
    const auto type = static_cast<CVyUserIO::_FileNameType>(kind);
    CVyFileDialogImpl* impl = CVyFileDialogImpl::createQt(type, true, true);
    return std::unique_ptr<CVyFileDialogQt>(dynamic_cast<CVyFileDialogQt*>(impl));
}

const QString untouched = QStringLiteral("untouched");

} // namespace

/// What the Qt back-end answers before it has shown a dialog.
class BackEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settersAnswer_data();
    void settersAnswer();
    void hasNoResultYet_data();
    void hasNoResultYet();
    void nullOutputsFail_data();
    void nullOutputsFail();
    void remembersTheType_data();
    void remembersTheType();
    void findsTheTypeInTheList_data();
    void findsTheTypeInTheList();
    void forgetsNoSelection_data();
    void forgetsNoSelection();
    void actionsChooseTheMode_data();
    void actionsChooseTheMode();

private:
    static void kindRows();
};

void BackEndTest::kindRows()
{
    QTest::addColumn<unsigned>("kind");

    QTest::newRow("new") << 0x1U;
    QTest::newRow("open") << 0x2U;
    QTest::newRow("save") << 0x4U;
}

void BackEndTest::settersAnswer_data()
{
    kindRows();
}

void BackEndTest::settersAnswer()
{
    QFETCH(unsigned, kind);

    const auto impl = backEnd(kind);
    for (const CVyString& text : {CVyString(L"text"), CVyString()}) {
        QCOMPARE(impl->setTitle(text), 5100);
        QCOMPARE(impl->setDefaultExtension(text), 5100);
        QCOMPARE(impl->setDefaultFolder(text), 5100);
        QCOMPARE(impl->setDefaultFileName(text), 0);
        QCOMPARE(impl->setFileTypes(text), 5100);
        QCOMPARE(impl->setDefaultTemplateName(text), 0);
    }
    QCOMPARE(impl->setFileTypeIndex(0), 5100);
}

void BackEndTest::hasNoResultYet_data()
{
    kindRows();
}

void BackEndTest::hasNoResultYet()
{
    QFETCH(unsigned, kind);

    const auto impl = backEnd(kind);
    CVyString path(untouched);
    QCOMPARE(impl->getResult(&path), 5000);
    QCOMPARE(QString(path), untouched);
    std::vector<CVyString> paths{CVyString(untouched)};
    QCOMPARE(impl->getResults(&paths), 5000);
    QCOMPARE(paths, std::vector<CVyString>{CVyString(untouched)});
    int index = 77;
    QCOMPARE(impl->getFileTypeIndex(&index), -5001);
    QCOMPARE(index, 77);
    impl->setDefaultTemplateName(L"template");
    QCOMPARE(impl->getTemplateName(&path), 0);
    QCOMPARE(QString(path), untouched);
    QCOMPARE(impl->getOpenMode(), 0);
    QCOMPARE(impl->getNewMode(), 0);
}

void BackEndTest::nullOutputsFail_data()
{
    kindRows();
}

void BackEndTest::nullOutputsFail()
{
    QFETCH(unsigned, kind);

    const auto impl = backEnd(kind);
    impl->setFileTypes(L"A&*.a");
    impl->setFileTypeIndex(0);
    QCOMPARE(impl->getResult(nullptr), -5001);
    QCOMPARE(impl->getResults(nullptr), -5001);
    QCOMPARE(impl->getFileTypeIndex(nullptr), -5001);
    QCOMPARE(impl->getTemplateName(nullptr), 0);
}

void BackEndTest::remembersTheType_data()
{
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("got");

    QTest::newRow("first") << 0 << 0;
    QTest::newRow("second") << 1 << 1;
    QTest::newRow("last") << 2 << 2;
    QTest::newRow("behind the last") << 3 << 2;
    QTest::newRow("far behind the last") << 99 << 2;
    QTest::newRow("largest number") << INT_MAX << 2;
    QTest::newRow("before the first") << -1 << 0;
    QTest::newRow("far before the first") << -7 << 0;
    QTest::newRow("smallest number") << INT_MIN << 0;
}

void BackEndTest::remembersTheType()
{
    QFETCH(int, set);
    QFETCH(int, got);

    for (const unsigned kind : {0x1U, 0x2U, 0x4U}) {
        const auto impl = backEnd(kind);
        impl->setFileTypes(L"A&*.a&B (bb)&*.b;*.bb&C&*");
        QCOMPARE(impl->setFileTypeIndex(set), 5100);
        int index = 77;
        QCOMPARE(impl->getFileTypeIndex(&index), 5100);
        QCOMPARE(index, got);
    }
}

void BackEndTest::findsTheTypeInTheList_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("got");

    QTest::newRow("no types") << "" << 0 << -5001 << 77;
    QTest::newRow("no types, large number") << "&&&" << 99 << -5001 << 77;
    QTest::newRow("empty pair between two") << "A&*.a&&&B&*.b" << 1 << 5100 << 1;
    QTest::newRow("behind the empty pair") << "A&*.a&&&B&*.b" << 2 << 5100 << 1;
    QTest::newRow("the same entry twice") << "A&*.a&A&*.a" << 1 << 5100 << 0;
    QTest::newRow("entries of other case") << "a&*.a&A&*.A" << 1 << 5100 << 0;
    QTest::newRow("description with a semicolon") << "A;B&*.a&C&*.c" << 0 << 5100 << 0;
    QTest::newRow("its second half") << "A;B&*.a&C&*.c" << 1 << 5100 << 1;
    QTest::newRow("behind it") << "A;B&*.a&C&*.c" << 2 << 5100 << 2;
    QTest::newRow("Cyrillic") << QStringLiteral("А&*.а&Б&*.б") << 1 << 5100 << 1;
}

void BackEndTest::findsTheTypeInTheList()
{
    QFETCH(QString, filter);
    QFETCH(int, set);
    QFETCH(int, status);
    QFETCH(int, got);

    const auto impl = backEnd(0x2);
    impl->setFileTypes(CVyString(filter));
    QCOMPARE(impl->setFileTypeIndex(set), 5100);
    int index = 77;
    QCOMPARE(impl->getFileTypeIndex(&index), status);
    QCOMPARE(index, got);
}

void BackEndTest::forgetsNoSelection_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("got");

    QTest::newRow("the same list") << "A&*.a&B&*.b"
                                   << "A&*.a&B&*.b" << 5100 << 1;
    QTest::newRow("moved in the list") << "A&*.a&B&*.b"
                                       << "B&*.b&A&*.a" << 5100 << 0;
    QTest::newRow("other case") << "A&*.a&B&*.b"
                                << "a&*.a&b&*.B" << 5100 << 1;
    QTest::newRow("other case, Cyrillic")
        << QStringLiteral("А&*.а&Б&*.б") << QStringLiteral("а&*.А&б&*.Б") << 5100 << 1;
    QTest::newRow("not in the list") << "A&*.a&B&*.b"
                                     << "A&*.a&C&*.c" << -5001 << 77;
    QTest::newRow("other patterns") << "A&*.a&B&*.b"
                                    << "A&*.a&B&*.bb" << -5001 << 77;
    QTest::newRow("no types any more") << "A&*.a&B&*.b"
                                       << "" << -5001 << 77;
}

// A new list leaves the selected entry alone, whether or not it is in it.
void BackEndTest::forgetsNoSelection()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(int, status);
    QFETCH(int, got);

    const auto impl = backEnd(0x4);
    impl->setFileTypes(CVyString(before));
    impl->setFileTypeIndex(1);
    impl->setFileTypes(CVyString(after));
    int index = 77;
    QCOMPARE(impl->getFileTypeIndex(&index), status);
    QCOMPARE(index, got);
}

void BackEndTest::actionsChooseTheMode_data()
{
    QTest::addColumn<unsigned>("kind");
    QTest::addColumn<QList<int>>("openModes");
    QTest::addColumn<QList<int>>("newModes");

    const QList<int> none{0, 0, 0};
    const QList<int> each{1, 2, 0};
    QTest::newRow("new") << 0x1U << none << each;
    QTest::newRow("open") << 0x2U << each << none;
    QTest::newRow("save") << 0x4U << none << none;
}

void BackEndTest::actionsChooseTheMode()
{
    QFETCH(unsigned, kind);
    QFETCH(QList<int>, openModes);
    QFETCH(QList<int>, newModes);

    const auto impl = backEnd(kind);
    QList<int> seen;
    for (const auto action :
         {&CVyFileDialogQt::onActionOpenReadOnly, &CVyFileDialogQt::onActionOpenWithEncoding,
          &CVyFileDialogQt::onActionOpen}) {
        (impl.get()->*action)();
        QCOMPARE(impl->getNewMode(), 0);
        seen.append(impl->getOpenMode());
    }
    QCOMPARE(seen, openModes);

    seen.clear();
    for (const auto action :
         {&CVyFileDialogQt::onActionNewNoTemplateImperial,
          &CVyFileDialogQt::onActionNewNoTemplateMetric, &CVyFileDialogQt::onActionNew}) {
        (impl.get()->*action)();
        QCOMPARE(impl->getOpenMode(), 0);
        seen.append(impl->getNewMode());
    }
    QCOMPARE(seen, newModes);
}

QTEST_GUILESS_MAIN(BackEndTest)
#include "BackEndTest.moc"

// SPDX-License-Identifier: MIT
#include "VyFileDialog.h"

#include "StubImpl.h"

#include <QtTest>

#include <climits>

namespace {

CVyFileDialog::_Style styleOf(int value)
{
    return static_cast<CVyFileDialog::_Style>(value);
}

CVyUserIO::_FileNameType typeOf(unsigned value)
{
    return static_cast<CVyUserIO::_FileNameType>(value);
}

constexpr unsigned untouched = 0xdead;

unsigned modeFor(unsigned type, CVyFileDialogImpl* impl)
{
    auto mode = static_cast<CVyUserIO::_FileNameRetVal>(untouched);
    CVyFileDialog::GetMode(mode, typeOf(type), impl);
    return mode;
}

} // namespace

/// The style of the requests, and the mode that a request reports.
class RequestModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void createChoosesTheNativePanels();
    void storesTheStyle_data();
    void storesTheStyle();
    void destroyDoesNothing();
    void translatesTheMode_data();
    void translatesTheMode();
    void savingAsksNobody_data();
    void savingAsksNobody();

private:
    static void openRows();
    static void newRows();
};

// As the library was loaded.
void RequestModelTest::initTestCase()
{
    QCOMPARE(int(CVyFileDialog::s_Style), 0);
    QCOMPARE(int(CVyFileDialog::s_StyleTmp), 0);
}

void RequestModelTest::init()
{
    CVyFileDialog::s_Style = styleOf(0);
    CVyFileDialog::s_StyleTmp = styleOf(0);
}

void RequestModelTest::createChoosesTheNativePanels()
{
    CVyFileDialog::Create();
    QCOMPARE(int(CVyFileDialog::s_Style), 3);
    QCOMPARE(int(CVyFileDialog::s_StyleTmp), 3);
}

void RequestModelTest::storesTheStyle_data()
{
    QTest::addColumn<int>("style");

    QTest::newRow("Qt") << 2;
    QTest::newRow("native") << 3;
    QTest::newRow("at load") << 0;
    QTest::newRow("below the styles") << 1;
    QTest::newRow("above the styles") << 4;
    QTest::newRow("negative") << -1;
    QTest::newRow("largest") << INT_MAX;
}

void RequestModelTest::storesTheStyle()
{
    QFETCH(int, style);

    QVERIFY(CVyFileDialog::SetStyle(styleOf(style)));
    QCOMPARE(int(CVyFileDialog::s_Style), style);
    QCOMPARE(int(CVyFileDialog::s_StyleTmp), 0);

    CVyFileDialog::Create();
    QVERIFY(CVyFileDialog::SetStyle(styleOf(style)));
    QCOMPARE(int(CVyFileDialog::s_Style), style);
    QCOMPARE(int(CVyFileDialog::s_StyleTmp), 3);
}

void RequestModelTest::destroyDoesNothing()
{
    CVyFileDialog::Create();
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    CVyFileDialog::Destroy();
    QCOMPARE(int(CVyFileDialog::s_Style), 2);
    QCOMPARE(int(CVyFileDialog::s_StyleTmp), 3);
}

void RequestModelTest::translatesTheMode_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<int>("openMode");
    QTest::addColumn<int>("newMode");
    QTest::addColumn<unsigned>("mode");

    openRows();
    newRows();
    QTest::newRow("save") << 0x4U << 1 << 2 << 0x10000U;
    QTest::newRow("new and save") << 0x5U << 1 << 2 << 0x10000U;
    QTest::newRow("save and another kind") << 0xcU << 1 << 2 << 0x10000U;
    QTest::newRow("save, with qualifiers") << 0x704U << 1 << 2 << 0x10000U;
    QTest::newRow("no kind") << 0x0U << 1 << 2 << untouched;
    QTest::newRow("qualifiers alone") << 0x700U << 1 << 2 << untouched;
    QTest::newRow("another kind") << 0x8U << 1 << 2 << untouched;
    QTest::newRow("every bit but the three") << 0xfffffff8U << 1 << 2 << untouched;
}

void RequestModelTest::openRows()
{
    QTest::newRow("open") << 0x2U << 0 << 2 << 0x100U;
    QTest::newRow("open read-only") << 0x2U << 1 << 2 << 0x300U;
    QTest::newRow("open with encoding") << 0x2U << 2 << 2 << 0x100U;
    QTest::newRow("open, unknown mode") << 0x2U << 7 << 2 << 0x100U;
    QTest::newRow("open, negative mode") << 0x2U << -1 << 2 << 0x100U;
    QTest::newRow("new and open") << 0x3U << 1 << 2 << 0x300U;
    QTest::newRow("open and save") << 0x6U << 0 << 2 << 0x100U;
    QTest::newRow("open and save, read-only") << 0x6U << 1 << 2 << 0x300U;
    QTest::newRow("all three") << 0x7U << 1 << 2 << 0x300U;
    QTest::newRow("open and another kind") << 0xaU << 1 << 2 << 0x300U;
    QTest::newRow("open, with qualifiers") << 0x702U << 1 << 2 << 0x300U;
    QTest::newRow("every bit") << 0xffffffffU << 1 << 2 << 0x300U;
}

void RequestModelTest::newRows()
{
    QTest::newRow("new") << 0x1U << 1 << 0 << 0x1U;
    QTest::newRow("new, Imperial") << 0x1U << 1 << 1 << 0x2U;
    QTest::newRow("new, metric") << 0x1U << 1 << 2 << 0x3U;
    QTest::newRow("new, unknown mode") << 0x1U << 1 << 5 << 0x1U;
    QTest::newRow("new, negative mode") << 0x1U << 1 << -1 << 0x1U;
    QTest::newRow("new, with qualifiers") << 0x701U << 1 << 2 << 0x3U;
    QTest::newRow("new and another kind") << 0x9U << 1 << 2 << 0x3U;
}

void RequestModelTest::translatesTheMode()
{
    QFETCH(unsigned, type);
    QFETCH(int, openMode);
    QFETCH(int, newMode);
    QFETCH(unsigned, mode);

    StubImpl impl(openMode, newMode);
    QCOMPARE(modeFor(type, &impl), mode);
}

void RequestModelTest::savingAsksNobody_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<unsigned>("mode");

    QTest::newRow("save") << 0x4U << 0x10000U;
    QTest::newRow("new and save") << 0x5U << 0x10000U;
    QTest::newRow("save, with qualifiers") << 0x704U << 0x10000U;
    QTest::newRow("no kind") << 0x0U << untouched;
}

void RequestModelTest::savingAsksNobody()
{
    QFETCH(unsigned, type);
    QFETCH(unsigned, mode);
    QCOMPARE(modeFor(type, nullptr), mode);
}

QTEST_GUILESS_MAIN(RequestModelTest)
#include "RequestModelTest.moc"

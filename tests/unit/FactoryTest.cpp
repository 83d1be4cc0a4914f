// SPDX-License-Identifier: MIT
#include "VyFileDialog.h"
#include "VyFileDialogQt.h"
#include "VySystemServices.h"

#include <QFileDialog>
#include <QtTest>

#include <climits>
#include <memory>

using Impl = std::unique_ptr<CVyFileDialogImpl>;

namespace {

CVyUserIO::_FileNameType typeOf(unsigned value)
{
    return static_cast<CVyUserIO::_FileNameType>(value);
}

// The kind of dialog that a back-end is; empty without one.
QString classOf(const Impl& impl)
{
    if (dynamic_cast<CVyFileDialogQtNew*>(impl.get()))
        return "new";
    if (dynamic_cast<CVyFileDialogQtOpen*>(impl.get()))
        return "open";
    if (dynamic_cast<CVyFileDialogQtSave*>(impl.get()))
        return "save";
    return impl ? "unknown" : "";
}

// What a back-end keeps for the dialog that it will show.
class Kept : public CVyFileDialogQt
{
public:
    static int fileMode(const Impl& impl) { return of(impl).*&Kept::m_fileMode; }
    static int acceptMode(const Impl& impl) { return of(impl).*&Kept::m_acceptMode; }
    static bool previewAllowed(const Impl& impl) { return of(impl).*&Kept::m_previewAllowed; }
    static int expertLevel(const Impl& impl) { return of(impl).*&Kept::m_expertLevel; }

private:
    static CVyFileDialogQt& of(const Impl& impl) { return dynamic_cast<CVyFileDialogQt&>(*impl); }
};

} // namespace

/// Which back-end serves which request, and with what it is made.
class FactoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { GetVySystemServices()->GetSettings().SetExpertLevel(0); }

    void choosesTheClass_data();
    void choosesTheClass();
    void choosesTheFamily_data();
    void choosesTheFamily();
    void configuresTheDialog_data();
    void configuresTheDialog();
    void handsTheExpertLevelOver_data();
    void handsTheExpertLevelOver();
};

void FactoryTest::choosesTheClass_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("made");

    QTest::newRow("new") << 0x1U << "new";
    QTest::newRow("open") << 0x2U << "open";
    QTest::newRow("save") << 0x4U << "save";
    QTest::newRow("new, with qualifiers") << 0x701U << "new";
    QTest::newRow("open without preview") << 0x102U << "open";
    QTest::newRow("open, one mode") << 0x202U << "open";
    QTest::newRow("open, folder kept") << 0x402U << "open";
    QTest::newRow("open, every qualifier") << 0x702U << "open";
    QTest::newRow("save, with a qualifier") << 0x204U << "save";
    QTest::newRow("open, every higher bit") << 0xffffff02U << "open";
    QTest::newRow("no kind") << 0x0U << "";
    QTest::newRow("no kind, with a qualifier") << 0x100U << "";
    QTest::newRow("new and open") << 0x3U << "";
    QTest::newRow("new and save") << 0x5U << "";
    QTest::newRow("new and save, with a qualifier") << 0x405U << "";
    QTest::newRow("open and save") << 0x6U << "";
    QTest::newRow("all three") << 0x7U << "";
    QTest::newRow("another kind") << 0x8U << "";
    QTest::newRow("open and another kind") << 0x12U << "";
    QTest::newRow("last bit of a kind") << 0x80U << "";
    QTest::newRow("all bits of a kind") << 0xffU << "";
    QTest::newRow("all bits") << 0xffffffffU << "";
}

void FactoryTest::choosesTheClass()
{
    QFETCH(unsigned, type);
    QFETCH(QString, made);

    for (const bool multiple : {false, true}) {
        for (const bool modeChoices : {false, true}) {
            const Impl qt(CVyFileDialogImpl::createQt(typeOf(type), multiple, modeChoices));
            QCOMPARE(classOf(qt), made);
        }
    }
}

void FactoryTest::choosesTheFamily_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("made");

    QTest::newRow("Qt, new") << 2 << 0x1U << "new";
    QTest::newRow("Qt, open") << 2 << 0x2U << "open";
    QTest::newRow("Qt, save") << 2 << 0x4U << "save";
    QTest::newRow("Qt, unknown kind") << 2 << 0x3U << "";
    QTest::newRow("style at load") << 0 << 0x2U << "";
    QTest::newRow("below the styles") << 1 << 0x2U << "";
    QTest::newRow("above the styles") << 4 << 0x2U << "";
    QTest::newRow("negative") << -1 << 0x2U << "";
    QTest::newRow("largest") << INT_MAX << 0x2U << "";
    QTest::newRow("smallest") << INT_MIN << 0x2U << "";
}

void FactoryTest::choosesTheFamily()
{
    QFETCH(int, style);
    QFETCH(unsigned, type);
    QFETCH(QString, made);

    const Impl impl(CVyFileDialog::CreateImpl(static_cast<CVyFileDialog::_Style>(style),
                                              typeOf(type), false, false));
    QCOMPARE(classOf(impl), made);
}

void FactoryTest::configuresTheDialog_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<bool>("multiple");
    QTest::addColumn<int>("fileMode");
    QTest::addColumn<int>("acceptMode");
    QTest::addColumn<bool>("previewAllowed");

    const int one = QFileDialog::ExistingFile;
    const int several = QFileDialog::ExistingFiles;
    const int any = QFileDialog::AnyFile;
    const int open = QFileDialog::AcceptOpen;
    const int save = QFileDialog::AcceptSave;
    QTest::newRow("new") << 0x1U << false << one << open << false;
    QTest::newRow("new, several") << 0x1U << true << one << open << false;
    QTest::newRow("open") << 0x2U << false << one << open << true;
    QTest::newRow("open, several") << 0x2U << true << several << open << true;
    QTest::newRow("open without preview") << 0x102U << false << one << open << false;
    QTest::newRow("open without preview, several") << 0x102U << true << several << open << false;
    QTest::newRow("open, one mode") << 0x202U << false << one << open << true;
    QTest::newRow("open, folder kept") << 0x402U << true << several << open << true;
    QTest::newRow("save") << 0x4U << false << any << save << false;
    QTest::newRow("save, several") << 0x4U << true << any << save << false;
    QTest::newRow("save, with a qualifier") << 0x204U << false << any << save << false;
}

void FactoryTest::configuresTheDialog()
{
    QFETCH(unsigned, type);
    QFETCH(bool, multiple);
    QFETCH(int, fileMode);
    QFETCH(int, acceptMode);
    QFETCH(bool, previewAllowed);

    for (const bool modeChoices : {false, true}) {
        const Impl impl(
            CVyFileDialog::CreateImpl(CVyFileDialog::StyleQt, typeOf(type), multiple, modeChoices));
        QCOMPARE(Kept::fileMode(impl), fileMode);
        QCOMPARE(Kept::acceptMode(impl), acceptMode);
        QCOMPARE(Kept::previewAllowed(impl), previewAllowed);
    }
}

void FactoryTest::handsTheExpertLevelOver_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("kept");

    QTest::newRow("save, beginner") << 0x4U << 0 << 0;
    QTest::newRow("save, level 1") << 0x4U << 1 << 1;
    QTest::newRow("save, level 2") << 0x4U << 2 << 2;
    QTest::newRow("save, largest level") << 0x4U << INT_MAX << INT_MAX;
    QTest::newRow("save, negative level") << 0x4U << -1 << -1;
    QTest::newRow("save, with a qualifier") << 0x204U << 2 << 2;
    QTest::newRow("open") << 0x2U << 2 << 0;
    QTest::newRow("new") << 0x1U << 2 << 0;
}

void FactoryTest::handsTheExpertLevelOver()
{
    QFETCH(unsigned, type);
    QFETCH(int, level);
    QFETCH(int, kept);

    GetVySystemServices()->GetSettings().SetExpertLevel(level);
    const Impl impl(CVyFileDialogImpl::createQt(typeOf(type), false, false));
    GetVySystemServices()->GetSettings().SetExpertLevel(level / 2 + 7);
    QCOMPARE(Kept::expertLevel(impl), kept);
}

QTEST_GUILESS_MAIN(FactoryTest)
#include "FactoryTest.moc"

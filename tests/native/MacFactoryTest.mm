// SPDX-License-Identifier: MIT
// Which native back-end serves which request, and with what it is made.
#include "HostTemplates.h"
#include "NativeTest.h"

#include "VyFileDialogMac.h"
#include "VyFileDialogMacNewMacNative.h"
#include "VyFileDialogMacOpenMacNative.h"
#include "VyFileDialogMacSaveMacNative.h"
#include "VyFileDialogQt.h"

#include <climits>

using Impl = std::unique_ptr<CVyFileDialogImpl>;

namespace {

// An open panel of GNUstep goes back to a folder that it shows when another one
// in it is deleted, as tests do in the system's folder of temporary files. That
// one is out of sight from down there.
const QString depth = QStringLiteral("far/below/the/others/");

CVyUserIO::_FileNameType typeOf(unsigned value)
{
    return static_cast<CVyUserIO::_FileNameType>(value);
}

// What a back-end keeps for its panel, as one text.
class Kept : public CVyFileDialogMac
{
public:
    static QString of(const CVyFileDialogImpl& impl)
    {
        const auto& mac = dynamic_cast<const CVyFileDialogMac&>(impl);
        QStringList kept{kind(impl), nativeKind(mac)};
        kept += QStringLiteral("file mode %1").arg(mac.*&Kept::m_fileMode);
        kept += QStringLiteral("accept mode %1").arg(mac.*&Kept::m_acceptMode);
        const auto note = [&](const char* name, bool value) {
            if (value)
                kept += name;
        };
        note("flag", mac.*&Kept::m_requestFlag);
        note("preview", mac.*&Kept::m_hasPreview);
        note("keep type folder", mac.*&Kept::m_keepTypeFolder);
        note("no template folder", mac.*&Kept::m_noTemplateFolderSwitch);
        note("open mode", mac.*&Kept::m_openMode != 0);
        note("new mode", mac.*&Kept::m_newMode != 0);
        note("Qt widgets", mac.*&Kept::m_qtDialog || mac.*&Kept::m_lineEdit);
        note("results", !(mac.*&Kept::m_results).isEmpty());
        for (const auto text :
             {&Kept::m_title, &Kept::m_qtFilter, &Kept::m_extensionLists, &Kept::m_defaultExtension,
              &Kept::m_defaultFolder, &Kept::m_selectedFilter, &Kept::m_defaultFileName})
            note("a text", !(mac.*text).isEmpty());
        return kept.join(", ");
    }

    static QString kind(const CVyFileDialogImpl& impl)
    {
        if (dynamic_cast<const CVyFileDialogMacNew*>(&impl))
            return "new";
        if (dynamic_cast<const CVyFileDialogMacOpen*>(&impl))
            return "open";
        return dynamic_cast<const CVyFileDialogMacSave*>(&impl) ? "save" : "unknown";
    }

private:
    static QString nativeKind(const CVyFileDialogMac& mac)
    {
        const CVyFileDialogMacMacNative* const native = (mac.*&Kept::m_nativeDialog).get();
        if (dynamic_cast<const CVyFileDialogMacNewMacNative*>(native))
            return "new panel";
        if (dynamic_cast<const CVyFileDialogMacOpenMacNative*>(native))
            return "open panel";
        return dynamic_cast<const CVyFileDialogMacSaveMacNative*>(native) ? "save panel" : "none";
    }
};

template <typename Family, typename = void>
struct HasExpert : std::false_type
{
};
template <typename Family>
struct HasExpert<Family, std::void_t<decltype(std::declval<Family&>().setExpert(0))>>
    : std::true_type
{
};

} // namespace

class MacFactoryTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void choosesTheClass_data();
    void choosesTheClass();
    void servesTheNativeStyle_data();
    void servesTheNativeStyle();
    void keepsTheFlags_data();
    void keepsTheFlags();
    void keepsTheFlagsOfOpen();
    void handsTheFlagsToThePanel_data();
    void handsTheFlagsToThePanel();
    void asksForNoExpertLevel();
};

void MacFactoryTest::choosesTheClass_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("made");

    QTest::newRow("new") << 0x1U << "new";
    QTest::newRow("open") << 0x2U << "open";
    QTest::newRow("save") << 0x4U << "save";
    QTest::newRow("new, with qualifiers") << 0x701U << "new";
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

void MacFactoryTest::choosesTheClass()
{
    QFETCH(unsigned, type);
    QFETCH(QString, made);

    for (const bool multiple : {false, true}) {
        for (const bool modeChoices : {false, true}) {
            const Impl mac(CVyFileDialogImpl::createMac(typeOf(type), multiple, modeChoices));
            QCOMPARE(mac ? Kept::kind(*mac) : QString(), made);
        }
    }
}

void MacFactoryTest::servesTheNativeStyle_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<bool>("native");

    QTest::newRow("native") << 3 << true;
    QTest::newRow("Qt") << 2 << false;
    QTest::newRow("between none and Qt") << 1 << false;
    QTest::newRow("above the styles") << 4 << false;
    QTest::newRow("with a higher bit") << 0x103 << false;
    QTest::newRow("negative") << -3 << false;
    QTest::newRow("smallest") << INT_MIN << false;
}

void MacFactoryTest::servesTheNativeStyle()
{
    QFETCH(int, style);
    QFETCH(bool, native);

    for (const unsigned type : {0x1U, 0x2U, 0x4U, 0x702U}) {
        const Impl impl(CVyFileDialog::CreateImpl(static_cast<CVyFileDialog::_Style>(style),
                                                  typeOf(type), true, true));
        QCOMPARE(dynamic_cast<CVyFileDialogMac*>(impl.get()) != nullptr, native);
        if (native) {
            const Impl same(CVyFileDialogImpl::createMac(typeOf(type), true, true));
            QCOMPARE(Kept::of(*impl), Kept::of(*same));
        }
    }
    const Impl none(CVyFileDialog::CreateImpl(static_cast<CVyFileDialog::_Style>(style),
                                              typeOf(0x3), true, true));
    QVERIFY(!none);
}

void MacFactoryTest::keepsTheFlags_data()
{
    QTest::addColumn<unsigned>("kind");
    QTest::addColumn<QString>("kept");

    QTest::newRow("new") << 0x1U << "new, new panel, file mode 1, accept mode 0";
    QTest::newRow("save") << 0x4U << "save, save panel, file mode 0, accept mode 1";
}

// These heed the mode-choices flag alone.
void MacFactoryTest::keepsTheFlags()
{
    QFETCH(unsigned, kind);
    QFETCH(QString, kept);

    for (const unsigned qualifiers : {0x0U, 0x100U, 0x200U, 0x400U, 0x700U}) {
        for (const bool multiple : {false, true}) {
            const auto type = typeOf(kind | qualifiers);
            const Impl plain(CVyFileDialogImpl::createMac(type, multiple, false));
            QCOMPARE(Kept::of(*plain), kept);
            const Impl withModes(CVyFileDialogImpl::createMac(type, multiple, true));
            QCOMPARE(Kept::of(*withModes), QString(kept + ", flag"));
        }
    }
    QCOMPARE(Kept::of(CVyFileDialogMacNew(true)),
             QString("new, new panel, file mode 1, accept mode 0, flag"));
    QCOMPARE(Kept::of(CVyFileDialogMacSave(true)),
             QString("save, save panel, file mode 0, accept mode 1, flag"));
}

void MacFactoryTest::keepsTheFlagsOfOpen()
{
    for (unsigned bits = 0; bits < 32; ++bits) {
        const bool preview = (bits & 1) == 0;
        const bool openOnly = (bits & 2) != 0;
        const bool templates = (bits & 4) == 0;
        const bool multiple = (bits & 8) != 0;
        const bool modes = (bits & 16) != 0;
        QString kept("open, open panel");
        kept += multiple ? ", file mode 3, accept mode 0" : ", file mode 1, accept mode 0";
        kept += modes ? ", flag" : "";
        kept += preview ? ", preview" : "";
        kept += openOnly ? ", keep type folder" : "";
        kept += templates ? "" : ", no template folder";

        const auto type = typeOf(0x2 | (bits & 7) << 8);
        const Impl impl(CVyFileDialogImpl::createMac(type, multiple, modes));
        QCOMPARE(Kept::of(*impl), kept);
        QCOMPARE(Kept::of(CVyFileDialogMacOpen(preview, multiple, openOnly, modes, templates)),
                 kept);
    }
}

void MacFactoryTest::handsTheFlagsToThePanel_data()
{
    QTest::addColumn<unsigned>("qualifiers");
    QTest::addColumn<bool>("modeChoices");

    QTest::newRow("plain") << 0x0U << false;
    QTest::newRow("modes") << 0x0U << true;
    QTest::newRow("open only") << 0x200U << false;
    QTest::newRow("open only, modes") << 0x200U << true;
    QTest::newRow("folder kept") << 0x400U << false;
    QTest::newRow("folder kept, modes") << 0x400U << true;
    QTest::newRow("every qualifier, modes") << 0x700U << true;
}

// The panel lets the user choose several files with the modes, not for a
// request of several files.
void MacFactoryTest::handsTheFlagsToThePanel()
{
    QFETCH(unsigned, qualifiers);
    QFETCH(bool, modeChoices);

    const QString start = path(depth + "start");
    const QString templateFolder = path(depth + "templates");
    addFolder(depth + "start");
    addFolder(depth + "templates");
    const HostTemplates templates(templateFolder);
    for (const bool multiple : {false, true}) {
        const Impl impl(
            CVyFileDialogImpl::createMac(typeOf(0x2 | qualifiers), multiple, modeChoices));
        impl->setFileTypes(L"Drawings&*.dwg&Templates&*.dwt");
        impl->setDefaultFolder(CVyString(start));
        QStringList folders;
        const PanelDriver driver({onPanel([&](NSSavePanel* panel) {
                                      auto* const open = static_cast<NSOpenPanel*>(panel);
                                      QCOMPARE([open allowsMultipleSelection] != NO, modeChoices);
                                      QCOMPARE(popup(panel, @selector(openmodeChanged:)) != nil,
                                               modeChoices && (qualifiers & 0x200) == 0);
                                      folders += text([panel directory]);
                                      choose(popup(panel, @selector(filterChanged:)), 1);
                                      folders += text([panel directory]);
                                  }),
                                  cancel()});
        QCOMPARE(impl->show(0), -5002);
        QCOMPARE(folders, QStringList({start, qualifiers & 0x400 ? start : templateFolder}));
    }
}

void MacFactoryTest::asksForNoExpertLevel()
{
    static_assert(HasExpert<CVyFileDialogQt>::value, "the Qt family has one");
    static_assert(!HasExpert<CVyFileDialogMac>::value, "the native family has none");
    for (const unsigned type : {0x1U, 0x2U, 0x4U}) {
        const Impl beginner(CVyFileDialogImpl::createMac(typeOf(type), false, true));
        GetVySystemServices()->GetSettings().SetExpertLevel(7);
        const Impl expert(CVyFileDialogImpl::createMac(typeOf(type), false, true));
        GetVySystemServices()->GetSettings().SetExpertLevel(0);
        QCOMPARE(Kept::of(*expert), Kept::of(*beginner));
    }
}

QTEST_MAIN(MacFactoryTest)
#include "MacFactoryTest.moc"

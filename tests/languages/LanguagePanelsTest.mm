// SPDX-License-Identifier: MIT
// The native panels in each language: the modes that are shown and answered, and no
// label cut.
#include "FakeNativeDialog.h"
#include "Language.h"
#include "NativeTest.h"

#include "VyNativeStrings.h"

namespace {

NSPopUpButton* modes(NSSavePanel* panel)
{
    return popup(panel, @selector(openmodeChanged:));
}

NSPopUpButton* types(NSSavePanel* panel)
{
    return popup(panel, @selector(filterChanged:));
}

// A popup draws its title 20 points narrower than itself.
void checkRoom(NSSavePanel* panel, NSPopUpButton* button)
{
    NSTextField* const caption = label(panel, button);
    QVERIFY(caption);
    QVERIFY([caption frame].size.width >= [[caption cell] cellSize].width);
    for (const QString& title : titles(button)) {
        const auto width = widthForStringDrawing(nsStringFromQString(title), nil);
        QVERIFY2([button frame].size.width - 20 >= width, qPrintable(title));
    }
}

} // namespace

class LanguagePanelsTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheMode_data() { addLanguageRows(); }
    void readsTheMode();
    void opens_data() { addLanguageRows(); }
    void opens();
    void startsDrawings_data() { addLanguageRows(); }
    void startsDrawings();
};

void LanguagePanelsTest::readsTheMode()
{
    QFETCH(QString, language);
    const Language loaded(language);
    QVERIFY(loaded.isThere());
    for (int mode = 0; mode < 3; ++mode) {
        Talk talk;
        talk.fileNames = QStringList("/a.dwg");
        BackEnd impl(talk);
        talk.mode = openModes("CVyFileDialogs").at(mode);
        impl.show(0);
        QCOMPARE(impl.getOpenMode(), mode);
        QCOMPARE(impl.getNewMode(), 0);
        talk.mode = newModes("CVyFileDialogs").at(mode);
        impl.show(0);
        QCOMPARE(impl.getNewMode(), mode);
        QCOMPARE(impl.getOpenMode(), 0);
    }
}

void LanguagePanelsTest::opens()
{
    QFETCH(QString, language);
    const Language loaded(language);
    addFile("a.dwg");
    HostRequest request = this->request(CVyUserIO::FileNameOpen);
    request.flags = CVyUserIO::FileNameModeChoices;
    run(request, {onPanel([](NSSavePanel* panel) {
                      QCOMPARE(titles(modes(panel)), openModes("CVyFileDialogs"));
                      checkRoom(panel, modes(panel));
                      checkRoom(panel, types(panel));
                      choose(modes(panel), 1);
                      selectNames(panel, {"a.dwg"});
                  }),
                  accept()});
    QCOMPARE(request.status, 5100);
    QCOMPARE(request.mode, CVyUserIO::OpenReadOnly);
}

void LanguagePanelsTest::startsDrawings()
{
    QFETCH(QString, language);
    const Language loaded(language);
    addFile("a.dwg");
    HostRequest request = this->request(CVyUserIO::FileNameNew);
    run(request, {onPanel([](NSSavePanel* panel) {
                      QCOMPARE(titles(modes(panel)), newModes("CVyFileDialogs"));
                      checkRoom(panel, modes(panel));
                      choose(modes(panel), 2);
                      selectNames(panel, {"a.dwg"});
                  }),
                  accept()});
    QCOMPARE(request.status, 5100);
    QCOMPARE(request.mode, CVyUserIO::NewMetric);
}

QTEST_MAIN(LanguagePanelsTest)
#include "LanguagePanelsTest.moc"

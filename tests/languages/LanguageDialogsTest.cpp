// SPDX-License-Identifier: MIT
// The Qt dialogs in each language: the modes that are chosen, and no label cut.
#include "DrawingFolder.h"
#include "HostRequest.h"
#include "Language.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

namespace {

QStringList textsOf(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* action : menu.actions())
        texts.append(action->text());
    return texts;
}

// Labels and buttons that have less room than their text needs.
QStringList cutTexts(const QDialog& dialog)
{
    QStringList cut;
    for (const auto* label : dialog.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->text().isEmpty() &&
            label->width() < label->minimumSizeHint().width())
            cut.append(label->text());
    }
    for (const auto* button : dialog.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->objectName() != "folderButton" &&
            button->width() < button->minimumSizeHint().width())
            cut.append(button->text());
    }
    return cut;
}

HostRequest requestFor(const DrawingFolder& folder, unsigned type)
{
    HostRequest request;
    request.type = type;
    request.flags = CVyUserIO::FileNameModeChoices;
    request.start = folder.path();
    return request;
}

} // namespace

class LanguageDialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void opens_data() { addLanguageRows(); }
    void opens();
    void startsDrawings_data() { addLanguageRows(); }
    void startsDrawings();
    void saves_data() { addLanguageRows(); }
    void saves();
    void asksForTheEncoding_data() { addLanguageRows(); }
    void asksForTheEncoding();
};

void LanguageDialogsTest::opens()
{
    QFETCH(QString, language);
    const Language loaded(language);
    DrawingFolder folder;
    folder.addFile("a.dwg");
    HostRequest request = requestFor(folder, CVyUserIO::FileNameOpen);
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, "a.dwg"));
        QTRY_COMPARE(cutTexts(dialog).join("; "), QString());
        auto* menu = dialog.findChild<QMenu*>("modeMenu");
        QCOMPARE(textsOf(*menu), openModes("CVyFileDialogs"));
        const auto* caption = dialog.findChild<QLabel*>("previewCaption");
        QCOMPARE(caption->text(), QCoreApplication::translate("CVyFileDialogWidget", "Preview"));
        menu->actions().at(1)->trigger();
    })});
    QCOMPARE(request.status, 5100);
    QCOMPARE(request.mode, CVyUserIO::OpenReadOnly);
}

void LanguageDialogsTest::startsDrawings()
{
    QFETCH(QString, language);
    const Language loaded(language);
    const DrawingFolder folder;
    HostRequest request = requestFor(folder, CVyUserIO::FileNameNew);
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QTRY_COMPARE(cutTexts(dialog).join("; "), QString());
        const auto* button = dialog.findChild<QToolButton*>("openButton");
        QCOMPARE(button->text(), QCoreApplication::translate("CVyFileDialogQt", "&Open"));
        QCOMPARE(button->accessibleName(), QCoreApplication::translate("CVyFileDialogQt", "Open"));
        QCOMPARE(textsOf(*button->menu()), newModes("CVyFileDialogQt"));
        button->menu()->actions().at(2)->trigger();
    })});
    QCOMPARE(request.status, 5100);
    QCOMPARE(request.mode, CVyUserIO::NewMetric);
}

void LanguageDialogsTest::saves()
{
    QFETCH(QString, language);
    const Language loaded(language);
    const DrawingFolder folder;
    HostRequest request = requestFor(folder, CVyUserIO::FileNameSave);
    request.flags = CVyUserIO::FileNameNoFlags;
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QTRY_COMPARE(cutTexts(dialog).join("; "), QString());
        QCOMPARE(dialog.windowTitle(), QCoreApplication::translate("CVyFileDialogQt", "Save As"));
        dialog.reject();
    })});
    QCOMPARE(request.status, -5002);
}

void LanguageDialogsTest::asksForTheEncoding()
{
    QFETCH(QString, language);
    const Language loaded(language);
    DrawingFolder folder;
    folder.addFile("a.dwg");
    HostRequest request = requestFor(folder, CVyUserIO::FileNameOpen);
    request.getFileName(
        {onFileDialog([](QFileDialog& dialog) {
             QVERIFY(clickFile(dialog, "a.dwg"));
             dialog.findChild<QMenu*>("modeMenu")->actions().at(2)->trigger();
         }),
         [](QDialog& dialog) {
             QCOMPARE(dialog.objectName(), QString("encodingDialog"));
             QCOMPARE(dialog.windowTitle(),
                      QCoreApplication::translate("CVyDlgEncoding", "Open with Encoding"));
             QTRY_COMPARE(cutTexts(dialog).join("; "), QString());
             for (const char* name : {"search", "codePages", "sample"}) {
                 const auto* field = dialog.findChild<QWidget*>(name);
                 QVERIFY2(field, name);
                 const QString spoken = field->accessibleName();
                 QVERIFY(!spoken.isEmpty() && spoken == spoken.trimmed());
                 for (const QChar mark : {u'&', u':', u'\uff1a', u'('})
                     QVERIFY(!spoken.contains(mark));
             }
             dialog.accept();
         }});
    QCOMPARE(request.status, 5100);
    QVERIFY(request.codePage);
}

QTEST_MAIN(LanguageDialogsTest)
#include "LanguageDialogsTest.moc"

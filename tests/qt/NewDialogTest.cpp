// SPDX-License-Identifier: MIT
// The Qt dialog for a new drawing, live, through the host's calls.
#include "DrawingFolder.h"
#include "HostRequest.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

namespace {

HostRequest newRequest(bool modes)
{
    HostRequest request;
    request.type = CVyUserIO::FileNameNew;
    request.flags = modes ? CVyUserIO::FileNameModeChoices : CVyUserIO::FileNameNoFlags;
    request.filter = QStringLiteral("Templates&*.dwt&Drawings&*.dwg;*.dxf");
    return request;
}

QToolButton* openButton(QFileDialog& dialog)
{
    return dialog.findChild<QToolButton*>(QStringLiteral("openButton"));
}

QAction* modeEntry(QFileDialog& dialog, const QString& text)
{
    for (QAction* action : openButton(dialog)->menu()->actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

} // namespace

class NewDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); }

    void plainButtonWithoutModes();
    void modeButton();
    void modeButtonByKeyboard_data();
    void modeButtonByKeyboard();
    void mainPartAccepts();
    void entries_data();
    void entries();
    void openNeedsATemplate();
    void returnNeverCancels_data();
    void returnNeverCancels();
    void typeChangeAdaptsTheName_data();
    void typeChangeAdaptsTheName();
};

void NewDialogTest::plainButtonWithoutModes()
{
    HostRequest request = newRequest(false);
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QVERIFY(!openButton(dialog));
        auto* box = dialog.findChild<QDialogButtonBox*>();
        QVERIFY(box->button(QDialogButtonBox::Open));
        QVERIFY(!box->button(QDialogButtonBox::Open)->menu());
        QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        QVERIFY(!dialog.findChild<QWidget*>(QStringLiteral("previewFrame")));
        dialog.reject();
    })});
    QCOMPARE(request.mode, CVyUserIO::NewFromTemplate);
}

void NewDialogTest::modeButton()
{
    newRequest(true).getFileName({onFileDialog([](QFileDialog& dialog) {
        QToolButton* button = openButton(dialog);
        auto* box = dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
        QVERIFY(button && button->isVisible());
        QCOMPARE(button->text(), QStringLiteral("&Open"));
        QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
        QCOMPARE(button->popupMode(), QToolButton::MenuButtonPopup);
        QCOMPARE(box->buttonRole(button), QDialogButtonBox::AcceptRole);
        QVERIFY(!box->button(QDialogButtonBox::Open));
        QCOMPARE(button->accessibleName(), QStringLiteral("Open"));
        for (const QPushButton* push : dialog.findChildren<QPushButton*>()) {
            if (!push->text().contains(QLatin1String("Open")))
                continue;
            QVERIFY(!push->isVisible()); // the standard button, whose looks ours has
            QCOMPARE(button->icon().cacheKey(), push->icon().cacheKey());
            QCOMPARE(button->sizePolicy(), push->sizePolicy());
        }
        QStringList texts;
        for (const QAction* action : button->menu()->actions())
            texts.append(action->text());
        QCOMPARE(texts, (QStringList{"Open", "Open with no Template - Imperial",
                                     "Open with no Template - Metric"}));
        dialog.reject();
    })});
}

void NewDialogTest::modeButtonByKeyboard_data()
{
    QTest::addColumn<int>("modifier");
    QTest::newRow("down") << int(Qt::NoModifier);
    QTest::newRow("alt and down") << int(Qt::AltModifier);
}

void NewDialogTest::modeButtonByKeyboard()
{
    QFETCH(int, modifier);
    HostRequest request = newRequest(true);
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget()->objectName(), QStringLiteral("fileTypeCombo"));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget(), openButton(dialog));
        QTimer::singleShot(50, &dialog, [] {
            QWidget* menu = QApplication::activePopupWidget();
            QVERIFY(menu);
            QTest::keyClick(menu, Qt::Key_Up); // wraps around to the last entry
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QTest::keyClick(openButton(dialog), Qt::Key_Down, Qt::KeyboardModifiers(modifier));
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.mode, CVyUserIO::NewMetric);
}

void NewDialogTest::mainPartAccepts()
{
    DrawingFolder folder;
    const QString iso = folder.addFile("iso.dwt");
    HostRequest request = newRequest(true);
    request.start = folder.path();
    request.templateName = QStringLiteral("iso.dwt");
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), QStringLiteral("iso.dwt"));
        waitForFile(dialog, "iso.dwt");
        QTest::mouseClick(openButton(dialog), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.mode, CVyUserIO::NewFromTemplate);
    QCOMPARE(request.paths, QStringList{iso});
}

void NewDialogTest::entries_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<bool>("select");
    QTest::addColumn<unsigned>("mode");
    QTest::addColumn<bool>("hasPath");
    QTest::newRow("template") << "Open" << true << 1U << true;
    QTest::newRow("imperial") << "Open with no Template - Imperial" << false << 2U << false;
    QTest::newRow("metric") << "Open with no Template - Metric" << false << 3U << false;
    QTest::newRow("metric beside a selection")
        << "Open with no Template - Metric" << true << 3U << true;
}

void NewDialogTest::entries()
{
    QFETCH(QString, entry);
    QFETCH(bool, select);
    QFETCH(unsigned, mode);
    QFETCH(bool, hasPath);
    DrawingFolder folder;
    const QString iso = folder.addFile("iso.dwt");
    HostRequest request = newRequest(true);
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        if (select)
            QVERIFY(clickFile(dialog, "iso.dwt"));
        modeEntry(dialog, entry)->trigger();
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(static_cast<unsigned>(request.mode), mode);
    QCOMPARE(request.paths, hasPath ? QStringList{iso} : QStringList());
}

void NewDialogTest::openNeedsATemplate()
{
    DrawingFolder folder;
    HostRequest request = newRequest(true);
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        modeEntry(dialog, "Open")->trigger();
        QVERIFY(dialog.isVisible());
        openButton(dialog)->click();
        QVERIFY(dialog.isVisible());
        dialog.reject();
    })});
    QCOMPARE(request.status, VyStatus::Cancelled);
}

void NewDialogTest::returnNeverCancels_data()
{
    QTest::addColumn<QString>("focused");
    for (const char* name :
         {"fileNameEdit", "listView", "treeView", "fileTypeCombo", "lookInCombo"})
        QTest::newRow(name) << name;
}

void NewDialogTest::returnNeverCancels()
{
    QFETCH(QString, focused);
    DrawingFolder folder;
    const QString iso = folder.addFile("iso.dwt");
    HostRequest request = newRequest(true);
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        dialog.setViewMode(focused == QLatin1String("treeView") ? QFileDialog::Detail
                                                                : QFileDialog::List);
        QVERIFY(clickFile(dialog, "iso.dwt"));
        auto* widget = dialog.findChild<QWidget*>(focused);
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Return);
        if (!dialog.isVisible())
            return;
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList{iso});
}

void NewDialogTest::typeChangeAdaptsTheName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("another extension") << "plan.txt"
                                       << "plan.dwg";
    QTest::newRow("second extension, upper case") << "plan.DXF"
                                                  << "plan.DXF";
    QTest::newRow("double extension") << "archive.tar.gz"
                                      << "archive.tar.dwg";
    QTest::newRow("no extension") << "plan"
                                  << "plan.dwg";
    QTest::newRow("existing folder") << "folder.txt"
                                     << "folder.txt";
    QTest::newRow("nothing") << ""
                             << "";
}

void NewDialogTest::typeChangeAdaptsTheName()
{
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    DrawingFolder folder;
    folder.addFolder("folder.txt");
    HostRequest request = newRequest(true);
    request.start = folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        typeName(dialog, typed);
        chooseType(dialog, 1);
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), shown);
        if (!typed.isEmpty())
            QCOMPARE(dialog.defaultSuffix(), QStringLiteral("dwg"));
        dialog.reject();
    })});
}

QTEST_MAIN(NewDialogTest)
#include "NewDialogTest.moc"

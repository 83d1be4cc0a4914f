// SPDX-License-Identifier: MIT
// The Qt dialog over a host's windows, with a real user at both: the dialog and
// all that it opens takes his clicks and keys, the host's windows do not.
#include "DeskUser.h"
#include "DrawingFolder.h"
#include "LockScenarios.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

namespace {

using Scenario = void (*)(HostRequest&, const QString&, int);

// The user does \a commands, at the dialog that is active.
void use(const QWidget& window, const QString& commands)
{
    DeskUser(window.windowTitle(), commands).wait();
}

QString clickOnRow(const QAbstractItemView& list, int row)
{
    const QRect place = list.visualRect(list.model()->index(row, 0, list.rootIndex()));
    return clickOn(list.viewport()->mapToGlobal(place.center()));
}

} // namespace

Q_DECLARE_METATYPE(Scenario)

class LockDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void hostIsLocked_data();
    void hostIsLocked();
    void dialogTakesEverything();
    void dialogsOfTheDialogTakeEverything();

private:
    DrawingFolder m_folder;
};

void LockDialogTest::initTestCase()
{
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    m_folder.addFile(QStringLiteral("plan.dwg"));
}

void LockDialogTest::hostIsLocked_data()
{
    QTest::addColumn<Scenario>("scenario");
    QTest::addColumn<unsigned>("type");
    QTest::newRow("everything, open")
        << &LockScenarios::everythingOnAnOpenWindow << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("everything, new")
        << &LockScenarios::everythingOnAnOpenWindow << unsigned(CVyUserIO::FileNameNew);
    QTest::newRow("everything, save")
        << &LockScenarios::everythingOnAnOpenWindow << unsigned(CVyUserIO::FileNameSave);
    QTest::newRow("window opened later")
        << &LockScenarios::clicksOnALaterWindow << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("button held down")
        << &LockScenarios::aButtonHeldDown << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("menu open") << &LockScenarios::anOpenMenu << unsigned(CVyUserIO::FileNameOpen);
}

void LockDialogTest::hostIsLocked()
{
    QFETCH(Scenario, scenario);
    QFETCH(unsigned, type);
    const bool saves = type == CVyUserIO::FileNameSave;
    HostRequest request;
    request.type = type;
    request.flags = CVyUserIO::FileNameModeChoices; // for the title of a save
    request.filter = QStringLiteral("Drawings&*.dwg");
    request.start = m_folder.path() + (saves ? "/new.dwg" : "");
    const QString name = saves ? QStringLiteral("new.dwg") : QStringLiteral("plan.dwg");
    // What was typed at the host's window has gone to the name of the dialog.
    scenario(request,
             QStringLiteral("xdotool key ctrl+a; xdotool type --delay 30 %1\n"
                            "xdotool key Return")
                 .arg(name),
             VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList(m_folder.filePath(name)));
}

void LockDialogTest::dialogTakesEverything()
{
    HostRequest request;
    request.flags = CVyUserIO::FileNameModeChoices;
    request.start = m_folder.path();
    request.getFileName({onFileDialog([&](QFileDialog& dialog) {
        QTest::qWait(300); // until the window manager has placed its frame
        auto* const types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        use(dialog, clickOn(*types));
        QTRY_VERIFY(types->view()->isVisible());
        const int last = types->count() - 1;
        use(dialog, clickOnRow(*types->view(), last));
        QTRY_COMPARE(types->currentIndex(), last);

        auto* const edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        use(dialog, clickOn(*edit) + "xdotool type --delay 50 pla\n");
        QTRY_VERIFY(QApplication::activePopupWidget());
        use(dialog, clickOnRow(*edit->completer()->popup(), 0));
        QTRY_COMPARE(edit->text(), QString("plan.dwg"));

        QPushButton* const open =
            dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
        QMenu* const modes = open->menu();
        const QRect readOnly = modes->actionGeometry(modes->actions().at(1));
        const QPoint menuPlace = open->mapToGlobal(open->rect().bottomLeft());
        use(dialog, clickOn(*open) + "sleep 0.5\n" + clickOn(menuPlace + readOnly.center()));
        QTRY_VERIFY(!dialog.isVisible());
    })});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.mode, CVyUserIO::OpenReadOnly);
    QCOMPARE(request.paths, QStringList(m_folder.filePath("plan.dwg")));
}

// A folder made and named, and the question whether to overwrite.
void LockDialogTest::dialogsOfTheDialogTakeEverything()
{
    HostRequest request;
    request.type = CVyUserIO::FileNameSave;
    request.filter = QStringLiteral("Drawings&*.dwg");
    request.start = m_folder.filePath("plan.dwg");
    request.getFileName(
        {onFileDialog([&](QFileDialog& dialog) {
             QTest::qWait(300); // until the window manager has placed its frame
             auto* const folder = dialog.findChild<QToolButton*>(QStringLiteral("newFolderButton"));
             use(dialog, clickOn(*folder) + "sleep 0.5; xdotool type --delay 30 Sections\n"
                                            "xdotool key Return; sleep 0.5\n");
             QTRY_VERIFY(QFileInfo::exists(m_folder.filePath("Sections")));
             auto* const edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
             use(dialog, clickOn(*edit) + "xdotool key ctrl+a; xdotool type --delay 30 plan.dwg\n"
                                          "xdotool key Return\n");
         }),
         [](QDialog& dialog) {
             auto* const question = qobject_cast<QMessageBox*>(&dialog);
             QVERIFY(question);
             QVERIFY(QTest::qWaitForWindowActive(question));
             QTest::qWait(300);
             use(dialog, clickOn(*question->button(QMessageBox::Yes)));
         }});
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.paths, QStringList(m_folder.filePath("plan.dwg")));
}

QTEST_MAIN(LockDialogTest)
#include "LockDialogTest.moc"

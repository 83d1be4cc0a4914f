// SPDX-License-Identifier: MIT
#include "Requests.h"
#include "UnharmedHost.h"

#include "FolderButtons.h"

#include <QMessageBox>
#include <QtTest>

#include <memory>

namespace {

struct Ending
{
    const char* name;
    bool accepted;
    std::vector<DialogDriver::Step> steps;
};

DialogDriver::Step typing(const QString& name)
{
    return onFileDialog([name](QFileDialog& dialog) { typeAndAccept(dialog, name); });
}

// What is asked on the way brings the user back to the dialog.
DialogDriver::Step typingInVain(const QString& name)
{
    return onFileDialog([name](QFileDialog& dialog) {
        typeAndAccept(dialog, name);
        QVERIFY(dialog.isVisible());
        dialog.reject();
    });
}

DialogDriver::Step answering(QMessageBox::StandardButton button)
{
    return [button](QDialog& dialog) {
        auto* question = qobject_cast<QMessageBox*>(&dialog);
        QVERIFY(question && question->button(button));
        question->button(button)->click();
    };
}

QAbstractButton* openButton(QFileDialog& dialog)
{
    const auto* box = dialog.findChild<QDialogButtonBox*>();
    for (QAbstractButton* button : box->buttons()) {
        if (box->buttonRole(button) == QDialogButtonBox::AcceptRole)
            return button;
    }
    return nullptr;
}

void lookAtPictures(QFileDialog& dialog)
{
    for (const char* name : {"red.png", "broken.png", "blue.png", "green.png"}) {
        QVERIFY(clickFile(dialog, QString::fromLatin1(name)));
        QTest::qWait(20);
    }
    dialog.reject();
}

void goAbout(QFileDialog& dialog)
{
    chooseType(dialog, 1);
    dialog.setDirectory(dialog.directory().filePath(QStringLiteral("parts")));
    QVERIFY(waitForFile(dialog, QStringLiteral("door.dwg")));
    const auto row = buttons(dialog);
    QVERIFY(row.size() > 1);
    row.at(row.size() - 2)->click();
    QTest::keyClick(&dialog, Qt::Key_Escape);
}

// With open modes the button opens a menu of them.
void clickAndOpen(QFileDialog& dialog)
{
    QVERIFY(clickFile(dialog, QStringLiteral("blue.png")));
    QAbstractButton* const open = openButton(dialog);
    QVERIFY(open && open->isEnabled());
    QTimer::singleShot(50, &dialog, [] {
        if (QWidget* const menu = QApplication::activePopupWidget()) {
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return);
        }
    });
    QTest::mouseClick(open, Qt::LeftButton);
}

std::vector<Ending> endingsOf(bool saves, QWidget*& parent)
{
    std::vector<Ending> endings{
        {"escape", false, {onFileDialog([](QFileDialog& dialog) {
             QTest::keyClick(&dialog, Qt::Key_Escape);
         })}},
        {"closed", false, {onFileDialog([](QFileDialog& dialog) { dialog.close(); })}},
        {"at once", false, {[](QDialog& dialog) { dialog.reject(); }}},
        {"parent gone", false, {onFileDialog([&parent](QFileDialog&) {
             delete std::exchange(parent, nullptr);
         })}},
        {"previews", false, {onFileDialog(lookAtPictures)}},
        {"folders and types", false, {onFileDialog(goAbout)}},
    };
    if (saves) {
        endings.push_back({"new name", true, {typing("new.png")}});
        endings.push_back({"overwritten", true, {typing("red.png"), answering(QMessageBox::Yes)}});
        endings.push_back({"kept", false, {typingInVain("red.png"), answering(QMessageBox::No)}});
    } else {
        endings.push_back({"typed", true, {typing("red.png")}});
        endings.push_back({"clicked", true, {onFileDialog(clickAndOpen)}});
        endings.push_back({"missing", false, {typingInVain("gone.png"), closeMessage(QString())}});
    }
    return endings;
}

} // namespace

QString requestQtDialog(const SoakFolder& folder, Chance& chance)
{
    HostRequest host = anyRequest(folder, chance);
    auto* parent = new QWidget;
    host.parent = parent->winId();
    const bool several = chance() % 2;
    const Ending ending = oneOf(endingsOf(host.type == CVyUserIO::FileNameSave, parent), chance);
    several ? host.getFileNames(ending.steps) : host.getFileName(ending.steps);
    delete parent;

    return judged(host, several, ending.name, ending.accepted);
}

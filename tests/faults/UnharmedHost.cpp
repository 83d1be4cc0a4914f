// SPDX-License-Identifier: MIT
#include "UnharmedHost.h"

#include "DrawingFolder.h"

#include <QPushButton>
#include <QtTest>

namespace {

constexpr int noType = 99;

void expectNextRequestWorks()
{
    DrawingFolder folder;
    const QString drawing = folder.addFile(QStringLiteral("next.dwg"));
    HostRequest request = openRequest(folder.path());
    request.getFileName({onFileDialog([](QFileDialog& dialog) {
        QVERIFY(clickFile(dialog, QStringLiteral("next.dwg")));
        clickButton(dialog, QDialogButtonBox::Open);
    })});
    expectChosen(request, drawing);
}

} // namespace

void UnharmedHost::expectUnharmed()
{
    if (QTest::currentTestFailed())
        return;
    m_state.expectUnchanged();
    if (!QTest::currentTestFailed())
        expectNextRequestWorks();
    if (!QTest::currentTestFailed())
        m_state.expectUnchanged();
}

HostRequest openRequest(const QString& start)
{
    HostRequest request;
    request.filter = QStringLiteral("All files&*");
    request.start = start;
    request.typeIndex = noType;
    return request;
}

void clickButton(QFileDialog& dialog, QDialogButtonBox::StandardButton button)
{
    QPushButton* const found = dialog.findChild<QDialogButtonBox*>()->button(button);
    QVERIFY(found && found->isEnabled());
    QTest::mouseClick(found, Qt::LeftButton);
}

DialogDriver::Step closeMessage(const QString& text)
{
    return [text](QDialog& dialog) {
        const auto* message = qobject_cast<QMessageBox*>(&dialog);
        const QString said = message ? message->text() : QString();
        dialog.accept();
        QVERIFY2(said.startsWith(text), qPrintable(said));
    };
}

void expectCancelled(const HostRequest& request)
{
    QCOMPARE(request.status, VyStatus::Cancelled);
    QCOMPARE(request.mode, CVyUserIO::Open);
    QCOMPARE(request.paths, QStringList());
    QCOMPARE(request.typeIndex, noType);
    QCOMPARE(request.codePage, nullptr);
}

void expectNothingWritten(const HostRequest& request)
{
    QCOMPARE(request.mode, HostRequest::untouchedMode());
    QCOMPARE(request.paths, QStringList());
    QCOMPARE(request.typeIndex, noType);
    QCOMPARE(request.codePage, nullptr);
}

void expectChosen(const HostRequest& request, const QString& file)
{
    QCOMPARE(request.status, VyStatus::Accepted);
    QCOMPARE(request.mode, CVyUserIO::Open);
    QCOMPARE(request.paths, QStringList{file});
    QCOMPARE(request.typeIndex, 0);
    QCOMPARE(request.codePage, nullptr);
}

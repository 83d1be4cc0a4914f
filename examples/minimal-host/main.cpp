// SPDX-License-Identifier: MIT
// A host of the dialogs: a window whose menu asks for a template, a drawing and a
// place to save it.
#include <VyFileDialog.h>

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>

#include <cstdio>

static void ask(QMainWindow& window, CVyUserIO::_FileNameType kind, const CVyString& title,
                const CVyString& types)
{
    auto mode = CVyUserIO::Open;
    CVyString path;
    int type = 0;
    OdCodePageId* codePage = nullptr; // of "Open with Encoding..."
    const int status = CVyFileDialog::GetFileName(
        &mode, &path, window.winId(), kind, title, L"dwg", types, L"", &type, nullptr,
        CVyUserIO::FileNameModeChoices, &codePage);

    const QString answer = status == VyStatus::Accepted
        ? QString("mode %1, type %2, %3").arg(mode).arg(type).arg(QString(path))
        : QString("status %1").arg(status);
    window.statusBar()->showMessage(answer);
    std::printf("%s\n", qPrintable(answer));
    std::fflush(stdout);
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt); // StyleNative: the system's panels
    CVyFileDialog::LoadTranslations();

    QMainWindow window;
    QMenu* file = window.menuBar()->addMenu("&File");
    file->addAction("&New...", [&] {
        ask(window, CVyUserIO::FileNameNew, L"New Drawing", L"Templates&*.dwt");
    }, QKeySequence::New);
    file->addAction("&Open...", [&] {
        ask(window, CVyUserIO::FileNameOpen, L"Open Drawing", L"Drawings&*.dwg;*.dxf");
    }, QKeySequence::Open);
    file->addAction("&Save As...", [&] {
        ask(window, CVyUserIO::FileNameSave, L"Save Drawing", L"Drawing&*.dwg&Exchange&*.dxf");
    }, QKeySequence::Save);
    window.resize(480, 120);
    window.show();
    return QApplication::exec();
}

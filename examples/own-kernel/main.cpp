// SPDX-License-Identifier: MIT
// acme [--native]: a drawing application without drawings. Its File menu asks for
// file names and prints the answers: STATUS MODE TYPEINDEX PATH.
#include "AcmeSettings.h"
#include "VyDocument.h"
#include "VyFileDialog.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QTextStream>

namespace {

struct Question
{
    CVyUserIO::_FileNameType kind;
    const wchar_t* title;
    const wchar_t* filter;
    const wchar_t* extension;
};

constexpr Question newDrawing{CVyUserIO::FileNameNew, L"New Drawing", L"Templates&*.dwt", L"dwt"};
constexpr Question openDrawing{CVyUserIO::FileNameOpen, L"Open Drawing",
                               L"Drawings&*.dwg;*.dxf&Templates&*.dwt", L"dwg"};
constexpr Question saveDrawing{CVyUserIO::FileNameSave, L"Save Drawing As",
                               L"Drawings&*.dwg&Exchange files&*.dxf", L"dwg"};

void ask(const Question& question, const QWidget& window, const AcmeString& folder)
{
    CVyUserIO::_FileNameRetVal mode{};
    AcmeString path;
    int type = 0;
    OdCodePageId* codePage = nullptr; // what a real Acme would read the texts in
    const int status = CVyFileDialog::GetFileName(
        &mode, &path, window.winId(), question.kind, question.title, question.extension,
        question.filter, folder, &type, nullptr, CVyUserIO::FileNameModeChoices, &codePage);
    QTextStream(stdout) << status << ' ' << mode << ' ' << type << ' ' << QString(path) << '\n';
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const bool native = QCoreApplication::arguments().contains(QStringLiteral("--native"));
    CVyFileDialog::SetStyle(native ? CVyFileDialog::StyleNative : CVyFileDialog::StyleQt);
    CVyFileDialog::LoadTranslations();

    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Acme"));
    auto* const view = new QWidget;
    view->setCursor(Qt::CrossCursor);
    window.setCentralWidget(view);
    const CVyDocument drawing(view);

    QMenu* const menu = window.menuBar()->addMenu(QStringLiteral("&File"));
    menu->addAction(
        QStringLiteral("&New..."), &window,
        [&window] { ask(newDrawing, window, AcmeSettings::templateFolder()); },
        QKeySequence(QStringLiteral("Ctrl+N")));
    menu->addAction(
        QStringLiteral("&Open..."), &window, [&window] { ask(openDrawing, window, L""); },
        QKeySequence(QStringLiteral("Ctrl+O")));
    menu->addAction(
        QStringLiteral("&Save As..."), &window, [&window] { ask(saveDrawing, window, L""); },
        QKeySequence(QStringLiteral("Ctrl+S")));
    window.resize(600, 400);
    window.show();
    return QApplication::exec();
}

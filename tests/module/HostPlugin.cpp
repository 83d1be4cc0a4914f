// SPDX-License-Identifier: MIT
// The part of a host that asks for file names.
#include "VyFileDialog.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <cstring>

namespace {

// Late enough for the dialog to have listed its folder and shown a preview.
void cancelSoon()
{
    QTimer::singleShot(200, qApp, [] { QApplication::activeModalWidget()->close(); });
}

} // namespace

extern "C" Q_DECL_EXPORT int ask(const char* style)
{
    const bool native = std::strcmp(style, "native") == 0;
    CVyFileDialog::SetStyle(native ? CVyFileDialog::StyleNative : CVyFileDialog::StyleQt);
    if (!native)
        cancelSoon();
    CVyUserIO::_FileNameRetVal mode;
    CVyString path;
    OdCodePageId* codePage = nullptr;
    int type = 0;
    return CVyFileDialog::GetFileName(&mode, &path, 0, CVyUserIO::FileNameOpen, L"Plug-in", L"dwg",
                                      L"Drawings&*.dwg;*.dxf", L"", &type, nullptr,
                                      CVyUserIO::FileNameModeChoices, &codePage);
}

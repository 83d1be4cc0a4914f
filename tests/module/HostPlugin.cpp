// SPDX-License-Identifier: MIT
// The part of a host that asks for file names.
#include "VyFileDialog.h"

#include <QApplication>
#include <QDir>
#include <QListView>
#include <QTimer>

#include <cstring>

namespace {

// Late enough for the dialog to have listed its folder and shown a preview.
void cancelSoon()
{
    QTimer::singleShot(200, qApp, [] { QApplication::activeModalWidget()->close(); });
}

// Once the folder is listed, makes its first file the current one and closes while
// that one's preview is being read.
void cancelDuringPreview()
{
    auto* timer = new QTimer(QApplication::activeModalWidget());
    QObject::connect(timer, &QTimer::timeout, timer, [timer] {
        auto* dialog = static_cast<QWidget*>(timer->parent());
        auto* list = dialog->findChild<QListView*>("listView");
        const QModelIndex first = list->model()->index(0, 0, list->rootIndex());
        if (!first.isValid())
            return;
        timer->stop();
        list->setCurrentIndex(first);
        QTimer::singleShot(200, dialog, [dialog] { dialog->close(); });
    });
    timer->start(20);
}

} // namespace

extern "C" Q_DECL_EXPORT int ask(const char* style)
{
    const bool native = std::strcmp(style, "native") == 0;
    CVyFileDialog::SetStyle(native ? CVyFileDialog::StyleNative : CVyFileDialog::StyleQt);
    if (std::strcmp(style, "preview") == 0)
        QTimer::singleShot(0, qApp, cancelDuringPreview);
    else if (!native)
        cancelSoon();
    CVyUserIO::_FileNameRetVal mode;
    CVyString path;
    OdCodePageId* codePage = nullptr;
    int type = 0;
    return CVyFileDialog::GetFileName(&mode, &path, 0, CVyUserIO::FileNameOpen, L"Plug-in", L"dwg",
                                      L"Drawings&*.dwg;*.dxf", QDir::currentPath(), &type, nullptr,
                                      CVyUserIO::FileNameModeChoices, &codePage);
}

// SPDX-License-Identifier: MIT
#include "VyFileDialogMacDoModal.h"

#include "VyPanelMessages.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

namespace {

constexpr int startDelay = 100; // milliseconds

} // namespace

CVyFileDialogMacDoModal::CVyFileDialogMacDoModal()
    : QObject(nullptr)
{}

int CVyFileDialogMacDoModal::doModal(void* panel)
{
    m_panel = panel;
    return runLoop(SLOT(slot_doModal_10_6()));
}

int CVyFileDialogMacDoModal::doModal(void* panel, void* directory, void* fileName, void* fileTypes)
{
    m_panel = panel;
    m_directory = directory;
    m_fileName = fileName;
    m_fileTypes = fileTypes;
    return runLoop(SLOT(slot_doModal_10_5()));
}

int CVyFileDialogMacDoModal::runLoop(const char* slot)
{
    QEventLoop loop;
    m_eventLoop = &loop;
    QTimer::singleShot(startDelay, this, slot);
    QGuiApplication::restoreOverrideCursor();
    m_response = 0;
    loop.exec(); // QCoreApplication::exit(1) ends it too: that is no OK button
    m_eventLoop = nullptr;
    return m_response;
}

void CVyFileDialogMacDoModal::endLoop(int response)
{
    m_response = response;
    if (m_eventLoop)
        m_eventLoop->exit(response);
}

void CVyFileDialogMacDoModal::slot_doModal_10_6()
{
    endLoop(CVyFileDialogMacDoModalCocoa().doModal_10_6(m_panel));
}

// An exception must not travel through Qt's event loop, which would be left as
// if it still ran; the outer one would wait for ever.
void CVyFileDialogMacDoModal::slot_doModal_10_5()
{
    int response = 0;
    @try {
        response = CVyFileDialogMacDoModalCocoa().doModal_10_5(m_panel, m_directory, m_fileName,
                                                               m_fileTypes);
    } @catch (id thrown) {
        VyPanelMessages::warn(thrown);
    }
    endLoop(response);
}

int CVyFileDialogMacDoModalCocoa::doModal_10_6(void* panel)
{
    if (!panel)
        return 0;
    @try {
        return static_cast<int>([static_cast<NSSavePanel*>(panel) runModal]);
    } @catch (id thrown) {
        VyPanelMessages::warn(thrown);
        return 0;
    }
}

int CVyFileDialogMacDoModalCocoa::doModal_10_5(void* panel, void* directory, void* fileName,
                                               void* fileTypes)
{
    auto* const savePanel = static_cast<NSSavePanel*>(panel);
    NSString* const path = [NSString stringWithFormat:@"%@/%@", static_cast<NSString*>(directory),
                                                      static_cast<NSString*>(fileName)];
    [savePanel setDirectoryURL:[NSURL fileURLWithPath:path]];
    VyPanelMessages::allowedFileTypes(savePanel, static_cast<NSArray*>(fileTypes));
    return static_cast<int>([savePanel runModal]);
}

// SPDX-License-Identifier: MIT
// The oldest systems are told by a value that Qt has deprecated.
#undef QT_DISABLE_DEPRECATED_BEFORE
#define QT_DISABLE_DEPRECATED_BEFORE 0x050000
#include "VyCocoa.h"

#import <Foundation/Foundation.h>

#include <QGuiApplication>
#include <QSysInfo>
#include <QThread>
#include <QtDebug>

namespace VyCocoa {

namespace {

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
constexpr int macOS10_6 = QSysInfo::MV_10_6;
int macintoshVersion = QSysInfo::MacintoshVersion;
QT_WARNING_POP

const char* whyNoPanels()
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return "there is no QGuiApplication";
    if (QThread::currentThread() != qApp->thread())
        return "this is not the user-interface thread";
    return bringUpAppKit();
}

} // namespace

bool canShowPanels()
{
    const char* const reason = whyNoPanels();
    if (reason)
        qWarning("VyFileDialogs: no native panel can be shown: %s", reason);
    return !reason;
}

// Qt answers 0, "unknown", for systems that are newer than itself.
bool isNewerPlatform()
{
    return macintoshVersion >= macOS10_6 || macintoshVersion == 0;
}

void setMacintoshVersion(int version)
{
    macintoshVersion = version;
}

PanelRun::PanelRun()
    : m_pool([[NSAutoreleasePool alloc] init])
    , m_activeWindow(QGuiApplication::focusWindow())
{}

PanelRun::~PanelRun()
{
    [static_cast<NSAutoreleasePool*>(m_pool) drain];
    if (m_activeWindow)
        m_activeWindow->requestActivate();
}

} // namespace VyCocoa

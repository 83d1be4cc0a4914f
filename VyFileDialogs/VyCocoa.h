// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWindow>

/// The one place that knows on which AppKit we run. The panels' code sends the
/// documented messages; what an AppKit lacks or does otherwise is mended here.
namespace VyCocoa {

/// Whether a panel can be shown: on the thread of a QGuiApplication, with a
/// window server that answers. Brings up the AppKit's application object where
/// Qt has not. If not, a warning in Qt's log says why.
bool canShowPanels();

/// Whether the system is macOS 10.6 or later, or no macOS at all. Older ones
/// want other messages.
bool isNewerPlatform();

/// For tests: makes isNewerPlatform() judge \a macintoshVersion, a value of
/// QSysInfo::MacVersion, instead of the system's.
void setMacintoshVersion(int macintoshVersion);

/// For canShowPanels(): brings up the AppKit's application object, once, where
/// Qt has not. Answers why there can be none; null when there is one.
const char* bringUpAppKit();

/// Around the making, running and reading of a panel: frees what the AppKit
/// leaves to be freed later, and gives the active window back what was its own.
class PanelRun
{
public:
    PanelRun();
    ~PanelRun();
    Q_DISABLE_COPY(PanelRun)

private:
    void* m_pool; ///< an autorelease pool
    QPointer<QWindow> m_activeWindow;
};

} // namespace VyCocoa

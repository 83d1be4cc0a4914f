// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QEventLoop;

/// Runs a native panel modally from a fresh turn of an event loop: a nested loop
/// is started, a timer calls a slot 100 milliseconds later, the slot runs the
/// panel and ends the loop. So the panel does not run from inside whatever
/// handler asked for it, and one override cursor has been taken back by then.
///
/// One run an object, on the user-interface thread. Panels, strings and arrays
/// are passed as untyped pointers, so that this header is plain C++; the caller
/// keeps them alive.
class CVyFileDialogMacDoModal : public QObject
{
    Q_OBJECT

public:
    CVyFileDialogMacDoModal();

    /// Runs the NSSavePanel or NSOpenPanel as it is and returns its response:
    /// 1 for its OK button, another value when it was left. 0 for null, for a
    /// panel that raises, and when the loop is ended from outside before the
    /// panel has run.
    int doModal(void* panel);

    /// For systems before macOS 10.6, and for the panel of a new drawing: sets
    /// the panel's folder (NSString) and file name (NSString, may be null),
    /// joined in one URL, and its allowed types (NSArray, null for any) before
    /// it runs the panel. The arguments are not checked. Returns as above.
    int doModal(void* panel, void* directory, void* fileName, void* fileTypes);

public Q_SLOTS:
    /// Run the panel and end the loop; for the timer.
    void slot_doModal_10_6();
    void slot_doModal_10_5();

private:
    int runLoop(const char* slot);
    void endLoop(int response);

    QEventLoop* m_eventLoop = nullptr; ///< while a run is in progress
    void* m_panel = nullptr;
    void* m_directory = nullptr;
    void* m_fileName = nullptr;
    void* m_fileTypes = nullptr;
    int m_response = 0;
};

/// Sends the messages of a run to the panel.
class CVyFileDialogMacDoModalCocoa
{
public:
    /// 0 for null and for a panel that raises an exception of its language.
    int doModal_10_6(void* panel);
    /// Checks nothing and catches nothing.
    int doModal_10_5(void* panel, void* directory, void* fileName, void* fileTypes);
};

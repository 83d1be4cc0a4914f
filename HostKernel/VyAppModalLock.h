// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

#include <QWidget>

/// Keeps the windows that the application has open from reacting to the user
/// for as long as the lock is held: they take no clicks, keys, wheel, drops,
/// shortcuts or close requests. Windows opened after the lock was taken work.
/// Locks nest. The windows themselves are not changed, so they look, and are,
/// the same afterwards.
///
/// Made and used on the user-interface thread; on another, or without a
/// QApplication, it does nothing.
class VY_HOSTKERNEL_EXPORT CVyAppModalLock
{
public:
    /// \a usable is a widget whose window goes on working; null for none.
    explicit CVyAppModalLock(QWidget* usable);
    /// Unlocks, unless unlock() has.
    ~CVyAppModalLock();

    /// Lets the windows react again. Calling it once more does no harm.
    void unlock();

private:
    Q_DISABLE_COPY(CVyAppModalLock)

    QObject* m_filter;
};

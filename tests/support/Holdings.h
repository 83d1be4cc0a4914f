// SPDX-License-Identifier: MIT
#pragma once

/// What the process holds at a moment, as far as a request could leave some of it behind.
struct Holdings
{
    /// Makes Qt tell of the objects that come and go, those before excepted.
    static void countObjects();

    /// Lets what was posted, deleted later or wound down come to its end.
    static void settle();

    /// Counted when it is made.
    Holdings();

    int objects; ///< QObjects, Qt's timers among them
    int widgets;
    int windows;     ///< Qt's
    int descriptors; ///< open files, sockets and pipes
    int threads;
    double heap; ///< taken by C, C++ and Qt and not given back, in KiB
};

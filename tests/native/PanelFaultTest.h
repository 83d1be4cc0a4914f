// SPDX-License-Identifier: MIT
#pragma once

#include "NativeTest.h"

#include "HostState.h"

/// A test of what goes wrong while a panel is up. After each function, and so for
/// each of its rows, the host is as it was before, and the next panel comes up and
/// answers. Bookmarks are kept in memory: a test may be a user who may not write.
class PanelFaultTest : public NativeTest
{
    Q_OBJECT

protected:
    /// A request of that kind, which is also the kind of the panel that comes next.
    HostRequest faultyRequest(unsigned type);

    /// Fails the test unless the outputs of a request that was left are as they
    /// were, but the mode, which every request writes.
    static void compareCancelled(const HostRequest& request);
    /// Fails the test unless a request has answered this one path.
    static void compareAccepted(const HostRequest& request, const QString& path);

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

private:
    void compareNextRequest() const;

    unsigned m_type = CVyUserIO::FileNameOpen;
    std::unique_ptr<HostState> m_host;
};

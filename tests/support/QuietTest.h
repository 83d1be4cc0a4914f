// SPDX-License-Identifier: MIT
#pragma once

#include "HostLog.h"

#include <QObject>

#include <memory>

/// A test whose functions fail when anything is said on the host's log.
class QuietTest : public QObject
{
    Q_OBJECT

protected:
    /// What has been said since the function began, or since the last call; it
    /// is then forgiven.
    QStringList takeMessages();

protected Q_SLOTS:
    // A fixture with its own of these calls them.
    void init();
    void cleanup();

private:
    std::unique_ptr<HostLog> m_log;
};

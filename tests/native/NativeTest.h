// SPDX-License-Identifier: MIT
#pragma once

#include "PanelDriver.h"

#include "HostRequest.h"
#include "QuietTest.h"
#include "VyCocoa.h"

#include <QTemporaryDir>
#include <QtTest>

/// A test of live panels, with a folder of drawings of its own. Objective-C
/// objects that a test function makes are freed when it ends.
class NativeTest : public QuietTest
{
    Q_OBJECT

protected:
    /// Makes an empty file in the folder; \a name may hold folders.
    void addFile(const QString& name);
    void addFolder(const QString& name);
    QString path(const QString& name = QString()) const;

    /// A request for the folder; \a type as CVyUserIO::_FileNameType.
    HostRequest request(unsigned type) const;
    /// Runs it with the native panels.
    static int run(HostRequest& request, std::vector<PanelDriver::Step> steps);
    static int runSeveral(HostRequest& request, std::vector<PanelDriver::Step> steps);

protected Q_SLOTS:
    // A fixture with its own of these calls them.
    void initTestCase();
    void init();
    void cleanup();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    NSAutoreleasePool* m_pool = nil;
};

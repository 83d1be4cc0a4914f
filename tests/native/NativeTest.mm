// SPDX-License-Identifier: MIT
#include "NativeTest.h"

#include "VyBookmarks.h"

#include <QDir>
#include <QFile>
#include <QSysInfo>

#include <csignal>

void NativeTest::initTestCase()
{
    // GNUstep ignores it where nobody else handles it; Qt Test does.
    std::signal(SIGPIPE, SIG_IGN);
    QVERIFY2(VyCocoa::canShowPanels(), "no display");
}

void NativeTest::init()
{
    m_pool = [[NSAutoreleasePool alloc] init];
    m_folder = std::make_unique<QTemporaryDir>();
    CVyFileDialog::SetStyle(CVyFileDialog::StyleNative);
    VyClearBookmarks();
    QuietTest::init();
}

void NativeTest::cleanup()
{
    VyCocoa::setMacintoshVersion(0xffff);
    m_folder.reset();
    [m_pool drain];
    QuietTest::cleanup();
}

void NativeTest::addFile(const QString& name)
{
    addFolder(QFileInfo(name).path());
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void NativeTest::addFolder(const QString& name)
{
    QVERIFY(QDir(m_folder->path()).mkpath(name));
}

QString NativeTest::path(const QString& name) const
{
    return name.isEmpty() ? m_folder->path() : m_folder->filePath(name);
}

HostRequest NativeTest::request(unsigned type) const
{
    HostRequest result;
    result.type = type;
    result.start = m_folder->path();
    return result;
}

int NativeTest::run(HostRequest& request, std::vector<PanelDriver::Step> steps)
{
    const PanelDriver driver(std::move(steps));
    return request.getFileName({});
}

int NativeTest::runSeveral(HostRequest& request, std::vector<PanelDriver::Step> steps)
{
    const PanelDriver driver(std::move(steps));
    return request.getFileNames({});
}

#include "moc_NativeTest.cpp"

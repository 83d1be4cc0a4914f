// SPDX-License-Identifier: MIT
// What the open panels' delegate costs for each file of a folder, beside the one
// question to the file system that it cannot do without.
#include "support/Measurement.h"

#include "VyNSOpenSavePanelDelegate.h"
#include "VyNativeStrings.h"

#include <QDir>

#include <sys/stat.h>

namespace {

using Measurement::Clock;

double microsecondsEach(Clock::time_point start, int count)
{
    return Measurement::millisecondsSince(start) * 1000 / count;
}

void askSystem(const std::vector<QByteArray>& paths)
{
    const auto start = Clock::now();
    for (const QByteArray& path : paths) {
        struct stat facts;
        stat(path.constData(), &facts);
    }
    Measurement::report("floor", "each file", microsecondsEach(start, int(paths.size())));
}

void askDelegate(CVyNSOpenSavePanelDelegate* delegate, NSArray* paths)
{
    NSAutoreleasePool* const pool = [NSAutoreleasePool new];
    const auto start = Clock::now();
    for (NSString* path in paths)
        [delegate panel:nil shouldShowFilename:path];
    Measurement::report("subject", "each file", microsecondsEach(start, int([paths count])));
    [pool release];
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    NSAutoreleasePool* const pool = [NSAutoreleasePool new];
    CVyNSOpenSavePanelDelegate* const delegate =
        [[[CVyNSOpenSavePanelDelegate alloc] init] autorelease];
    [delegate setAllowedFileTypes:[NSArray arrayWithObjects:@"dxf", @"dwt", @"dwg", nil]];
    const QDir folder(Measurement::argument("folder"));
    std::vector<QByteArray> paths;
    NSMutableArray* const nativePaths = [NSMutableArray array];
    const QStringList names = folder.entryList(QDir::Files, QDir::Unsorted);
    for (const QString& name : names) {
        paths.push_back(QFile::encodeName(folder.filePath(name)));
        [nativePaths addObject:nsStringFromQString(folder.filePath(name))];
    }
    for (int round = 0; round < Measurement::number("rounds", 20); ++round) {
        if (round % 2)
            askSystem(paths);
        askDelegate(delegate, nativePaths);
        if (round % 2 == 0)
            askSystem(paths);
    }
    [pool release];
}

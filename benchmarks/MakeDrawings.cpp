// SPDX-License-Identifier: MIT
// Makes a folder of drawings with previews of an ordinary size.
#include "support/Measurement.h"

#include "PreviewFiles.h"

#include <QDir>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QDir folder(Measurement::argument("folder"));
    folder.mkpath(QStringLiteral("."));
    PreviewFiles::Dwg drawing;
    drawing.records.push_back({2, PreviewFiles::testDib(180, 120, 8).bytes()});
    for (int i = 1; i <= Measurement::number("count"); ++i) {
        QFile file(folder.filePath(QStringLiteral("A-%1 Ground floor.dwg").arg(100 + i)));
        if (!file.open(QIODevice::WriteOnly) || file.write(drawing.bytes()) < 0)
            qFatal("a drawing cannot be written");
    }
}

// SPDX-License-Identifier: MIT
// How long a host that has Qt needs to load the library.
#include "support/Measurement.h"

#include <QWidget>

#include <dlfcn.h>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QByteArray library = Measurement::argument("library").toUtf8();
    if (!QWidget::staticMetaObject.className()) // keeps Qt's library among ours
        return 2;
    const auto start = Measurement::Clock::now();
    if (!dlopen(library.constData(), RTLD_NOW)) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    Measurement::report("subject", "loading", Measurement::millisecondsSince(start));
}

// SPDX-License-Identifier: MIT
#include "StandardStreams.h"

#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {
const char* name = "";
}

namespace StandardStreams {

bool prepare(const char* program)
{
    name = program;
    std::signal(SIGPIPE, SIG_IGN);
    int fd = open("/dev/null", O_RDONLY);
    while (fd >= 0 && fd <= STDERR_FILENO)
        fd = open("/dev/null", O_RDONLY);
    if (fd >= 0)
        close(fd);
    const int flags = fcntl(STDOUT_FILENO, F_GETFL);
    return flags >= 0 && (flags & O_ACCMODE) != O_RDONLY;
}

bool print(const QByteArray& bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    const bool written = std::fwrite(bytes.constData(), 1, size, stdout) == size;
    return std::fclose(stdout) == 0 && written;
}

void say(const QString& text)
{
    QString line = QLatin1String(name) + QLatin1String(": ") + text;
    for (QChar& each : line) {
        if (each.category() == QChar::Other_Control)
            each = QLatin1Char('?');
    }
    std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
}

} // namespace StandardStreams

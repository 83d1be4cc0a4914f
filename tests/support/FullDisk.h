// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <csignal>

#include <sys/resource.h>

/// No file of the process grows beyond \a bytes while this lives, as on a full disk. It
/// holds for every user, also where nothing can be mounted and modes of files count
/// for nothing.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = m_limit;
        limit.rlim_cur = bytes;
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            qFatal("no limit");
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY(FullDisk)

private:
    rlimit m_limit = {};
    void (*m_handler)(int) = nullptr;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <sys/types.h>
#include <unistd.h>

/// Takes the superuser's rights from the process while it lives, so that modes
/// of files count. The folders of the test must let everybody in.
class PlainUser
{
public:
    PlainUser()
        : m_user(geteuid())
    {
        // access(2) asks for the real user; the saved one stays and leads back.
        if (m_user == 0 && (setreuid(nobody, 0) != 0 || seteuid(nobody) != 0))
            qFatal("cannot become another user");
    }
    ~PlainUser()
    {
        if (m_user == 0 && (seteuid(0) != 0 || setreuid(0, 0) != 0))
            qFatal("cannot become the user again");
    }
    Q_DISABLE_COPY(PlainUser)

private:
    static constexpr uid_t nobody = 65534;
    const uid_t m_user;
};

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef BECOMEUSER_H
#define BECOMEUSER_H

#include <QString>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

/// Gives up all rights but those of the user with the number @p id, or none where that is empty;
/// whether it could. The superuser needs this to test permissions, which do not bind him.
inline bool becomeUser(const QString &id)
{
    if (id.isEmpty())
        return true;
#ifdef Q_OS_UNIX
    if (setgid(id.toUInt()) != 0 || setuid(id.toUInt()) != 0)
        return false;
#ifdef Q_OS_LINUX
    // Without this, a leak checker may not look at the process when it ends.
    prctl(PR_SET_DUMPABLE, 1);
#endif
    return true;
#else
    return false;
#endif
}

#endif

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

/// Goes on with the rights of the user with the number @p id, as who it is where that is empty;
/// whether it could. For the superuser, no file is without permission.
inline bool becomeUser(const QString &id)
{
    if (id.isEmpty())
        return true;
#ifdef Q_OS_UNIX
    if (setgid(id.toUInt()) != 0 || setuid(id.toUInt()) != 0)
        return false;
#ifdef Q_OS_LINUX
    // A leak checker looks at the process through this, at its end.
    prctl(PR_SET_DUMPABLE, 1);
#endif
    return true;
#else
    return false;
#endif
}

#endif

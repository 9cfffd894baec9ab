// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FAILURE_H
#define FAILURE_H

#include <QString>

/// Thrown where the program does not do what the user on the walk expects.
struct Failure
{
    QString expected;
    QString seen;
};

#endif

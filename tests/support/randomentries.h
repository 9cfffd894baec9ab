// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef RANDOMENTRIES_H
#define RANDOMENTRIES_H

#include "support/randomitems.h"
#include "support/settingsjson.h"

/// Entries with some of these keys, which may come twice.
inline Entries someEntries(Dice *dice, const QStringList &keys, int count)
{
    Entries entries;
    for (int i = 0; i < count; ++i)
        entries.append({ dice->oneOf(keys), dice->between(0, 999) });
    return entries;
}

#endif

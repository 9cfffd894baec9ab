// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef STOREDVALUES_H
#define STOREDVALUES_H

#include "support/settingsjson.h"

#include <Kelto/AUTH_SET>

#include <QStringList>

/// A registry without an application name. It writes its configuration file.
///
/// Set values a/x = 1, a/y = "two" and top = 3.5.
/// Calculation values Attribute/E = 210000, Unit/E = "MPa" and the same for L = 2.5 without a unit.
/// Group g: k = 1, l = "two" and another k = 3. Group h: m = 4. Group empty: nothing.
/// Temporary values t = 1 and u = "two".
inline AUTH_SET filled()
{
    AUTH_SET set;
    set.setValueInSet("a/x", 1);
    set.setValueInSet("a/y", "two");
    set.setValueInSet("top", 3.5);
    set.getCalculationLData(
        { { "Attribute/E", 210000 }, { "Unit/E", "MPa" }, { "Attribute/L", 2.5 } });
    set.setDefaultSettings("g", { { "k", 1 }, { "l", "two" }, { "k", 3 } });
    set.setDefaultSettings("h", { { "m", 4 } });
    set.setDefaultSettings("empty", {});
    set.set_temp("t", 1);
    set.set_temp("u", "two");
    return set;
}

/// Everything that is stored, as far as it can be asked for.
inline QStringList state(const AUTH_SET &set)
{
    Entries values;
    for (const char *key : { "a/x", "a/y", "top" })
        values.append({ key, set.value_set(key) });
    for (const char *key : { "Attribute/E", "Unit/E", "Attribute/L", "Unit/L" })
        values.append({ key, set.value_cal(key) });
    for (const char *group : { "g", "h", "empty", "new" })
        values += set.value_group(group);
    for (const char *key : { "t", "u" })
        values.append({ key, set.value_temp(key) });
    return described(values);
}

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PARAMETERENTRY_P_H
#define PARAMETERENTRY_P_H

/// The places in a parameter entry. Files and generated source text hold entries in this order,
/// so it never changes; the two halves of the name and of the group are far apart for that reason.
namespace ParameterEntry {
enum Place {
    Group = 0,
    Key = 1,
    ObjectName = 2,
    Multi = 3,
    Unit = 4,
    SecondUnit = 5,
    Symbol = 6,
    TranslatedKey = 7,
    TranslatedGroup = 8,
    PlaceCount = 9
};
}

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ENTRY_H
#define ENTRY_H

/// The nine places of a parameter or result entry, in the order that Kelto fixes.
namespace Entry {
enum Place {
    Group,
    Key,
    ObjectName,
    Multi,
    Unit,
    SiUnit, ///< Kelto calls it the second unit string and leaves its meaning to the host.
    Symbol,
    TranslatedKey,
    TranslatedGroup,
    PlaceCount
};
}

#endif

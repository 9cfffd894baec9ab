// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FOLLOWERS_H
#define FOLLOWERS_H

#include "lint/rules.h"

/// @p findings of @p file without those that only follow from damage which is among them: from an
/// unclosed quote or a header without its bracket, for example. A finding follows when it is gone
/// from a copy in which the damage is mended. The damage itself always stays, and errors only
/// follow from errors, so that no file with an error is without one afterwards.
Findings withoutFollowers(const ItemFile &file, const Findings &findings);

#endif

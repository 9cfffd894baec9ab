// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef UNITBASE_H
#define UNITBASE_H

#include "units/unit.h"

/// What the library of units has under a name or a symbol, which may have a prefix. Can be called
/// from several threads, while the library itself cannot.
std::optional<Unit> unitOfSymbol(const QString &symbol);

#endif

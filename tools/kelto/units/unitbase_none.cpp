// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// For programs that are built without UDUNITS.

#include "units/unitbase.h"

std::optional<Unit> unitOfSymbol(const QString & /*symbol*/)
{
    return std::nullopt;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef UNITS_H
#define UNITS_H

#include <QString>

/// The factor from @p unit to SI units, such as 0.001 for "mm"; 0 for an unknown unit.
/// Temperatures stay in degrees Celsius.
double siFactor(const QString &unit);

#endif

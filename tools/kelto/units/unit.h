// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef UNIT_H
#define UNIT_H

#include <QMap>
#include <QString>

#include <optional>

/// A unit of measurement: how many of the coherent SI unit of its dimension it is. Where a scale
/// begins is left out: a degree Celsius is a kelvin.
struct Unit
{
    double factor = 1;
    /// The exponents of the SI base units, by their symbols, without zeros. Money counts as one
    /// more, angles and levels as numbers.
    QMap<QString, double> dimension;

    bool isCoherent() const { return qFuzzyCompare(factor, 1.0); }
};

/// Whether units can be read at all: the program was built with UDUNITS, and finds its definitions.
/// Otherwise no text is a unit.
bool areUnitsKnown();

/// The unit that @p text is, spelt as engineers do: "mm⁴", "kN/m", "MPa·√m", "r/min", "千牛". All
/// that stands behind a "/" is below it, as in "kJ/kg·K". What stands for no unit, such as "-", is
/// the number one. Nothing for a text that is no unit. Can be called from several threads.
std::optional<Unit> unitOf(const QString &text);

/// Whether the texts have the same symbols with the same powers: "m³/h" and "m^3/h", not "°C" and
/// "K". A number with the one means what it means with the other.
bool isSameUnit(const QString &text, const QString &other);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "units.h"

#include <QMap>
#include <QtMath>

double siFactor(const QString &unit)
{
    static const QMap<QString, double> factors {
        { "", 1 },           { "m", 1 },        { "mm", 1e-3 },   { "rad", 1 },
        { "°", M_PI / 180 }, { "N", 1 },        { "N/m", 1 },     { "N/mm", 1e3 },
        { "N·m", 1 },        { "N·mm", 1e-3 },  { "N·m/rad", 1 }, { "N·mm/°", 1e-3 * 180 / M_PI },
        { "Pa", 1 },         { "MPa", 1e6 },    { "°C", 1 },      { "W/m²", 1 },
        { "W/(m·K)", 1 },    { "W/(m²·K)", 1 }, { "m²·K/W", 1 },
    };
    return factors.value(unit, 0);
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "units.h"

#include <QMap>
#include <QtMath>

double siFactor(const QString &unit)
{
    static const QMap<QString, double> factors {
        { QString(), 1 },
        { QStringLiteral("m"), 1 },
        { QStringLiteral("mm"), 1e-3 },
        { QStringLiteral("rad"), 1 },
        { QStringLiteral("°"), M_PI / 180 },
        { QStringLiteral("N"), 1 },
        { QStringLiteral("N/m"), 1 },
        { QStringLiteral("N/mm"), 1e3 },
        { QStringLiteral("N·m"), 1 },
        { QStringLiteral("N·mm"), 1e-3 },
        { QStringLiteral("N·m/rad"), 1 },
        { QStringLiteral("N·mm/°"), 1e-3 * 180 / M_PI },
        { QStringLiteral("Pa"), 1 },
        { QStringLiteral("MPa"), 1e6 },
        { QStringLiteral("°C"), 1 },
        { QStringLiteral("W/m²"), 1 },
        { QStringLiteral("W/(m·K)"), 1 },
        { QStringLiteral("W/(m²·K)"), 1 },
        { QStringLiteral("m²·K/W"), 1 },
    };
    return factors.value(unit, 0);
}

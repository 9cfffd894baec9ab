// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "numbers.h"

#include <Kelto/KeltoItemParameterTransform>

#include <QCoreApplication>
#include <QMap>
#include <QStringList>
#include <QtMath>

#include <cmath>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Numbers)
};

} // namespace

double siFactor(const QString &unit)
{
    static const QMap<QString, double> factors {
        { QStringLiteral("-"), 1 },          { QStringLiteral("m"), 1 },
        { QStringLiteral("mm"), 1e-3 },      { QStringLiteral("rad"), 1 },
        { QStringLiteral("°"), M_PI / 180 }, { QStringLiteral("N"), 1 },
        { QStringLiteral("N/m"), 1 },        { QStringLiteral("N/mm"), 1e3 },
        { QStringLiteral("N·m"), 1 },        { QStringLiteral("N·mm"), 1e-3 },
        { QStringLiteral("N·m/rad"), 1 },    { QStringLiteral("N·mm/°"), 1e-3 * 180 / M_PI },
        { QStringLiteral("Pa"), 1 },         { QStringLiteral("MPa"), 1e6 },
        { QStringLiteral("°C"), 1 },         { QStringLiteral("W/m²"), 1 },
        { QStringLiteral("W/(m·K)"), 1 },    { QStringLiteral("W/(m²·K)"), 1 },
        { QStringLiteral("m²·K/W"), 1 },
    };
    return factors.value(unit, 0);
}

Outcome<QVariant> valueFromText(const QString &text, bool several)
{
    QStringList parts = several ? text.split(QLatin1Char(';')) : QStringList { text };
    for (QString &part : parts) {
        part = part.trimmed();
        bool isNumber = false;
        const double number = part.toDouble(&isNumber);
        if (!isNumber || !std::isfinite(number)) {
            const QString hint = several
                ? Texts::tr("\"%1\" is not a number. Write decimals with a point and separate the "
                            "numbers by semicolons, as in 0.5; 12.")
                : Texts::tr("\"%1\" is not a number. Write decimals with a point, as in 0.5.");
            return { {}, hint.arg(part) };
        }
    }
    return { several ? QVariant(parts) : QVariant(parts.first().toDouble()), {} };
}

QVector<double> numbersFromValue(const QVariant &value, bool several)
{
    if (several)
        return KeltoItemParameterTransform::to_array(value.toStringList());
    return { value.toDouble() };
}

QString textFromNumbers(QVector<double> numbers)
{
    for (double &number : numbers)
        number += 0.0; // turns a negative zero into a positive one
    return KeltoItemParameterTransform::from_array(numbers).join(QStringLiteral("; "));
}

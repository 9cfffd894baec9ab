// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef CURVE_H
#define CURVE_H

#include <QPointF>
#include <QString>
#include <QVector>

/// What one axis of a plot shows. Names are plain; they are translated in the context
/// "ModuleTexts".
struct Quantity
{
    Quantity() = default;
    explicit Quantity(const char *itsName)
        : Quantity(itsName, itsName)
    {
    }
    Quantity(const char *itsName, const char *unitOf)
        : name(QString::fromUtf8(itsName))
        , key(QString::fromUtf8(unitOf))
    {
    }

    QString name;
    /// The parameter or result of the module in whose unit the quantity is shown.
    QString key;
    /// Empty as long as the numbers are in SI units, as the formulas give them.
    QString unit;
};

/// A name with its unit, as it heads an axis or a column.
inline QString withUnit(const QString &name, const QString &unit)
{
    return unit.isEmpty() ? name : QString::fromLatin1("%1 [%2]").arg(name, unit);
}

/// A line of a plot. Curves with equal quantities belong into one plot.
struct Curve
{
    QString name;
    Quantity x;
    Quantity y;
    /// In the order of x. Two points with one x are a jump.
    QVector<QPointF> points;
};

/// The graph of a smooth function at equal steps, with both ends.
template <typename Function>
QVector<QPointF> sampled(const Function &valueAt, double from, double to)
{
    constexpr int steps = 60;
    QVector<QPointF> points;
    points.reserve(steps + 1);
    for (int i = 0; i < steps; ++i) {
        const double x = from + (to - from) * i / steps;
        points.append({ x, valueAt(x) });
    }
    points.append({ to, valueAt(to) });
    return points;
}

#endif

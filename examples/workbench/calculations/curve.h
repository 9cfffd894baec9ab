// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef CURVE_H
#define CURVE_H

#include <QCoreApplication>
#include <QPointF>
#include <QString>
#include <QVector>

/// What one axis of a plot shows. Names are plain; see translated().
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

    /// In a unit of its own.
    static Quantity in(const QString &itsName, const QString &itsUnit)
    {
        Quantity quantity;
        quantity.name = itsName;
        quantity.unit = itsUnit;
        return quantity;
    }

    QString name;
    /// The parameter or result of the module in whose unit the quantity is shown.
    QString key;
    /// Empty as long as the numbers are in SI units, as the formulas give them.
    QString unit;
};

/// A plain name from a module or a curve, as a person reads it.
inline QString translated(const QString &name)
{
    return QCoreApplication::translate("ModuleTexts", name.toUtf8().constData());
}

/// The name of a quantity with its unit, as it heads an axis or a column.
inline QString heading(const Quantity &quantity)
{
    const QString name = translated(quantity.name);
    return quantity.unit.isEmpty() ? name : QString::fromLatin1("%1 [%2]").arg(name, quantity.unit);
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

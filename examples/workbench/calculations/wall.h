// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef WALL_H
#define WALL_H

#include "curve.h"
#include "outcome.h"

#include <QVector>

/// Steady heat conduction in one dimension through a plane wall of layers in perfect contact, whose
/// conductivity does not depend on the temperature.
namespace Wall {

/// The layers from the inner to the outer side; both lists have one entry per layer.
struct Layers
{
    QVector<double> thickness; ///< m
    QVector<double> conductivity; ///< W/(m·K)
};

/// The air on one side of the wall.
struct Air
{
    double temperature = 0; ///< degrees Celsius
    double filmCoefficient = 0; ///< W/(m²·K), of convection and radiation together
};

struct Result
{
    double resistance = 0; ///< m²·K/W, with the air films if there are any
    double heatFlux = 0; ///< W/m², positive from the inner to the outer side
    /// Degrees Celsius, from the inner surface through every layer boundary to the outer surface.
    QVector<double> boundaryTemperatures;
    QVector<Curve> curves; ///< temperature over the depth from the inner surface
};

/// Fourier's law for known surface temperatures: heat flux (T1 - T2) / sum(s / lambda).
Outcome<Result> steady(const Layers &layers, double innerSurface, double outerSurface);

/// The same with Newton's law of cooling at both sides, for known air temperatures: the air films
/// add 1 / alpha each to the resistance.
Outcome<Result> withConvection(const Layers &layers, const Air &inner, const Air &outer);

} // namespace Wall

#endif

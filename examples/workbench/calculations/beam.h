// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef BEAM_H
#define BEAM_H

#include "curve.h"
#include "outcome.h"

/// A straight beam of constant section, after the Euler-Bernoulli beam theory: slender, elastic,
/// with small deflections; without shear deformation and own weight.
namespace Beam {

enum class Support { Cantilever, Simple, Fixed };
enum class Shape { Rectangle, RoundBar, RoundTube };

/// Only the dimensions of the shape count.
struct Section
{
    Shape shape = Shape::Rectangle;
    double width = 0; ///< m, of a rectangle
    double height = 0; ///< m, of a rectangle, in the direction of the loads
    double diameter = 0; ///< m, of a bar or a tube, outside
    double tubeThickness = 0; ///< m, of a tube
};

struct Input
{
    double length = 0; ///< m
    Section section;
    double elasticModulus = 0; ///< Pa
    double pointLoad = 0; ///< N, at the free end of a cantilever, else at midspan
    double lineLoad = 0; ///< N/m, uniformly distributed over the whole length
};

/// The largest magnitudes along the beam.
struct Result
{
    double deflection = 0; ///< m
    double slope = 0; ///< rad
    double shearForce = 0; ///< N
    double bendingMoment = 0; ///< N·m
    double bendingStress = 0; ///< Pa, in the outer fibre
    /// Deflection (positive in the direction of the loads), bending moment (positive where the side
    /// away from the loads is in tension) and shear force (the rise of the moment) along the beam.
    QVector<Curve> curves;
};

/**
 * Integrates the shear force from the left end, where a cantilever is held, to the point load:
 *
 *     V = V0 - q x,   M = M0 + V0 x - q x^2 / 2,   E I w'' = -M
 *
 * That is all of a cantilever and one half of the other beams, which are symmetric. With the sum
 * Q = q L, the left end has
 *
 * |            | force V0    | moment M0          | slope                   |
 * |------------|-------------|--------------------|-------------------------|
 * | cantilever | F + Q       | -(F + Q/2) L       | 0                       |
 * | simple     | (F + Q) / 2 | 0                  | (F/16 + Q/24) L^2 / E I |
 * | fixed      | (F + Q) / 2 | -(F/8 + Q/12) L    | 0                       |
 *
 * Where the largest values are is known for loads in one direction only, so negative ones are
 * refused.
 */
Outcome<Result> calculate(Support support, const Input &input);

} // namespace Beam

#endif

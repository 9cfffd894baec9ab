// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef BEAM_H
#define BEAM_H

#include "outcome.h"

/// A straight beam of constant rectangular section, after the Euler-Bernoulli beam theory.
namespace Beam {

enum class Support { Cantilever, Simple, Fixed };

struct Input
{
    double length = 0; ///< m
    double width = 0; ///< m, of the section
    double height = 0; ///< m, of the section, in the direction of the loads
    double elasticModulus = 0; ///< Pa
    double pointLoad = 0; ///< N, at the free end of a cantilever, else at midspan
    double lineLoad = 0; ///< N/m, uniformly distributed over the whole length
};

/// The largest magnitudes along the beam.
struct Result
{
    double deflection = 0; ///< m
    double slope = 0; ///< rad
    double bendingMoment = 0; ///< N·m
    double bendingStress = 0; ///< Pa, in the outer fibre
};

/**
 * Adds up the standard load cases of the point load F and of the line load with the sum Q = q L;
 * with second moment of area I = b h^3 / 12 and section modulus W = b h^2 / 6:
 *
 * |            | deflection                  | slope                     | moment           |
 * |------------|-----------------------------|---------------------------|------------------|
 * | cantilever | (F/3 + Q/8) L^3 / EI        | (F/2 + Q/6) L^2 / EI      | (F + Q/2) L      |
 * | simple     | (F/48 + 5 Q/384) L^3 / EI   | (F/16 + Q/24) L^2 / EI    | (F/4 + Q/8) L    |
 * | fixed      | (F/192 + Q/384) L^3 / EI    | where F and Q together    | (F/8 + Q/12) L   |
 * |            |                             | make it largest           |                  |
 *
 * The bending stress is the moment divided by W. The tables hold for loads in one direction, so
 * negative ones are refused.
 */
Outcome<Result> calculate(Support support, const Input &input);

} // namespace Beam

#endif

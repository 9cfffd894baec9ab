// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SPRING_H
#define SPRING_H

#include "curve.h"
#include "outcome.h"

/// Cylindrical helical springs of round wire, after the formulas of A. M. Wahl. Only the active
/// coils deform; hooks and legs are left out.
namespace Spring {

struct Coil
{
    double wireDiameter = 0; ///< d, m
    double meanDiameter = 0; ///< D, m, from wire centre to wire centre
    double activeCoils = 0; ///< n
};

/// How the wire ends at both sides of a compression spring.
enum class Ends { ClosedAndGround, Closed, PlainAndGround, Plain };

/// A spring that is pressed or pulled along its axis.
struct AxialResult
{
    double rate = 0; ///< N/m
    double curvatureFactor = 0;
    double shearStress = 0; ///< Pa, at the inner side of the coil
    double deflection = 0; ///< m
    double solidLength = 0; ///< m, of a compression spring
    QVector<Curve> curves; ///< force over travel, up to the force
};

/// A spring that is twisted about its axis.
struct TorsionResult
{
    double rate = 0; ///< N·m/rad
    double curvatureFactor = 0;
    double bendingStress = 0; ///< Pa, at the inner side of the coil
    double angle = 0; ///< rad
    QVector<Curve> curves; ///< torque over angle, up to the torque
};

/**
 * Rate G d^4 / (8 D^3 n), shear stress K 8 F D / (pi d^3) with the Wahl factor
 * K = (4C - 1) / (4C - 4) + 0.615 / C for the spring index C = D / d, deflection F / rate.
 *
 * Solid length: (n + 2) d with ends that are closed and ground, (n + 3) d closed only, (n + 1) d
 * plain, be they ground or not.
 *
 * @param shearModulus G in Pa
 * @param force F in N, not negative; one that presses the spring further than solid is refused
 * @param freeLength length without load in m
 */
Outcome<AxialResult> compression(const Coil &coil, Ends ends, double shearModulus, double force,
                                 double freeLength);

/**
 * As compression(), but the coils open only when the force exceeds the initial tension F0:
 * deflection (F - F0) / rate.
 */
Outcome<AxialResult> extension(const Coil &coil, double shearModulus, double force,
                               double initialTension);

/**
 * Rate E d^4 / (64 D n), bending stress Ki 32 M / (pi d^3) with the factor of the inner fibre
 * Ki = (4C^2 - C - 1) / (4C (C - 1)), angle of twist M / rate.
 *
 * @param elasticModulus E in Pa
 * @param torque M in N·m
 */
Outcome<TorsionResult> torsion(const Coil &coil, double elasticModulus, double torque);

} // namespace Spring

#endif

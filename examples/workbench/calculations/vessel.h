// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef VESSEL_H
#define VESSEL_H

#include "curve.h"
#include "outcome.h"

/// A cylindrical pressure vessel with closed ends, away from the ends.
namespace Vessel {

struct Shell
{
    double innerDiameter = 0; ///< d, m
    double thickness = 0; ///< t, m
    double elasticModulus = 0; ///< E, Pa
    double poissonRatio = 0; ///< nu
};

/// The stress at one place of the wall.
struct Profile
{
    double inner = 0; ///< Pa, at the inner surface
    double middle = 0; ///< Pa, in the middle of the wall
    double outer = 0; ///< Pa, at the outer surface
};

struct Result
{
    Profile hoop;
    Profile radial;
    double axial = 0; ///< Pa, the same everywhere in the wall
    double diameterGrowth = 0; ///< m, of the inner diameter
    QVector<Curve> curves; ///< hoop and radial stress over the radius
};

/**
 * Membrane theory (Barlow's formula on the inner diameter): hoop p d / (2 t) and axial p d / (4 t)
 * throughout the wall, radial falling linearly from -p inside to 0 outside. The diameter grows by
 * d (hoop - nu axial) / E.
 *
 * It holds for walls of at most a tenth of the inner radius; a thicker one is refused.
 *
 * @param internalPressure p in Pa above the pressure outside
 */
Outcome<Result> thinWall(const Shell &shell, double internalPressure);

/**
 * Lamé's equations: radial A - B / r^2 and hoop A + B / r^2 at the radius r, axial A, where for the
 * radii a inside and b outside A = (pi a^2 - po b^2) / (b^2 - a^2) and
 * B = (pi - po) a^2 b^2 / (b^2 - a^2). The diameter grows by d (hoop - nu (radial + axial)) / E
 * with the stresses at the inner surface.
 *
 * @param externalPressure po in Pa
 */
Outcome<Result> thickWall(const Shell &shell, double internalPressure, double externalPressure);

} // namespace Vessel

#endif

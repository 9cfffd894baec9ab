// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "spring.h"

#include "inputcheck.h"

#include <QCoreApplication>
#include <QtMath>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Spring)
};

InputCheck checkedCoil(const Spring::Coil &coil)
{
    InputCheck check;
    check.positive("Wire diameter", coil.wireDiameter)
        .positive("Mean coil diameter", coil.meanDiameter)
        .positive("Active coils", coil.activeCoils)
        .require(coil.meanDiameter > coil.wireDiameter,
                 Texts::tr("%1: enter more than the wire diameter, or the coil has no inside.")
                     .arg(InputCheck::nameOf("Mean coil diameter")));
    return check;
}

double cube(double value)
{
    return value * value * value;
}

Spring::AxialResult axial(const Spring::Coil &coil, double shearModulus, double force)
{
    const double d = coil.wireDiameter;
    const double index = coil.meanDiameter / d;
    Spring::AxialResult result;
    result.rate = shearModulus * d / (8 * cube(index) * coil.activeCoils);
    result.curvatureFactor = (4 * index - 1) / (4 * index - 4) + 0.615 / index;
    result.shearStress = result.curvatureFactor * 8 * force * index / (M_PI * d * d);
    result.deflection = force / result.rate;
    return result;
}

QString resultProblem(const Spring::AxialResult &result)
{
    return InputCheck()
        .finite({ result.rate, result.curvatureFactor, result.shearStress, result.deflection })
        .problem();
}

} // namespace

Outcome<Spring::AxialResult> Spring::compression(const Coil &coil, double shearModulus,
                                                 double force, double freeLength)
{
    const double solidLength = (coil.activeCoils + 2) * coil.wireDiameter;
    const InputCheck check = checkedCoil(coil)
                                 .positive("Shear modulus", shearModulus)
                                 .notNegative("Force", force)
                                 .positive("Free length", freeLength)
                                 .require(freeLength >= solidLength,
                                          Texts::tr("%1: enter at least the solid length of %2 mm.")
                                              .arg(InputCheck::nameOf("Free length"))
                                              .arg(solidLength * 1000));
    if (!check.isPassed())
        return { {}, check.problem() };

    const AxialResult result = axial(coil, shearModulus, force);
    const double travel = freeLength - solidLength;
    if (result.deflection > travel)
        return { {},
                 Texts::tr("%1: the coils touch at %2 N. Enter less, or make the spring longer or "
                           "stiffer.")
                     .arg(InputCheck::nameOf("Force"))
                     .arg(result.rate * travel) };
    return { result, resultProblem(result) };
}

Outcome<Spring::AxialResult> Spring::extension(const Coil &coil, double shearModulus, double force,
                                               double initialTension)
{
    const InputCheck check
        = checkedCoil(coil)
              .positive("Shear modulus", shearModulus)
              .notNegative("Force", force)
              .notNegative("Initial tension", initialTension)
              .require(force >= initialTension,
                       Texts::tr("%1: enter at least the initial tension; below it the coils stay "
                                 "closed.")
                           .arg(InputCheck::nameOf("Force")));
    if (!check.isPassed())
        return { {}, check.problem() };

    AxialResult result = axial(coil, shearModulus, force);
    result.deflection = (force - initialTension) / result.rate;
    return { result, resultProblem(result) };
}

Outcome<Spring::TorsionResult> Spring::torsion(const Coil &coil, double elasticModulus,
                                               double torque)
{
    const InputCheck check = checkedCoil(coil)
                                 .positive("Elastic modulus", elasticModulus)
                                 .notNegative("Torque", torque);
    if (!check.isPassed())
        return { {}, check.problem() };

    const double d = coil.wireDiameter;
    const double index = coil.meanDiameter / d;
    TorsionResult result;
    result.rate = elasticModulus * cube(d) / (64 * index * coil.activeCoils);
    result.curvatureFactor = (4 * index * index - index - 1) / (4 * index * (index - 1));
    result.bendingStress = result.curvatureFactor * 32 * torque / (M_PI * cube(d));
    result.angle = torque / result.rate;
    return { result,
             InputCheck()
                 .finite(
                     { result.rate, result.curvatureFactor, result.bendingStress, result.angle })
                 .problem() };
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "spring.h"

#include "inputcheck.h"

#include <QCoreApplication>
#include <QtMath>

using namespace Spring;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Spring)
};

InputCheck checkedCoil(const Coil &coil)
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

double solidLengthOf(const Coil &coil, Ends ends)
{
    double further = 0; // wire diameters beside those of the active coils
    switch (ends) {
    case Ends::ClosedAndGround:
        further = 2;
        break;
    case Ends::Closed:
        further = 3;
        break;
    case Ends::PlainAndGround:
    case Ends::Plain:
        further = 1;
        break;
    }
    return (coil.activeCoils + further) * coil.wireDiameter;
}

AxialResult axial(const Coil &coil, double shearModulus, double force)
{
    const double d = coil.wireDiameter;
    const double index = coil.meanDiameter / d;
    AxialResult result;
    result.rate = shearModulus * d / (8 * cube(index) * coil.activeCoils);
    result.curvatureFactor = (4 * index - 1) / (4 * index - 4) + 0.615 / index;
    result.shearStress = result.curvatureFactor * 8 * force * index / (M_PI * d * d);
    result.deflection = force / result.rate;
    return result;
}

Curve characteristic(const char *travel, const char *load, const QVector<QPointF> &points)
{
    return { QString::fromUtf8(QT_TRANSLATE_NOOP("ModuleTexts", "Spring characteristic")),
             Quantity(travel), Quantity(load), points };
}

Outcome<AxialResult> withForces(AxialResult result, const QVector<QPointF> &points)
{
    result.curves = { characteristic("Spring deflection", "Force", points) };
    return { result,
             InputCheck()
                 .finite(
                     { result.rate, result.curvatureFactor, result.shearStress, result.deflection })
                 .problem() };
}

} // namespace

Outcome<AxialResult> Spring::compression(const Coil &coil, Ends ends, double shearModulus,
                                         double force, double freeLength)
{
    const double solidLength = solidLengthOf(coil, ends);
    const InputCheck check = checkedCoil(coil)
                                 .positive("Shear modulus", shearModulus)
                                 .positive("Free length", freeLength)
                                 .require(freeLength >= solidLength,
                                          Texts::tr("%1: enter at least the solid length of %2 mm.")
                                              .arg(InputCheck::nameOf("Free length"))
                                              .arg(solidLength * 1000));
    if (!check.isPassed())
        return { {}, check.problem() };

    AxialResult result = axial(coil, shearModulus, force);
    result.solidLength = solidLength;
    const double travel = freeLength - solidLength;
    if (result.deflection > travel)
        return { {},
                 Texts::tr("%1: the coils touch at %2 N. Enter less, or make the spring longer or "
                           "stiffer.")
                     .arg(InputCheck::nameOf("Force"))
                     .arg(result.rate * travel) };
    return withForces(result, { { 0, 0 }, { result.deflection, force } });
}

Outcome<AxialResult> Spring::extension(const Coil &coil, double shearModulus, double force,
                                       double initialTension)
{
    const InputCheck check
        = checkedCoil(coil)
              .positive("Shear modulus", shearModulus)
              .require(force >= initialTension,
                       Texts::tr("%1: enter at least the initial tension; below it the coils stay "
                                 "closed.")
                           .arg(InputCheck::nameOf("Force")));
    if (!check.isPassed())
        return { {}, check.problem() };

    AxialResult result = axial(coil, shearModulus, force);
    result.deflection = (force - initialTension) / result.rate;
    return withForces(result, { { 0, 0 }, { 0, initialTension }, { result.deflection, force } });
}

Outcome<TorsionResult> Spring::torsion(const Coil &coil, double elasticModulus, double torque)
{
    const InputCheck check = checkedCoil(coil).positive("Elastic modulus", elasticModulus);
    if (!check.isPassed())
        return { {}, check.problem() };

    const double d = coil.wireDiameter;
    const double index = coil.meanDiameter / d;
    TorsionResult result;
    result.rate = elasticModulus * cube(d) / (64 * index * coil.activeCoils);
    result.curvatureFactor = (4 * index * index - index - 1) / (4 * index * (index - 1));
    result.bendingStress = result.curvatureFactor * 32 * torque / (M_PI * cube(d));
    result.angle = torque / result.rate;
    result.curves
        = { characteristic("Angle of twist", "Torque", { { 0, 0 }, { result.angle, torque } }) };
    return { result,
             InputCheck()
                 .finite(
                     { result.rate, result.curvatureFactor, result.bendingStress, result.angle })
                 .problem() };
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "vessel.h"

#include "inputcheck.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Vessel)
};

InputCheck checkedWall(double innerDiameter, double thickness, double internalPressure)
{
    InputCheck check;
    check.positive("Inner diameter", innerDiameter)
        .positive("Wall thickness", thickness)
        .notNegative("Internal pressure", internalPressure);
    return check;
}

QString resultProblem(const Vessel::Result &result)
{
    return InputCheck()
        .finite({ result.hoop.inner, result.hoop.middle, result.hoop.outer, result.radial.inner,
                  result.radial.middle, result.radial.outer, result.axial })
        .problem();
}

} // namespace

Outcome<Vessel::Result> Vessel::thinWall(double innerDiameter, double thickness,
                                         double internalPressure)
{
    const double thickest = innerDiameter / 20;
    const InputCheck check
        = checkedWall(innerDiameter, thickness, internalPressure)
              .require(thickness <= thickest,
                       Texts::tr("%1: enter at most %2 mm, a tenth of the inner radius, or choose "
                                 "the task for thick walls.")
                           .arg(InputCheck::nameOf("Wall thickness"))
                           .arg(thickest * 1000));
    if (!check.isPassed())
        return { {}, check.problem() };

    const double p = internalPressure;
    const double hoop = p * innerDiameter / (2 * thickness);
    const Result result { { hoop, hoop, hoop }, { -p, -p / 2, 0 }, hoop / 2 };
    return { result, resultProblem(result) };
}

Outcome<Vessel::Result> Vessel::thickWall(double innerDiameter, double thickness,
                                          double internalPressure, double externalPressure)
{
    const InputCheck check = checkedWall(innerDiameter, thickness, internalPressure)
                                 .notNegative("External pressure", externalPressure);
    if (!check.isPassed())
        return { {}, check.problem() };

    const double a = innerDiameter / 2;
    const double b = a + thickness;
    const double ring = thickness * (a + b); // b^2 - a^2 without cancellation
    const double mean = (internalPressure * a * a - externalPressure * b * b) / ring;
    const double swing = (internalPressure - externalPressure) * a * a * b * b / ring;
    const auto hoop = [&](double r) { return mean + swing / (r * r); };
    const double middle = (a + b) / 2;
    // At the surfaces it is the pressure itself, without the rounding error that would show at
    // zero.
    const Profile radial { -internalPressure, mean - swing / (middle * middle), -externalPressure };
    const Result result { { hoop(a), hoop(middle), hoop(b) }, radial, mean };
    return { result, resultProblem(result) };
}

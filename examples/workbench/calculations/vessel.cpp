// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "vessel.h"

#include "inputcheck.h"

#include <QCoreApplication>

using namespace Vessel;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Vessel)
};

InputCheck checkedShell(const Shell &shell)
{
    InputCheck check;
    check.positive("Inner diameter", shell.innerDiameter)
        .positive("Wall thickness", shell.thickness)
        .positive("Elastic modulus", shell.elasticModulus);
    return check;
}

Curve overRadius(const char *name, const QVector<QPointF> &points)
{
    return { QString::fromUtf8(name),
             { QT_TRANSLATE_NOOP("ModuleTexts", "Radius"), "Inner diameter" },
             { QT_TRANSLATE_NOOP("ModuleTexts", "Stress"), "Hoop stress inside" },
             points };
}

/// @param hoop and @p radial stress by radius
template <typename Hoop, typename Radial>
Outcome<Result> resultOf(const Shell &shell, const Hoop &hoop, const Radial &radial, double axial,
                         double hoopStrain)
{
    const double inside = shell.innerDiameter / 2;
    const double outside = inside + shell.thickness;
    const double middle = (inside + outside) / 2;
    Result result;
    result.hoop = { hoop(inside), hoop(middle), hoop(outside) };
    result.radial = { radial(inside), radial(middle), radial(outside) };
    result.axial = axial;
    result.diameterGrowth = shell.innerDiameter * hoopStrain;
    result.curves = { overRadius(QT_TRANSLATE_NOOP("ModuleTexts", "Hoop stress"),
                                 sampled(hoop, inside, outside)),
                      overRadius(QT_TRANSLATE_NOOP("ModuleTexts", "Radial stress"),
                                 sampled(radial, inside, outside)) };
    return { result,
             InputCheck()
                 .finite({ result.hoop.inner, result.hoop.middle, result.hoop.outer,
                           result.radial.inner, result.radial.middle, result.radial.outer,
                           result.axial, result.diameterGrowth })
                 .problem() };
}

} // namespace

Outcome<Result> Vessel::thinWall(const Shell &shell, double internalPressure)
{
    const double thickest = shell.innerDiameter / 20;
    const InputCheck check
        = checkedShell(shell).require(shell.thickness <= thickest,
                                      Texts::tr("%1: enter at most %2 mm, a tenth of the inner "
                                                "radius, or choose the task for thick walls.")
                                          .arg(InputCheck::nameOf("Wall thickness"))
                                          .arg(thickest * 1000));
    if (!check.isPassed())
        return { {}, check.problem() };

    const double membrane = internalPressure * shell.innerDiameter / (2 * shell.thickness);
    const double axial = membrane / 2;
    const double outside = shell.innerDiameter / 2 + shell.thickness;
    const auto hoop = [=](double) { return membrane; };
    const auto radial
        = [=](double r) { return internalPressure * (r - outside) / shell.thickness; };
    const double strain = (membrane - shell.poissonRatio * axial) / shell.elasticModulus;
    return resultOf(shell, hoop, radial, axial, strain);
}

Outcome<Result> Vessel::thickWall(const Shell &shell, double internalPressure,
                                  double externalPressure)
{
    const InputCheck check = checkedShell(shell);
    if (!check.isPassed())
        return { {}, check.problem() };

    const double a = shell.innerDiameter / 2;
    const double b = a + shell.thickness;
    // The difference of two squares without cancellation.
    const auto ring = [](double outer, double inner) { return (outer - inner) * (outer + inner); };
    const double axial
        = (internalPressure * a * a - externalPressure * b * b) / (shell.thickness * (a + b));
    // A - B / r^2, sorted by pressure: each vanishes exactly at the surface of the other.
    const auto radial = [=](double r) {
        const double inner = internalPressure * a * a * ring(b, r);
        const double outer = externalPressure * b * b * ring(r, a);
        return -(inner + outer) / (r * r * ring(b, a));
    };
    const auto hoop = [=](double r) { return 2 * axial - radial(r); };
    const double strain
        = (hoop(a) - shell.poissonRatio * (radial(a) + axial)) / shell.elasticModulus;
    return resultOf(shell, hoop, radial, axial, strain);
}

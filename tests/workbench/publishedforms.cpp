// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "publishedforms.h"

#include <QtMath>

namespace {

double fourth(double value)
{
    return std::pow(value, 4);
}

/// Second moment of area and section modulus, by radii.
QPair<double, double> sectionOf(const Given &in)
{
    if (in.text("Section") == "rectangle") {
        const double modulus = in("Section width") * std::pow(in("Section height"), 2) / 6;
        return { modulus * in("Section height") / 2, modulus };
    }
    const double outer = in("Section diameter") / 2;
    const double inner = in.text("Section") == "tube" ? outer - in("Tube wall thickness") : 0;
    const double moment = M_PI / 4 * (fourth(outer) - fourth(inner));
    return { moment, moment / outer };
}

/// The largest slope of a beam fixed at both ends, found by dividing the left half: the slopes of
/// the two load cases are the derivatives of F x^2 (3L - 4x) / 48 EI and q x^2 (L - x)^2 / 24 EI.
double steepest(double F, double q, double L)
{
    const auto slope
        = [=](double x) { return F * x * (L - 2 * x) / 8 + q * x * (L - x) * (L - 2 * x) / 12; };
    double from = 0;
    double to = L / 2;
    for (int i = 0; i < 100; ++i) {
        const double third = (to - from) / 3;
        if (slope(from + third) < slope(to - third))
            from += third;
        else
            to -= third;
    }
    return slope(from);
}

/// The tables of standard load cases of a point load and a line load, added up.
NumbersByKey beamTables(const QString &task, const Given &in)
{
    const double L = in("Length");
    const double F = in("Point load");
    const double q = in("Line load");
    const double Q = q * L;
    const auto section = sectionOf(in);
    const double EI = in("Elastic modulus") * section.first;
    double w = (F / 3 + Q / 8) * L * L * L / EI;
    double slope = (F / 2 + Q / 6) * L * L / EI;
    double V = F + Q;
    double M = (F + Q / 2) * L;
    if (task == simple) {
        w = (F / 48 + 5 * Q / 384) * L * L * L / EI;
        slope = (F / 16 + Q / 24) * L * L / EI;
        V /= 2;
        M = (F / 4 + Q / 8) * L;
    } else if (task == fixedBeam) {
        w = (F / 192 + Q / 384) * L * L * L / EI;
        slope = steepest(F, q, L) / EI;
        V /= 2;
        M = (F / 8 + Q / 12) * L;
    }
    return { { "Deflection", { w } },
             { "Slope", { qRadiansToDegrees(slope) } },
             { "Shear force", { V } },
             { "Bending moment", { M / 1000 } },
             { "Bending stress", { M / section.second } } };
}

/// The wire as a straight bar of the length pi D n, twisted or bent: Castigliano's theorem. The
/// factors are those of the sources in partial fractions.
NumbersByKey springEnergy(const QString &task, const Given &in)
{
    const double d = in("Wire diameter");
    const double C = in("Mean coil diameter") / d;
    const double n = in("Active coils");
    const double wire = M_PI * C * d * n;
    const double inertia = M_PI * fourth(d) / 64;
    if (task == torsion) {
        const double M = in("Torque");
        const double angle = qRadiansToDegrees(M * wire / (in("Elastic modulus") * inertia));
        const double K = 1 + 0.25 / C + 0.5 / (C - 1);
        return { { "Torsional rate", { M / angle } },
                 { "Angle of twist", { angle } },
                 { "Curvature factor", { K } },
                 { "Bending stress", { K * M * d / 2 / inertia } } };
    }
    const double arm = C * d / 2;
    const double F = in("Force");
    const double softness = arm * arm * wire / (in("Shear modulus") * 2 * inertia);
    const double K = 1 + 0.75 / (C - 1) + 0.615 / C;
    NumbersByKey results { { "Spring rate", { 1 / softness } },
                           { "Spring deflection", { (F - in("Initial tension")) * softness } },
                           { "Curvature factor", { K } },
                           { "Shear stress", { K * F * arm * d / 2 / (2 * inertia) } } };
    if (task == compression) {
        // Total coils, and half a wire at each end that is not ground.
        const QMap<QString, double> further {
            { "closed-ground", 2 }, { "closed", 2 + 1 }, { "plain-ground", 1 }, { "plain", 0 + 1 }
        };
        results["Solid length"] = { (n + further.value(in.text("Spring ends"))) * d };
    }
    return results;
}

/// Each pressure alone, after Roark, and added up.
NumbersByKey vesselTables(const QString &task, const Given &in)
{
    const double a = in("Inner diameter") / 2;
    const double t = in("Wall thickness");
    const double b = a + t;
    const double p = in("Internal pressure");
    const double po = in("External pressure");
    const double E = in("Elastic modulus");
    const double nu = in("Poisson ratio");
    const double span = b * b - a * a;
    auto hoop = [=](double r) {
        return (p * a * a * (b * b + r * r) - po * b * b * (a * a + r * r)) / (r * r * span);
    };
    auto radial = [=](double r) {
        return -(p * a * a * (b * b - r * r) + po * b * b * (r * r - a * a)) / (r * r * span);
    };
    double axial = (p * a * a - po * b * b) / span;
    double growth = 2 * a / E
        * (p * (a * a * (1 - 2 * nu) + b * b * (1 + nu)) - po * b * b * (2 - nu)) / span;
    double hoops[] = { hoop(a), hoop(a + t / 2), hoop(b) };
    double radials[] = { radial(a), radial(a + t / 2), radial(b) };
    if (task == thin) {
        std::fill(std::begin(hoops), std::end(hoops), p * a / t);
        radials[1] = -p / 2;
        radials[2] = 0;
        radials[0] = -p;
        axial = p * a / (2 * t);
        growth = 2 * p * a * a / (E * t) * (1 - nu / 2);
    }
    return { { "Hoop stress inside", { hoops[0] } },
             { "Hoop stress mid-wall", { hoops[1] } },
             { "Hoop stress outside", { hoops[2] } },
             { "Radial stress inside", { radials[0] } },
             { "Radial stress mid-wall", { radials[1] } },
             { "Radial stress outside", { radials[2] } },
             { "Axial stress", { axial } },
             { "Diameter growth", { growth } } };
}

/// From the heat flux through layer after layer.
NumbersByKey wallSteps(const QString &task, const Given &in)
{
    const bool hasAir = task == convection;
    const QVector<double> thickness = in.list("Layer thickness");
    const QVector<double> conductivity = in.list("Layer conductivity");
    const double warm = in(hasAir ? "Inner air temperature" : "Inner surface temperature");
    const double cold = in(hasAir ? "Outer air temperature" : "Outer surface temperature");
    double resistance = 0;
    for (int i = 0; i < thickness.size(); ++i)
        resistance += thickness.at(i) / 1000 / conductivity.at(i);
    if (hasAir)
        resistance += 1 / in("Inner film coefficient") + 1 / in("Outer film coefficient");
    const double flux = (warm - cold) / resistance;
    QVector<double> temperatures { hasAir ? warm - flux / in("Inner film coefficient") : warm };
    for (int i = 0; i < thickness.size(); ++i)
        temperatures.append(temperatures.last()
                            - flux * thickness.at(i) / 1000 / conductivity.at(i));
    return { { "Thermal resistance", { resistance } },
             { "Heat flux", { flux } },
             { "Boundary temperatures", temperatures } };
}

} // namespace

NumbersByKey published(const QString &task, const Changes &changes)
{
    const Given in(task, changes);
    if (task.startsWith("Beam"))
        return beamTables(task, in);
    if (task.startsWith("Helical"))
        return springEnergy(task, in);
    return task.startsWith("Pressure") ? vesselTables(task, in) : wallSteps(task, in);
}

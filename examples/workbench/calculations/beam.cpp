// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "beam.h"

#include "inputcheck.h"

#include <QCoreApplication>
#include <QtMath>

#include <cmath>

using namespace Beam;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Beam)
};

double fourthPower(double value)
{
    return value * value * value * value;
}

double secondMomentOfArea(const Section &section)
{
    const double d = section.diameter;
    switch (section.shape) {
    case Shape::Rectangle:
        return section.width * section.height * section.height * section.height / 12;
    case Shape::RoundBar:
        return M_PI * fourthPower(d) / 64;
    case Shape::RoundTube:
        break;
    }
    // pi (d^4 - di^4) / 64 without cancellation.
    const double inner = d - 2 * section.tubeThickness;
    return M_PI * section.tubeThickness * (d + inner) * (d * d + inner * inner) / 32;
}

double heightOf(const Section &section)
{
    return section.shape == Shape::Rectangle ? section.height : section.diameter;
}

/// The beam from its left end to the point load.
struct ElasticLine
{
    double reach = 0; ///< m, from the left end to the point load
    double force = 0; ///< N, shear force at the left end
    double momentAtEnd = 0; ///< N·m, at the left end
    double slopeAtEnd = 0; ///< rad, at the left end
    double lineLoad = 0; ///< N/m
    double stiffness = 0; ///< N·m², E I

    double shear(double x) const { return force - lineLoad * x; }
    double moment(double x) const { return momentAtEnd + x * (force - lineLoad * x / 2); }
    double slope(double x) const
    {
        return slopeAtEnd - x * (momentAtEnd + x * (force / 2 - lineLoad * x / 6)) / stiffness;
    }
    double deflection(double x) const
    {
        const double bend = momentAtEnd / 2 + x * (force / 6 - lineLoad * x / 24);
        return x * (slopeAtEnd - x * bend / stiffness);
    }

    /// Where a beam that is held at its left end changes from hogging to sagging.
    double momentZero() const
    {
        if (force <= 0)
            return 0;
        // The smaller root of M, in a form that also holds without line load.
        const double arm = -momentAtEnd / force;
        return 2 * arm / (1 + std::sqrt(1 - 2 * lineLoad / force * arm));
    }
};

ElasticLine elasticLine(Support support, const Input &input)
{
    const double length = input.length;
    const double F = input.pointLoad;
    const double Q = input.lineLoad * length;
    ElasticLine line;
    line.lineLoad = input.lineLoad;
    line.stiffness = input.elasticModulus * secondMomentOfArea(input.section);
    line.reach = support == Support::Cantilever ? length : length / 2;
    line.force = support == Support::Cantilever ? F + Q : (F + Q) / 2;
    switch (support) {
    case Support::Cantilever:
        line.momentAtEnd = -(F + Q / 2) * length;
        break;
    case Support::Simple:
        line.slopeAtEnd = (F / 16 + Q / 24) * length * length / line.stiffness;
        break;
    case Support::Fixed:
        line.momentAtEnd = -(F / 8 + Q / 12) * length;
        break;
    }
    return line;
}

double steepestPoint(Support support, const ElasticLine &line)
{
    switch (support) {
    case Support::Cantilever:
        return line.reach;
    case Support::Simple:
        return 0;
    case Support::Fixed:
        break;
    }
    return line.momentZero();
}

/// @param mirrored the sign that the quantity has in the other half of a symmetric beam
Curve along(Support support, const ElasticLine &line, const char *name,
            double (ElasticLine::*quantity)(double) const, double mirrored)
{
    Curve curve { QString::fromUtf8(name),
                  Quantity(QT_TRANSLATE_NOOP("ModuleTexts", "Position"), "Length"), Quantity(name),
                  sampled([&](double x) { return (line.*quantity)(x); }, 0, line.reach) };
    if (support == Support::Cantilever)
        return curve;
    for (int i = curve.points.size() - 1; i >= 0; --i) {
        const QPointF point = curve.points.at(i);
        curve.points.append({ 2 * line.reach - point.x(), mirrored * point.y() });
    }
    return curve;
}

QString sectionProblem(const Section &section)
{
    InputCheck check;
    if (section.shape == Shape::Rectangle) {
        check.positive("Section width", section.width).positive("Section height", section.height);
        return check.problem();
    }
    check.positive("Section diameter", section.diameter);
    if (section.shape == Shape::RoundTube)
        check.positive("Tube wall thickness", section.tubeThickness)
            .require(2 * section.tubeThickness <= section.diameter,
                     Texts::tr("%1: enter at most half of the diameter.")
                         .arg(InputCheck::nameOf("Tube wall thickness")));
    return check.problem();
}

QString inputProblem(const Input &input)
{
    const QString section = sectionProblem(input.section);
    return InputCheck()
        .positive("Length", input.length)
        .require(section.isEmpty(), section)
        .positive("Elastic modulus", input.elasticModulus)
        .notNegative("Point load", input.pointLoad)
        .notNegative("Line load", input.lineLoad)
        .problem();
}

} // namespace

Outcome<Result> Beam::calculate(Support support, const Input &input)
{
    const QString problem = inputProblem(input);
    if (!problem.isEmpty())
        return { {}, problem };

    const ElasticLine line = elasticLine(support, input);
    Result result;
    result.deflection = line.deflection(line.reach);
    result.slope = line.slope(steepestPoint(support, line));
    result.shearForce = line.force;
    result.bendingMoment
        = support == Support::Simple ? line.moment(line.reach) : std::abs(line.momentAtEnd);
    const double outerFibre = heightOf(input.section) / 2;
    result.bendingStress = result.bendingMoment / secondMomentOfArea(input.section) * outerFibre;
    result.curves = { along(support, line, "Deflection", &ElasticLine::deflection, 1),
                      along(support, line, "Bending moment", &ElasticLine::moment, 1),
                      along(support, line, "Shear force", &ElasticLine::shear, -1) };
    return { result,
             InputCheck()
                 .finite({ result.deflection, result.slope, result.shearForce, result.bendingMoment,
                           result.bendingStress })
                 .problem() };
}

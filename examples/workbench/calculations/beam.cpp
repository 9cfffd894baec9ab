// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "beam.h"

#include "inputcheck.h"

#include <cmath>

namespace {

/// A quantity that a point load and a line load of the same sum contribute to.
struct Share
{
    double pointLoad;
    double lineLoad;
};

struct LoadCase
{
    Share deflection;
    Share slope;
    Share moment;
};

/// Where the slope of a beam with both ends fixed is largest, as a fraction of the length: the root
/// below midspan of 12 Q x^2 - 12 (F + Q) x + 3 F + 2 Q = 0, in the form that also holds for Q = 0.
double steepestPoint(double pointLoad, double totalLineLoad)
{
    const double sum = pointLoad + totalLineLoad;
    if (sum <= 0)
        return 0;
    const double f = pointLoad / sum;
    const double q = totalLineLoad / sum;
    return (6 * f + 4 * q) / (12 + std::sqrt(144 - 48 * q * (3 * f + 2 * q)));
}

LoadCase loadCase(Beam::Support support, double pointLoad, double totalLineLoad)
{
    switch (support) {
    case Beam::Support::Cantilever:
        return { { 1. / 3, 1. / 8 }, { 1. / 2, 1. / 6 }, { 1, 1. / 2 } };
    case Beam::Support::Simple:
        return { { 1. / 48, 5. / 384 }, { 1. / 16, 1. / 24 }, { 1. / 4, 1. / 8 } };
    case Beam::Support::Fixed:
        break;
    }
    const double x = steepestPoint(pointLoad, totalLineLoad);
    const Share slope { x * (1 - 2 * x) / 8, x * (1 - x) * (1 - 2 * x) / 12 };
    return { { 1. / 192, 1. / 384 }, slope, { 1. / 8, 1. / 12 } };
}

QString inputProblem(const Beam::Input &input)
{
    return InputCheck()
        .positive("Length", input.length)
        .positive("Section width", input.width)
        .positive("Section height", input.height)
        .positive("Elastic modulus", input.elasticModulus)
        .notNegative("Point load", input.pointLoad)
        .notNegative("Line load", input.lineLoad)
        .problem();
}

} // namespace

Outcome<Beam::Result> Beam::calculate(Support support, const Input &input)
{
    const QString problem = inputProblem(input);
    if (!problem.isEmpty())
        return { {}, problem };

    const double length = input.length;
    const double totalLineLoad = input.lineLoad * length;
    const double sectionModulus = input.width * input.height * input.height / 6;
    const double stiffness = input.elasticModulus * sectionModulus * input.height / 2;
    const LoadCase shares = loadCase(support, input.pointLoad, totalLineLoad);
    const auto load = [&](const Share &share) {
        return share.pointLoad * input.pointLoad + share.lineLoad * totalLineLoad;
    };

    Result result;
    result.deflection = load(shares.deflection) * length * length * length / stiffness;
    result.slope = load(shares.slope) * length * length / stiffness;
    result.bendingMoment = load(shares.moment) * length;
    result.bendingStress = result.bendingMoment / sectionModulus;
    return { result,
             InputCheck()
                 .finite({ result.deflection, result.slope, result.bendingMoment,
                           result.bendingStress })
                 .problem() };
}

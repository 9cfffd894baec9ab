// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "calculator.h"

#include "calculations/beam.h"
#include "calculations/spring.h"
#include "calculations/vessel.h"
#include "calculations/wall.h"
#include "entry.h"
#include "numbers.h"

#include <Kelto/AUTH_INF>

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Calculator)
};

/// The input of a formula, in SI units.
class Input
{
public:
    explicit Input(const NumbersByKey &values)
        : m_values(values)
    {
    }

    double operator()(const char *key) const { return list(key).value(0); }
    QVector<double> list(const char *key) const { return m_values.value(QString::fromUtf8(key)); }

private:
    NumbersByKey m_values;
};

/// The results of a formula, in SI units.
class Output
{
public:
    Output &add(const char *key, double number) { return add(key, QVector<double> { number }); }
    Output &add(const char *key, const QVector<double> &numbers)
    {
        m_values.insert(QString::fromUtf8(key), numbers);
        return *this;
    }
    Outcome<NumbersByKey> withProblem(const QString &problem) const
    {
        return { m_values, problem };
    }

private:
    NumbersByKey m_values;
};

template <Beam::Support support> Outcome<NumbersByKey> beam(const Input &in)
{
    const auto outcome
        = Beam::calculate(support,
                          { in("Length"), in("Section width"), in("Section height"),
                            in("Elastic modulus"), in("Point load"), in("Line load") });
    return Output()
        .add("Deflection", outcome.result.deflection)
        .add("Slope", outcome.result.slope)
        .add("Bending moment", outcome.result.bendingMoment)
        .add("Bending stress", outcome.result.bendingStress)
        .withProblem(outcome.problem);
}

Spring::Coil coil(const Input &in)
{
    return { in("Wire diameter"), in("Mean coil diameter"), in("Active coils") };
}

Outcome<NumbersByKey> axialSpring(const Outcome<Spring::AxialResult> &outcome)
{
    return Output()
        .add("Spring rate", outcome.result.rate)
        .add("Spring deflection", outcome.result.deflection)
        .add("Curvature factor", outcome.result.curvatureFactor)
        .add("Shear stress", outcome.result.shearStress)
        .withProblem(outcome.problem);
}

Outcome<NumbersByKey> compressionSpring(const Input &in)
{
    return axialSpring(
        Spring::compression(coil(in), in("Shear modulus"), in("Force"), in("Free length")));
}

Outcome<NumbersByKey> extensionSpring(const Input &in)
{
    return axialSpring(
        Spring::extension(coil(in), in("Shear modulus"), in("Force"), in("Initial tension")));
}

Outcome<NumbersByKey> torsionSpring(const Input &in)
{
    const auto outcome = Spring::torsion(coil(in), in("Elastic modulus"), in("Torque"));
    return Output()
        .add("Torsional rate", outcome.result.rate)
        .add("Angle of twist", outcome.result.angle)
        .add("Curvature factor", outcome.result.curvatureFactor)
        .add("Bending stress", outcome.result.bendingStress)
        .withProblem(outcome.problem);
}

Outcome<NumbersByKey> vessel(const Outcome<Vessel::Result> &outcome)
{
    return Output()
        .add("Hoop stress inside", outcome.result.hoop.inner)
        .add("Hoop stress mid-wall", outcome.result.hoop.middle)
        .add("Hoop stress outside", outcome.result.hoop.outer)
        .add("Radial stress inside", outcome.result.radial.inner)
        .add("Radial stress mid-wall", outcome.result.radial.middle)
        .add("Radial stress outside", outcome.result.radial.outer)
        .add("Axial stress", outcome.result.axial)
        .withProblem(outcome.problem);
}

Outcome<NumbersByKey> thinVessel(const Input &in)
{
    return vessel(
        Vessel::thinWall(in("Inner diameter"), in("Wall thickness"), in("Internal pressure")));
}

Outcome<NumbersByKey> thickVessel(const Input &in)
{
    return vessel(Vessel::thickWall(in("Inner diameter"), in("Wall thickness"),
                                    in("Internal pressure"), in("External pressure")));
}

Wall::Layers layers(const Input &in)
{
    return { in.list("Layer thickness"), in.list("Layer conductivity") };
}

Outcome<NumbersByKey> wall(const Outcome<Wall::Result> &outcome)
{
    return Output()
        .add("Thermal resistance", outcome.result.resistance)
        .add("Heat flux", outcome.result.heatFlux)
        .add("Boundary temperatures", outcome.result.boundaryTemperatures)
        .withProblem(outcome.problem);
}

Outcome<NumbersByKey> steadyWall(const Input &in)
{
    return wall(
        Wall::steady(layers(in), in("Inner surface temperature"), in("Outer surface temperature")));
}

Outcome<NumbersByKey> convectionWall(const Input &in)
{
    return wall(
        Wall::withConvection(layers(in),
                             { in("Inner air temperature"), in("Inner film coefficient") },
                             { in("Outer air temperature"), in("Outer film coefficient") }));
}

using Calculation = Outcome<NumbersByKey> (*)(const Input &);

/// The calculation of an inner mode; null when there is none.
Calculation calculationOf(const QString &module, const QString &mode)
{
    static const QMap<QString, Calculation> calculations {
        { QStringLiteral("Beam:Cantilever"), beam<Beam::Support::Cantilever> },
        { QStringLiteral("Beam:Simply supported"), beam<Beam::Support::Simple> },
        { QStringLiteral("Beam:Fixed at both ends"), beam<Beam::Support::Fixed> },
        { QStringLiteral("Helical spring:Compression"), compressionSpring },
        { QStringLiteral("Helical spring:Extension"), extensionSpring },
        { QStringLiteral("Helical spring:Torsion"), torsionSpring },
        { QStringLiteral("Pressure vessel:Thin wall"), thinVessel },
        { QStringLiteral("Pressure vessel:Thick wall"), thickVessel },
        { QStringLiteral("Plane wall:Steady"), steadyWall },
        { QStringLiteral("Plane wall:With convection"), convectionWall },
    };
    const QString name = module + QLatin1Char(':') + mode;
    return calculations.value(name, nullptr);
}

QStringList unknownUnits(const QVector<QStringList> &entries)
{
    QStringList unknown;
    for (const QStringList &entry : entries) {
        const QString unit = entry.value(Entry::Unit);
        if (siFactor(unit) == 0)
            unknown.append(unit);
    }
    return unknown;
}

QVector<double> scaled(QVector<double> numbers, double factor)
{
    for (double &number : numbers)
        number *= factor;
    return numbers;
}

NumbersByKey inSi(const NumbersByKey &values, const QVector<QStringList> &entries)
{
    NumbersByKey si;
    for (const QStringList &entry : entries) {
        const QString key = entry.value(Entry::Key);
        si.insert(key, scaled(values.value(key), siFactor(entry.value(Entry::Unit))));
    }
    return si;
}

/// Drops results that the module does not declare.
NumbersByKey inUnits(const NumbersByKey &si, const QVector<QStringList> &entries)
{
    NumbersByKey values;
    for (const QStringList &entry : entries) {
        const QString key = entry.value(Entry::Key);
        if (si.contains(key))
            values.insert(key, scaled(si.value(key), 1 / siFactor(entry.value(Entry::Unit))));
    }
    return values;
}

} // namespace

QString Calculator::defaultText(const QString &key)
{
    static const QMap<QString, QString> texts {
        { QStringLiteral("Length"), QStringLiteral("1000") },
        { QStringLiteral("Section width"), QStringLiteral("40") },
        { QStringLiteral("Section height"), QStringLiteral("60") },
        { QStringLiteral("Elastic modulus"), QStringLiteral("210000") },
        { QStringLiteral("Point load"), QStringLiteral("500") },
        { QStringLiteral("Line load"), QStringLiteral("2") },
        { QStringLiteral("Wire diameter"), QStringLiteral("3") },
        { QStringLiteral("Mean coil diameter"), QStringLiteral("24") },
        { QStringLiteral("Active coils"), QStringLiteral("8") },
        { QStringLiteral("Free length"), QStringLiteral("80") },
        { QStringLiteral("Shear modulus"), QStringLiteral("81500") },
        { QStringLiteral("Force"), QStringLiteral("200") },
        { QStringLiteral("Initial tension"), QStringLiteral("20") },
        { QStringLiteral("Torque"), QStringLiteral("1500") },
        { QStringLiteral("Inner diameter"), QStringLiteral("400") },
        { QStringLiteral("Wall thickness"), QStringLiteral("16") },
        { QStringLiteral("Internal pressure"), QStringLiteral("6") },
        { QStringLiteral("External pressure"), QStringLiteral("0.1") },
        { QStringLiteral("Layer thickness"), QStringLiteral("15; 240; 120; 20") },
        { QStringLiteral("Layer conductivity"), QStringLiteral("0.7; 0.5; 0.035; 0.9") },
        { QStringLiteral("Inner surface temperature"), QStringLiteral("20") },
        { QStringLiteral("Outer surface temperature"), QStringLiteral("-10") },
        { QStringLiteral("Inner air temperature"), QStringLiteral("20") },
        { QStringLiteral("Outer air temperature"), QStringLiteral("-10") },
        { QStringLiteral("Inner film coefficient"), QStringLiteral("7.7") },
        { QStringLiteral("Outer film coefficient"), QStringLiteral("25") },
    };
    return texts.value(key);
}

Outcome<NumbersByKey> Calculator::calculate(const AUTH_INF &module, const QString &mode,
                                            const NumbersByKey &values)
{
    const Calculation calculation = calculationOf(module.name, mode);
    if (!calculation)
        return { {}, Texts::tr("This task has no calculation.") };

    const int modeIndex = module.inner_mode_nameList.indexOf(mode);
    const auto parameters = module.inner_mode_parameterList.value(modeIndex);
    for (const QStringList &entry : parameters) {
        if (values.value(entry.value(Entry::Key)).isEmpty())
            return { {}, Texts::tr("%1: enter a number.").arg(entry.value(Entry::TranslatedKey)) };
    }
    const QStringList unknown = unknownUnits(parameters) + unknownUnits(module.output_results);
    if (!unknown.isEmpty())
        return { {}, Texts::tr("The unit \"%1\" is unknown.").arg(unknown.first()) };

    Outcome<NumbersByKey> outcome = calculation(Input(inSi(values, parameters)));
    if (outcome.isValid())
        outcome.result = inUnits(outcome.result, module.output_results);
    else
        outcome.result.clear();
    return outcome;
}

QStringList Calculator::resultKeys(const AUTH_INF &module, const QString &mode)
{
    const Calculation calculation = calculationOf(module.name, mode);
    if (!calculation)
        return {};

    // A calculation names its results even when it refuses its input, here an empty one.
    const NumbersByKey computed = calculation(Input({})).result;
    QStringList keys;
    for (const QStringList &entry : module.output_results) {
        const QString key = entry.value(Entry::Key);
        if (computed.contains(key))
            keys.append(key);
    }
    return keys;
}

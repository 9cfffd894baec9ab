// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "calculator.h"

#include "calculations/beam.h"
#include "calculations/inputcheck.h"
#include "calculations/spring.h"
#include "calculations/units.h"
#include "calculations/vessel.h"
#include "calculations/wall.h"

#include <Kelto/AUTH_INF>
#include <Kelto/KeltoItemParameterTransform>
#include <Kelto/KeltoParameterEntry>
#include <Kelto/VIniSettings>
#include <Kelto/VParameter>

#include <QCoreApplication>
#include <QLocale>
#include <QMap>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Calculator)
};

QString attributeKey(const QString &key)
{
    return QStringLiteral("Attribute/") + key;
}

QString unitKey(const QString &key)
{
    return QStringLiteral("Unit/") + key;
}

/// Of a list, multiplication2D() keeps six significant digits, of a single number all.
double scaled(double number, double factor)
{
    static const VParameter singleNumber;
    return KeltoItemParameterTransform::multiplication2D(&singleNumber, number, { factor })
        .toDouble();
}

/// What an inner mode declares, by key: its parameters and the results of its module.
using Entries = QMap<QString, QStringList>;

Entries entriesOf(const AUTH_INF &module, const QString &mode)
{
    Entries entries;
    const int position = module.inner_mode_nameList.indexOf(mode);
    const auto declared = module.inner_mode_parameterList.value(position) + module.output_results;
    for (const QStringList &entry : declared)
        entries.insert(entry.value(KeltoParameterEntry::Key), entry);
    return entries;
}

/// The input of a formula, in SI units. The first problem with it is kept.
class Input
{
public:
    Input(const Entries &entries, const Values &values)
        : m_entries(entries)
        , m_values(values)
    {
    }

    double operator()(const char *key) { return list(key).value(0); }

    /// Of a parameter that may stay empty.
    double orZero(const char *key) { return value(key).toString().isEmpty() ? 0 : (*this)(key); }

    QVector<double> list(const char *key)
    {
        const QVariant all = value(key);
        const QVariantList several = all.toList(); // empty where there is no list
        const QVariantList parts = several.isEmpty() ? QVariantList { all } : several;
        const double factor = siFactorOf(QString::fromUtf8(key));
        QVector<double> numbers;
        for (const QVariant &part : parts) {
            bool isNumber = false;
            const double number = part.toDouble(&isNumber);
            require(isNumber, Texts::tr("%1: enter a number."), key);
            numbers.append(scaled(number, factor));
        }
        return numbers;
    }

    template <typename Choice> Choice choice(const char *key, const QMap<QString, Choice> &choices)
    {
        const QString chosen = value(key).toString();
        require(choices.contains(chosen), Texts::tr("%1: choose one of the values on offer."), key);
        return choices.value(chosen);
    }

    QString problem() const { return m_problem; }

private:
    QVariant value(const char *key) const
    {
        return m_values.value(attributeKey(QString::fromUtf8(key)));
    }

    double siFactorOf(const QString &key)
    {
        QString unit = m_values.value(unitKey(key)).toString();
        if (unit.isEmpty())
            unit = m_entries.value(key).value(KeltoParameterEntry::Unit);
        const double factor = siFactor(unit);
        if (factor == 0 && m_problem.isEmpty())
            m_problem = Texts::tr("The unit \"%1\" is unknown.").arg(unit);
        return factor;
    }

    void require(bool condition, const QString &problem, const char *key)
    {
        if (!condition && m_problem.isEmpty())
            m_problem = problem.arg(InputCheck::nameOf(key));
    }

    Entries m_entries;
    VIniSettings m_values;
    QString m_problem;
};

/// The results of a formula, in SI units.
struct Output
{
    QMap<QString, QVector<double>> results;
    QVector<Curve> curves;

    Output &add(const char *key, const QVector<double> &numbers)
    {
        results.insert(QString::fromUtf8(key), numbers);
        return *this;
    }
    Output &add(const char *key, double number) { return add(key, QVector<double> { number }); }
};

/// An outcome without results, but with what all outcomes have.
template <typename Result> Outcome<Output> started(const Outcome<Result> &outcome)
{
    return { { {}, outcome.result.curves }, outcome.problem };
}

// --- Which key stands for which quantity -----------------------------------------

Beam::Section section(Input &in)
{
    using Beam::Shape;
    Beam::Section section;
    section.shape = in.choice<Shape>("Section",
                                     { { QStringLiteral("rectangle"), Shape::Rectangle },
                                       { QStringLiteral("bar"), Shape::RoundBar },
                                       { QStringLiteral("tube"), Shape::RoundTube } });
    if (section.shape == Shape::Rectangle) {
        section.width = in("Section width");
        section.height = in("Section height");
        return section;
    }
    section.diameter = in("Section diameter");
    if (section.shape == Shape::RoundTube)
        section.tubeThickness = in("Tube wall thickness");
    return section;
}

template <Beam::Support support> Outcome<Output> beam(Input &in)
{
    const auto beam = Beam::calculate(support,
                                      { in("Length"), section(in), in("Elastic modulus"),
                                        in.orZero("Point load"), in.orZero("Line load") });
    auto outcome = started(beam);
    outcome.result.add("Deflection", beam.result.deflection)
        .add("Slope", beam.result.slope)
        .add("Shear force", beam.result.shearForce)
        .add("Bending moment", beam.result.bendingMoment)
        .add("Bending stress", beam.result.bendingStress);
    return outcome;
}

Spring::Coil coil(Input &in)
{
    return { in("Wire diameter"), in("Mean coil diameter"), in("Active coils") };
}

Spring::Ends ends(Input &in)
{
    using Spring::Ends;
    return in.choice<Ends>("Spring ends",
                           { { QStringLiteral("closed-ground"), Ends::ClosedAndGround },
                             { QStringLiteral("closed"), Ends::Closed },
                             { QStringLiteral("plain-ground"), Ends::PlainAndGround },
                             { QStringLiteral("plain"), Ends::Plain } });
}

Outcome<Output> axialSpring(const Outcome<Spring::AxialResult> &spring)
{
    auto outcome = started(spring);
    outcome.result.add("Spring rate", spring.result.rate)
        .add("Spring deflection", spring.result.deflection)
        .add("Curvature factor", spring.result.curvatureFactor)
        .add("Shear stress", spring.result.shearStress);
    return outcome;
}

Outcome<Output> compressionSpring(Input &in)
{
    const auto spring = Spring::compression(coil(in), ends(in), in("Shear modulus"), in("Force"),
                                            in("Free length"));
    auto outcome = axialSpring(spring);
    outcome.result.add("Solid length", spring.result.solidLength);
    return outcome;
}

Outcome<Output> extensionSpring(Input &in)
{
    return axialSpring(Spring::extension(coil(in), in("Shear modulus"), in("Force"),
                                         in.orZero("Initial tension")));
}

Outcome<Output> torsionSpring(Input &in)
{
    const auto spring = Spring::torsion(coil(in), in("Elastic modulus"), in("Torque"));
    auto outcome = started(spring);
    outcome.result.add("Torsional rate", spring.result.rate)
        .add("Angle of twist", spring.result.angle)
        .add("Curvature factor", spring.result.curvatureFactor)
        .add("Bending stress", spring.result.bendingStress);
    return outcome;
}

Outcome<Output> vessel(const Outcome<Vessel::Result> &vessel)
{
    auto outcome = started(vessel);
    outcome.result.add("Hoop stress inside", vessel.result.hoop.inner)
        .add("Hoop stress mid-wall", vessel.result.hoop.middle)
        .add("Hoop stress outside", vessel.result.hoop.outer)
        .add("Radial stress inside", vessel.result.radial.inner)
        .add("Radial stress mid-wall", vessel.result.radial.middle)
        .add("Radial stress outside", vessel.result.radial.outer)
        .add("Axial stress", vessel.result.axial)
        .add("Diameter growth", vessel.result.diameterGrowth);
    return outcome;
}

Vessel::Shell shell(Input &in)
{
    return { in("Inner diameter"), in("Wall thickness"), in("Elastic modulus"),
             in("Poisson ratio") };
}

Outcome<Output> thinVessel(Input &in)
{
    return vessel(Vessel::thinWall(shell(in), in("Internal pressure")));
}

Outcome<Output> thickVessel(Input &in)
{
    return vessel(
        Vessel::thickWall(shell(in), in("Internal pressure"), in.orZero("External pressure")));
}

Wall::Layers layers(Input &in)
{
    return { in.list("Layer thickness"), in.list("Layer conductivity") };
}

Outcome<Output> wall(const Outcome<Wall::Result> &wall)
{
    auto outcome = started(wall);
    outcome.result.add("Thermal resistance", wall.result.resistance)
        .add("Heat flux", wall.result.heatFlux)
        .add("Boundary temperatures", wall.result.boundaryTemperatures);
    return outcome;
}

Outcome<Output> steadyWall(Input &in)
{
    return wall(
        Wall::steady(layers(in), in("Inner surface temperature"), in("Outer surface temperature")));
}

Outcome<Output> convectionWall(Input &in)
{
    return wall(
        Wall::withConvection(layers(in),
                             { in("Inner air temperature"), in("Inner film coefficient") },
                             { in("Outer air temperature"), in("Outer film coefficient") }));
}

using Calculation = Outcome<Output> (*)(Input &);

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

// --- From SI units to those of the entries ---------------------------------------

/// The factor from SI units; 0 for what the module does not declare or for an unknown unit.
double factorFromSi(const QStringList &entry)
{
    const double factor = siFactor(entry.value(KeltoParameterEntry::Unit));
    return factor == 0 ? 0 : 1 / factor;
}

QVariant resultValue(const QVector<double> &numbers, const QStringList &entry)
{
    const double factor = factorFromSi(entry);
    if (entry.value(KeltoParameterEntry::Multi) != QLatin1String("true"))
        return scaled(numbers.value(0), factor);
    QStringList texts;
    for (const double number : numbers)
        texts.append(QString::number(scaled(number, factor), 'g', QLocale::FloatingPointShortest));
    return texts;
}

Values valuesOf(const Output &output, const QVector<QStringList> &entries)
{
    Values values;
    for (const QStringList &entry : entries) {
        const QString key = entry.value(KeltoParameterEntry::Key);
        if (!output.results.contains(key))
            continue;
        values.append({ attributeKey(key), resultValue(output.results.value(key), entry) });
        values.append({ unitKey(key), entry.value(KeltoParameterEntry::Unit) });
    }
    return values;
}

QVector<Curve> inUnits(QVector<Curve> curves, const Entries &entries)
{
    for (Curve &curve : curves) {
        const QStringList x = entries.value(curve.x.key);
        const QStringList y = entries.value(curve.y.key);
        curve.x.unit = x.value(KeltoParameterEntry::Unit);
        curve.y.unit = y.value(KeltoParameterEntry::Unit);
        for (QPointF &point : curve.points)
            point = { scaled(point.x(), factorFromSi(x)), scaled(point.y(), factorFromSi(y)) };
    }
    return curves;
}

QString unknownUnit(const QVector<QStringList> &entries)
{
    for (const QStringList &entry : entries) {
        const QString unit = entry.value(KeltoParameterEntry::Unit);
        if (siFactor(unit) == 0)
            return Texts::tr("The unit \"%1\" is unknown.").arg(unit);
    }
    return {};
}

} // namespace

Outcome<Computation> Calculator::calculate(const AUTH_INF &module, const QString &mode,
                                           const Values &values)
{
    const Calculation calculation = calculationOf(module.name, mode);
    if (!calculation)
        return { {}, Texts::tr("This task has no calculation.") };

    const Entries entries = entriesOf(module, mode);
    Input input(entries, values);
    const Outcome<Output> outcome = calculation(input);
    for (const QString &problem :
         { input.problem(), unknownUnit(module.output_results), outcome.problem }) {
        if (!problem.isEmpty())
            return { {}, problem };
    }
    return { { valuesOf(outcome.result, module.output_results),
               inUnits(outcome.result.curves, entries) },
             {} };
}

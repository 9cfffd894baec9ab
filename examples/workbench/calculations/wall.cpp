// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "wall.h"

#include "inputcheck.h"

#include <QCoreApplication>

#include <numeric>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Wall)
};

InputCheck checkedLayers(const Wall::Layers &layers)
{
    const auto name = [](const char *key) { return InputCheck::nameOf(key); };
    const int count = layers.thickness.size();
    InputCheck check;
    check
        .require(count > 0, Texts::tr("%1: enter at least one layer.").arg(name("Layer thickness")))
        .require(count == layers.conductivity.size(),
                 Texts::tr("%1: enter one number per layer. There are %2 layers and %3 numbers.")
                     .arg(name("Layer conductivity"))
                     .arg(count)
                     .arg(layers.conductivity.size()));
    for (const double thickness : layers.thickness)
        check.positive("Layer thickness", thickness);
    for (const double conductivity : layers.conductivity)
        check.positive("Layer conductivity", conductivity);
    return check;
}

QVector<double> layerResistances(const Wall::Layers &layers)
{
    QVector<double> resistances;
    for (int i = 0; i < layers.thickness.size(); ++i)
        resistances.append(layers.thickness.at(i) / layers.conductivity.at(i));
    return resistances;
}

Curve temperatureCurve(const Wall::Layers &layers, const QVector<double> &boundaryTemperatures)
{
    Curve curve { QStringLiteral("Temperature"),
                  { QT_TRANSLATE_NOOP("ModuleTexts", "Depth"), "Layer thickness" },
                  { QT_TRANSLATE_NOOP("ModuleTexts", "Temperature"), "Boundary temperatures" },
                  {} };
    double depth = 0;
    for (int i = 0; i < boundaryTemperatures.size(); ++i) {
        curve.points.append({ depth, boundaryTemperatures.at(i) });
        depth += layers.thickness.value(i);
    }
    return curve;
}

/// @param film resistance between where @p warm is measured and the inner surface
/// @param total resistance between where @p warm and @p cold are measured
Outcome<Wall::Result> flow(const Wall::Layers &layers, double film, double total, double warm,
                           double cold)
{
    Wall::Result result;
    result.resistance = total;
    result.heatFlux = (warm - cold) / total;
    // Divided first, so that the end of the last layer is at exactly the cold temperature.
    double passed = film;
    result.boundaryTemperatures.append(warm - (warm - cold) * (passed / total));
    const QVector<double> resistances = layerResistances(layers);
    for (const double resistance : resistances) {
        passed += resistance;
        result.boundaryTemperatures.append(warm - (warm - cold) * (passed / total));
    }
    result.curves = { temperatureCurve(layers, result.boundaryTemperatures) };
    const QVector<double> scalars { result.resistance, result.heatFlux };
    const QString problem = InputCheck().finite(scalars + result.boundaryTemperatures).problem();
    return { result, problem };
}

double sumOf(const QVector<double> &values)
{
    return std::accumulate(values.cbegin(), values.cend(), 0.0);
}

} // namespace

Outcome<Wall::Result> Wall::steady(const Layers &layers, double innerSurface, double outerSurface)
{
    const InputCheck check = checkedLayers(layers);
    if (!check.isPassed())
        return { {}, check.problem() };

    return flow(layers, 0, sumOf(layerResistances(layers)), innerSurface, outerSurface);
}

Outcome<Wall::Result> Wall::withConvection(const Layers &layers, const Air &inner, const Air &outer)
{
    const InputCheck check = checkedLayers(layers)
                                 .positive("Inner film coefficient", inner.filmCoefficient)
                                 .positive("Outer film coefficient", outer.filmCoefficient);
    if (!check.isPassed())
        return { {}, check.problem() };

    const double innerFilm = 1 / inner.filmCoefficient;
    const double total = innerFilm + sumOf(layerResistances(layers)) + 1 / outer.filmCoefficient;
    return flow(layers, innerFilm, total, inner.temperature, outer.temperature);
}

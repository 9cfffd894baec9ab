// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "modules.h"

#include "moduletexts.h"

#include <Kelto/AUTH_INF>

#include <QCoreApplication>

namespace {

enum class Values { One, Several };

/// A parameter or result entry. The translated key and group are filled in later.
QStringList entry(const char *group, const char *key, const char *objectName, const char *symbol,
                  const char *unit, const char *siUnit, Values values = Values::One)
{
    const auto text = [](const char *utf8) { return QString::fromUtf8(utf8); };
    return { text(group),
             text(key),
             text(objectName),
             values == Values::Several ? QStringLiteral("true") : QStringLiteral("false"),
             text(unit),
             text(siUnit),
             text(symbol),
             text(key),
             text(group) };
}

/// One function per module. Plain names are what the program works with; they never change with the
/// language. QT_TR_NOOP only marks them for translation, which translateTexts() does at the end.
class CompiledModules
{
    Q_DECLARE_TR_FUNCTIONS(ModuleTexts)

public:
    static AUTH_INF beam();
    static AUTH_INF helicalSpring();
    static AUTH_INF pressureVessel();
    static AUTH_INF planeWall();
    static AUTH_INF update();

private:
    static AUTH_INF newModule(const char *name, const char *group, const char *description);
};

/// The part that all modules have in common.
AUTH_INF CompiledModules::newModule(const char *name, const char *group, const char *description)
{
    AUTH_INF module;
    module.name = QString::fromUtf8(name);
    module.description = QString::fromUtf8(description);
    module.type = QString::fromUtf8(QT_TR_NOOP("calculation"));
    module.group = QString::fromUtf8(group);
    module.exclusive_group = true;
    module.trObjectName = QStringLiteral("ModuleTexts");
    // A new item brings one mode along, which is named "Default".
    module.inner_mode_count = 0;
    module.inner_mode_nameList.clear();
    module.inner_mode_description.clear();
    return module;
}

/// The four per-mode lists always grow together.
void addMode(AUTH_INF &module, const char *name, const char *description,
             const QVector<QStringList> &parameters)
{
    ++module.inner_mode_count;
    module.inner_mode_nameList.append(QString::fromUtf8(name));
    module.inner_mode_description.append(QString::fromUtf8(description));
    module.inner_mode_parameterList.append(parameters);
}

AUTH_INF CompiledModules::beam()
{
    AUTH_INF module = newModule(QT_TR_NOOP("Beam"), QT_TR_NOOP("Statics"),
                                QT_TR_NOOP("Bending of a straight beam of rectangular section."));
    module.codeFunctionName = QStringLiteral("beam");
    const QVector<QStringList> parameters {
        entry(QT_TR_NOOP("Geometry"), QT_TR_NOOP("Length"), "length", "L", "mm", "m"),
        entry(QT_TR_NOOP("Geometry"), QT_TR_NOOP("Section width"), "sectionWidth", "b", "mm", "m"),
        entry(QT_TR_NOOP("Geometry"), QT_TR_NOOP("Section height"), "sectionHeight", "h", "mm",
              "m"),
        entry(QT_TR_NOOP("Material"), QT_TR_NOOP("Elastic modulus"), "elasticModulus", "E", "MPa",
              "Pa"),
        entry(QT_TR_NOOP("Load"), QT_TR_NOOP("Point load"), "pointLoad", "F", "N", "N"),
        entry(QT_TR_NOOP("Load"), QT_TR_NOOP("Line load"), "lineLoad", "q", "N/mm", "N/m"),
    };
    addMode(module, QT_TR_NOOP("Cantilever"),
            QT_TR_NOOP(
                "A beam held at one end. The point load acts at the free end, the line load over "
                "the whole length; enter 0 for a load that is absent. The results are the largest "
                "values along the beam."),
            parameters);
    addMode(module, QT_TR_NOOP("Simply supported"),
            QT_TR_NOOP(
                "A beam resting on a support at each end. The point load acts at midspan, the "
                "line load over the whole length; enter 0 for a load that is absent. The results "
                "are the largest values along the beam."),
            parameters);
    addMode(module, QT_TR_NOOP("Fixed at both ends"),
            QT_TR_NOOP(
                "A beam clamped at both ends. The point load acts at midspan, the line load over "
                "the whole length; enter 0 for a load that is absent. The results are the largest "
                "values along the beam."),
            parameters);
    module.output_results = {
        entry(QT_TR_NOOP("Deformation"), QT_TR_NOOP("Deflection"), "deflection", "w", "mm", "m"),
        entry(QT_TR_NOOP("Deformation"), QT_TR_NOOP("Slope"), "slope", "φ", "°", "rad"),
        entry(QT_TR_NOOP("Stress"), QT_TR_NOOP("Bending moment"), "bendingMoment", "M", "N·m",
              "N·m"),
        entry(QT_TR_NOOP("Stress"), QT_TR_NOOP("Bending stress"), "bendingStress", "σ", "MPa",
              "Pa"),
    };
    return module;
}

AUTH_INF CompiledModules::helicalSpring()
{
    AUTH_INF module = newModule(QT_TR_NOOP("Helical spring"), QT_TR_NOOP("Statics"),
                                QT_TR_NOOP("Cylindrical helical spring of round wire."));
    module.codeFunctionName = QStringLiteral("helicalSpring");
    const QVector<QStringList> coil {
        entry(QT_TR_NOOP("Geometry"), QT_TR_NOOP("Wire diameter"), "wireDiameter", "d", "mm", "m"),
        entry(QT_TR_NOOP("Geometry"), QT_TR_NOOP("Mean coil diameter"), "meanCoilDiameter", "D",
              "mm", "m"),
        entry(QT_TR_NOOP("Geometry"), QT_TR_NOOP("Active coils"), "activeCoils", "n", "-", "-"),
    };
    const QVector<QStringList> shear {
        entry(QT_TR_NOOP("Material"), QT_TR_NOOP("Shear modulus"), "shearModulus", "G", "MPa",
              "Pa"),
        entry(QT_TR_NOOP("Load"), QT_TR_NOOP("Force"), "force", "F", "N", "N"),
    };
    addMode(module, QT_TR_NOOP("Compression"),
            QT_TR_NOOP("A spring pressed along its axis, with ends that are closed and ground. The "
                       "stress is that at the inner side of the coil."),
            coil
                + QVector<QStringList> { entry(QT_TR_NOOP("Geometry"), QT_TR_NOOP("Free length"),
                                               "freeLength", "L₀", "mm", "m") }
                + shear);
    addMode(module, QT_TR_NOOP("Extension"),
            QT_TR_NOOP(
                "A spring pulled along its axis. It opens when the force exceeds the initial "
                "tension. The stress is that at the inner side of the coil."),
            coil + shear
                + QVector<QStringList> { entry(QT_TR_NOOP("Load"), QT_TR_NOOP("Initial tension"),
                                               "initialTension", "F₀", "N", "N") });
    addMode(module, QT_TR_NOOP("Torsion"),
            QT_TR_NOOP(
                "A spring twisted about its axis. The stress is that at the inner side of the "
                "coil."),
            coil
                + QVector<QStringList> {
                    entry(QT_TR_NOOP("Material"), QT_TR_NOOP("Elastic modulus"), "elasticModulus",
                          "E", "MPa", "Pa"),
                    entry(QT_TR_NOOP("Load"), QT_TR_NOOP("Torque"), "torque", "M", "N·mm", "N·m"),
                });
    // Each mode has some of these results; the calculator knows which.
    module.output_results = {
        entry(QT_TR_NOOP("Stiffness"), QT_TR_NOOP("Spring rate"), "springRate", "c", "N/mm", "N/m"),
        entry(QT_TR_NOOP("Stiffness"), QT_TR_NOOP("Torsional rate"), "torsionalRate", "cₜ",
              "N·mm/°", "N·m/rad"),
        entry(QT_TR_NOOP("Deformation"), QT_TR_NOOP("Spring deflection"), "springDeflection", "s",
              "mm", "m"),
        entry(QT_TR_NOOP("Deformation"), QT_TR_NOOP("Angle of twist"), "angleOfTwist", "α", "°",
              "rad"),
        entry(QT_TR_NOOP("Stress"), QT_TR_NOOP("Curvature factor"), "curvatureFactor", "K", "-",
              "-"),
        entry(QT_TR_NOOP("Stress"), QT_TR_NOOP("Shear stress"), "shearStress", "τ", "MPa", "Pa"),
        entry(QT_TR_NOOP("Stress"), QT_TR_NOOP("Bending stress"), "bendingStress", "σ", "MPa",
              "Pa"),
    };
    return module;
}

AUTH_INF CompiledModules::pressureVessel()
{
    AUTH_INF module
        = newModule(QT_TR_NOOP("Pressure vessel"), QT_TR_NOOP("Vessels"),
                    QT_TR_NOOP("Stresses in the wall of a cylindrical vessel with closed ends."));
    module.codeFunctionName = QStringLiteral("pressureVessel");
    const QVector<QStringList> parameters {
        entry(QT_TR_NOOP("Geometry"), QT_TR_NOOP("Inner diameter"), "innerDiameter", "d", "mm",
              "m"),
        entry(QT_TR_NOOP("Geometry"), QT_TR_NOOP("Wall thickness"), "thickness", "t", "mm", "m"),
        entry(QT_TR_NOOP("Load"), QT_TR_NOOP("Internal pressure"), "internalPressure", "p₁", "MPa",
              "Pa"),
    };
    addMode(module, QT_TR_NOOP("Thin wall"),
            QT_TR_NOOP("Membrane stresses after Barlow, for a wall of at most a tenth of the inner "
                       "radius. The pressure is that above the surroundings."),
            parameters);
    addMode(module, QT_TR_NOOP("Thick wall"),
            QT_TR_NOOP(
                "Stresses after Lamé at the inner surface, in the middle and at the outer surface "
                "of a wall of any thickness."),
            parameters
                + QVector<QStringList> { entry(QT_TR_NOOP("Load"), QT_TR_NOOP("External pressure"),
                                               "externalPressure", "p₂", "MPa", "Pa") });
    const char *const group = QT_TR_NOOP("Stress");
    module.output_results = {
        entry(group, QT_TR_NOOP("Hoop stress inside"), "hoopStressInside", "σₜ₁", "MPa", "Pa"),
        entry(group, QT_TR_NOOP("Hoop stress mid-wall"), "hoopStressMidWall", "σₜ₂", "MPa", "Pa"),
        entry(group, QT_TR_NOOP("Hoop stress outside"), "hoopStressOutside", "σₜ₃", "MPa", "Pa"),
        entry(group, QT_TR_NOOP("Radial stress inside"), "radialStressInside", "σᵣ₁", "MPa", "Pa"),
        entry(group, QT_TR_NOOP("Radial stress mid-wall"), "radialStressMidWall", "σᵣ₂", "MPa",
              "Pa"),
        entry(group, QT_TR_NOOP("Radial stress outside"), "radialStressOutside", "σᵣ₃", "MPa",
              "Pa"),
        entry(group, QT_TR_NOOP("Axial stress"), "axialStress", "σₐ", "MPa", "Pa"),
    };
    return module;
}

AUTH_INF CompiledModules::planeWall()
{
    AUTH_INF module
        = newModule(QT_TR_NOOP("Plane wall"), QT_TR_NOOP("Heat"),
                    QT_TR_NOOP("Heat conduction through a plane wall of several layers."));
    module.codeFunctionName = QStringLiteral("planeWall");
    const QVector<QStringList> layers {
        entry(QT_TR_NOOP("Layers"), QT_TR_NOOP("Layer thickness"), "layerThickness", "s", "mm", "m",
              Values::Several),
        entry(QT_TR_NOOP("Layers"), QT_TR_NOOP("Layer conductivity"), "layerConductivity", "λ",
              "W/(m·K)", "W/(m·K)", Values::Several),
    };
    const char *const temperature = QT_TR_NOOP("Temperature");
    const char *const convection = QT_TR_NOOP("Convection");
    addMode(module, QT_TR_NOOP("Steady"),
            QT_TR_NOOP(
                "Steady heat flow between two known surface temperatures. Enter the layers from "
                "the inner to the outer side, separated by semicolons."),
            layers
                + QVector<QStringList> {
                    entry(temperature, QT_TR_NOOP("Inner surface temperature"),
                          "innerSurfaceTemperature", "T₁", "°C", "°C"),
                    entry(temperature, QT_TR_NOOP("Outer surface temperature"),
                          "outerSurfaceTemperature", "T₂", "°C", "°C"),
                });
    addMode(module, QT_TR_NOOP("With convection"),
            QT_TR_NOOP(
                "Steady heat flow between the air on both sides. Enter the layers from the inner "
                "to the outer side, separated by semicolons."),
            layers
                + QVector<QStringList> {
                    entry(temperature, QT_TR_NOOP("Inner air temperature"), "innerAirTemperature",
                          "T₁", "°C", "°C"),
                    entry(temperature, QT_TR_NOOP("Outer air temperature"), "outerAirTemperature",
                          "T₂", "°C", "°C"),
                    entry(convection, QT_TR_NOOP("Inner film coefficient"), "innerFilmCoefficient",
                          "α₁", "W/(m²·K)", "W/(m²·K)"),
                    entry(convection, QT_TR_NOOP("Outer film coefficient"), "outerFilmCoefficient",
                          "α₂", "W/(m²·K)", "W/(m²·K)"),
                });
    module.output_results = {
        entry(QT_TR_NOOP("Heat"), QT_TR_NOOP("Thermal resistance"), "thermalResistance", "R",
              "m²·K/W", "m²·K/W"),
        entry(QT_TR_NOOP("Heat"), QT_TR_NOOP("Heat flux"), "heatFlux", "q", "W/m²", "W/m²"),
        entry(temperature, QT_TR_NOOP("Boundary temperatures"), "boundaryTemperatures", "T", "°C",
              "°C", Values::Several),
    };
    return module;
}

/// A module without a calculation. Its name makes Kelto record the name and the version of the
/// program in the file Config/update.ini, where an updater finds them.
AUTH_INF CompiledModules::update()
{
    AUTH_INF module = newModule(QT_TR_NOOP("Update"), QT_TR_NOOP("Tools"),
                                QT_TR_NOOP("Records the version of the program for the updater."));
    module.codeFunctionName = QStringLiteral("update");
    module.exclusive_group = false;
    addMode(module, QT_TR_NOOP("Update"),
            QT_TR_NOOP("Records the version of the program for the updater."), {});
    return module;
}

} // namespace

QVector<AUTH_INF> workbenchModules()
{
    QVector<AUTH_INF> modules {
        CompiledModules::beam(),           CompiledModules::helicalSpring(),
        CompiledModules::pressureVessel(), CompiledModules::planeWall(),
        CompiledModules::update(),
    };
    for (AUTH_INF &module : modules)
        translateTexts(module);
    return modules;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "calculations/vessel.h"
#include "calculations/wall.h"

#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(Wall::Layers)

namespace {

const double infinite = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();
const double megapascal = 1e6;

/// Three stresses to the nearest pascal, so that zero can be compared.
QVector<qint64> rounded(const Vessel::Profile &profile)
{
    return { qRound64(profile.inner), qRound64(profile.middle), qRound64(profile.outer) };
}

/// Resistances 0.2 and 0.1 m²·K/W.
const Wall::Layers twoLayers { { 0.1, 0.2 }, { 0.5, 2 } };

} // namespace

class tst_CalculationsOfWalls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thinWall();
    void thickWall_data();
    void thickWall();
    void thickWallApproachesThinWall();
    void thinWallRefusesThickOnes();
    void vesselRefusesInput_data();
    void vesselRefusesInput();

    void steadyWall();
    void wallWithConvection();
    void outerSurfaceHasExactlyItsTemperature();
    void wallRefusesInput_data();
    void wallRefusesInput();
    void wallRefusesTemperaturesAndFilms();
};

void tst_CalculationsOfWalls::thinWall()
{
    const auto outcome = Vessel::thinWall(1, 0.01, megapascal);

    QCOMPARE(outcome.problem, QString());
    QCOMPARE(outcome.result.hoop.inner, 50 * megapascal);
    QCOMPARE(outcome.result.hoop.middle, 50 * megapascal);
    QCOMPARE(outcome.result.hoop.outer, 50 * megapascal);
    QCOMPARE(outcome.result.radial.inner, -1 * megapascal);
    QCOMPARE(outcome.result.radial.middle, -0.5 * megapascal);
    QCOMPARE(outcome.result.radial.outer, 0.);
    QCOMPARE(outcome.result.axial, 25 * megapascal);
}

void tst_CalculationsOfWalls::thickWall_data()
{
    QTest::addColumn<double>("internal");
    QTest::addColumn<double>("external");
    QTest::addColumn<QVector<qint64>>("hoop");
    QTest::addColumn<QVector<qint64>>("radial");
    QTest::addColumn<double>("axial");

    // Inner, middle and outer in Pa, for the radii 0.1, 0.15 and 0.2 m.
    using Stresses = QVector<qint64>;
    QTest::newRow("pressure inside") << 60. << 0. << Stresses { 100000000, 55555556, 40000000 }
                                     << Stresses { -60000000, -15555556, 0 } << 20.;
    QTest::newRow("pressure outside")
        << 0. << 60. << Stresses { -160000000, -115555556, -100000000 }
        << Stresses { 0, -44444444, -60000000 } << -80.;
    QTest::newRow("equal pressure on both sides")
        << 60. << 60. << Stresses { -60000000, -60000000, -60000000 }
        << Stresses { -60000000, -60000000, -60000000 } << -60.;
    QTest::newRow("no pressure") << 0. << 0. << Stresses { 0, 0, 0 } << Stresses { 0, 0, 0 } << 0.;
}

void tst_CalculationsOfWalls::thickWall()
{
    QFETCH(double, internal);
    QFETCH(double, external);
    QFETCH(QVector<qint64>, hoop);
    QFETCH(QVector<qint64>, radial);
    QFETCH(double, axial);

    const auto outcome = Vessel::thickWall(0.2, 0.1, internal * megapascal, external * megapascal);

    QCOMPARE(outcome.problem, QString());
    const Vessel::Result &result = outcome.result;
    QCOMPARE(rounded(result.hoop), hoop);
    QCOMPARE(rounded(result.radial), radial);
    QCOMPARE(qRound64(result.axial), qRound64(axial * megapascal));
}

void tst_CalculationsOfWalls::thickWallApproachesThinWall()
{
    const auto thick = Vessel::thickWall(1, 0.0001, megapascal, 0);
    const auto thin = Vessel::thinWall(1, 0.0001, megapascal);

    QVERIFY(qAbs(thick.result.hoop.middle / thin.result.hoop.middle - 1) < 0.001);
    QVERIFY(qAbs(thick.result.axial / thin.result.axial - 1) < 0.001);
}

void tst_CalculationsOfWalls::vesselRefusesInput_data()
{
    QTest::addColumn<double>("diameter");
    QTest::addColumn<double>("thickness");
    QTest::addColumn<double>("pressure");
    QTest::addColumn<QString>("problem");

    QTest::newRow("diameter zero")
        << 0. << 0.01 << 1e6 << "Inner diameter: enter a number greater than zero.";
    QTest::newRow("thickness zero")
        << 1. << 0. << 1e6 << "Wall thickness: enter a number greater than zero.";
    QTest::newRow("thickness negative")
        << 1. << -0.01 << 1e6 << "Wall thickness: enter a number greater than zero.";
    QTest::newRow("pressure negative")
        << 1. << 0.01 << -1. << "Internal pressure: enter zero or a number greater than zero.";
    QTest::newRow("pressure not a number")
        << 1. << 0.01 << notANumber
        << "Internal pressure: enter zero or a number greater than zero.";
    QTest::newRow("pressure beyond the range of numbers")
        << 1. << 1e-9 << 1e300
        << "These values are too large or too small to calculate with. Check the number of digits.";
}

void tst_CalculationsOfWalls::vesselRefusesInput()
{
    QFETCH(double, diameter);
    QFETCH(double, thickness);
    QFETCH(double, pressure);

    QTEST(Vessel::thinWall(diameter, thickness, pressure).problem, "problem");
    QTEST(Vessel::thickWall(diameter, thickness, pressure, 0).problem, "problem");
}

void tst_CalculationsOfWalls::thinWallRefusesThickOnes()
{
    QCOMPARE(Vessel::thinWall(1, 0.0499, megapascal).problem, QString());
    QCOMPARE(Vessel::thinWall(1, 0.0501, megapascal).problem,
             QStringLiteral("Wall thickness: enter at most 50 mm, a tenth of the inner radius, or "
                            "choose the task for thick walls."));
    QCOMPARE(Vessel::thickWall(1, 0.0501, megapascal, 0).problem, QString());
    QCOMPARE(Vessel::thickWall(1, 0.0501, megapascal, -1).problem,
             QStringLiteral("External pressure: enter zero or a number greater than zero."));
}

void tst_CalculationsOfWalls::steadyWall()
{
    const auto outcome = Wall::steady(twoLayers, 20, -10);

    QCOMPARE(outcome.problem, QString());
    QCOMPARE(outcome.result.resistance, 0.3);
    QCOMPARE(outcome.result.heatFlux, 100.);
    QCOMPARE(outcome.result.boundaryTemperatures.size(), 3);
    QCOMPARE(outcome.result.boundaryTemperatures.at(0), 20.);
    QVERIFY(qAbs(outcome.result.boundaryTemperatures.at(1)) < 1e-12);
    QCOMPARE(outcome.result.boundaryTemperatures.at(2), -10.);
}

void tst_CalculationsOfWalls::wallWithConvection()
{
    // Films of 0.1 and 0.05 m²·K/W.
    const auto outcome = Wall::withConvection(twoLayers, { 25, 10 }, { -20, 20 });

    QCOMPARE(outcome.problem, QString());
    QCOMPARE(outcome.result.resistance, 0.45);
    QCOMPARE(outcome.result.heatFlux, 100.);
    QCOMPARE(outcome.result.boundaryTemperatures.size(), 3);
    QCOMPARE(outcome.result.boundaryTemperatures.at(0), 15.);
    QCOMPARE(outcome.result.boundaryTemperatures.at(1), -5.);
    QCOMPARE(outcome.result.boundaryTemperatures.at(2), -15.);
}

void tst_CalculationsOfWalls::outerSurfaceHasExactlyItsTemperature()
{
    // A remainder of 1e-15 would show where 0 belongs.
    const Wall::Layers layers { { 0.015, 0.24, 0.12, 0.02 }, { 0.7, 0.5, 0.035, 0.9 } };
    const auto outcome = Wall::steady(layers, 0.3, 0);

    QCOMPARE(outcome.result.boundaryTemperatures.size(), 5);
    QVERIFY(outcome.result.boundaryTemperatures.last() == 0);
}

void tst_CalculationsOfWalls::wallRefusesInput_data()
{
    QTest::addColumn<Wall::Layers>("layers");
    QTest::addColumn<QString>("problem");

    QTest::newRow("no layer") << Wall::Layers {} << "Layer thickness: enter at least one layer.";
    QTest::newRow("fewer conductivities than layers")
        << Wall::Layers { { 0.1, 0.2 }, { 0.5 } }
        << "Layer conductivity: enter one number per layer. There are 2 layers and 1 numbers.";
    QTest::newRow("more conductivities than layers")
        << Wall::Layers { { 0.1 }, { 0.5, 2 } }
        << "Layer conductivity: enter one number per layer. There are 1 layers and 2 numbers.";
    QTest::newRow("second layer without thickness")
        << Wall::Layers { { 0.1, 0 }, { 0.5, 2 } }
        << "Layer thickness: enter a number greater than zero.";
    QTest::newRow("conductivity negative")
        << Wall::Layers { { 0.1, 0.2 }, { 0.5, -2 } }
        << "Layer conductivity: enter a number greater than zero.";
    QTest::newRow("conductivity infinite")
        << Wall::Layers { { 0.1, 0.2 }, { 0.5, infinite } }
        << "Layer conductivity: enter a number greater than zero.";
    QTest::newRow("resistance beyond the range of numbers")
        << Wall::Layers { { 1e300 }, { 1e-300 } }
        << "These values are too large or too small to calculate with. Check the number of digits.";
}

void tst_CalculationsOfWalls::wallRefusesInput()
{
    QFETCH(Wall::Layers, layers);

    QTEST(Wall::steady(layers, 20, -10).problem, "problem");
    QTEST(Wall::withConvection(layers, { 20, 10 }, { -10, 20 }).problem, "problem");
}

void tst_CalculationsOfWalls::wallRefusesTemperaturesAndFilms()
{
    const QString below = QStringLiteral("%1: enter a temperature above -273.15 °C.");
    const QString positive = QStringLiteral("%1: enter a number greater than zero.");
    const auto steady
        = [](double inner, double outer) { return Wall::steady(twoLayers, inner, outer).problem; };
    const auto convection = [](Wall::Air inner, Wall::Air outer) {
        return Wall::withConvection(twoLayers, inner, outer).problem;
    };

    QCOMPARE(steady(-300, 0), below.arg(QStringLiteral("Inner surface temperature")));
    QCOMPARE(steady(0, notANumber), below.arg(QStringLiteral("Outer surface temperature")));
    QCOMPARE(convection({ -300, 10 }, { 0, 20 }),
             below.arg(QStringLiteral("Inner air temperature")));
    QCOMPARE(convection({ 0, 10 }, { -300, 20 }),
             below.arg(QStringLiteral("Outer air temperature")));
    QCOMPARE(convection({ 0, 0 }, { 0, 20 }),
             positive.arg(QStringLiteral("Inner film coefficient")));
    QCOMPARE(convection({ 0, 10 }, { 0, -1 }),
             positive.arg(QStringLiteral("Outer film coefficient")));
}

QTEST_GUILESS_MAIN(tst_CalculationsOfWalls)
#include "tst_calculations_walls.moc"

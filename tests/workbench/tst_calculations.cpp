// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "calculations/beam.h"
#include "calculations/spring.h"

#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(Beam::Support)
Q_DECLARE_METATYPE(Beam::Input)
Q_DECLARE_METATYPE(Spring::Coil)

namespace {

const double infinite = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

/// 2 m long, E I = 2.5e6 / 3 N·m², section modulus 1/12000 m³.
Beam::Input steelBeam(double pointLoad, double lineLoad)
{
    return { 2, 0.05, 0.1, 200e9, pointLoad, lineLoad };
}

/// Spring index 10, Wahl factor 39/36 + 0.0615, inner fibre factor 389/360.
const Spring::Coil wideCoil { 0.01, 0.1, 10 };

} // namespace

class tst_Calculations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beam_data();
    void beam();
    void fixedBeamIsSteepestWhereTheElasticLineIs();
    void beamRefusesInput_data();
    void beamRefusesInput();

    void compressionSpring();
    void extensionSpring();
    void torsionSpring();
    void springRefusesInput_data();
    void springRefusesInput();
    void compressionSpringRefusesToBecomeSolid();
};

void tst_Calculations::beam_data()
{
    QTest::addColumn<Beam::Support>("support");
    QTest::addColumn<double>("pointLoad");
    QTest::addColumn<double>("lineLoad");
    QTest::addColumn<double>("deflection");
    QTest::addColumn<double>("slope");
    QTest::addColumn<double>("moment");
    QTest::addColumn<double>("stress");

    using Beam::Support;
    const double root3 = 1.7320508075688772;
    QTest::newRow("cantilever without load")
        << Support::Cantilever << 0. << 0. << 0. << 0. << 0. << 0.;
    QTest::newRow("cantilever, point load")
        << Support::Cantilever << 1e3 << 0. << 0.0032 << 0.0024 << 2e3 << 24e6;
    QTest::newRow("cantilever, line load")
        << Support::Cantilever << 0. << 1e3 << 0.0024 << 0.0016 << 2e3 << 24e6;
    QTest::newRow("cantilever, both loads")
        << Support::Cantilever << 1e3 << 1e3 << 0.0056 << 0.004 << 4e3 << 48e6;
    QTest::newRow("simple, point load")
        << Support::Simple << 1e3 << 0. << 0.0002 << 0.0003 << 500. << 6e6;
    QTest::newRow("simple, line load")
        << Support::Simple << 0. << 1e3 << 0.00025 << 0.0004 << 500. << 6e6;
    QTest::newRow("simple, both loads")
        << Support::Simple << 1e3 << 1e3 << 0.00045 << 0.0007 << 1e3 << 12e6;
    QTest::newRow("fixed without load") << Support::Fixed << 0. << 0. << 0. << 0. << 0. << 0.;
    QTest::newRow("fixed, point load")
        << Support::Fixed << 1e3 << 0. << 0.00005 << 0.000075 << 250. << 3e6;
    QTest::newRow("fixed, line load")
        << Support::Fixed << 0. << 1e3 << 0.00005 << root3 * 8e3 / 1.8e8 << 1e3 / 3 << 4e6;
}

void tst_Calculations::beam()
{
    QFETCH(Beam::Support, support);
    QFETCH(double, pointLoad);
    QFETCH(double, lineLoad);

    const auto outcome = Beam::calculate(support, steelBeam(pointLoad, lineLoad));

    QCOMPARE(outcome.problem, QString());
    QTEST(outcome.result.deflection, "deflection");
    QTEST(outcome.result.slope, "slope");
    QTEST(outcome.result.bendingMoment, "moment");
    QTEST(outcome.result.bendingStress, "stress");
}

void tst_Calculations::fixedBeamIsSteepestWhereTheElasticLineIs()
{
    // The slope of the left half, x as a fraction of the length of 2 m.
    const double stiffness = 2.5e6 / 3;
    const auto slopeAt = [&](double x) {
        return (1e3 * x * (1 - 2 * x) / 8 + 2e3 * x * (1 - x) * (1 - 2 * x) / 12) * 4 / stiffness;
    };
    double steepest = 0;
    for (int i = 0; i <= 500000; ++i)
        steepest = qMax(steepest, slopeAt(i * 1e-6));

    const auto outcome = Beam::calculate(Beam::Support::Fixed, steelBeam(1e3, 1e3));

    QCOMPARE(outcome.problem, QString());
    QVERIFY(qAbs(outcome.result.slope / steepest - 1) < 1e-9);
    QCOMPARE(outcome.result.deflection, 0.0001);
    QCOMPARE(outcome.result.bendingStress, 7e6);
}

void tst_Calculations::beamRefusesInput_data()
{
    QTest::addColumn<Beam::Input>("input");
    QTest::addColumn<QString>("problem");

    const auto row
        = [](const char *name, double Beam::Input::*field, double value, const char *problem) {
              Beam::Input input = steelBeam(1e3, 1e3);
              input.*field = value;
              QTest::newRow(name) << input << QString::fromLatin1(problem);
          };
    row("length zero", &Beam::Input::length, 0, "Length: enter a number greater than zero.");
    row("length negative", &Beam::Input::length, -1, "Length: enter a number greater than zero.");
    row("length not a number", &Beam::Input::length, notANumber,
        "Length: enter a number greater than zero.");
    row("length infinite", &Beam::Input::length, infinite,
        "Length: enter a number greater than zero.");
    row("width zero", &Beam::Input::width, 0, "Section width: enter a number greater than zero.");
    row("height zero", &Beam::Input::height, 0,
        "Section height: enter a number greater than zero.");
    row("modulus negative", &Beam::Input::elasticModulus, -1,
        "Elastic modulus: enter a number greater than zero.");
    row("point load negative", &Beam::Input::pointLoad, -1,
        "Point load: enter zero or a number greater than zero.");
    row("line load negative", &Beam::Input::lineLoad, -1,
        "Line load: enter zero or a number greater than zero.");
    const char *const range
        = "These values are too large or too small to calculate with. Check the number of digits.";
    row("length beyond the range of numbers", &Beam::Input::length, 1e300, range);
    row("height so small that the section vanishes", &Beam::Input::height, 1e-300, range);
}

void tst_Calculations::beamRefusesInput()
{
    QFETCH(Beam::Input, input);
    for (const auto support :
         { Beam::Support::Cantilever, Beam::Support::Simple, Beam::Support::Fixed })
        QTEST(Beam::calculate(support, input).problem, "problem");
}

void tst_Calculations::compressionSpring()
{
    const auto outcome = Spring::compression(wideCoil, 80e9, 500, 0.2);

    QCOMPARE(outcome.problem, QString());
    QCOMPARE(outcome.result.rate, 10e3);
    QCOMPARE(outcome.result.deflection, 0.05);
    QCOMPARE(outcome.result.curvatureFactor, 39. / 36 + 0.0615);
    QCOMPARE(outcome.result.shearStress, (39. / 36 + 0.0615) * 400e6 / M_PI);
}

void tst_Calculations::extensionSpring()
{
    const auto outcome = Spring::extension(wideCoil, 80e9, 500, 100);

    QCOMPARE(outcome.problem, QString());
    QCOMPARE(outcome.result.rate, 10e3);
    QCOMPARE(outcome.result.deflection, 0.04);
    QCOMPARE(outcome.result.curvatureFactor, 39. / 36 + 0.0615);
    QCOMPARE(outcome.result.shearStress, (39. / 36 + 0.0615) * 400e6 / M_PI);
}

void tst_Calculations::torsionSpring()
{
    const auto outcome = Spring::torsion(wideCoil, 200e9, 10);

    QCOMPARE(outcome.problem, QString());
    QCOMPARE(outcome.result.rate, 31.25);
    QCOMPARE(outcome.result.angle, 0.32);
    QCOMPARE(outcome.result.curvatureFactor, 389. / 360);
    QCOMPARE(outcome.result.bendingStress, 389. / 360 * 320e6 / M_PI);
}

void tst_Calculations::springRefusesInput_data()
{
    QTest::addColumn<Spring::Coil>("coil");
    QTest::addColumn<double>("modulus");
    QTest::addColumn<double>("load");
    QTest::addColumn<QStringList>("problems");

    const auto all = [](const char *problem) {
        const QString text = QString::fromLatin1(problem);
        return QStringList { text, text, text };
    };
    const auto named
        = [](const char *problem, const char *first, const char *second, const char *third) {
              const QString text = QString::fromLatin1(problem);
              return QStringList { text.arg(QLatin1String(first)), text.arg(QLatin1String(second)),
                                   text.arg(QLatin1String(third)) };
          };
    const char *const positive = "%1: enter a number greater than zero.";
    const char *const notNegative = "%1: enter zero or a number greater than zero.";
    QTest::newRow("wire without thickness")
        << Spring::Coil { 0, 0.1, 10 } << 80e9 << 500.
        << all("Wire diameter: enter a number greater than zero.");
    QTest::newRow("coil without diameter")
        << Spring::Coil { 0.01, 0, 10 } << 80e9 << 500.
        << all("Mean coil diameter: enter a number greater than zero.");
    QTest::newRow("negative number of coils")
        << Spring::Coil { 0.01, 0.1, -1 } << 80e9 << 500.
        << all("Active coils: enter a number greater than zero.");
    QTest::newRow("coil as narrow as its wire")
        << Spring::Coil { 0.01, 0.01, 10 } << 80e9 << 500.
        << all("Mean coil diameter: enter more than the wire diameter, or the coil has no inside.");
    QTest::newRow("modulus zero") << wideCoil << 0. << 500.
                                  << named(positive, "Shear modulus", "Shear modulus",
                                           "Elastic modulus");
    QTest::newRow("load negative")
        << wideCoil << 80e9 << -1. << named(notNegative, "Force", "Force", "Torque");
    QTest::newRow("load not a number")
        << wideCoil << 80e9 << notANumber << named(notNegative, "Force", "Force", "Torque");
}

void tst_Calculations::springRefusesInput()
{
    QFETCH(Spring::Coil, coil);
    QFETCH(double, modulus);
    QFETCH(double, load);

    const QStringList problems { Spring::compression(coil, modulus, load, 10).problem,
                                 Spring::extension(coil, modulus, load, 0).problem,
                                 Spring::torsion(coil, modulus, load).problem };
    QTEST(problems, "problems");
}

void tst_Calculations::compressionSpringRefusesToBecomeSolid()
{
    // Solid at 12 wires, 0.12 m; from 0.2 m that takes 800 N.
    QCOMPARE(Spring::compression(wideCoil, 80e9, 0, 0.1).problem,
             QStringLiteral("Free length: enter at least the solid length of 120 mm."));
    QCOMPARE(Spring::compression(wideCoil, 80e9, 799, 0.2).problem, QString());
    QCOMPARE(
        Spring::compression(wideCoil, 80e9, 801, 0.2).problem,
        QStringLiteral(
            "Force: the coils touch at 800 N. Enter less, or make the spring longer or stiffer."));
    QCOMPARE(Spring::extension(wideCoil, 80e9, 99, 100).problem,
             QStringLiteral(
                 "Force: enter at least the initial tension; below it the coils stay closed."));
    QCOMPARE(Spring::extension(wideCoil, 80e9, 100, -1).problem,
             QStringLiteral("Initial tension: enter zero or a number greater than zero."));
}

QTEST_GUILESS_MAIN(tst_Calculations)
#include "tst_calculations.moc"

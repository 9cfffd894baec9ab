// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "publishedforms.h"

#include <QtTest>

namespace {

using Points = QVector<QPointF>;

/// The curve that is called @p name, in the units of the entries; without points when there is
/// none.
Curve curveOf(const Outcome<Computation> &outcome, const char *name)
{
    for (const Curve &curve : outcome.result.curves) {
        if (curve.name == name)
            return curve;
    }
    return {};
}

double largest(const Points &points)
{
    double size = 0;
    for (const QPointF &point : points)
        size = std::max(size, std::abs(point.y()));
    return size;
}

/// The integral over points at equal steps, their number being a multiple of four and one (Boole).
double integral(const Points &points)
{
    double sum = 0;
    for (int i = 0; i + 4 < points.size(); i += 4) {
        sum += 7 * (points.at(i).y() + points.at(i + 4).y())
            + 32 * (points.at(i + 1).y() + points.at(i + 3).y()) + 12 * points.at(i + 2).y();
    }
    return sum * (points.at(1).x() - points.at(0).x()) * 2 / 45;
}

/// The deflection at @p x of the load cases in the tables, for E I = 1.
double tableDeflection(const QString &task, double F, double q, double L, double x)
{
    if (task == cantilever)
        return F * x * x * (3 * L - x) / 6 + q * x * x * (6 * L * L - 4 * L * x + x * x) / 24;
    x = std::min(x, L - x);
    if (task == simple)
        return F * x * (3 * L * L - 4 * x * x) / 48
            + q * x * (L * L * L - 2 * L * x * x + x * x * x) / 24;
    return F * x * x * (3 * L - 4 * x) / 48 + q * x * x * (L - x) * (L - x) / 24;
}

void addBeams()
{
    QTest::addColumn<QString>("task");
    QTest::addColumn<Changes>("changes");
    for (const QString &task : { QString(cantilever), QString(simple), QString(fixedBeam) }) {
        QTest::newRow(qPrintable(task + ", defaults")) << task << Changes();
        QTest::newRow(qPrintable(task + ", point load alone"))
            << task << Changes { { "Line load", 0 }, { "Length", 1234.5 } };
        QTest::newRow(qPrintable(task + ", line load alone"))
            << task << Changes { { "Point load", "" }, { "Section", "tube" } };
    }
}

} // namespace

/// What is plotted, by its equilibrium and against the results.
class tst_Curves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTask_data()
    {
        QTest::addColumn<QString>("task");
        QTest::addColumn<QStringList>("axes");
        const QStringList beam { "Deflection: Position [mm], Deflection [mm]",
                                 "Bending moment: Position [mm], Bending moment [N·m]",
                                 "Shear force: Position [mm], Shear force [N]" };
        const QStringList vessel { "Hoop stress: Radius [mm], Stress [MPa]",
                                   "Radial stress: Radius [mm], Stress [MPa]" };
        const QStringList spring { "Spring characteristic: Spring deflection [mm], Force [N]" };
        const QStringList wall { "Temperature: Depth [mm], Temperature [°C]" };
        for (const char *task : { cantilever, simple, fixedBeam })
            QTest::newRow(task) << task << beam;
        QTest::newRow(compression) << compression << spring;
        QTest::newRow(extension) << extension << spring;
        QTest::newRow(torsion) << torsion
                               << QStringList {
                                      "Spring characteristic: Angle of twist [°], Torque [N·mm]"
                                  };
        QTest::newRow(thin) << thin << vessel;
        QTest::newRow(thick) << thick << vessel;
        QTest::newRow(steady) << steady << wall;
        QTest::newRow(convection) << convection << wall;
    }
    void everyTask()
    {
        QFETCH(QString, task);
        QStringList axes;
        const auto outcome = outcomeOf(task, {});
        for (const Curve &curve : outcome.result.curves) {
            axes.append(
                QString("%1: %2 [%3], %4 [%5]")
                    .arg(curve.name, curve.x.name, curve.x.unit, curve.y.name, curve.y.unit));
            for (int i = 1; i < curve.points.size(); ++i)
                QVERIFY(curve.points.at(i - 1).x() <= curve.points.at(i).x());
            QVERIFY(curve.points.size() > 1);
        }
        QTEST(axes, "axes");
    }

    void deflectionIsThatOfTheTables_data() { addBeams(); }
    void deflectionIsThatOfTheTables()
    {
        QFETCH(QString, task);
        QFETCH(Changes, changes);
        const Given in(task, changes);
        const auto outcome = outcomeOf(task, changes);
        const double L = in("Length");
        const Points points = curveOf(outcome, "Deflection").points;
        QCOMPARE(points.first().x(), 0.0);
        QVERIFY(isClose(points.last().x(), L));
        const double result = resultsOf(outcome).value("Deflection").first();
        const double tallest = tableDeflection(task, in("Point load"), in("Line load"), L,
                                               task == cantilever ? L : L / 2);
        for (const QPointF &point : points) {
            const double expected
                = tableDeflection(task, in("Point load"), in("Line load"), L, point.x());
            QVERIFY(isClose(point.y(), expected / tallest * result, result));
        }
        QVERIFY(isClose(largest(points), result));
    }

    /// dV/dx = -q and dM/dx = V, piece by piece; V jumps by the point load.
    void forcesOfTheBeamBalance_data() { addBeams(); }
    void forcesOfTheBeamBalance()
    {
        QFETCH(QString, task);
        QFETCH(Changes, changes);
        const Given in(task, changes);
        const auto outcome = outcomeOf(task, changes);
        const Points shear = curveOf(outcome, "Shear force").points;
        const Points moment = curveOf(outcome, "Bending moment").points;
        QCOMPARE(moment.size(), shear.size());
        const double largestShear = largest(shear);
        const double largestMoment = largest(moment);
        double jumps = 0;
        for (int i = 1; i < shear.size(); ++i) {
            const double dx = shear.at(i).x() - shear.at(i - 1).x();
            const double dV = shear.at(i).y() - shear.at(i - 1).y();
            const double dM = (moment.at(i).y() - moment.at(i - 1).y()) * 1000; // N·mm
            const double mean = (shear.at(i).y() + shear.at(i - 1).y()) / 2;
            QVERIFY(isClose(dM, mean * dx, largestMoment * 1000));
            if (dx > 0)
                QVERIFY(isClose(dV, -in("Line load") * dx, largestShear));
            else
                jumps -= dV;
        }
        const auto results = resultsOf(outcome);
        QVERIFY(isClose(largestShear, results.value("Shear force").first()));
        QVERIFY(isClose(largestMoment, results.value("Bending moment").first()));
        // What is left at the free end is the point load; supports take half of all loads each.
        const double total = in("Point load") + in("Line load") * in("Length");
        const bool isHeld = task == cantilever;
        QVERIFY(isClose(shear.first().y(), isHeld ? total : total / 2));
        QVERIFY(isClose(shear.last().y(), isHeld ? in("Point load") : -total / 2, total));
        QVERIFY(isClose(jumps, isHeld ? 0 : in("Point load"), total));
        if (task != fixedBeam)
            QVERIFY(isClose(moment.last().y(), 0, largestMoment));
    }

    /// The moment bends the beam: E I w'' = -M in Numerov's form, which is exact for these loads.
    void momentBendsTheBeam_data() { addBeams(); }
    void momentBendsTheBeam()
    {
        QFETCH(QString, task);
        QFETCH(Changes, changes);
        const auto outcome = outcomeOf(task, changes);
        const Points moment = curveOf(outcome, "Bending moment").points;
        const Points w = curveOf(outcome, "Deflection").points;
        const double stress = resultsOf(outcome).value("Bending stress").first();
        const double height = Given(task, changes).text("Section") == "rectangle"
            ? Given(task, changes)("Section height")
            : Given(task, changes)("Section diameter");
        // M / E I is the curvature: the strain of the outer fibre by its distance.
        const double perMoment
            = stress / largest(moment) / (height / 2) / Given(task, changes)("Elastic modulus");
        for (int i = 1; i + 1 < w.size(); ++i) {
            const double h = w.at(i).x() - w.at(i - 1).x();
            if (h <= 0 || w.at(i + 1).x() <= w.at(i).x())
                continue; // the point load bends the moment's curve
            const double moments
                = moment.at(i - 1).y() + 10 * moment.at(i).y() + moment.at(i + 1).y();
            QVERIFY(isClose(w.at(i - 1).y() - 2 * w.at(i).y() + w.at(i + 1).y(),
                            -h * h / 12 * moments * perMoment, largest(w) * 1e-3));
        }
    }

    void wallOfTheVesselIsInEquilibrium_data()
    {
        QTest::addColumn<Changes>("changes");
        QTest::newRow("defaults") << Changes();
        QTest::newRow("pressure outside") << Changes { { "Internal pressure", 0 } };
        QTest::newRow("as thick as its bore") << Changes { { "Wall thickness", 200 } };
        QTest::newRow("thin") << Changes { { "Wall thickness", 0.1 } };
    }
    void wallOfTheVesselIsInEquilibrium()
    {
        QFETCH(Changes, changes);
        const Given in(thick, changes);
        const auto outcome = outcomeOf(thick, changes);
        const Points hoop = curveOf(outcome, "Hoop stress").points;
        const Points radial = curveOf(outcome, "Radial stress").points;
        const double inside = in("Inner diameter") / 2;
        const double outside = inside + in("Wall thickness");
        QVERIFY(isClose(hoop.first().x(), inside) && isClose(hoop.last().x(), outside));
        // Half of the ring holds what the pressures push apart.
        const double push = in("Internal pressure") * inside - in("External pressure") * outside;
        QVERIFY(isClose(integral(hoop), push, largest(hoop) * in("Wall thickness")));
        // Any part of the wall does: d(r radial) = hoop dr.
        const Points part = hoop.mid(0, 21);
        const QPointF from = radial.at(0);
        const QPointF to = radial.at(20);
        QVERIFY(isClose(to.x() * to.y() - from.x() * from.y(), integral(part),
                        largest(radial) * inside));
        // Their sum is the same everywhere.
        for (int i = 0; i < hoop.size(); ++i)
            QVERIFY(isClose(hoop.at(i).y() + radial.at(i).y(), hoop.at(0).y() + from.y(),
                            largest(hoop)));
        const auto results = resultsOf(outcome);
        QCOMPARE(hoop.first().y(), results.value("Hoop stress inside").first());
        QCOMPARE(hoop.last().y(), results.value("Hoop stress outside").first());
        QCOMPARE(radial.first().y(), results.value("Radial stress inside").first());
        QCOMPARE(radial.last().y(), results.value("Radial stress outside").first());
    }

    /// The mean hoop stress of the thick wall is that of the thin one, and so is every stress when
    /// the wall is thin enough.
    void thickWallThatIsThin_data()
    {
        QTest::addColumn<double>("thickness");
        for (const double thickness : { 20.0, 2.0, 0.2, 0.002 })
            QTest::newRow(qPrintable(QString("%1 mm").arg(thickness))) << thickness;
    }
    void thickWallThatIsThin()
    {
        QFETCH(double, thickness);
        const Changes changes { { "Wall thickness", thickness },
                                { "Internal pressure", 6 },
                                { "External pressure", QString() } };
        const auto membrane = outcomeOf(thin, changes);
        const auto wall = outcomeOf(thick, changes);
        const Points hoop = curveOf(wall, "Hoop stress").points;
        const double stress = largest(curveOf(membrane, "Hoop stress").points);
        QVERIFY(isClose(integral(hoop) / thickness, stress));
        const auto thinResults = resultsOf(membrane);
        const auto thickResults = resultsOf(wall);
        const double ratio = thickness / 200;
        for (auto it = thinResults.cbegin(); it != thinResults.cend(); ++it) {
            const double scale = it.key() == "Diameter growth" ? it.value().first() : stress;
            const double difference = thickResults.value(it.key()).first() - it.value().first();
            QVERIFY2(std::abs(difference) <= 1.2 * ratio * scale, qPrintable(it.key()));
        }
        QVERIFY(curveOf(membrane, "Radial stress").points.last().y() == 0);
        QVERIFY(isClose(curveOf(membrane, "Radial stress").points.first().y(), -6));
    }

    void sameHeatFlowsThroughAllLayers_data()
    {
        QTest::addColumn<QString>("task");
        QTest::newRow("between surfaces") << steady;
        QTest::newRow("between air") << convection;
    }
    void sameHeatFlowsThroughAllLayers()
    {
        QFETCH(QString, task);
        const Given in(task, {});
        const auto outcome = outcomeOf(task, {});
        const auto results = resultsOf(outcome);
        const double flux = results.value("Heat flux").first();
        const Points points = curveOf(outcome, "Temperature").points;
        const QVector<double> thickness = in.list("Layer thickness");
        QCOMPARE(points.size(), thickness.size() + 1);
        QCOMPARE(points.first().x(), 0.0);
        for (int i = 0; i < thickness.size(); ++i) {
            const QPointF step = points.at(i + 1) - points.at(i);
            QVERIFY(isClose(step.x(), thickness.at(i)));
            QVERIFY(
                isClose(-step.y() / step.x() * 1000 * in.list("Layer conductivity").at(i), flux));
        }
        const double inner = points.first().y();
        const double outer = points.last().y();
        QCOMPARE(results.value("Boundary temperatures").first(), inner);
        QCOMPARE(results.value("Boundary temperatures").last(), outer);
        if (task == steady) {
            QCOMPARE(inner, in("Inner surface temperature"));
            QCOMPARE(outer, in("Outer surface temperature"));
            return;
        }
        const double in1 = in("Inner film coefficient") * (in("Inner air temperature") - inner);
        const double out1 = in("Outer film coefficient") * (outer - in("Outer air temperature"));
        QVERIFY(isClose(in1, flux) && isClose(out1, flux));
    }

    /// The work done on the spring is the area below the line.
    void springCharacteristics()
    {
        const auto results = resultsOf(outcomeOf(compression, {}));
        const double s = results.value("Spring deflection").first();
        QCOMPARE(curveOf(outcomeOf(compression, {}), "Spring characteristic").points,
                 (Points { { 0, 0 }, { s, 200 } }));
        const double opened
            = resultsOf(outcomeOf(extension, {})).value("Spring deflection").first();
        QCOMPARE(curveOf(outcomeOf(extension, {}), "Spring characteristic").points,
                 (Points { { 0, 0 }, { 0, 20 }, { opened, 200 } }));
        QVERIFY(isClose(opened / s, 180. / 200));
        const double angle = resultsOf(outcomeOf(torsion, {})).value("Angle of twist").first();
        QCOMPARE(curveOf(outcomeOf(torsion, {}), "Spring characteristic").points,
                 (Points { { 0, 0 }, { angle, 1500 } }));
    }
};

QTEST_GUILESS_MAIN(tst_Curves)
#include "tst_curves.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "calculations/wall.h"
#include "publishedforms.h"

#include <Kelto/KeltoParameterEntry>

#include <QtTest>

#include <limits>

namespace {

const double infinite = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();
const char *const outOfRange
    = "These values are too large or too small to calculate with. Check the number of digits.";

// --- Rows ------------------------------------------------------------------------

void addPublished()
{
    const auto add = [](const QString &task, const char *name, const Changes &changes) {
        QTest::newRow(qPrintable(task + ", " + name)) << task << changes;
    };
    for (const QString &task : allTasks())
        add(task, "defaults", {});
    for (const char *task : { cantilever, simple, fixedBeam }) {
        add(task, "point load alone", { { "Line load", 0 }, { "Point load", 7.3 } });
        add(task, "line load alone", { { "Point load", QString() }, { "Length", 8765.4321 } });
        add(task, "round bar", { { "Section", "bar" }, { "Section diameter", 33.3 } });
        add(task, "thin tube", { { "Section", "tube" }, { "Tube wall thickness", 0.01 } });
        add(task, "tube without a hole", { { "Section", "tube" }, { "Tube wall thickness", 30 } });
        add(task, "mostly point load", { { "Point load", 3000 }, { "Line load", 0.5 } });
        add(task, "huge loads", { { "Point load", 1e200 }, { "Line load", 1e200 } });
    }
    for (const char *ends : { "closed-ground", "closed", "plain-ground", "plain" })
        add(compression, ends, { { "Spring ends", ends }, { "Active coils", 7.25 } });
    for (const char *task : { compression, extension, torsion })
        add(task, "narrow coil", { { "Mean coil diameter", 3.3 }, { "Wire diameter", 3 } });
    add(extension, "no initial tension", { { "Initial tension", QString() } });
    add(extension, "force equal to the initial tension", { { "Initial tension", 200 } });
    add(torsion, "more than a turn", { { "Torque", 20000 } });
    add(thin, "as thick as may be", { { "Wall thickness", 20 } });
    add(thin, "sheet", { { "Wall thickness", 1e-3 }, { "Poisson ratio", 0 } });
    add(thick, "pressure inside", { { "External pressure", QString() } });
    add(thick, "pressure outside", { { "Internal pressure", 0 }, { "External pressure", 60 } });
    add(thick, "thin", { { "Wall thickness", 0.5 }, { "Poisson ratio", 0.5 } });
    add(thick, "block", { { "Wall thickness", 4000 } });
    const Changes single { { "Layer thickness", QStringList { "123.4567891" } },
                           { "Layer conductivity", "0.5" } };
    add(steady, "single layer", single);
    add(convection, "single layer", single);
    add(steady, "colder inside", { { "Inner surface temperature", -250.5 } });
    add(convection, "colder inside", { { "Inner air temperature", -250.5 } });
}

/// Relations between several values, and what a formula does not survive.
void addProblems()
{
    const auto add
        = [](const char *name, const QString &task, const Changes &changes,
             const QString &problem) { QTest::newRow(name) << task << changes << problem; };
    add("tube thicker than its radius", simple,
        { { "Section", "tube" }, { "Tube wall thickness", 30.001 } },
        "Tube wall thickness: enter at most half of the diameter.");
    add("tube without diameter", simple, { { "Section", "tube" }, { "Section diameter", 0 } },
        "Section diameter: enter a number greater than zero.");
    add("tube without wall", simple, { { "Section", "tube" }, { "Tube wall thickness", 0 } },
        "Tube wall thickness: enter a number greater than zero.");
    add("bar without diameter", simple, { { "Section", "bar" }, { "Section diameter", "" } },
        "Section diameter: enter a number.");
    add("load against the other", cantilever, { { "Point load", -1 } },
        "Point load: enter zero or a number greater than zero.");
    add("line load against the other", fixedBeam, { { "Line load", -1 } },
        "Line load: enter zero or a number greater than zero.");
    add("solid", compression, { { "Free length", 29.9 } },
        "Free length: enter at least the solid length of 30 mm.");
    add("solid with ends that are not ground", compression,
        { { "Free length", 32.9 }, { "Spring ends", "closed" } },
        "Free length: enter at least the solid length of 33 mm.");
    add("coils touch", compression, { { "Force", 374 } },
        "Force: the coils touch at 373.077 N. Enter less, or make the spring longer or stiffer.");
    add("coils nearly touch", compression, { { "Force", 373 } }, QString());
    add("force below the initial tension", extension, { { "Force", 19.9 } },
        "Force: enter at least the initial tension; below it the coils stay closed.");
    add("coil as narrow as its wire", extension, { { "Mean coil diameter", 3 } },
        "Mean coil diameter: enter more than the wire diameter, or the coil has no inside.");
    add("too thick", thin, { { "Wall thickness", 20.1 } },
        "Wall thickness: enter at most 20 mm, a tenth of the inner radius, or choose the task for "
        "thick walls.");
    const QString perLayer
        = "Layer conductivity: enter one number per layer. There are %1 layers and %2 numbers.";
    add("fewer conductivities", steady, { { "Layer conductivity", QStringList { "1", "2" } } },
        perLayer.arg(4).arg(2));
    add("more conductivities", convection, { { "Layer thickness", "10" } }, perLayer.arg(1).arg(4));
    add("list without numbers", steady, { { "Layer thickness", QStringList() } },
        "Layer thickness: enter a number.");
    add("list without numbers for one number", cantilever, { { "Length", QStringList() } },
        "Length: enter a number.");
    add("layer that is no number", steady,
        { { "Layer thickness", QStringList { "1", "two", "3", "4" } } },
        "Layer thickness: enter a number.");
    add("beam out of range", cantilever, { { "Length", 1e300 } }, outOfRange);
    add("section vanishes", cantilever, { { "Section height", 1e-300 } }, outOfRange);
    add("soft spring", extension, { { "Shear modulus", 1e-320 } }, outOfRange);
    add("tense spring", compression,
        { { "Shear modulus", 1e302 }, { "Force", 1e307 }, { "Free length", 1e12 } }, outOfRange);
    add("torque out of range", torsion, { { "Torque", 1e308 } }, outOfRange);
    add("thin out of range", thin, { { "Internal pressure", 1e302 } }, outOfRange);
    add("thick out of range", thick, { { "Internal pressure", 1e302 } }, outOfRange);
    add("wall out of range", steady,
        { { "Layer thickness", "1e300" }, { "Layer conductivity", "1e-300" } }, outOfRange);
}

} // namespace

/// Results and problems, through the calculator with the units and defaults of the module files.
class tst_Calculations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resultsArePublishedOnes_data()
    {
        QTest::addColumn<QString>("task");
        QTest::addColumn<Changes>("changes");
        addPublished();
    }
    void resultsArePublishedOnes()
    {
        QFETCH(QString, task);
        QFETCH(Changes, changes);
        const auto outcome = outcomeOf(task, changes);
        QCOMPARE(outcome.problem, QString());
        const NumbersByKey results = resultsOf(outcome);
        const NumbersByKey expected = published(task, changes);
        QCOMPARE(results.keys(), expected.keys());
        for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
            const QVector<double> actual = results.value(it.key());
            QCOMPARE(actual.size(), it.value().size());
            // A temperature near 0 °C is as exact as those around it.
            const double scale = it.value().size() > 1 ? 20 : 0;
            for (int i = 0; i < actual.size(); ++i)
                QVERIFY2(isClose(actual.at(i), it.value().at(i), scale),
                         qPrintable(QString("%1: %2, expected %3")
                                        .arg(it.key())
                                        .arg(actual.at(i), 0, 'g', 15)
                                        .arg(it.value().at(i), 0, 'g', 15)));
        }
    }

    void problems_data()
    {
        QTest::addColumn<QString>("task");
        QTest::addColumn<Changes>("changes");
        QTest::addColumn<QString>("problem");
        addProblems();
    }
    void problems()
    {
        QFETCH(QString, task);
        QFETCH(Changes, changes);
        const auto outcome = outcomeOf(task, changes);
        QTEST(outcome.problem, "problem");
        QCOMPARE(outcome.result.results.isEmpty(), !outcome.isValid());
        QCOMPARE(outcome.result.curves.isEmpty(), !outcome.isValid());
    }

    void noLoadGivesNothing()
    {
        for (const char *task : { cantilever, simple, fixedBeam }) {
            const auto results
                = resultsOf(outcomeOf(task, { { "Point load", "" }, { "Line load", "" } }));
            QCOMPARE(results.size(), 5);
            for (const auto &numbers : results)
                QCOMPARE(numbers, QVector<double> { 0 });
        }
    }

    /// Where 0 belongs, the rounding errors of (T * R) / R and of (T / R) * R would show.
    void outerSurfaceIsExact()
    {
        for (const double inner : { 0.83, 0.99 }) {
            const auto results = resultsOf(outcomeOf(steady,
                                                     { { "Inner surface temperature", inner },
                                                       { "Outer surface temperature", 0 } }));
            QVERIFY(results.value("Boundary temperatures").last() == 0); // QCOMPARE is fuzzy
        }
    }

    void everyParameter_data()
    {
        QTest::addColumn<QString>("task");
        QTest::addColumn<QString>("key");
        for (const QString &task : allTasks()) {
            const QStringList keys = moduleOf(task).inner_mode_keylist_of(modeOf(task));
            for (const QString &key : keys)
                QTest::newRow(qPrintable(task + ", " + key)) << task << key;
        }
    }
    /// By what its hints say. A formula refuses zero where the minimum is above it, also when
    /// nobody has looked at the hints.
    void everyParameter()
    {
        QFETCH(QString, task);
        QFETCH(QString, key);
        const KeltoItemHints hints = hintsOf(task);
        // Of a list, the last number.
        const auto problemWith = [&](const QVariant &value) {
            Changes changes { { "Initial tension", QString() } };
            if (hints.conditionValues(key).contains("tube"))
                changes.insert("Section", "tube");
            QStringList list = inputOf(task, {}).value(key).toStringList();
            if (list.size() > 1)
                list.last() = value.toString();
            changes.insert(key, list.size() > 1 ? QVariant(list) : value);
            return outcomeOf(task, changes).problem;
        };
        const QString demand = key + ": enter a number.";
        if (!hints.choices(key).isEmpty()) {
            for (const char *choice : { "", "Rectangle", "1" })
                QCOMPARE(problemWith(choice), key + ": choose one of the values on offer.");
            return;
        }
        QCOMPARE(problemWith("two"), demand);
        QCOMPARE(problemWith(QString()), hints.isOptional(key) ? QString() : demand);
        QVERIFY(!std::isinf(hints.minimum(key)));
        const bool isPositive = hints.minimum(key) > 0;
        QVERIFY(isPositive || problemWith(hints.minimum(key)).isEmpty());
        QVERIFY(std::isinf(hints.maximum(key)) || problemWith(hints.maximum(key)).isEmpty());
        QVector<double> refused { infinite, notANumber };
        if (isPositive)
            refused << 0 << -1;
        for (const double number : qAsConst(refused)) {
            const QString problem = problemWith(number);
            QVERIFY2(isPositive ? problem == key + ": enter a number greater than zero."
                                : !problem.isEmpty(),
                     qPrintable(problem));
        }
    }

    void unitsCount()
    {
        AUTH_INF module = moduleOf(thin);
        QStringList &axial = module.output_results[0];
        QCOMPARE(axial.at(KeltoParameterEntry::Key), QString("Axial stress"));
        axial[KeltoParameterEntry::Unit] = "Pa";
        const Changes input = inputOf(thin, { { "Inner diameter", 0.8 } });
        Values values { { "Unit/Inner diameter", "m" }, { "Unit/Wall thickness", QString() } };
        for (auto it = input.cbegin(); it != input.cend(); ++it)
            values.append({ "Attribute/" + it.key(), it.value() });

        const auto outcome = Calculator::calculate(module, "Thin wall", values);

        QCOMPARE(outcome.problem, QString());
        QCOMPARE(outcome.result.results.at(0),
                 qMakePair(QString("Attribute/Axial stress"), QVariant(75e6)));
        QCOMPARE(outcome.result.results.at(1),
                 qMakePair(QString("Unit/Axial stress"), QVariant("Pa")));
        QCOMPARE(resultsOf(outcome).value("Hoop stress outside"), QVector<double> { 150 });
        for (const char *unit : { "furlong", "MM", " " }) {
            const QString problem = QString("The unit \"%1\" is unknown.").arg(unit);
            values[0].second = unit;
            QCOMPARE(Calculator::calculate(module, "Thin wall", values).problem, problem);
            values[0].second = "m";
            axial[KeltoParameterEntry::Unit] = unit;
            QCOMPARE(Calculator::calculate(module, "Thin wall", values).problem, problem);
            axial[KeltoParameterEntry::Unit] = "Pa";
        }
    }

    void modeWithoutCalculation()
    {
        for (const char *task : { "Update:Update", "Beam:Torsion" })
            QCOMPARE(outcomeOf(task, {}).problem, QString("This task has no calculation."));
        QCOMPARE(Wall::steady({}, 20, 0).problem,
                 QString("Layer thickness: enter at least one layer."));
    }
};

QTEST_GUILESS_MAIN(tst_Calculations)
#include "tst_calculations.moc"

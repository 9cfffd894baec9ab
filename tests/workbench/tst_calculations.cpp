// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "calculations/wall.h"
#include "calculator.h"
#include "entry.h"
#include "modules.h"
#include "numbers.h"

#include <Kelto/AUTH_INF>

#include <QtTest>

#include <limits>

namespace {

const double infinite = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();
const char *const outOfRange
    = "These values are too large or too small to calculate with. Check the number of digits.";

/// The module of a task such as "Beam:Cantilever".
AUTH_INF moduleOf(const QString &task)
{
    const auto modules = compiledModules();
    return *std::find_if(modules.cbegin(), modules.cend(), [&task](const AUTH_INF &module) {
        return module.name == task.section(':', 0, 0);
    });
}

QString modeOf(const QString &task)
{
    return task.section(':', 1);
}

/// What the fields of the window hold when a task is chosen.
NumbersByKey defaults(const QString &task)
{
    NumbersByKey values;
    const QStringList keys = moduleOf(task).inner_mode_keylist_of(modeOf(task));
    for (const QString &key : keys) {
        const auto value = valueFromText(Calculator::defaultText(key), true);
        values.insert(key, numbersFromValue(value.result, true));
    }
    return values;
}

/// The results by key as they stand on the screen, or the problem.
QString shown(const Outcome<NumbersByKey> &outcome)
{
    QStringList texts(outcome.problem);
    for (auto it = outcome.result.cbegin(); it != outcome.result.cend(); ++it)
        texts.append(it.key() + ' ' + textFromNumbers(it.value()));
    texts.removeAll(QString());
    return texts.join(", ");
}

/// The outcome with some values that differ from the defaults.
QString outcomeOf(const QString &task, const NumbersByKey &changes)
{
    NumbersByKey values = defaults(task);
    for (auto it = changes.cbegin(); it != changes.cend(); ++it)
        values[it.key()] = it.value();
    return shown(Calculator::calculate(moduleOf(task), modeOf(task), values));
}

// Expected are the results of another way of computing: the elastic line integrated step by step,
// Lamé's constants from the two pressures as equations, and sums by hand.

const char *const compression = "Helical spring:Compression";
const char *const extension = "Helical spring:Extension";
const char *const torsion = "Helical spring:Torsion";
const char *const thin = "Pressure vessel:Thin wall";
const char *const thick = "Pressure vessel:Thick wall";
const char *const steady = "Plane wall:Steady";
const char *const convection = "Plane wall:With convection";

/// A row with the values that differ from the defaults, and the results or the problem.
void add(const char *name, const QString &task, const NumbersByKey &changes,
         const QString &expected)
{
    QTest::newRow(name) << task << changes << expected;
}

void addBeams()
{
    const NumbersByKey pointLoad { { "Line load", { 0 } } };
    const NumbersByKey lineLoad { { "Point load", { 0 } } };
    const NumbersByKey noLoad { { "Point load", { 0 } }, { "Line load", { 0 } } };
    const NumbersByKey heavy { { "Point load", { 3000 } }, { "Line load", { 0.5 } } };
    const QString beam = "Bending moment %1, Bending stress %2, Deflection %3, Slope %4";
    const auto addBeam = [&](const char *name, const char *mode, const NumbersByKey &changes,
                             const QStringList &n) {
        add(name, QString("Beam:") + mode, changes, beam.arg(n.at(0), n.at(1), n.at(2), n.at(3)));
    };
    const char *const held = "Cantilever";
    addBeam("cantilever", held, {}, { "1500", "62.5", "2.75573", "0.221049" });
    addBeam("cantilever, point", held, pointLoad, { "500", "20.8333", "1.10229", "0.0947351" });
    addBeam("cantilever, line", held, lineLoad, { "1000", "41.6667", "1.65344", "0.126313" });
    addBeam("cantilever, no load", held, noLoad, { "0", "0", "0", "0" });
    const char *const simple = "Simply supported";
    addBeam("simple", simple, {}, { "375", "15.625", "0.241127", "0.0434202" });
    addBeam("simple, point", simple, pointLoad, { "125", "5.20833", "0.0688933", "0.0118419" });
    addBeam("simple, line", simple, lineLoad, { "250", "10.4167", "0.172233", "0.0315784" });
    const char *const fixed = "Fixed at both ends";
    addBeam("fixed", fixed, {}, { "229.167", "9.54861", "0.05167", "0.00898849" });
    addBeam("fixed, point", fixed, pointLoad, { "62.5", "2.60417", "0.0172233", "0.00296047" });
    addBeam("fixed, line", fixed, lineLoad, { "166.667", "6.94444", "0.0344466", "0.00607726" });
    addBeam("fixed, heavy", fixed, heavy, { "416.667", "17.3611", "0.111952", "0.0192462" });
    addBeam("fixed, no load", fixed, noLoad, { "0", "0", "0", "0" });
}

void addSprings()
{
    const NumbersByKey wide { { "Wire diameter", { 10 } }, { "Mean coil diameter", { 100 } },
                              { "Active coils", { 10 } },  { "Shear modulus", { 80000 } },
                              { "Force", { 500 } },        { "Free length", { 200 } } };
    const QString axial
        = "Curvature factor %1, Shear stress %2, Spring deflection %3, Spring rate %4";
    add("compression", compression, {}, axial.arg("1.18402", "536.014", "26.8041", "7.46155"));
    add("compression, wide", compression, wide, axial.arg("1.14483", "145.765", "50", "10"));
    add("extension", extension, {}, axial.arg("1.18402", "536.014", "24.1237", "7.46155"));
    add("torsion", torsion, {},
        "Angle of twist 62.0856, Bending stress 623.988, Curvature factor 1.10268, "
        "Torsional rate 24.1602");
    add("solid", compression, { { "Free length", { 29.9 } } },
        "Free length: enter at least the solid length of 30 mm.");
    add("coils touch", compression, { { "Force", { 374 } } },
        "Force: the coils touch at 373.077 N. Enter less, or make the spring longer or "
        "stiffer.");
    add("coils nearly touch", compression, { { "Force", { 373 } } },
        axial.arg("1.18402", "999.665", "49.9896", "7.46155"));
    add("force below the initial tension", extension, { { "Force", { 19.9 } } },
        "Force: enter at least the initial tension; below it the coils stay closed.");
    add("coil as narrow as its wire", extension, { { "Mean coil diameter", { 3 } } },
        "Mean coil diameter: enter more than the wire diameter, or the coil has no inside.");
}

void addVessels()
{
    const QString vessel
        = "Axial stress %1, Hoop stress inside %2, Hoop stress mid-wall %3, Hoop stress "
          "outside %4, Radial stress inside %5, Radial stress mid-wall %6, Radial stress "
          "outside %7";
    const auto ring = [](double inside, double outside) {
        return NumbersByKey { { "Inner diameter", { 200 } },
                              { "Wall thickness", { 100 } },
                              { "Internal pressure", { inside } },
                              { "External pressure", { outside } } };
    };
    add("thin", thin, {}, vessel.arg("37.5", "75", "75", "75", "-6", "-3", "0"));
    add("thick", thick, {},
        vessel.arg("35.3567", "76.7135", "73.5934", "70.8135", "-6", "-2.87989", "-0.1"));
    add("pressure inside", thick, ring(60, 0),
        vessel.arg("20", "100", "55.5556", "40", "-60", "-15.5556", "0"));
    add("pressure outside", thick, ring(0, 60),
        vessel.arg("-80", "-160", "-115.556", "-100", "0", "-44.4444", "-60"));
    add("equal pressures", thick, ring(60, 60),
        vessel.arg("-60", "-60", "-60", "-60", "-60", "-60", "-60"));
    add("no pressure", thick, ring(0, 0), vessel.arg("0", "0", "0", "0", "0", "0", "0"));
    add("nearly too thick", thin, { { "Wall thickness", { 19.9 } } },
        vessel.arg("30.1508", "60.3015", "60.3015", "60.3015", "-6", "-3", "0"));
    add("too thick", thin, { { "Wall thickness", { 20.1 } } },
        "Wall thickness: enter at most 20 mm, a tenth of the inner radius, or choose the task "
        "for thick walls.");
}

void addWalls()
{
    const QString wall = "Boundary temperatures %1, Heat flux %2, Thermal resistance %3";
    add("wall between surfaces", steady, {},
        wall.arg("20; 19.8373; 16.1938; -9.83132; -10", "7.59067", "3.95222"));
    add("wall between air", convection, {},
        wall.arg("19.0548; 18.8989; 15.4055; -9.54716; -9.70889", "7.27786", "4.12209"));
    // Where 0 belongs, the rounding errors of (0.83 * R) / R and of (0.99 / R) * R would show.
    add("exact outside, of 0.83", steady,
        { { "Inner surface temperature", { 0.83 } }, { "Outer surface temperature", { 0 } } },
        wall.arg("0.83; 0.8255; 0.724696; 0.00466685; 0", "0.210008", "3.95222"));
    add("exact outside, of 0.99", steady,
        { { "Inner surface temperature", { 0.99 } }, { "Outer surface temperature", { 0 } } },
        wall.arg("0.99; 0.984632; 0.864396; 0.00556649; 0", "0.250492", "3.95222"));
    add("colder inside", steady,
        { { "Inner surface temperature", { -10 } },
          { "Outer surface temperature", { 20 } },
          { "Layer thickness", { 100 } },
          { "Layer conductivity", { 0.5 } } },
        wall.arg("-10; 20", "-150", "0.2"));
    const QString perLayer
        = "Layer conductivity: enter one number per layer. There are %1 layers and %2 numbers.";
    add("fewer conductivities", steady, { { "Layer conductivity", { 1, 2 } } },
        perLayer.arg(4).arg(2));
    add("more conductivities", convection, { { "Layer thickness", { 10 } } },
        perLayer.arg(1).arg(4));
}

void addValuesOutOfRange()
{
    add("beam out of range", "Beam:Cantilever", { { "Length", { 1e300 } } }, outOfRange);
    add("section vanishes", "Beam:Cantilever", { { "Section height", { 1e-300 } } }, outOfRange);
    add("soft spring", extension, { { "Shear modulus", { 1e-320 } } }, outOfRange);
    add("tense spring", compression,
        { { "Shear modulus", { 1e302 } }, { "Force", { 1e307 } }, { "Free length", { 1e12 } } },
        outOfRange);
    add("torque out of range", torsion, { { "Torque", { 1e308 } } }, outOfRange);
    add("thin out of range", thin, { { "Internal pressure", { 1e302 } } }, outOfRange);
    add("thick out of range", thick, { { "Internal pressure", { 1e302 } } }, outOfRange);
    add("wall out of range", steady,
        { { "Layer thickness", { 1e300 } }, { "Layer conductivity", { 1e-300 } } }, outOfRange);
}

} // namespace

/// The numbers of the workbench: from typed texts through formulas to shown results.
class tst_Calculations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outcome_data()
    {
        QTest::addColumn<QString>("task");
        QTest::addColumn<NumbersByKey>("changes");
        QTest::addColumn<QString>("expected");
        addBeams();
        addSprings();
        addVessels();
        addWalls();
        addValuesOutOfRange();
    }
    void outcome()
    {
        QFETCH(QString, task);
        QFETCH(NumbersByKey, changes);
        QTEST(outcomeOf(task, changes), "expected");
    }

    /// Each parameter of each task, by what it has to be.
    void limits_data()
    {
        QTest::addColumn<QString>("task");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVector<double>>("refused");
        QTest::addColumn<QString>("demand");
        static const QRegularExpression notNegative("load$|^Force|^Torque|tension$|pressure$");
        static const QRegularExpression temperature("temperature$");
        const auto modules = compiledModules();
        for (const AUTH_INF &module : modules) {
            for (const QString &mode : module.inner_mode_nameList) {
                const QString task = module.name + ':' + mode;
                const QStringList keys = module.inner_mode_keylist_of(mode);
                for (const QString &key : keys) {
                    QTestData &row = QTest::newRow(qPrintable(task + ", " + key)) << task << key;
                    if (key.contains(temperature))
                        row << QVector<double> { -273.15, -infinite, notANumber }
                            << "enter a temperature above -273.15 °C.";
                    else if (key.contains(notNegative))
                        row << QVector<double> { -1e-9, infinite, notANumber }
                            << "enter zero or a number greater than zero.";
                    else
                        row << QVector<double> { 0, -1, infinite, notANumber }
                            << "enter a number greater than zero.";
                }
            }
        }
    }
    void limits()
    {
        QFETCH(QString, task);
        QFETCH(QString, key);
        QFETCH(QVector<double>, refused);
        QFETCH(QString, demand);
        for (const double value : refused) {
            QVector<double> numbers = defaults(task).value(key);
            numbers.last() = value;
            QCOMPARE(outcomeOf(task, { { key, numbers } }), key + ": " + demand);
        }
        QCOMPARE(outcomeOf(task, { { key, {} } }), key + ": enter a number.");
    }

    void unitsOfTheEntriesCount()
    {
        AUTH_INF module = moduleOf("Pressure vessel");
        NumbersByKey values = defaults("Pressure vessel:Thin wall");
        QStringList &diameter = module.inner_mode_parameterList[0][0];
        QCOMPARE(diameter.at(Entry::Key), QString("Inner diameter"));
        diameter[Entry::Unit] = "m";
        values["Inner diameter"] = { 0.8 };
        QStringList &axial = module.output_results[0];
        QCOMPARE(axial.at(Entry::Key), QString("Axial stress"));
        axial[Entry::Unit] = "Pa";

        const auto outcome = Calculator::calculate(module, "Thin wall", values);

        QCOMPARE(outcome.problem, QString());
        QCOMPARE(outcome.result.value("Axial stress"), QVector<double> { 75e6 });
        QCOMPARE(outcome.result.value("Hoop stress outside"), QVector<double> { 150 });
        for (const char *unit : { "furlong", "MM", "" }) {
            const QString problem = QString("The unit \"%1\" is unknown.").arg(unit);
            axial[Entry::Unit] = unit;
            QCOMPARE(shown(Calculator::calculate(module, "Thin wall", values)), problem);
            axial[Entry::Unit] = "Pa";
            diameter[Entry::Unit] = unit;
            QCOMPARE(shown(Calculator::calculate(module, "Thin wall", values)), problem);
            diameter[Entry::Unit] = "m";
        }
    }

    void modeWithoutCalculation()
    {
        for (const char *task : { "Update:Update", "Beam:Torsion" }) {
            QCOMPARE(outcomeOf(task, {}), QString("This task has no calculation."));
            QVERIFY(Calculator::resultKeys(moduleOf(task), modeOf(task)).isEmpty());
        }
        QCOMPARE(Wall::steady({}, 20, 0).problem,
                 QString("Layer thickness: enter at least one layer."));
    }

    void valueFromText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("several");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVector<double>>("numbers");
        using Numbers = QVector<double>;
        using Texts = QStringList;
        QTest::newRow("one number") << "12.5" << false << QVariant(12.5) << Numbers { 12.5 };
        QTest::newRow("exponent and spaces")
            << " -1e3 " << false << QVariant(-1000.0) << Numbers { -1000 };
        QTest::newRow("list") << "0.1; 1234.56789;5" << true
                              << QVariant(Texts { "0.1", "1234.56789", "5" })
                              << Numbers { 0.1, 1234.56789, 5 };
        QTest::newRow("list of one")
            << "0.1" << true << QVariant(Texts { "0.1" }) << Numbers { 0.1 };
    }
    void valueFromText()
    {
        QFETCH(QString, text);
        QFETCH(bool, several);
        const auto outcome = ::valueFromText(text, several);
        QCOMPARE(outcome.problem, QString());
        QTEST(outcome.result, "value");
        QTEST(numbersFromValue(outcome.result, several), "numbers");
    }

    void textThatIsNoValue_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("several");
        QTest::addColumn<QString>("wrong");
        QTest::newRow("list where one number belongs") << "1; 2" << false << "1; 2";
        QTest::newRow("decimal comma") << "0,5" << false << "0,5";
        QTest::newRow("word in a list") << "1; two" << true << "two";
        QTest::newRow("semicolon at the end") << "1;" << true << "";
        QTest::newRow("infinite") << "inf" << false << "inf";
        QTest::newRow("not a number by name") << "nan" << true << "nan";
        QTest::newRow("empty") << "" << false << "";
    }
    void textThatIsNoValue()
    {
        QFETCH(QString, text);
        QFETCH(bool, several);
        QFETCH(QString, wrong);
        const auto outcome = ::valueFromText(text, several);
        QCOMPARE(outcome.problem,
                 QString("\"%1\" is not a number. Write decimals with a point%2.")
                     .arg(wrong,
                          several ? " and separate the numbers by semicolons, as in 0.5; 12"
                                  : ", as in 0.5"));
        QVERIFY(!outcome.result.isValid());
    }

    void textFromNumbers()
    {
        QCOMPARE(::textFromNumbers({}), QString());
        QCOMPARE(::textFromNumbers({ 2.0 / 3, -9.5, -0.0, 1500 }),
                 QString("0.666667; -9.5; 0; 1500"));
    }
};

QTEST_GUILESS_MAIN(tst_Calculations)
#include "tst_calculations.moc"

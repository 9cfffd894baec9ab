// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "calculator.h"
#include "entry.h"
#include "modules.h"
#include "numbers.h"

#include <Kelto/AUTH_INF>

#include <QtTest>

namespace {

AUTH_INF moduleNamed(const QString &name)
{
    const auto modules = compiledModules();
    for (const AUTH_INF &module : modules) {
        if (module.name == name)
            return module;
    }
    return {};
}

/// What the fields of the window hold when a task is chosen.
NumbersByKey defaults(const AUTH_INF &module, const QString &mode)
{
    NumbersByKey values;
    const QStringList keys = module.inner_mode_keylist_of(mode);
    for (const QString &key : keys)
        values.insert(key,
                      numbersFromValue(valueFromText(Calculator::defaultText(key), true).result,
                                       true));
    return values;
}

/// One line per result, by key, with the numbers as they stand on the screen.
QString lines(const NumbersByKey &results)
{
    QStringList lines;
    for (auto it = results.cbegin(); it != results.cend(); ++it)
        lines.append(it.key() + QStringLiteral(" ") + textFromNumbers(it.value()));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

class tst_Calculator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resultsInTheUnitsOfTheEntries_data();
    void resultsInTheUnitsOfTheEntries();
    void unitOfAParameterCounts();
    void unitOfAResultCounts();
    void unknownUnitIsRefused();
    void problemLeavesNoResults();
    void missingValueIsRefused();
    void modeWithoutCalculation();

    void siFactor_data();
    void siFactor();
    void valueFromText_data();
    void valueFromText();
    void textThatIsNoValue_data();
    void textThatIsNoValue();
    void textFromNumbers_data();
    void textFromNumbers();
};

void tst_Calculator::resultsInTheUnitsOfTheEntries_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("results");

    QTest::newRow("cantilever")
        << "Beam"
        << "Cantilever"
        << "Bending moment 1500\nBending stress 62.5\nDeflection 2.75573\nSlope 0.221049";
    QTest::newRow("simply supported beam")
        << "Beam"
        << "Simply supported"
        << "Bending moment 375\nBending stress 15.625\nDeflection 0.241127\nSlope 0.0434202";
    QTest::newRow("fixed beam")
        << "Beam"
        << "Fixed at both ends"
        << "Bending moment 229.167\nBending stress 9.54861\nDeflection 0.05167\nSlope 0.00898849";
    QTest::newRow("compression spring") << "Helical spring"
                                        << "Compression"
                                        << "Curvature factor 1.18402\nShear stress 536.014\nSpring "
                                           "deflection 26.8041\nSpring rate 7.46155";
    QTest::newRow("extension spring") << "Helical spring"
                                      << "Extension"
                                      << "Curvature factor 1.18402\nShear stress 536.014\nSpring "
                                         "deflection 24.1237\nSpring rate 7.46155";
    QTest::newRow("torsion spring") << "Helical spring"
                                    << "Torsion"
                                    << "Angle of twist 62.0856\nBending stress 623.988\nCurvature "
                                       "factor 1.10268\nTorsional rate 24.1602";
    QTest::newRow("thin vessel")
        << "Pressure vessel"
        << "Thin wall"
        << "Axial stress 37.5\nHoop stress inside 75\nHoop stress mid-wall 75\nHoop stress outside "
           "75\n"
           "Radial stress inside -6\nRadial stress mid-wall -3\nRadial stress outside 0";
    QTest::newRow("thick vessel")
        << "Pressure vessel"
        << "Thick wall"
        << "Axial stress 35.3567\nHoop stress inside 76.7135\nHoop stress mid-wall 73.5934\nHoop "
           "stress outside 70.8135\n"
           "Radial stress inside -6\nRadial stress mid-wall -2.87989\nRadial stress outside -0.1";
    QTest::newRow("wall between surfaces")
        << "Plane wall"
        << "Steady"
        << "Boundary temperatures 20; 19.8373; 16.1938; -9.83132; -10\nHeat flux 7.59067\nThermal "
           "resistance 3.95222";
    QTest::newRow("wall between air")
        << "Plane wall"
        << "With convection"
        << "Boundary temperatures 19.0548; 18.8989; 15.4055; -9.54716; -9.70889\nHeat flux "
           "7.27786\nThermal resistance 4.12209";
}

void tst_Calculator::resultsInTheUnitsOfTheEntries()
{
    QFETCH(QString, module);
    QFETCH(QString, mode);
    const AUTH_INF item = moduleNamed(module);

    const auto outcome = Calculator::calculate(item, mode, defaults(item, mode));

    QCOMPARE(outcome.problem, QString());
    QTEST(lines(outcome.result), "results");
}

void tst_Calculator::unitOfAParameterCounts()
{
    AUTH_INF module = moduleNamed(QStringLiteral("Pressure vessel"));
    const QString mode = QStringLiteral("Thin wall");
    NumbersByKey values = defaults(module, mode);
    const auto inMillimetres = Calculator::calculate(module, mode, values);

    QCOMPARE(module.inner_mode_parameterList[0][0][Entry::Key], QStringLiteral("Inner diameter"));
    module.inner_mode_parameterList[0][0][Entry::Unit] = QStringLiteral("m");
    values[QStringLiteral("Inner diameter")] = { 0.4 };
    const auto inMetres = Calculator::calculate(module, mode, values);

    QVERIFY(inMetres.isValid());
    QCOMPARE(lines(inMetres.result), lines(inMillimetres.result));
}

void tst_Calculator::unitOfAResultCounts()
{
    AUTH_INF module = moduleNamed(QStringLiteral("Pressure vessel"));
    const QString mode = QStringLiteral("Thin wall");
    QCOMPARE(module.output_results.first().at(Entry::Key), QStringLiteral("Axial stress"));
    module.output_results.first()[Entry::Unit] = QStringLiteral("Pa");

    const auto outcome = Calculator::calculate(module, mode, defaults(module, mode));

    QCOMPARE(outcome.problem, QString());
    QCOMPARE(outcome.result.value(QStringLiteral("Axial stress")), QVector<double> { 37.5e6 });
}

void tst_Calculator::unknownUnitIsRefused()
{
    AUTH_INF module = moduleNamed(QStringLiteral("Plane wall"));
    const QString mode = QStringLiteral("Steady");
    const NumbersByKey values = defaults(module, mode);
    const QString problem = QStringLiteral("The unit \"furlong\" is unknown.");

    AUTH_INF parameterUnit = module;
    parameterUnit.inner_mode_parameterList[0][0][Entry::Unit] = QStringLiteral("furlong");
    QCOMPARE(Calculator::calculate(parameterUnit, mode, values).problem, problem);

    AUTH_INF resultUnit = module;
    resultUnit.output_results[0][Entry::Unit] = QStringLiteral("furlong");
    QCOMPARE(Calculator::calculate(resultUnit, mode, values).problem, problem);
}

void tst_Calculator::problemLeavesNoResults()
{
    const AUTH_INF module = moduleNamed(QStringLiteral("Beam"));
    const QString mode = QStringLiteral("Cantilever");
    NumbersByKey values = defaults(module, mode);
    values[QStringLiteral("Length")] = { 0 };

    const auto outcome = Calculator::calculate(module, mode, values);

    QCOMPARE(outcome.problem, QStringLiteral("Length: enter a number greater than zero."));
    QVERIFY(outcome.result.isEmpty());
}

void tst_Calculator::missingValueIsRefused()
{
    const AUTH_INF module = moduleNamed(QStringLiteral("Beam"));
    const QString mode = QStringLiteral("Cantilever");
    NumbersByKey values = defaults(module, mode);
    values.remove(QStringLiteral("Point load"));

    QCOMPARE(Calculator::calculate(module, mode, values).problem,
             QStringLiteral("Point load: enter a number."));
}

void tst_Calculator::modeWithoutCalculation()
{
    const AUTH_INF update = moduleNamed(QStringLiteral("Update"));
    const QString problem = QStringLiteral("This task has no calculation.");

    QCOMPARE(Calculator::calculate(update, QStringLiteral("Update"), {}).problem, problem);
    QVERIFY(Calculator::resultKeys(update, QStringLiteral("Update")).isEmpty());
    const AUTH_INF beam = moduleNamed(QStringLiteral("Beam"));
    QCOMPARE(Calculator::calculate(beam, QStringLiteral("Torsion"), {}).problem, problem);
    QVERIFY(Calculator::resultKeys(beam, QStringLiteral("Torsion")).isEmpty());
}

void tst_Calculator::siFactor_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<double>("factor");

    QTest::newRow("dimensionless") << "-" << 1.;
    QTest::newRow("millimetre") << "mm" << 0.001;
    QTest::newRow("degree") << "°" << M_PI / 180;
    QTest::newRow("newton per millimetre") << "N/mm" << 1000.;
    QTest::newRow("newton millimetre") << "N·mm" << 0.001;
    QTest::newRow("newton millimetre per degree") << "N·mm/°" << 0.18 / M_PI;
    QTest::newRow("megapascal") << "MPa" << 1e6;
    QTest::newRow("degree Celsius stays") << "°C" << 1.;
    QTest::newRow("unknown") << "furlong" << 0.;
    QTest::newRow("wrong case") << "MM" << 0.;
    QTest::newRow("empty") << "" << 0.;
}

void tst_Calculator::siFactor()
{
    QFETCH(QString, unit);
    QTEST(::siFactor(unit), "factor");
}

void tst_Calculator::valueFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("several");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVector<double>>("numbers");

    using Numbers = QVector<double>;
    QTest::newRow("one number") << "12.5" << false << QVariant(12.5) << Numbers { 12.5 };
    QTest::newRow("exponent and spaces")
        << " -1e3 " << false << QVariant(-1000.0) << Numbers { -1000 };
    QTest::newRow("list") << "0.1; 0.2;0.05" << true
                          << QVariant(QStringList { "0.1", "0.2", "0.05" })
                          << Numbers { 0.1, 0.2, 0.05 };
    QTest::newRow("list of one") << "0.1" << true << QVariant(QStringList { "0.1" })
                                 << Numbers { 0.1 };
    QTest::newRow("list with many digits")
        << "1234.56789; 1" << true << QVariant(QStringList { "1234.56789", "1" })
        << Numbers { 1234.56789, 1 };
}

void tst_Calculator::valueFromText()
{
    QFETCH(QString, text);
    QFETCH(bool, several);

    const auto outcome = ::valueFromText(text, several);

    QCOMPARE(outcome.problem, QString());
    QTEST(outcome.result, "value");
    QTEST(numbersFromValue(outcome.result, several), "numbers");
}

void tst_Calculator::textThatIsNoValue_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("several");
    QTest::addColumn<QString>("problem");

    const QString one
        = QStringLiteral("\"%1\" is not a number. Write decimals with a point, as in 0.5.");
    const QString list = QStringLiteral("\"%1\" is not a number. Write decimals with a point and "
                                        "separate the numbers by semicolons, as in 0.5; 12.");
    QTest::newRow("list where one number belongs") << "1; 2" << false << one.arg("1; 2");
    QTest::newRow("decimal comma") << "0,5" << false << one.arg("0,5");
    QTest::newRow("word in a list") << "1; two" << true << list.arg("two");
    QTest::newRow("semicolon at the end") << "1;" << true << list.arg(QString());
    QTest::newRow("infinite") << "inf" << false << one.arg("inf");
    QTest::newRow("not a number by name") << "nan" << true << list.arg("nan");
    QTest::newRow("beyond the range of numbers") << "1e999" << false << one.arg("1e999");
    QTest::newRow("empty") << "" << false << one.arg(QString());
}

void tst_Calculator::textThatIsNoValue()
{
    QFETCH(QString, text);
    QFETCH(bool, several);

    const auto outcome = ::valueFromText(text, several);

    QTEST(outcome.problem, "problem");
    QVERIFY(!outcome.result.isValid());
}

void tst_Calculator::textFromNumbers_data()
{
    QTest::addColumn<QVector<double>>("numbers");
    QTest::addColumn<QString>("text");

    using Numbers = QVector<double>;
    QTest::newRow("none") << Numbers() << "";
    QTest::newRow("whole") << Numbers { 1500 } << "1500";
    QTest::newRow("six digits") << Numbers { 2.0 / 3 } << "0.666667";
    QTest::newRow("zero without a sign") << Numbers { -0.0 } << "0";
    QTest::newRow("list") << Numbers { 20, -9.5 } << "20; -9.5";
}

void tst_Calculator::textFromNumbers()
{
    QFETCH(QVector<double>, numbers);
    QTEST(::textFromNumbers(numbers), "text");
}

QTEST_GUILESS_MAIN(tst_Calculator)
#include "tst_calculator.moc"

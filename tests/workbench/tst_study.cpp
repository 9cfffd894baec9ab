// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "modules.h"
#include "task.h"

#include <Kelto/AUTH_SET>

#include <QtTest>

#include "support/directorytest.h"

/// Studies of one parameter, compared with single calculations.
class tst_Study : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        DirectoryTest::init();
        if (QTest::currentTestFailed())
            return;
        m_registry = std::make_unique<AUTH_SET>("Workbench", "1.0", compiledModules());
        use("Vessels/Pressure vessel/Thick wall");
    }

    void everyPointIsThatOfTheCalculation_data()
    {
        QTest::addColumn<QString>("task");
        QTest::addColumn<QString>("key");
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("to");
        QTest::addColumn<int>("steps");
        QTest::newRow("upwards") << "Vessels/Pressure vessel/Thick wall"
                                 << "Internal pressure" << 1. << 7. << 6;
        QTest::newRow("downwards") << "Statics/Beam/Cantilever"
                                   << "Length" << 1500. << 500. << 3;
        QTest::newRow("one step") << "Heat/Plane wall/Steady"
                                  << "Outer surface temperature" << -10. << 5. << 1;
        QTest::newRow("steps without a finite decimal form") << "Statics/Helical spring/Torsion"
                                                             << "Torque" << 100. << 101. << 7;
    }
    void everyPointIsThatOfTheCalculation()
    {
        QFETCH(QString, task);
        QFETCH(QString, key);
        QFETCH(double, from);
        QFETCH(double, to);
        QFETCH(int, steps);
        use(task);

        QVector<int> progress;
        const auto points = computed({ quantity(key), {}, from, to, steps }, [&](int done) {
            progress.append(done);
            return true;
        });

        QCOMPARE(points.size(), steps + 1);
        QCOMPARE(points.first().value, from);
        QCOMPARE(points.last().value, to);
        for (int i = 0; i <= steps; ++i) {
            QCOMPARE(progress.at(i), i + 1);
            QCOMPARE(points.at(i).value, from + (to - from) * i / steps);
            QCOMPARE(points.at(i).problem, QString());
            QCOMPARE(points.at(i).results, resultsOf(key, points.at(i).value));
        }
    }

    void refusedValuesLeaveAGap()
    {
        const StudyRange range { quantity("Internal pressure"), "p", -2, 2, 4 };
        const auto points = computed(range);
        QStringList problems;
        for (const StudyPoint &point : points) {
            problems.append(point.problem);
            for (const QVariant &result : point.results)
                QCOMPARE(result.isValid(), point.problem.isEmpty());
        }
        QVERIFY2(!problems.at(0).isEmpty() && !problems.at(1).isEmpty(),
                 qPrintable(problems.at(0)));
        QCOMPARE(problems.mid(2), (QStringList { "", "", "" }));
        const auto curves = resultCurves(range, results(), points);
        QCOMPARE(curves.first().points.size(), 3);
        QCOMPARE(curves.first().points.first().x(), 0.);
        QVERIFY(resultCurves(range, results(), points.mid(0, 2)).isEmpty());
    }

    void canceledStudyKeepsWhatIsDone()
    {
        const auto points = computed({ quantity("Internal pressure"), "p", 1, 2, 100 },
                                     [](int done) { return done < 7; });
        QCOMPARE(points.size(), 7);
    }

    void resultsOverTheParameter()
    {
        const StudyRange range { quantity("Internal pressure"), "p", 1, 3, 2 };
        const auto points = computed(range);
        const auto curves = resultCurves(range, results(), points);
        QCOMPARE(curves.size(), m_task.results.size()); // each has one value
        for (int i = 0; i < curves.size(); ++i) {
            QCOMPARE(curves.at(i).x.name, QString("Internal pressure"));
            QCOMPARE(curves.at(i).x.unit, QString("MPa"));
            QCOMPARE(curves.at(i).y.name, m_task.results.at(i).name().first);
            QCOMPARE(curves.at(i).y.unit, m_task.results.at(i).unit().first);
            for (int k = 0; k < 3; ++k)
                QCOMPARE(curves.at(i).points.at(k),
                         QPointF(k + 1, points.at(k).results.at(i).toDouble()));
        }
    }

    void familyHasBothEnds()
    {
        use("Statics/Beam/Cantilever");
        const StudyRange range { quantity("Length"), "L", 1000, 2000, 10 };
        const auto points = computed(range);
        const auto curvesOfOne = points.first().curves;
        QVERIFY(curvesOfOne.size() > 1);

        const auto family = familyOfCurves(range, points, 3);

        QCOMPARE(family.size(), 3 * curvesOfOne.size());
        QCOMPARE(family.first().name, QString("L = 1,000 mm"));
        QCOMPARE(family.at(curvesOfOne.size()).name, QString("L = 1,500 mm"));
        QCOMPARE(family.last().name, QString("L = 2,000 mm"));
        QCOMPARE(family.first().points, curvesOfOne.first().points);
        // No more members than points, and none without any.
        QCOMPARE(familyOfCurves(range, points.mid(0, 2), 6).size(), 2 * curvesOfOne.size());
        QCOMPARE(familyOfCurves(range, points.mid(0, 1), 6).size(), curvesOfOne.size());
        QCOMPARE(familyOfCurves(range, {}, 6).size(), 0);
    }

    void table()
    {
        use("Heat/Plane wall/Steady");
        const StudyRange range { quantity("Inner surface temperature"), "T", -300, 20, 1 };
        const auto points = computed(range);
        const QStringList lines = studyAsCsv(range, results(), points).split('\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.at(3), QString());
        QStringList heading { "\"Inner surface temperature [°C]\"" };
        for (const VParameter &result : qAsConst(m_task.results))
            heading.append('"' + result.name().first + " [" + result.unit().first + "]\"");
        QCOMPARE(lines.at(0), heading.join(',') + ',');
        // What is wrong stands in the last column, quoted where it holds a separator.
        const QString problem = points.first().problem;
        QVERIFY(!problem.isEmpty());
        QVERIFY2(lines.at(1).startsWith("-300,,,,") && lines.at(1).contains(problem.left(10)),
                 qPrintable(lines.at(1)));
        static const QRegularExpression temperatures("\"20; [0-9.; -]*; -10\"");
        QVERIFY2(lines.at(2).startsWith("20,") && lines.at(2).contains(temperatures),
                 qPrintable(lines.at(2)));
    }

private:
    void use(const QString &id)
    {
        m_task = tasksNamed(*m_registry, id).value(0);
        QVERIFY(!m_task.isNull());
        m_values.clear();
        for (const VParameter &parameter : qAsConst(m_task.parameters)) {
            const QString key = parameter.name().first;
            const QVariant value = m_task.hints.defaultValue(key);
            m_values.append({ "Attribute/" + key, value.isValid() ? value : QVariant(QString()) });
            m_values.append({ "Unit/" + key, parameter.unit().first });
        }
    }

    Quantity quantity(const QString &key) const
    {
        return quantityOf(
            *std::find_if(m_task.parameters.cbegin(), m_task.parameters.cend(),
                          [&](const VParameter &p) { return p.name().first == key; }));
    }

    QVector<Quantity> results() const
    {
        QVector<Quantity> quantities;
        for (const VParameter &result : m_task.results)
            quantities.append(quantityOf(result));
        return quantities;
    }

    QVector<StudyPoint> computed(
        const StudyRange &range,
        const std::function<bool(int)> &goOn = [](int) { return true; }) const
    {
        return study(
            range,
            [&](double value) { return computedAt(value, range.quantity.name, m_task, m_values); },
            goOn);
    }

    QVector<QVariant> resultsOf(const QString &key, double value) const
    {
        Values values = m_values;
        for (auto &entry : values) {
            if (entry.first == "Attribute/" + key)
                entry.second = value;
        }
        const Values all
            = Calculator::calculate(m_task.module, m_task.mode.first, values).result.results;
        QVector<QVariant> results;
        for (const VParameter &result : m_task.results)
            results.append(valueOf(all, "Attribute/" + result.name().first));
        return results;
    }

    std::unique_ptr<AUTH_SET> m_registry;
    Task m_task;
    Values m_values;
};

QTEST_GUILESS_MAIN(tst_Study)
#include "tst_study.moc"

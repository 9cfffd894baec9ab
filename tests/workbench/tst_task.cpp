// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "hostmodules.h"
#include "task.h"

#include <Kelto/AUTH_SET>
#include <Kelto/VParameter>

#include <QSettings>

#include <QtTest>

#include "support/directorytest.h"

namespace {

QStringList plainNames(const QVector<VParameter> &parameters)
{
    QStringList names;
    for (const VParameter &parameter : parameters)
        names.append(parameter.name().first);
    return names;
}

} // namespace

class tst_Task : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void noTaskAtFirst();
    void taskHoldsWhatTheRegistryDescribes();
    void selectTaskByStandardName_data();
    void selectTaskByStandardName();
    void unknownTaskChangesNothing_data();
    void unknownTaskChangesNothing();
    void rememberedTaskComesBackInTheNextRun();
    void firstTaskWhereNoneCanBeRecalled_data();
    void firstTaskWhereNoneCanBeRecalled();
};

void tst_Task::noTaskAtFirst()
{
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), hostModules());

    QVERIFY(currentTask(registry).isNull());
}

void tst_Task::taskHoldsWhatTheRegistryDescribes()
{
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), hostModules());
    // Position 5 of the group, but the third mode of its module.
    QVERIFY(selectTask(registry, QStringLiteral("Workbench:Statics:Torsion")));

    const Task task = currentTask(registry);

    QCOMPARE(task.group.first, QStringLiteral("Statics"));
    QCOMPARE(task.module.name, QStringLiteral("Helical spring"));
    QCOMPARE(task.mode.first, QStringLiteral("Torsion"));
    QCOMPARE(task.description, task.module.inner_mode_description.at(2));
    QCOMPARE(plainNames(task.parameters),
             (QStringList { "Active coils", "Elastic modulus", "Mean coil diameter", "Torque",
                            "Wire diameter" }));
    QCOMPARE(task.parameters.at(3).toSetsForm(),
             (QStringList { "Load", "Torque", "torque", "false", "N·mm", "N·m", "M", "Torque",
                            "Load" }));
    QCOMPARE(plainNames(task.results),
             (QStringList { "Angle of twist", "Bending stress", "Curvature factor",
                            "Torsional rate" }));
}

void tst_Task::selectTaskByStandardName_data()
{
    QTest::addColumn<QString>("standardName");
    QTest::addColumn<QString>("title");

    QTest::newRow("first mode of the first module") << "Workbench:Statics:Cantilever"
                                                    << "Statics › Beam › Cantilever";
    QTest::newRow("mode of the second module of a group") << "Workbench:Statics:Extension"
                                                          << "Statics › Helical spring › Extension";
    QTest::newRow("another group") << "Workbench:Heat:With convection"
                                   << "Heat › Plane wall › With convection";
}

void tst_Task::selectTaskByStandardName()
{
    QFETCH(QString, standardName);
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), hostModules());
    QVERIFY(selectTask(registry, standardName));
    QTEST(currentTask(registry).title(), "title");
}

void tst_Task::unknownTaskChangesNothing_data()
{
    QTest::addColumn<QString>("standardName");

    QTest::newRow("empty") << "";
    QTest::newRow("unknown mode") << "Workbench:Statics:Buckling";
    QTest::newRow("mode of another group") << "Workbench:Heat:Cantilever";
    QTest::newRow("group that is not exclusive") << "Workbench:Tools:Update";
    QTest::newRow("mode alone") << "Cantilever";
    QTest::newRow("too many parts") << "Workbench:Statics:Cantilever:";
    QTest::newRow("wrong case") << "workbench:statics:cantilever";
}

void tst_Task::unknownTaskChangesNothing()
{
    QFETCH(QString, standardName);
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), hostModules());
    QVERIFY(selectTask(registry, QStringLiteral("Workbench:Vessels:Thick wall")));

    QVERIFY(!selectTask(registry, standardName));

    QCOMPARE(currentTask(registry).title(),
             QStringLiteral("Vessels › Pressure vessel › Thick wall"));
}

void tst_Task::rememberedTaskComesBackInTheNextRun()
{
    AUTH_SET earlier(QStringLiteral("Workbench"), QStringLiteral("1.0"), hostModules());
    QVERIFY(selectTask(earlier, QStringLiteral("Workbench:Vessels:Thick wall")));
    rememberTask(earlier, currentTask(earlier));
    // Selected, but never remembered.
    QVERIFY(selectTask(earlier, QStringLiteral("Workbench:Heat:Steady")));
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), hostModules());

    recallTask(registry);

    QCOMPARE(currentTask(registry).title(),
             QStringLiteral("Vessels › Pressure vessel › Thick wall"));
}

void tst_Task::firstTaskWhereNoneCanBeRecalled_data()
{
    QTest::addColumn<QString>("setting");

    QTest::newRow("first run") << QString();
    QTest::newRow("task that is no longer there") << "Workbench:Statics:Buckling";
    QTest::newRow("task of another program") << "Desk:Vessels:Thick wall";
}

void tst_Task::firstTaskWhereNoneCanBeRecalled()
{
    QFETCH(QString, setting);
    if (!setting.isNull()) {
        QVERIFY(QDir().mkdir("Config"));
        QSettings("Config/Workbench_config.ini", QSettings::IniFormat)
            .setValue("Task/Last", setting);
    }
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), hostModules());
    QCOMPARE(registry.value_set("Task/Last").toString(), setting);

    recallTask(registry);

    QCOMPARE(currentTask(registry).title(), QStringLiteral("Statics › Beam › Cantilever"));
}

QTEST_GUILESS_MAIN(tst_Task)
#include "tst_task.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "entry.h"
#include "modules.h"
#include "task.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>

#include <QtTest>

#include "support/temporarycurrentdirectory.h"

class tst_Task : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noTaskAtFirst();
    void taskHoldsWhatTheRegistryDescribes();
    void selectTaskByStandardName_data();
    void selectTaskByStandardName();
    void unknownTaskChangesNothing_data();
    void unknownTaskChangesNothing();
};

void tst_Task::noTaskAtFirst()
{
    const TemporaryCurrentDirectory directory;
    QVERIFY(directory.isUsable());
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), workbenchModules());

    QVERIFY(currentTask(registry).isNull());
}

void tst_Task::taskHoldsWhatTheRegistryDescribes()
{
    const TemporaryCurrentDirectory directory;
    QVERIFY(directory.isUsable());
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), workbenchModules());
    // Position 5 of the group, but the third mode of its module.
    QVERIFY(selectTask(registry, QStringLiteral("Workbench:Statics:Torsion")));

    const Task task = currentTask(registry);

    QCOMPARE(task.group.first, QStringLiteral("Statics"));
    QCOMPARE(task.module.name, QStringLiteral("Helical spring"));
    QCOMPARE(task.mode.first, QStringLiteral("Torsion"));
    QCOMPARE(task.description, task.module.inner_mode_description.at(2));
    QCOMPARE(task.parameters, task.module.inner_mode_parameterList.at(2));
    QStringList results;
    for (const QStringList &entry : task.results)
        results.append(entry.at(Entry::Key));
    QCOMPARE(results,
             (QStringList { QStringLiteral("Torsional rate"), QStringLiteral("Angle of twist"),
                            QStringLiteral("Curvature factor"),
                            QStringLiteral("Bending stress") }));
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
    const TemporaryCurrentDirectory directory;
    QVERIFY(directory.isUsable());
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), workbenchModules());
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
    const TemporaryCurrentDirectory directory;
    QVERIFY(directory.isUsable());
    AUTH_SET registry(QStringLiteral("Workbench"), QStringLiteral("1.0"), workbenchModules());
    QVERIFY(selectTask(registry, QStringLiteral("Workbench:Vessels:Thick wall")));

    QVERIFY(!selectTask(registry, standardName));

    QCOMPARE(currentTask(registry).title(),
             QStringLiteral("Vessels › Pressure vessel › Thick wall"));
}

QTEST_GUILESS_MAIN(tst_Task)
#include "tst_task.moc"

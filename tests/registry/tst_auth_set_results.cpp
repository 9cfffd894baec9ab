// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The default results of modules, of groups and of all groups.

#include "support/parametermodules.h"

#include <QTest>

namespace {

AUTH_INF withoutFlag(AUTH_INF item)
{
    item.exclusive_group = false;
    return item;
}

/// One module of group G per list of entries.
Modules modulesOfG(const QVector<ParameterEntries> &lists)
{
    Modules modules;
    for (const ParameterEntries &results : lists)
        modules.append(moduleWithResults(QString::number(modules.size()), "G", results));
    return modules;
}

/// One group per list of entries, each with one module.
Modules groupsWithResults(const QVector<ParameterEntries> &lists)
{
    Modules modules;
    for (const ParameterEntries &results : lists) {
        const QString name = QString::number(modules.size());
        modules.append(moduleWithResults(name, name, results));
    }
    return modules;
}

/// Group G of P and R with Q between them, which has no flag; group H of S.
Modules withResults()
{
    return { moduleWithResults("P", "G", { entry("b"), entry("B") }),
             withoutFlag(moduleWithResults("Q", "G", { entry("a") })),
             moduleWithResults("R", "G", { entry("c"), entry("b") }),
             moduleWithResults("S", "H", { entry("h") }) };
}

using NamedLists = QPair<const char *, QPair<QVector<ParameterEntries>, ParameterEntries>>;

/// What comes out of lists that are merged in turn. A name has two places only where the last list
/// has another bearer of it than the first list that has one.
QVector<NamedLists> mergedInTurn()
{
    const QStringList x1 = entry("x", "1");
    const QStringList x2 = entry("x", "2");
    const QStringList x3 = entry("x", "3");
    const QStringList y = entry("y");
    const QStringList noTexts;
    return {
        { "one list", { { { x1, y } }, { x1, y } } },
        { "equal ones of one list", { { { y, y } }, { y } } },
        { "two of one name in one list", { { { x1, x2 } }, { x1 } } },
        { "equal ones of two lists", { { { y }, { x1, y } }, { x1, y } } },
        { "equal ones of three lists", { { { y }, { y }, { y } }, { y } } },
        { "empty ones of two lists", { { { noTexts }, { y, noTexts } }, { noTexts, y } } },
        { "the last of two differs", { { { x1 }, { x2 } }, { x1, x1 } } },
        { "the middle of three differs", { { { x1 }, { x2 }, { y } }, { x1, y } } },
        { "only the middle of three differs", { { { x1 }, { x2 }, { x1 } }, { x1 } } },
        { "only the last of three differs", { { { x1 }, { x1 }, { x2 } }, { x1, x1 } } },
        { "the last differs, the middle has none", { { { x1 }, { y }, { x2 } }, { x1, x1, y } } },
        { "the first has none", { { { y }, { x2 }, { x1 } }, { x2, x2, y } } },
        { "all three differ", { { { x1 }, { x2 }, { x3 } }, { x1, x1 } } },
        { "an empty last list", { { { x1 }, { x2 }, {} }, { x1 } } },
        { "a last list with two of one name", { { { y }, { x2, x1 } }, { x2, y } } },
    };
}

} // namespace

class TestAuthSetResults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesOverEveryText();
    void givesResultsOfAModule_data();
    void givesResultsOfAModule();
    void givesNoneForNothing();
    void knowsModulesThatAreNotRegistered();
    void givesResultsOfAGroup_data();
    void givesResultsOfAGroup();
    void mergesTheModulesOfAGroupInTurn_data();
    void mergesTheModulesOfAGroupInTurn();
    void givesResultsOfAllGroups_data();
    void givesResultsOfAllGroups();
    void mergesAllGroupsInTurn_data();
    void mergesAllGroupsInTurn();
    void followsTheModules();
};

void TestAuthSetResults::takesOverEveryText()
{
    const AUTH_INF item
        = moduleWithResults("P", "G",
                            { { "group", "key", "QString", "true", "mm", "in", "E", "k", "g" } });
    const Parameters list = AUTH_SET().defaultResultList(&item);
    QCOMPARE(list.size(), 1);
    const VParameter result = list.first();
    QCOMPARE(result.group(), Pair("group", "g"));
    QCOMPARE(result.name(), Pair("key", "k"));
    QCOMPARE(result.unit(), Pair("mm", "in"));
    QCOMPARE(result.symbol(), QString("E"));
    QCOMPARE(result.parameterObjectName(), QString("QString"));
    QCOMPARE(result.isMulti(), true);
    QCOMPARE(result.value(), QVariant());
}

void TestAuthSetResults::givesResultsOfAModule_data()
{
    QTest::addColumn<ParameterEntries>("results");
    QTest::addColumn<ParameterEntries>("expected");

    const auto row
        = [](const char *name, const ParameterEntries &results, const ParameterEntries &expected) {
              QTest::newRow(name) << results << expected;
          };
    const QStringList noTexts;
    row("none", {}, {});
    row("sorted, capital letters first", { entry("beta"), entry("Alpha"), entry("alpha") },
        { entry("Alpha"), entry("alpha"), entry("beta") });
    row("equal ones are kept", { entry("x"), entry("x") }, { entry("x"), entry("x") });
    row("places of one name go to the first of it",
        { entry("x", "late"), entry("a"), entry("x", "early") },
        { entry("a"), entry("x", "late"), entry("x", "late") });
    row("entry of eight texts is empty and comes first", { entry("a"), entry("b").mid(1) },
        { noTexts, entry("a") });
    row("entry of ten texts is empty and comes first", { entry("a"), entry("b") << "" },
        { noTexts, entry("a") });
    row("entry without texts is empty and comes first", { entry("a"), noTexts },
        { noTexts, entry("a") });
    row("several empty ones are kept", { noTexts, entry("a"), noTexts },
        { noTexts, noTexts, entry("a") });
}

void TestAuthSetResults::givesResultsOfAModule()
{
    QFETCH(ParameterEntries, results);
    QFETCH(ParameterEntries, expected);
    const AUTH_INF item = moduleWithResults("P", "G", results);
    QCOMPARE(shown(registryOf({ item }).defaultResultList(&item)), shown(parameters(expected)));
    QCOMPARE(item.output_results, results);
}

void TestAuthSetResults::givesNoneForNothing()
{
    const AUTH_INF *nothing = nullptr;
    QCOMPARE(shown(registryOf(withResults()).defaultResultList(nothing)), QStringList());
}

void TestAuthSetResults::knowsModulesThatAreNotRegistered()
{
    AUTH_INF item = withoutFlag(moduleWithResults("Z", "nowhere", { entry("z") }));
    item.inner_mode_count = 0;
    QCOMPARE(shown(registryOf(withResults()).defaultResultList(&item)),
             shown(parameters({ entry("z") })));
}

void TestAuthSetResults::givesResultsOfAGroup_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<QString>("group");
    QTest::addColumn<ParameterEntries>("expected");

    const auto row = [](const char *name, const Modules &modules, const char *group,
                        const ParameterEntries &expected) {
        QTest::newRow(name) << modules << QString(group) << expected;
    };
    const ParameterEntries ofGroupG { entry("B"), entry("b"), entry("c") };
    row("of the modules with the flag, sorted", withResults(), "G", ofGroupG);
    row("translated group", withResults(), "G_tr", ofGroupG);
    row("another group", withResults(), "H", { entry("h") });
    row("unknown group", withResults(), "nowhere", {});
    row("group in another case", withResults(), "g", {});
    row("no name", withResults(), "", {});
    row("empty registry", {}, "G", {});
    row("group that is not exclusive", { withoutFlag(moduleWithResults("P", "F", { entry("x") })) },
        "F", {});

    const Modules nameless { moduleWithResults("P", "", { entry("x") }),
                             moduleWithResults("Q", "G", { entry("y") }) };
    row("unknown group beside a nameless one", nameless, "nowhere", {});
    row("nameless group", nameless, "", { entry("x") });

    AUTH_INF withoutModes = moduleWithResults("P", "G", { entry("x") });
    withoutModes.inner_mode_count = 0;
    row("a module without modes has results", { withoutModes }, "G", { entry("x") });

    AUTH_INF first = moduleWithResults("P", "G", { entry("of G") });
    first.group_tr = "H";
    const Modules crossed { first, moduleWithResults("Q", "H", { entry("of H") }) };
    row("a name that is a translated one of an earlier group", crossed, "H", { entry("of G") });
    row("a resolved group name is not looked up again", crossed, "H_tr", { entry("of H") });
}

void TestAuthSetResults::givesResultsOfAGroup()
{
    QFETCH(Modules, modules);
    QFETCH(QString, group);
    QFETCH(ParameterEntries, expected);
    QCOMPARE(shown(registryOf(modules).defaultResultList(group)), shown(parameters(expected)));
}

void TestAuthSetResults::mergesTheModulesOfAGroupInTurn_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<ParameterEntries>("expected");

    const QVector<NamedLists> rows = mergedInTurn();
    for (const NamedLists &row : rows)
        QTest::newRow(row.first) << modulesOfG(row.second.first) << row.second.second;
}

void TestAuthSetResults::mergesTheModulesOfAGroupInTurn()
{
    QFETCH(Modules, modules);
    QFETCH(ParameterEntries, expected);
    QCOMPARE(shown(registryOf(modules).defaultResultList("G")), shown(parameters(expected)));

    // Modules without the flag have no place in the turn, not even the last one.
    modules.append(withoutFlag(moduleWithResults("Q", "G", { entry("x", "other") })));
    QCOMPARE(shown(registryOf(modules).defaultResultList("G")), shown(parameters(expected)));
}

void TestAuthSetResults::givesResultsOfAllGroups_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<ParameterEntries>("expected");

    const auto row
        = [](const char *name, const Modules &modules, const ParameterEntries &expected) {
              QTest::newRow(name) << modules << expected;
          };
    row("empty registry", {}, {});
    row("no exclusive group", { withoutFlag(moduleWithResults("P", "F", { entry("x") })) }, {});
    row("groups without results", groupsWithResults({ {}, {} }), {});
    row("sorted, without those of modules without the flag", withResults(),
        { entry("B"), entry("b"), entry("c"), entry("h") });

    const QStringList x1 = entry("x", "1");
    const QStringList x2 = entry("x", "2");
    row("two places inside of the only group are one", modulesOfG({ { x1 }, { x2 } }), { x1 });
    row("two places inside of the first group are one",
        modulesOfG({ { x1 }, { x2 } }) + groupsWithResults({ { entry("a") } }), { entry("a"), x1 });
    row("two places inside of the last group are two where the first differs",
        groupsWithResults({ { entry("x", "3") } }) + modulesOfG({ { x1 }, { x2 } }),
        { entry("x", "3"), entry("x", "3") });
    row("two places inside of the last group are one where the first agrees",
        groupsWithResults({ { x1 } }) + modulesOfG({ { x1 }, { x2 } }), { x1 });

    AUTH_INF first = moduleWithResults("P", "G", { entry("of G") });
    first.group_tr = "H";
    row("each group by its plain name, looked up again",
        { first, moduleWithResults("Q", "H", { entry("of H") }) }, { entry("of G") });
}

void TestAuthSetResults::givesResultsOfAllGroups()
{
    QFETCH(Modules, modules);
    QFETCH(ParameterEntries, expected);
    QCOMPARE(shown(registryOf(modules).defaultResultList()), shown(parameters(expected)));
}

void TestAuthSetResults::mergesAllGroupsInTurn_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<ParameterEntries>("expected");

    const QVector<NamedLists> rows = mergedInTurn();
    for (const NamedLists &row : rows)
        QTest::newRow(row.first) << groupsWithResults(row.second.first) << row.second.second;
}

void TestAuthSetResults::mergesAllGroupsInTurn()
{
    QFETCH(Modules, modules);
    QFETCH(ParameterEntries, expected);
    QCOMPARE(shown(registryOf(modules).defaultResultList()), shown(parameters(expected)));
}

void TestAuthSetResults::followsTheModules()
{
    AUTH_SET set = registryOf(withResults());
    set.append(moduleWithResults("T", "H", { entry("t") }));
    QCOMPARE(shown(set.defaultResultList("H")), shown(parameters({ entry("h"), entry("t") })));
    set.refresh_group();
    QCOMPARE(shown(set.defaultResultList("H")), shown(parameters({ entry("h"), entry("t") })));
    set.clear();
    // The groups outlive their modules.
    QCOMPARE(set.exclusive_group_namelist(), (QStringList { "G", "H" }));
    QCOMPARE(shown(set.defaultResultList("H")), QStringList());
    QCOMPARE(shown(set.defaultResultList()), QStringList());
    set.append(moduleWithResults("T", "H", { entry("t") }));
    QCOMPARE(shown(set.defaultResultList()), shown(parameters({ entry("t") })));
}

QTEST_GUILESS_MAIN(TestAuthSetResults)
#include "tst_auth_set_results.moc"

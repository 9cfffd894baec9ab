// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The default parameters of modes, of groups and of all groups.

#include "support/parametermodules.h"

#include <QTest>

class TestAuthSetDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesOverEveryText();
    void givesParametersOfAMode_data();
    void givesParametersOfAMode();
    void sortsParametersOfAMode_data();
    void sortsParametersOfAMode();
    void joinsTheModesOfAGroup_data();
    void joinsTheModesOfAGroup();
    void tellsParametersApartByAnyField_data();
    void tellsParametersApartByAnyField();
    void mergesAllGroupsInTurn_data();
    void mergesAllGroupsInTurn();
    void followsTheModules();
    void survivesAHugeCount();
};

void TestAuthSetDefaults::takesOverEveryText()
{
    const AUTH_SET set = registryOf(
        { single("P", "G", { { "group", "key", "QString", "true", "mm", "in", "E", "k", "g" } }) });
    const Parameters list = set.defaultParameterList("G", "P");
    QCOMPARE(list.size(), 1);
    const VParameter parameter = list.first();
    QCOMPARE(parameter.group(), Pair("group", "g"));
    QCOMPARE(parameter.name(), Pair("key", "k"));
    QCOMPARE(parameter.unit(), Pair("mm", "in"));
    QCOMPARE(parameter.symbol(), QString("E"));
    QCOMPARE(parameter.parameterObjectName(), QString("QString"));
    QCOMPARE(parameter.isMulti(), true);
    QCOMPARE(parameter.value(), QVariant());
}

void TestAuthSetDefaults::givesParametersOfAMode_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<Parameters>("expected");

    const auto row = [](const char *name, const Modules &modules, const char *group,
                        const char *mode, const ParameterEntries &expected) {
        QTest::newRow(name) << modules << QString(group) << QString(mode) << parameters(expected);
    };
    const ParameterEntries ofModeA { entry("Alpha"), entry("alpha"), entry("beta") };
    row("sorted, capital letters first", withParameters(), "G", "a", ofModeA);
    row("translated group", withParameters(), "G_tr", "a", ofModeA);
    row("translated mode", withParameters(), "G", "a_tr", ofModeA);
    row("both translated", withParameters(), "G_tr", "a_tr", ofModeA);
    row("second mode of a module", withParameters(), "G", "b", { entry("beta"), entry("gamma") });
    row("mode of a module without the flag", withParameters(), "G", "Q", { entry("d") });
    row("mode of another group", withParameters(), "H", "R", { entry("k") });

    row("unknown group", withParameters(), "nowhere", "a", {});
    row("unknown mode", withParameters(), "G", "nowhere", {});
    row("mode of another group's module", withParameters(), "H", "a", {});
    row("group in another case", withParameters(), "g", "a", {});
    row("mode in another case", withParameters(), "G", "A", {});
    row("no names", withParameters(), "", "", {});
    row("group that is not exclusive", { plainModule("P", "F", { "a" }) }, "F", "a", {});
    row("empty registry", {}, "G", "a", {});
    row("mode without parameters", { single("P", "G", {}) }, "G", "P", {});

    row("unknown group beside a nameless one", withNameless(), "nowhere", "", {});
    row("unknown mode beside a nameless one", withNameless(), "G", "nowhere", {});
    row("nameless group and mode", withNameless(), "", "", { entry("x") });
    row("nameless mode", withNameless(), "G", "", { entry("y") });

    row("a name of two modules means the first", withSharedNames(), "G", "b", { entry("Pb") });
    row("a name pair means the mode at its position", withSharedNames(), "G", "c", { entry("Qa") });
    row("a plain name that is an earlier translated one", withCrossedModes(), "G", "b",
        { entry("of a", "s", "T") });
    row("a resolved group name is looked up again", withCrossedGroups(), "H_tr", "m",
        { entry("of G", "s", "T") });

    row("name behind the last mode", withListsThatDisagree(), "more names", "b", {});
    row("name of the last mode", withListsThatDisagree(), "more names", "a", { entry("x") });
    row("mode without a name", withListsThatDisagree(), "fewer names", "b", {});
    row("mode without an entry list", withListsThatDisagree(), "fewer entries", "b", {});
    row("negative count", withListsThatDisagree(), "negative", "S", {});
    row("no modes", withListsThatDisagree(), "none", "T", {});
}

void TestAuthSetDefaults::givesParametersOfAMode()
{
    QFETCH(Modules, modules);
    QFETCH(QString, group);
    QFETCH(QString, mode);
    QFETCH(Parameters, expected);
    QCOMPARE(shown(registryOf(modules).defaultParameterList(group, mode)), shown(expected));
}

void TestAuthSetDefaults::sortsParametersOfAMode_data()
{
    QTest::addColumn<ParameterEntries>("entries");
    QTest::addColumn<ParameterEntries>("expected");

    const auto row
        = [](const char *name, const ParameterEntries &entries, const ParameterEntries &expected) {
              QTest::newRow(name) << entries << expected;
          };
    row("equal parameters are kept", { entry("x"), entry("x") }, { entry("x"), entry("x") });
    row("places of one name go to the first of it",
        { entry("x", "late"), entry("a"), entry("x", "early") },
        { entry("a"), entry("x", "late"), entry("x", "late") });
    row("three places of one name", { entry("x", "1"), entry("x", "2"), entry("x", "3") },
        { entry("x", "1"), entry("x", "1"), entry("x", "1") });
    row("names that differ in case are two", { entry("x", "1"), entry("X", "2") },
        { entry("X", "2"), entry("x", "1") });

    const QStringList nobody;
    row("entry of eight texts is empty and comes first", { entry("a"), entry("b").mid(0, 8) },
        { nobody, entry("a") });
    row("entry of ten texts is empty and comes first", { entry("a"), entry("b") << "" },
        { nobody, entry("a") });
    row("entry without texts is empty and comes first", { entry("a"), nobody },
        { nobody, entry("a") });
    row("several empty ones are kept", { nobody, entry("a"), nobody },
        { nobody, nobody, entry("a") });
    row("a parameter without a name takes the places of empty ones", { entry(""), nobody },
        { entry(""), entry("") });
    row("an empty one takes the places of those without a name", { nobody, entry("") },
        { nobody, nobody });
}

void TestAuthSetDefaults::sortsParametersOfAMode()
{
    QFETCH(ParameterEntries, entries);
    QFETCH(ParameterEntries, expected);
    const AUTH_SET set = registryOf({ single("P", "G", entries) });
    QCOMPARE(shown(set.defaultParameterList("G", "P")), shown(parameters(expected)));
}

void TestAuthSetDefaults::joinsTheModesOfAGroup_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<QString>("group");
    QTest::addColumn<Parameters>("expected");

    const auto row = [](const char *name, const Modules &modules, const char *group,
                        const ParameterEntries &expected) {
        QTest::newRow(name) << modules << QString(group) << parameters(expected);
    };
    const ParameterEntries ofGroupG { entry("Alpha"), entry("alpha"), entry("beta"), entry("d"),
                                      entry("gamma") };
    row("what two modes share comes once", withParameters(), "G", ofGroupG);
    row("translated group", withParameters(), "G_tr", ofGroupG);
    row("another group", withParameters(), "H", { entry("k") });
    row("unknown group", withParameters(), "nowhere", {});
    row("group in another case", withParameters(), "g", {});
    row("no name", withParameters(), "", {});
    row("unknown group beside a nameless one", withNameless(), "nowhere", {});
    row("nameless group", withNameless(), "", { entry("x") });
    row("nameless mode", withNameless(), "G", { entry("y"), entry("z") });
    row("group that is not exclusive", { plainModule("P", "F", { "a" }) }, "F", {});
    row("empty registry", {}, "G", {});

    row("two of one name keep two places, both of the first mode",
        { single("P", "G", { entry("x", "e") }), single("Q", "G", { entry("x", "E") }) }, "G",
        { entry("x", "e"), entry("x", "e") });
    row("three of one name keep three places",
        { single("P", "G", { entry("x", "1") }), single("Q", "G", { entry("x", "2") }),
          single("R", "G", { entry("x", "3") }) },
        "G", { entry("x", "1"), entry("x", "1"), entry("x", "1") });
    row("what a mode loses by its own sort is not joined",
        { single("P", "G", { entry("x", "1"), entry("x", "2") }) }, "G", { entry("x", "1") });
    row("equal parameters of one mode come once",
        { single("P", "G", { entry("x"), entry("x"), entry("a") }) }, "G",
        { entry("a"), entry("x") });
    row("empty parameters of two modes come once",
        { single("P", "G", { entry("x").mid(1) }), single("Q", "G", { {}, entry("a") }) }, "G",
        { {}, entry("a") });

    row("modes behind the last name pair add nothing", withSharedNames(), "G",
        { entry("Pa"), entry("Pb"), entry("Qa") });
    row("a mode that is hidden by an earlier translated name adds nothing", withCrossedModes(), "G",
        { entry("of a", "s", "T") });
    row("a resolved group name is looked up again", withCrossedGroups(), "H_tr",
        { entry("of G", "s", "T") });
    row("names behind the last mode add nothing", withListsThatDisagree(), "more names",
        { entry("x") });
    row("modes without names add nothing", withListsThatDisagree(), "fewer names", { entry("x") });
    row("modes without an entry list add nothing", withListsThatDisagree(), "fewer entries",
        { entry("x") });
    row("negative count", withListsThatDisagree(), "negative", {});
    row("no modes", withListsThatDisagree(), "none", {});
}

void TestAuthSetDefaults::joinsTheModesOfAGroup()
{
    QFETCH(Modules, modules);
    QFETCH(QString, group);
    QFETCH(Parameters, expected);
    QCOMPARE(shown(registryOf(modules).defaultParameterList(group)), shown(expected));
}

void TestAuthSetDefaults::tellsParametersApartByAnyField_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");

    QTest::newRow("group") << 0 << "other" << 2;
    QTest::newRow("object name") << 2 << "other" << 2;
    QTest::newRow("several values") << 3 << "true" << 2;
    QTest::newRow("another word for one value") << 3 << "TRUE" << 1;
    QTest::newRow("no word for one value") << 3 << "" << 1;
    QTest::newRow("unit") << 4 << "other" << 2;
    QTest::newRow("second text of the unit") << 5 << "other" << 2;
    QTest::newRow("symbol") << 6 << "other" << 2;
    QTest::newRow("case of the symbol") << 6 << "S" << 2;
    QTest::newRow("translated name") << 7 << "other" << 2;
    QTest::newRow("translated group") << 8 << "other" << 2;
}

void TestAuthSetDefaults::tellsParametersApartByAnyField()
{
    QFETCH(int, place);
    QFETCH(QString, text);
    QFETCH(int, count);

    const QStringList first = entry("x");
    QStringList second = first;
    second[place] = text;
    const AUTH_SET set = registryOf({ single("P", "G", { first }), single("Q", "G", { second }) });
    QCOMPARE(shown(set.defaultParameterList("G")), shown(Parameters(count, VParameter(first))));
}

void TestAuthSetDefaults::mergesAllGroupsInTurn_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<Parameters>("expected");

    const auto row
        = [](const char *name, const Modules &modules, const ParameterEntries &expected) {
              QTest::newRow(name) << modules << parameters(expected);
          };
    const QStringList x1 = entry("x", "1");
    const QStringList x2 = entry("x", "2");
    const QStringList x3 = entry("x", "3");
    const QStringList y = entry("y");

    row("empty registry", {}, {});
    row("no exclusive group", { plainModule("P", "F", { "a" }) }, {});
    row("groups without parameters", groupsOf({ {}, {} }), {});
    row("parameters of all groups, sorted", withParameters(),
        { entry("Alpha"), entry("alpha"), entry("beta"), entry("d"), entry("gamma"), entry("k") });
    row("what two groups share comes once", groupsOf({ { x1, y }, { y } }), { x1, y });
    row("what three groups share comes once", groupsOf({ { y }, { y }, { y } }), { y });
    row("empty parameters of two groups come once", groupsOf({ { {} }, { {}, y } }), { {}, y });

    row("two places where the last of two groups differs", groupsOf({ { x1 }, { x2 } }),
        { x1, x1 });
    row("one place where the middle of three groups differs", groupsOf({ { x1 }, { x2 }, { y } }),
        { x1, y });
    row("one place where the middle differs and the last does not",
        groupsOf({ { x1 }, { x2 }, { x1 } }), { x1 });
    row("two places where the last of three groups differs", groupsOf({ { x1 }, { y }, { x2 } }),
        { x1, x1, y });
    row("two places where the last two agree", groupsOf({ { x1 }, { x2 }, { x2 } }), { x1, x1 });
    row("two places where all three differ", groupsOf({ { x1 }, { x2 }, { x3 } }), { x1, x1 });
    row("two places of the middle one that the last differs from",
        groupsOf({ { y }, { x2 }, { x1 } }), { x2, x2, y });
    row("one place where a last group without parameters follows", groupsOf({ { x1 }, { x2 }, {} }),
        { x1 });
    row("two places of several names", groupsOf({ { x1, entry("y", "1") }, { x2, y } }),
        { x1, x1, entry("y", "1"), entry("y", "1") });

    const AUTH_INF another = single("Q", "0", { x2 });
    row("two places inside of the only group are one", groupsOf({ { x1 } }) + Modules { another },
        { x1 });
    row("two places inside of the first group are one",
        groupsOf({ { x1 }, { y } }) + Modules { another }, { x1, y });
    row("two places inside of the last group are one",
        groupsOf({ { x1 } }) + Modules { single("Q", "G", { x2 }), single("R", "G", { x3 }) },
        { x1, x1 });

    row("each group by its plain name, looked up again", withCrossedGroups(),
        { entry("of G", "s", "T") });
    row("nameless group", withNameless(), { entry("x"), entry("y"), entry("z") });
    row("lists that disagree", withListsThatDisagree(), { entry("x") });
}

void TestAuthSetDefaults::mergesAllGroupsInTurn()
{
    QFETCH(Modules, modules);
    QFETCH(Parameters, expected);
    QCOMPARE(shown(registryOf(modules).defaultParameterList()), shown(expected));
}

void TestAuthSetDefaults::followsTheModules()
{
    AUTH_SET set = registryOf(withParameters());
    const QStringList before = shown(set.defaultParameterList());
    set.exclusive_group_set_mode("G", "b");
    QCOMPARE(shown(set.defaultParameterList()), before);

    set.append(single("S", "H", { entry("new") }));
    QCOMPARE(shown(set.defaultParameterList("H")), shown(parameters({ entry("k"), entry("new") })));
    set.clear();
    // The groups outlive their modules and have no modes any more.
    QCOMPARE(set.exclusive_group_namelist(), (QStringList { "G", "H" }));
    QCOMPARE(shown(set.defaultParameterList()), QStringList());
    QCOMPARE(shown(set.defaultParameterList("G")), QStringList());
    QCOMPARE(shown(set.defaultParameterList("G", "a")), QStringList());
    set.acquire({ single("S", "G", { entry("new") }) });
    QCOMPARE(shown(set.defaultParameterList()), shown(parameters({ entry("new") })));
}

void TestAuthSetDefaults::survivesAHugeCount()
{
    AUTH_INF item = single("P", "G", { entry("x") });
    item.inner_mode_count = 2000000000;
    const AUTH_SET set = registryOf({ item, single("Q", "G", { entry("y") }) });
    // The second name pair stands for the second mode of the first module.
    QCOMPARE(shown(set.defaultParameterList("G")), shown(parameters({ entry("x") })));
    QCOMPARE(shown(set.defaultParameterList()), shown(parameters({ entry("x") })));
}

QTEST_GUILESS_MAIN(TestAuthSetDefaults)
#include "tst_auth_set_defaults.moc"

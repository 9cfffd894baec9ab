// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The sub-groups under which the default parameters are shown, and what they hold.

#include "support/parametermodules.h"

#include <QTest>

class TestAuthSetSubGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectsAfterMerging_data();
    void selectsAfterMerging();
    void selectsInsideAGroup_data();
    void selectsInsideAGroup();
    void listsThoseOfAllGroups_data();
    void listsThoseOfAllGroups();
    void listsThoseOfAGroup_data();
    void listsThoseOfAGroup();
    void listsThoseOfAMode_data();
    void listsThoseOfAMode();
    void followTheModules();
    void surviveAHugeCount();
};

void TestAuthSetSubGroups::selectsAfterMerging_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<QString>("subGroup");
    QTest::addColumn<Parameters>("expected");

    const auto row = [](const char *name, const Modules &modules, const char *subGroup,
                        const ParameterEntries &expected) {
        QTest::newRow(name) << modules << QString(subGroup) << parameters(expected);
    };
    const Modules ordinaryGroups
        = groupsOf({ { entry("z", "s", "T"), entry("b", "s", "S") }, { entry("A", "s", "T") } });
    row("of all groups, sorted", ordinaryGroups, "T",
        { entry("A", "s", "T"), entry("z", "s", "T") });
    row("translated", ordinaryGroups, "T_tr", { entry("A", "s", "T"), entry("z", "s", "T") });
    row("another", ordinaryGroups, "S", { entry("b", "s", "S") });
    row("unknown", ordinaryGroups, "nowhere", {});
    row("in another case", ordinaryGroups, "t", {});
    row("none", ordinaryGroups, "", {});
    row("empty registry", {}, "T", {});
    row("none, with empty parameters", groupsOf({ { entry("a"), {} } }), "", { {} });
    row("no translated name", groupsOf({ { entry("a").mid(0, 8) << "" } }), "",
        { entry("a").mid(0, 8) << "" });

    const Modules sameName = groupsOf({ { entry("x", "s", "S") }, { entry("x", "s", "T") } });
    row("both places of a name go to its first sub-group", sameName, "S",
        { entry("x", "s", "S"), entry("x", "s", "S") });
    row("nothing is left for the other sub-group", sameName, "T", {});
}

void TestAuthSetSubGroups::selectsAfterMerging()
{
    QFETCH(Modules, modules);
    QFETCH(QString, subGroup);
    QFETCH(Parameters, expected);
    QCOMPARE(shown(registryOf(modules).defaultParameterListBySubGroup(subGroup)), shown(expected));
}

void TestAuthSetSubGroups::selectsInsideAGroup_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("subGroup");
    QTest::addColumn<Parameters>("expected");

    const auto row = [](const char *name, const Modules &modules, const char *group,
                        const char *subGroup, const ParameterEntries &expected) {
        QTest::newRow(name) << modules << QString(group) << QString(subGroup)
                            << parameters(expected);
    };
    const Modules modules { moduleWith("P", "G",
                                       { { "a", { entry("z", "s", "T"), entry("b", "s", "S") } },
                                         { "b", { entry("z", "s", "T"), entry("A", "s", "T") } } }),
                            single("Q", "H", { entry("q", "s", "T") }) };
    const ParameterEntries inT { entry("A", "s", "T"), entry("z", "s", "T") };
    row("of one group, equal ones once, sorted", modules, "G", "T", inT);
    row("translated sub-group", modules, "G", "T_tr", inT);
    row("translated group", modules, "G_tr", "T", inT);
    row("another sub-group", modules, "G", "S", { entry("b", "s", "S") });
    row("another group", modules, "H", "T", { entry("q", "s", "T") });
    row("unknown sub-group", modules, "G", "nowhere", {});
    row("sub-group in another case", modules, "G", "t", {});
    row("unknown group", modules, "nowhere", "T", {});
    row("no names", modules, "", "", {});
    row("unknown group beside a nameless one", withNameless(), "nowhere", "S", {});
    row("nameless group", withNameless(), "", "S", { entry("x") });
    row("empty parameters have the empty sub-group", { single("P", "G", { {}, entry("a") }) }, "G",
        "", { {} });

    const Modules sameName { single("P", "G", { entry("x", "1", "S") }),
                             single("Q", "G", { entry("x", "2", "T") }),
                             single("R", "G", { entry("x", "3", "T") }) };
    row("selected before places of one name are filled", sameName, "G", "T",
        { entry("x", "2", "T"), entry("x", "2", "T") });
    row("the first sub-group keeps its own", sameName, "G", "S", { entry("x", "1", "S") });
    row("what a mode loses by its own sort is not selected",
        { single("P", "G", { entry("x", "1", "S"), entry("x", "2", "T") }) }, "G", "T", {});

    row("modes behind the last name pair add nothing", withSharedNames(), "G", "S",
        { entry("Pa"), entry("Pb"), entry("Qa") });
    row("a mode that is hidden by an earlier translated name adds nothing", withCrossedModes(), "G",
        "S", {});
    row("a resolved group name is looked up again", withCrossedGroups(), "H_tr", "S", {});
    row("no modes", withListsThatDisagree(), "none", "S", {});
    row("negative count", withListsThatDisagree(), "negative", "S", {});
}

void TestAuthSetSubGroups::selectsInsideAGroup()
{
    QFETCH(Modules, modules);
    QFETCH(QString, group);
    QFETCH(QString, subGroup);
    QFETCH(Parameters, expected);
    QCOMPARE(shown(registryOf(modules).defaultParameterListInSubGroup(group, subGroup)),
             shown(expected));
}

void TestAuthSetSubGroups::listsThoseOfAllGroups_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<Pairs>("expected");

    const auto row = [](const char *name, const Modules &modules, const Pairs &expected) {
        QTest::newRow(name) << modules << expected;
    };
    const QStringList otherTranslation = entry("q", "s", "S").mid(0, 8) << "other";
    row("empty registry", {}, {});
    row("groups without parameters", groupsOf({ {}, {} }), {});
    row("each once, sorted, capital letters first",
        groupsOf({ { entry("a", "s", "b"), entry("b", "s", "b") },
                   { entry("c", "s", "a"), entry("d", "s", "B"), entry("e", "s", "b") } }),
        { { "B", "B_tr" }, { "a", "a_tr" }, { "b", "b_tr" } });
    row("two translations of a name have two places, both of the first",
        groupsOf({ { entry("p", "s", "S") }, { otherTranslation } }),
        { { "S", "S_tr" }, { "S", "S_tr" } });
    row("the first one is that of the first parameter by name",
        groupsOf({ { entry("z", "s", "S"), otherTranslation } }),
        { { "S", "other" }, { "S", "other" } });
    row("the empty one of empty parameters comes first",
        groupsOf({ { entry("a") }, { QStringList() } }), { { "", "" }, { "S", "S_tr" } });
    row("of each group on its own and not of what is left after merging",
        groupsOf({ { entry("x", "s", "S") }, { entry("x", "s", "T") } }),
        { { "S", "S_tr" }, { "T", "T_tr" } });
    row("of what is left after joining the modes",
        { single("P", "G", { entry("x", "s", "S") }), single("Q", "G", { entry("x", "s", "T") }) },
        { { "S", "S_tr" } });
    row("each group by its plain name, looked up again", withCrossedGroups(), { { "T", "T_tr" } });
}

void TestAuthSetSubGroups::listsThoseOfAllGroups()
{
    QFETCH(Modules, modules);
    QFETCH(Pairs, expected);
    QCOMPARE(registryOf(modules).defaultParameterSubGroupList(), expected);
}

void TestAuthSetSubGroups::listsThoseOfAGroup_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<QString>("group");
    QTest::addColumn<Pairs>("expected");

    const auto row
        = [](const char *name, const Modules &modules, const char *group, const Pairs &expected) {
              QTest::newRow(name) << modules << QString(group) << expected;
          };
    const Modules modules { moduleWith("P", "G",
                                       { { "a", { entry("a", "s", "b"), entry("b", "s", "a") } },
                                         { "b", { entry("c", "s", "B"), entry("d", "s", "a") } } }),
                            single("Q", "H", { entry("q", "s", "H") }) };
    const Pairs ofGroup { { "B", "B_tr" }, { "a", "a_tr" }, { "b", "b_tr" } };
    row("each once, sorted, capital letters first", modules, "G", ofGroup);
    row("translated group", modules, "G_tr", ofGroup);
    row("another group", modules, "H", { { "H", "H_tr" } });
    row("unknown group", modules, "nowhere", {});
    row("group in another case", modules, "g", {});
    row("no name", modules, "", {});
    row("unknown group beside a nameless one", withNameless(), "nowhere", {});
    row("nameless group", withNameless(), "", { { "S", "S_tr" } });
    row("empty registry", {}, "G", {});
    row("empty parameters", { single("P", "G", { QStringList() }) }, "G", { { "", "" } });
    row("what is left after joining the modes",
        { single("P", "G", { entry("x", "s", "S") }), single("Q", "G", { entry("x", "s", "T") }) },
        "G", { { "S", "S_tr" } });
    row("a resolved group name is looked up again", withCrossedGroups(), "H_tr",
        { { "T", "T_tr" } });
    row("no modes", withListsThatDisagree(), "none", {});
}

void TestAuthSetSubGroups::listsThoseOfAGroup()
{
    QFETCH(Modules, modules);
    QFETCH(QString, group);
    QFETCH(Pairs, expected);
    QCOMPARE(registryOf(modules).defaultParameterSubGroupList(group), expected);
}

void TestAuthSetSubGroups::listsThoseOfAMode_data()
{
    QTest::addColumn<Modules>("modules");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<Pairs>("expected");

    const auto row = [](const char *name, const Modules &modules, const char *group,
                        const char *mode, const Pairs &expected) {
        QTest::newRow(name) << modules << QString(group) << QString(mode) << expected;
    };
    const Modules modules { moduleWith("P", "G",
                                       { { "a", { entry("a", "s", "b"), entry("b", "s", "a") } },
                                         { "b", { entry("c", "s", "B"), entry("d", "s", "B") } } }),
                            single("Q", "H", { entry("q", "s", "H") }) };
    const Pairs ofModeA { { "a", "a_tr" }, { "b", "b_tr" } };
    row("each once, sorted", modules, "G", "a", ofModeA);
    row("translated group", modules, "G_tr", "a", ofModeA);
    row("translated mode", modules, "G", "a_tr", ofModeA);
    row("another mode", modules, "G", "b", { { "B", "B_tr" } });
    row("unknown group", modules, "nowhere", "a", {});
    row("unknown mode", modules, "G", "nowhere", {});
    row("mode of another group", modules, "H", "a", {});
    row("mode in another case", modules, "G", "A", {});
    row("no names", modules, "", "", {});
    row("unknown group beside a nameless one", withNameless(), "nowhere", "", {});
    row("unknown mode beside a nameless one", withNameless(), "G", "nowhere", {});
    row("nameless group and mode", withNameless(), "", "", { { "S", "S_tr" } });
    row("empty registry", {}, "G", "a", {});
    row("empty parameters", { single("P", "G", { QStringList() }) }, "G", "P", { { "", "" } });
    row("what is left after the sort by name",
        { single("P", "G", { entry("x", "s", "S"), entry("x", "s", "T") }) }, "G", "P",
        { { "S", "S_tr" } });
    row("a name pair means the mode at its position", withSharedNames(), "G", "c",
        { { "S", "S_tr" } });
    row("a plain name that is an earlier translated one", withCrossedModes(), "G", "b",
        { { "T", "T_tr" } });
    row("a resolved group name is looked up again", withCrossedGroups(), "H_tr", "m",
        { { "T", "T_tr" } });
    row("name behind the last mode", withListsThatDisagree(), "more names", "b", {});
}

void TestAuthSetSubGroups::listsThoseOfAMode()
{
    QFETCH(Modules, modules);
    QFETCH(QString, group);
    QFETCH(QString, mode);
    QFETCH(Pairs, expected);
    QCOMPARE(registryOf(modules).defaultParameterSubGroupList(group, mode), expected);
}

void TestAuthSetSubGroups::followTheModules()
{
    AUTH_SET set = registryOf({ single("P", "G", { entry("x", "s", "S") }) });
    set.append(single("Q", "G", { entry("y", "s", "T") }));
    QCOMPARE(set.defaultParameterSubGroupList(), (Pairs { { "S", "S_tr" }, { "T", "T_tr" } }));
    set.clear();
    QCOMPARE(set.defaultParameterSubGroupList(), Pairs());
    QCOMPARE(set.defaultParameterSubGroupList("G"), Pairs());
    QCOMPARE(set.defaultParameterSubGroupList("G", "P"), Pairs());
    QCOMPARE(shown(set.defaultParameterListBySubGroup("S")), QStringList());
    QCOMPARE(shown(set.defaultParameterListInSubGroup("G", "S")), QStringList());
}

void TestAuthSetSubGroups::surviveAHugeCount()
{
    AUTH_INF item = single("P", "G", { entry("x") });
    item.inner_mode_count = 2000000000;
    const AUTH_SET set = registryOf({ item });
    const Pairs expected { { "S", "S_tr" } };
    QCOMPARE(set.defaultParameterSubGroupList(), expected);
    QCOMPARE(set.defaultParameterSubGroupList("G"), expected);
    QCOMPARE(shown(set.defaultParameterListInSubGroup("G", "S")),
             shown(parameters({ entry("x") })));
}

QTEST_GUILESS_MAIN(TestAuthSetSubGroups)
#include "tst_auth_set_subgroups.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The default parameters, sub-groups and results of modes, groups and all groups, and the lists of
// parameters that a host combines.

#include "support/parametermodules.h"

#include <QTest>

#include <functional>
#include <limits>

namespace {

using Change = std::function<void(AUTH_SET &)>;

/// Parameters of one name with these values.
Parameters ofValues(const QVariantList &values)
{
    Parameters list;
    for (const QVariant &value : values)
        list.append(valued("x", value));
    return list;
}

/// A parameter with all fields, of which the one at @p field differs from the others' where it is
/// not negative.
VParameter withOther(int field)
{
    const auto text = [field](int position, const char *plain) {
        return field == position ? QString("other") : QString(plain);
    };
    return VParameter(field == 0 ? 2 : 1, { text(1, "n"), text(2, "N") },
                      { text(3, "u"), text(4, "U") }, text(5, "s"), { text(6, "g"), text(7, "G") },
                      text(8, "float"), field == 9);
}

/// All lists by sub-group that @p set can be asked for.
QStringList bySubGroup(const AUTH_SET &set)
{
    QStringList lists;
    for (const char *subGroup : { "S", "S_tr", "T", "T_tr", "" }) {
        lists += QStringList(subGroup) + shown(set.defaultParameterListBySubGroup(subGroup));
        for (const char *group : { "G", "G_tr", "H" })
            lists
                += QStringList(group) + shown(set.defaultParameterListInSubGroup(group, subGroup));
    }
    return lists;
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestAuthSetDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesOverEveryText()
    {
        const QStringList entry { "group", "key", "QString", "true", "mm", "in", "E", "k", "g" };
        AUTH_INF item = single("P", "G", { entry });
        item.output_results = { entry };
        const AUTH_SET set = registryOf({ item });
        for (const Parameters &list :
             { set.defaultParameterList("G", "P"), set.defaultResultList(&item) }) {
            QCOMPARE(list.size(), 1);
            QCOMPARE(list.first().toSetsForm(), entry);
            QCOMPARE(list.first().value(), QVariant());
        }
    }

    void sortsParametersOfAMode_data()
    {
        QTest::addColumn<ParameterEntries>("entries");
        QTest::addColumn<ParameterEntries>("expected");
        const auto row
            = [](const char *name, const ParameterEntries &entries,
                 const ParameterEntries &expected) { QTest::newRow(name) << entries << expected; };
        row("capital letters first", { entry("beta"), entry("Alpha"), entry("alpha") },
            { entry("Alpha"), entry("alpha"), entry("beta") });
        row("equal parameters are kept", { entry("x"), entry("x") }, { entry("x"), entry("x") });
        row("places of one name go to the first of it",
            { entry("x", "late"), entry("a"), entry("x", "early") },
            { entry("a"), entry("x", "late"), entry("x", "late") });
        row("entries that are not nine texts long are empty and come first",
            { entry("a"), entry("b").mid(0, 8), entry("c") << "" },
            { QStringList(), QStringList(), entry("a") });
    }
    void sortsParametersOfAMode()
    {
        QFETCH(ParameterEntries, entries);
        QFETCH(ParameterEntries, expected);
        AUTH_INF item = single("P", "G", entries);
        item.output_results = entries;
        const AUTH_SET set = registryOf({ item });
        QCOMPARE(shown(set.defaultParameterList("G", "P")), shown(parameters(expected)));
        QCOMPARE(shown(set.defaultResultList(&item)), shown(parameters(expected)));
    }

    void givesParametersOfAMode_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<ParameterEntries>("expected");
        const ParameterEntries ofModeB { entry("beta"), entry("gamma") };
        QTest::newRow("plain names") << "G"
                                     << "b" << ofModeB;
        QTest::newRow("translated names") << "G_tr"
                                          << "b_tr" << ofModeB;
        QTest::newRow("mode of a module without the flag")
            << "G"
            << "Q" << ParameterEntries { entry("d") };
        QTest::newRow("mode of another group") << "H"
                                               << "b" << ParameterEntries();
        QTest::newRow("unknown group") << "nowhere"
                                       << "b" << ParameterEntries();
    }
    void givesParametersOfAMode()
    {
        QFETCH(QString, group);
        QFETCH(QString, mode);
        QFETCH(ParameterEntries, expected);
        const AUTH_SET set = registryOf(withParameters());
        QCOMPARE(shown(set.defaultParameterList(group, mode)), shown(parameters(expected)));
    }

    void joinsTheModesOfAGroup_data()
    {
        QTest::addColumn<Modules>("modules");
        QTest::addColumn<ParameterEntries>("expected");
        const auto row
            = [](const char *name, const Modules &modules, const ParameterEntries &expected) {
                  QTest::newRow(name) << modules << expected;
              };
        row("what two modes share comes once", withParameters(),
            { entry("Alpha"), entry("alpha"), entry("beta"), entry("d"), entry("gamma") });
        row("symbols that differ in case keep two places, both of the first mode",
            { single("P", "G", { entry("x", "e") }), single("Q", "G", { entry("x", "E") }) },
            { entry("x", "e"), entry("x", "e") });
        // The name of the third pair would lead to the second mode.
        AUTH_INF moreNames
            = moduleWith("P", "G", { { "a", { entry("x") } }, { "b", { entry("y") } } });
        moreNames.inner_mode_nameList.append("c");
        moreNames.inner_mode_nameList_tr = QStringList { "b", "c", "d" };
        row("names behind the last mode add nothing", { moreNames }, { entry("x") });
        row("modes behind the last name pair add nothing", withSharedNames(),
            { entry("Pa"), entry("Pb"), entry("Qa") });
    }
    void joinsTheModesOfAGroup()
    {
        QFETCH(Modules, modules);
        QFETCH(ParameterEntries, expected);
        const AUTH_SET set = registryOf(modules);
        QCOMPARE(shown(set.defaultParameterList("G")), shown(parameters(expected)));
        QCOMPARE(shown(set.defaultParameterList("G_tr")), shown(parameters(expected)));
    }

    void mergesInTurn_data()
    {
        QTest::addColumn<QVector<ParameterEntries>>("lists");
        QTest::addColumn<ParameterEntries>("expected");
        const auto row
            = [](const char *name, const QVector<ParameterEntries> &lists,
                 const ParameterEntries &expected) { QTest::newRow(name) << lists << expected; };
        const QStringList x1 = entry("x", "1");
        const QStringList x2 = entry("x", "2");
        const QStringList y = entry("y");
        row("none", {}, {});
        row("what three lists share comes once", { { y }, { x1, y }, { y } }, { x1, y });
        row("two places where the last of two differs", { { x1 }, { x2 } }, { x1, x1 });
        row("one place where the middle of three differs", { { x1 }, { x2 }, { y } }, { x1, y });
        row("two places where the last of three differs", { { x1 }, { y }, { x2 } }, { x1, x1, y });
        row("one place where an empty last list follows", { { x1 }, { x2 }, {} }, { x1 });
    }
    void mergesInTurn()
    {
        QFETCH(QVector<ParameterEntries>, lists);
        QFETCH(ParameterEntries, expected);
        Modules groups = groupsOf(lists);
        Modules ofOneGroup;
        for (int i = 0; i < lists.size(); ++i) {
            groups[i].output_results = lists.at(i);
            ofOneGroup.append(groups.at(i));
            ofOneGroup.last().group = "G";
        }
        const QStringList wanted = shown(parameters(expected));
        QCOMPARE(shown(registryOf(groups).defaultParameterList()), wanted);
        QCOMPARE(shown(registryOf(groups).defaultResultList()), wanted);
        QCOMPARE(shown(registryOf(ofOneGroup).defaultResultList("G")), wanted);
    }

    void takesResultsFromFlaggedModulesOnly()
    {
        AUTH_INF flagless = moduleWithResults("Q", "G", { entry("a") });
        flagless.exclusive_group = false;
        const AUTH_SET set
            = registryOf({ moduleWithResults("P", "G", { entry("b") }), flagless,
                           moduleWithResults("R", "G", { entry("c"), entry("b") }) });
        const QStringList expected = shown(parameters({ entry("b"), entry("c") }));
        QCOMPARE(shown(set.defaultResultList("G")), expected);
        QCOMPARE(shown(set.defaultResultList("G_tr")), expected);
        QCOMPARE(shown(set.defaultResultList("nowhere")), QStringList());
        QCOMPARE(shown(set.defaultResultList(&flagless)), shown(parameters({ entry("a") })));
        QCOMPARE(set.defaultResultList(static_cast<const AUTH_INF *>(nullptr)).size(), 0);
    }

    void selectsSubGroups_data()
    {
        QTest::addColumn<Modules>("modules");
        QTest::addColumn<QString>("subGroup");
        QTest::addColumn<ParameterEntries>("ofAll");
        QTest::addColumn<ParameterEntries>("ofG");
        const auto row = [](const char *name, const Modules &modules, const char *subGroup,
                            const ParameterEntries &ofAll, const ParameterEntries &ofG) {
            QTest::newRow(name) << modules << QString(subGroup) << ofAll << ofG;
        };
        const QStringList x1 = entry("x", "1", "S");
        const QStringList x2 = entry("x", "2", "T");
        const QStringList z = entry("z", "s", "T");
        const QStringList bothForms = entry("b").mid(0, 8) << "S";
        const Modules modules { single("P", "G", { z, entry("A", "s", "T"), bothForms }),
                                single("Q", "G", { z }), single("R", "H", { entry("q") }) };
        row("sorted, equal ones once", modules, "T", { entry("A", "s", "T"), z },
            { entry("A", "s", "T"), z });
        row("by the translated name", modules, "S_tr", { entry("q") }, {});
        row("a name that is both of its names", modules, "S", { bothForms, entry("q") },
            { bothForms });
        row("unknown", modules, "t", {}, {});
        row("no name is that of empty parameters", { single("P", "G", { entry("a"), {} }) }, "",
            { {} }, { {} });
        const Modules sameName { single("P", "G", { x1 }), single("Q", "G", { x2 }),
                                 single("R", "G", { entry("x", "3", "T") }) };
        // Of all groups, what is left of a name is its first bearer, in whose sub-group it stays.
        row("places of a name among all groups, its first sub-group", sameName, "S", { x1 },
            { x1 });
        row("places of a name among all groups, its other sub-group", sameName, "T", {},
            { x2, x2 });
    }
    void selectsSubGroups()
    {
        QFETCH(Modules, modules);
        QFETCH(QString, subGroup);
        QFETCH(ParameterEntries, ofAll);
        QFETCH(ParameterEntries, ofG);
        const AUTH_SET set = registryOf(modules);
        // The second answer is not worked out again.
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(shown(set.defaultParameterListBySubGroup(subGroup)), shown(parameters(ofAll)));
            QCOMPARE(shown(set.defaultParameterListInSubGroup("G", subGroup)),
                     shown(parameters(ofG)));
        }
    }

    void keepsNoListBeyondAChange_data()
    {
        QTest::addColumn<Change>("change");
        const auto row
            = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
        const AUTH_INF item = single("N", "G", { entry("new", "s", "T") });
        row("append", [item](AUTH_SET &set) { set.append(item); });
        row("append of many", [item](AUTH_SET &set) { set.append(Modules { item, item }); });
        row("append to another group", [](AUTH_SET &set) { set.append(single("N", "H", { {} })); });
        row("acquire", [item](AUTH_SET &set) { set.acquire({ item }); });
        row("clear", [](AUTH_SET &set) { set.clear(); });
        row("clear and refresh_group", [](AUTH_SET &set) {
            set.clear();
            set.refresh_group();
        });
        row("assignment", [item](AUTH_SET &set) { set = registryOf({ item }); });
        row("a change of the copy that it is assigned from", [item](AUTH_SET &set) {
            AUTH_SET copy(set);
            copy.append(item);
            bySubGroup(copy);
            set = copy;
        });
    }
    void keepsNoListBeyondAChange()
    {
        QFETCH(Change, change);
        AUTH_SET set = registryOf(withParameters());
        const QStringList before = bySubGroup(set);
        const AUTH_SET copy(set);
        change(set);
        AUTH_SET neverAskedBefore = registryOf(withParameters());
        change(neverAskedBefore);
        const QStringList after = bySubGroup(neverAskedBefore);
        QVERIFY(after != before);
        QCOMPARE(bySubGroup(set), after);
        QCOMPARE(bySubGroup(copy), before);
    }

    void listsBySubGroupAreTheHosts()
    {
        const AUTH_SET set = registryOf(withParameters());
        const QStringList before = bySubGroup(set);
        Parameters ofAll = set.defaultParameterListBySubGroup("S");
        Parameters ofGroup = set.defaultParameterListInSubGroup("G", "S");
        ofAll[0].set(QVariant("written"));
        ofGroup[0].set(QVariant("written"));
        ofAll.removeLast();
        QCOMPARE(bySubGroup(set), before);
    }

    void listsSubGroups_data()
    {
        QTest::addColumn<Modules>("modules");
        QTest::addColumn<Pairs>("ofAll");
        QTest::addColumn<Pairs>("ofG");
        QTest::addColumn<Pairs>("ofModeA");
        const auto row = [](const char *name, const Modules &modules, const Pairs &ofAll,
                            const Pairs &ofG, const Pairs &ofModeA) {
            QTest::newRow(name) << modules << ofAll << ofG << ofModeA;
        };
        const Pair big { "B", "B_tr" };
        const Pair small { "b", "b_tr" };
        const Pair a { "a", "a_tr" };
        row("each once, sorted, capital letters first",
            { moduleWith("P", "G",
                         { { "a", { entry("p", "s", "b"), entry("q", "s", "a") } },
                           { "b", { entry("r", "s", "B"), entry("t", "s", "a") } } }),
              single("Q", "H", { QStringList() }) },
            { Pair(), big, a, small }, { big, a, small }, { a, small });
        const QStringList otherTranslation = entry("q").mid(0, 8) << "other";
        row("two translations of a name have two places, both of the first parameter by name",
            { moduleWith("P", "G", { { "a", { entry("z"), otherTranslation } } }) },
            { { "S", "other" }, { "S", "other" } }, { { "S", "other" }, { "S", "other" } },
            { { "S", "other" }, { "S", "other" } });
        row("of each group on its own and not of what is left after merging",
            { moduleWith("P", "G", { { "a", { entry("x", "s", "a") } } }),
              single("Q", "H", { entry("x", "s", "B") }) },
            { big, a }, { a }, { a });
        row("empty registry", {}, {}, {}, {});
    }
    void listsSubGroups()
    {
        QFETCH(Modules, modules);
        const AUTH_SET set = registryOf(modules);
        QTEST(set.defaultParameterSubGroupList(), "ofAll");
        QTEST(set.defaultParameterSubGroupList("G"), "ofG");
        QTEST(set.defaultParameterSubGroupList("G_tr"), "ofG");
        QTEST(set.defaultParameterSubGroupList("G", "a"), "ofModeA");
        QTEST(set.defaultParameterSubGroupList("G_tr", "a_tr"), "ofModeA");
        QCOMPARE(set.defaultParameterSubGroupList("nowhere"), Pairs());
        QCOMPARE(set.defaultParameterSubGroupList("G", "nowhere"), Pairs());
    }

    void survivesAHugeCount()
    {
        AUTH_INF item = single("P", "G", { entry("x") });
        item.inner_mode_count = 2000000000;
        const AUTH_SET set = registryOf({ item, single("Q", "G", { entry("y") }) });
        // The second name pair means the second mode of the first module.
        const QStringList expected = shown(parameters({ entry("x") }));
        QCOMPARE(shown(set.defaultParameterList("G")), expected);
        QCOMPARE(shown(set.defaultParameterList()), expected);
        QCOMPARE(shown(set.defaultParameterListInSubGroup("G", "S")), expected);
    }

    // --- Lists of the host -----------------------------------------------------------------

    void mergesAndShares_data()
    {
        QTest::addColumn<Parameters>("first");
        QTest::addColumn<Parameters>("second");
        QTest::addColumn<Parameters>("merged");
        QTest::addColumn<Parameters>("shared");
        const auto row = [](const char *name, const Parameters &first, const Parameters &second,
                            const Parameters &merged, const Parameters &shared) {
            QTest::newRow(name) << first << second << merged << shared;
        };
        const QVariant none;
        row("nothing", {}, {}, {}, {});
        row("with itself", ofValues({ 1, 1 }), ofValues({ 1, 1 }), ofValues({ 1 }),
            ofValues({ 1, 1 }));
        row("sorted, capital letters first", parameters({ entry("beta"), entry("alpha") }),
            parameters({ entry("Alpha"), entry("beta") }),
            parameters({ entry("Alpha"), entry("alpha"), entry("beta") }),
            parameters({ entry("beta") }));
        row("all places of a name go to the first", ofValues({ 3, 1 }), ofValues({ 2, 1, 3 }),
            ofValues({ 3, 3, 3 }), ofValues({ 3, 3 }));
        row("a number and its text are equal", ofValues({ 1 }), ofValues({ "1" }), ofValues({ 1 }),
            ofValues({ 1 }));
        row("what is equal to the second of two equal ones", ofValues({ QStringList { "01" } }),
            ofValues({ 1, "01" }), ofValues({ QStringList { "01" }, QStringList { "01" } }),
            ofValues({ QStringList { "01" } }));
        const double notANumber = std::numeric_limits<double>::quiet_NaN();
        row("what is not a number is equal to nothing", ofValues({ notANumber }),
            ofValues({ notANumber }), ofValues({ notANumber, notANumber }), {});
        row("no value and 0", ofValues({ none }), ofValues({ 0, none }), ofValues({ none, none }),
            ofValues({ none }));
    }
    void mergesAndShares()
    {
        QFETCH(Parameters, first);
        QFETCH(Parameters, second);
        QFETCH(Parameters, merged);
        QFETCH(Parameters, shared);
        const QStringList before = shown(first + second);
        const AUTH_SET set;
        QCOMPARE(shown(set.mergingList(&first, &second)), shown(merged));
        QCOMPARE(shown(set.sharingList(&first, &second)), shown(shared));
        QCOMPARE(shown(first + second), before);
    }

    void tellsParametersApartByEveryField_data()
    {
        QTest::addColumn<int>("field");
        const char *const fields[]
            = { "value",  "plain name",  "translated name",  "unit",        "second text of unit",
                "symbol", "plain group", "translated group", "object name", "several values" };
        int i = 0;
        for (const char *field : fields)
            QTest::newRow(field) << i++;
    }
    void tellsParametersApartByEveryField()
    {
        QFETCH(int, field);
        const AUTH_SET set;
        const Parameters one { withOther(-1) };
        const VParameter other = withOther(field);
        QCOMPARE(set.indexParameterInList(&one, &other), -1);
        // So many that what is looked up among them is no longer compared with each of them.
        Parameters many;
        for (int i = 0; i < 100; ++i)
            many.append(valued("x", i));
        for (const Parameters &others : { Parameters(), many }) {
            const Parameters second = others + Parameters { other };
            QCOMPARE(set.mergingList(&one, &second).size(), others.size() + 2);
            QCOMPARE(set.sharingList(&one, &second).size(), 0);
            const Parameters same = second + one;
            QCOMPARE(set.mergingList(&one, &same).size(), others.size() + 2);
            QCOMPARE(shown(set.sharingList(&one, &same)), shown(one));
            QCOMPARE(set.indexParameterInList(&same, &one.first()), others.size() + 1);
        }
    }

    void takesNothingForAnEmptyList()
    {
        const AUTH_SET set;
        const Parameters list = ofValues({ 1, 1 });
        const VParameter parameter = list.first();
        const Parameters empty;
        QCOMPARE(shown(set.mergingList(nullptr, &list)), shown(ofValues({ 1 })));
        QCOMPARE(shown(set.mergingList(&list, nullptr)), shown(ofValues({ 1 })));
        QCOMPARE(set.mergingList(nullptr, nullptr).size(), 0);
        QCOMPARE(set.sharingList(nullptr, &list).size(), 0);
        QCOMPARE(set.sharingList(&list, nullptr).size(), 0);
        QCOMPARE(set.indexParameterInList(nullptr, &parameter), -1);
        QCOMPARE(set.indexParameterInList(&list, nullptr), -1);
        QCOMPARE(set.indexParameterInList(&empty, &parameter), -1);
        QCOMPARE(set.isParameterContains(&empty, &parameter), false);
        QCOMPARE(set.isParameterContains(nullptr, nullptr), false);
        QCOMPARE(set.isParameterContains(&list, &parameter), true);
    }
};

QTEST_GUILESS_MAIN(TestAuthSetDefaults)
#include "tst_auth_set_defaults.moc"

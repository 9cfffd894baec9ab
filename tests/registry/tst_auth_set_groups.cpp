// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/AUTH_SET>

#include "support/directorytest.h"
#include "support/moduleitems.h"

#include <QTest>

#include <limits>

namespace {

AUTH_SET registry(const QVector<AUTH_INF> &items)
{
    return AUTH_SET("App", "1.0", items);
}

/// Group G: modes a, b of P, c of the flagless Q, d of S; group H: mode k of R.
/// Q stands before R, and X belongs to no exclusive group.
AUTH_SET ordinary()
{
    return registry({ exclusiveModule("P", "G", { "a", "b" }), plainModule("Q", "G", { "c" }),
                      plainModule("X", "F", { "a" }), exclusiveModule("R", "H", { "k" }),
                      exclusiveModule("S", "G", { "d" }) });
}

/// Five modes and three name pairs: P and Q both have a and b.
AUTH_SET withSharedNames()
{
    return registry(
        { exclusiveModule("P", "G", { "a", "b" }), exclusiveModule("Q", "G", { "a", "b", "c" }) });
}

/// The translated name of the first group is the plain name of the second: what is found as "H_tr"
/// is group H, and the name "H" looked up again leads to group G.
AUTH_SET withCrossedNames()
{
    AUTH_INF first = exclusiveModule("P", "G", { "a", "b" });
    first.group_tr = "H";
    return registry({ first, exclusiveModule("Q", "H", { "b", "c", "d" }) });
}

/// Groups G and H share their translated name, so that there is none for H.
AUTH_SET withSharedTranslation()
{
    AUTH_INF first = exclusiveModule("P", "G", { "a" });
    AUTH_INF second = exclusiveModule("Q", "H", { "b" });
    first.group_tr = "T";
    second.group_tr = "T";
    return registry({ first, second });
}

QStringList keys(const QVector<QStringList> &entries)
{
    QStringList result;
    for (const QStringList &entry : entries)
        result.append(entry.value(1));
    return result;
}

} // namespace

class TestAuthSetGroups : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutGroups();
    void listsGroups();
    void deduplicatesTranslatedNamesOnTheirOwn();
    void pairsLateTranslations();
    void flaglessModulesJoin_data();
    void flaglessModulesJoin();
    void findsGroupsByEitherName_data();
    void findsGroupsByEitherName();
    void countsModes_data();
    void countsModes();
    void namesTheModuleOfAMode_data();
    void namesTheModuleOfAMode();
    void selectsByPosition_data();
    void selectsByPosition();
    void selectsByName_data();
    void selectsByName();
    void selectingChangesNothingElse();
    void modesOfSeveralModulesFollowEachOther();
    void matchesTheFirstOfCrossedCodes();
    void selectionIsWrittenThroughThePointer_data();
    void selectionIsWrittenThroughThePointer();
    void selectionsAreResetByEveryRebuild_data();
    void selectionsAreResetByEveryRebuild();
    void listsNamePairs_data();
    void listsNamePairs();
    void findsNamePairs_data();
    void findsNamePairs();
    void describesModes_data();
    void describesModes();
    void givesParameterEntries_data();
    void givesParameterEntries();
    void currentSelection_data();
    void currentSelection();
    void standardNames_data();
    void standardNames();
    void listsAllModes();
    void listsModesOfCrossedGroups();
    void listsModesWithoutATranslatedGroup();
    void matchesCodes_data();
    void matchesCodes();
    void looksResolvedNamesUpAgain();
    void survivesListsThatDisagree();
    void survivesSenselessCounts_data();
    void survivesSenselessCounts();
    void survivesHugeCountsOfSeveralModules();
    void survivesEmptyNames();
    void unknownGroupsNeverMeanTheNamelessOne();
    void growsByAppending();
};

void TestAuthSetGroups::withoutGroups()
{
    AUTH_SET set = registry({ plainModule("P", "G", { "a" }) });
    QCOMPARE(set.exclusive_group_namelist(), QStringList());
    QCOMPARE(set.exclusive_group_namelist_global(), QStringList());
    QCOMPARE(set.currentExclusiveGroupList(), Pairs());
    QCOMPARE(set.currentModeList(), Pairs());
    QCOMPARE(set.exclusive_group_select("G"), -1);
    QCOMPARE(set.exclusive_group_mode_count("G"), 0);
    QVERIFY(!set.exclusive_group_mode_pointer("G"));
}

void TestAuthSetGroups::listsGroups()
{
    const AUTH_SET set = ordinary();
    QCOMPARE(set.exclusive_group_namelist(), (QStringList { "G", "H" }));
    QCOMPARE(set.exclusive_group_namelist_global(), (QStringList { "G_tr", "H_tr" }));
    QCOMPARE(set.currentExclusiveGroupList(), (Pairs { { "G", "G_tr" }, { "H", "H_tr" } }));
}

void TestAuthSetGroups::deduplicatesTranslatedNamesOnTheirOwn()
{
    const AUTH_SET set = withSharedTranslation();
    QCOMPARE(set.exclusive_group_namelist(), (QStringList { "G", "H" }));
    QCOMPARE(set.exclusive_group_namelist_global(), QStringList { "T" });
    QCOMPARE(set.currentExclusiveGroupList(), (Pairs { { "G", "T" }, { "H", QString() } }));
    QCOMPARE(set.model_group_global(1), QString());

    // The other way round: one group with two translated names.
    AUTH_INF other = exclusiveModule("Q", "G", { "b" });
    other.group_tr = "U";
    const AUTH_SET longer = registry({ exclusiveModule("P", "G", { "a" }), other });
    QCOMPARE(longer.exclusive_group_namelist_global(), (QStringList { "G_tr", "U" }));
    QCOMPARE(longer.currentExclusiveGroupList(), (Pairs { { "G", "G_tr" } }));
    QCOMPARE(longer.findExclusiveGroupName("U"), Pair());
    QCOMPARE(longer.model_group_global(1), QString("U"));
}

void TestAuthSetGroups::pairsLateTranslations()
{
    AUTH_SET set = withSharedTranslation();
    AUTH_INF late = exclusiveModule("S", "G", { "c" });
    late.group_tr = "U";
    set.append(late);
    // The new translated name is the second of its list and so becomes that of the second group.
    QCOMPARE(set.currentExclusiveGroupList(), (Pairs { { "G", "T" }, { "H", "U" } }));
    QCOMPARE(set.findExclusiveGroupName("U"), Pair("H", "U"));
    QCOMPARE(set.findExclusiveGroupName(""), Pair());
}

void TestAuthSetGroups::flaglessModulesJoin_data()
{
    QTest::addColumn<QVector<int>>("order");
    QTest::addColumn<QStringList>("modules");

    // 0: flagged, 1 and 2: without the flag, in the same group
    QTest::newRow("behind the flagged one")
        << QVector<int> { 0, 1, 2 } << QStringList { "P", "P", "Q", "S" };
    QTest::newRow("before the flagged one")
        << QVector<int> { 1, 2, 0 } << QStringList { "Q", "S", "P", "P" };
    QTest::newRow("around the flagged one")
        << QVector<int> { 2, 0, 1 } << QStringList { "S", "P", "P", "Q" };
}

void TestAuthSetGroups::flaglessModulesJoin()
{
    const QVector<AUTH_INF> items { exclusiveModule("P", "G", { "a", "b" }),
                                    plainModule("Q", "G", { "c" }),
                                    plainModule("S", "G", { "d" }) };
    QFETCH(QVector<int>, order);
    QVector<AUTH_INF> ordered;
    AUTH_SET grown;
    for (int i : qAsConst(order)) {
        ordered.append(items[i]);
        grown.append(items[i]);
    }

    for (const AUTH_SET &set : { registry(ordered), grown }) {
        QStringList modules;
        for (int i = 0; i < set.exclusive_group_mode_count("G"); ++i)
            modules.append(set.exclusive_group_orginal_model("G", i));
        QTEST(modules, "modules");
    }
}

void TestAuthSetGroups::findsGroupsByEitherName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Pair>("expected");

    QTest::newRow("plain") << "H" << Pair("H", "H_tr");
    QTest::newRow("translated") << "G_tr" << Pair("G", "G_tr");
    QTest::newRow("a group that is not exclusive") << "F" << Pair();
    QTest::newRow("case matters") << "g" << Pair();
    QTest::newRow("empty") << "" << Pair();
}

void TestAuthSetGroups::findsGroupsByEitherName()
{
    QFETCH(QString, name);
    QTEST(ordinary().findExclusiveGroupName(name), "expected");
}

void TestAuthSetGroups::countsModes_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("expected");

    QTest::newRow("all modules of the group") << "G" << 4;
    QTest::newRow("by the translated name") << "G_tr" << 4;
    QTest::newRow("another group") << "H" << 1;
    QTest::newRow("unknown") << "F" << 0;
    QTest::newRow("empty") << "" << 0;
}

void TestAuthSetGroups::countsModes()
{
    QFETCH(QString, group);
    QTEST(ordinary().exclusive_group_mode_count(group), "expected");
}

void TestAuthSetGroups::namesTheModuleOfAMode_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("expected");

    QTest::newRow("first") << "G" << 0 << "P";
    QTest::newRow("second mode of a module") << "G" << 1 << "P";
    QTest::newRow("module without the flag") << "G" << 2 << "Q";
    QTest::newRow("last, behind a module of another group") << "G" << 3 << "S";
    QTest::newRow("by the translated name") << "G_tr" << 2 << "Q";
    QTest::newRow("behind the last") << "G" << 4 << "";
    QTest::newRow("negative") << "G" << -1 << "";
    QTest::newRow("unknown group") << "F" << 0 << "";
}

void TestAuthSetGroups::namesTheModuleOfAMode()
{
    QFETCH(QString, group);
    QFETCH(int, position);
    QTEST(ordinary().exclusive_group_orginal_model(group, position), "expected");
}

void TestAuthSetGroups::selectsByPosition_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("expected");

    QTest::newRow("another mode") << "G" << 3 << 3;
    QTest::newRow("by the translated name") << "G_tr" << 1 << 1;
    QTest::newRow("behind the last changes nothing") << "G" << 4 << 2;
    QTest::newRow("far out changes nothing") << "G" << 7 << 2;
    QTest::newRow("negative changes nothing") << "G" << -1 << 2;
    QTest::newRow("unknown group changes nothing") << "F" << 0 << 2;
}

void TestAuthSetGroups::selectsByPosition()
{
    AUTH_SET set = ordinary();
    QCOMPARE(set.exclusive_group_select("G"), 0);
    set.exclusive_group_set_mode("G", 2);
    QFETCH(QString, group);
    QFETCH(int, position);
    set.exclusive_group_set_mode(group, position);
    QTEST(set.exclusive_group_select("G"), "expected");
    QTEST(set.exclusive_group_select("G_tr"), "expected");
}

void TestAuthSetGroups::selectsByName_data()
{
    QTest::addColumn<bool>("shared");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("expected");

    QTest::newRow("plain") << false << "G"
                           << "d" << 3;
    QTest::newRow("translated mode") << false << "G"
                                     << "c_tr" << 2;
    QTest::newRow("translated group") << false << "G_tr"
                                      << "b" << 1;
    QTest::newRow("unknown mode changes nothing") << false << "G"
                                                  << "k" << 2;
    QTest::newRow("empty mode changes nothing") << false << "G"
                                                << "" << 2;
    QTest::newRow("case matters") << false << "G"
                                  << "A" << 2;
    QTest::newRow("unknown group changes nothing") << false << "F"
                                                   << "a" << 2;
    QTest::newRow("a shared name selects its first mode") << true << "G"
                                                          << "b" << 1;
    // c is the fifth mode, but the third name pair: name pairs count here.
    QTest::newRow("behind shared names pairs are counted, not modes") << true << "G"
                                                                      << "c" << 2;
}

void TestAuthSetGroups::selectsByName()
{
    QFETCH(bool, shared);
    AUTH_SET set = shared ? withSharedNames() : ordinary();
    set.exclusive_group_set_mode("G", shared ? 4 : 2);
    QFETCH(QString, group);
    QFETCH(QString, mode);
    set.exclusive_group_set_mode(group, mode);
    QTEST(set.exclusive_group_select("G"), "expected");
}

void TestAuthSetGroups::selectingChangesNothingElse()
{
    AUTH_SET set = registry(
        { exclusiveModule("P", "G", { "a", "b" }), exclusiveModule("Q", "H", { "c", "d" }) });
    set.exclusive_group_set_mode("H", "d");
    QCOMPARE(set.exclusive_group_select("G"), 0);
    QCOMPARE(set.exclusive_group_select("H"), 1);
    set.exclusive_group_set_mode("G", 1);
    QCOMPARE(set.exclusive_group_select("G"), 1);
    QCOMPARE(set.exclusive_group_select("H"), 1);
    QCOMPARE(set.current_group, QString());
    QCOMPARE(set.current_mode, QString());
}

void TestAuthSetGroups::modesOfSeveralModulesFollowEachOther()
{
    const AUTH_SET set = withSharedNames();
    QCOMPARE(set.exclusive_group_mode_count("G"), 5);
    QStringList modules;
    for (int i = 0; i < 5; ++i)
        modules.append(set.exclusive_group_orginal_model("G", i));
    QCOMPARE(modules, (QStringList { "P", "P", "Q", "Q", "Q" }));
}

void TestAuthSetGroups::matchesTheFirstOfCrossedCodes()
{
    // "App:B:b" is the translated name of one mode and the plain name of the other.
    AUTH_INF first = exclusiveModule("P", "A", { "a" });
    first.group_tr = "B";
    first.inner_mode_nameList_tr = QStringList { "b" };
    AUTH_INF second = exclusiveModule("Q", "B", { "b" });
    second.group_tr = "C";
    const AUTH_SET set = registry({ first, second });
    QCOMPARE(set.currentModeMatching({ "App:B:b" }), QStringList { "App:A:a" });
    const AUTH_SET turned = registry({ second, first });
    QCOMPARE(turned.currentModeMatching({ "App:B:b" }), QStringList { "App:B:b" });
}

void TestAuthSetGroups::selectionIsWrittenThroughThePointer_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("written");
    QTest::addColumn<Pair>("selected");

    QTest::newRow("a mode of the group") << "G" << 2 << Pair("c", "c_tr");
    QTest::newRow("by the translated name") << "G_tr" << 1 << Pair("b", "b_tr");
    QTest::newRow("behind the last selects nothing") << "G" << 4 << Pair();
    QTest::newRow("negative selects nothing") << "G" << -5 << Pair();
}

void TestAuthSetGroups::selectionIsWrittenThroughThePointer()
{
    AUTH_SET set = ordinary();
    QFETCH(QString, group);
    QFETCH(int, written);
    int *selection = set.exclusive_group_mode_pointer(group);
    QVERIFY(selection);
    QCOMPARE(*selection, 0);
    *selection = written;
    QCOMPARE(set.exclusive_group_select("G"), written);
    QTEST(set.currentExclusiveGroupSelect("G"), "selected");
    QVERIFY(!set.exclusive_group_mode_pointer("F"));

    set.exclusive_group_set_mode("G", 3);
    QCOMPARE(*selection, 3);
}

void TestAuthSetGroups::selectionsAreResetByEveryRebuild_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("refresh_group") << "refresh";
    QTest::newRow("append of a module of another group") << "append";
    QTest::newRow("append of many") << "appendMany";
    QTest::newRow("append of none") << "appendNone";
    QTest::newRow("acquire of the same modules") << "acquire";
}

void TestAuthSetGroups::selectionsAreResetByEveryRebuild()
{
    AUTH_SET set = registry(
        { exclusiveModule("P", "G", { "a", "b" }), exclusiveModule("Q", "H", { "c", "d" }) });
    set.exclusive_group_set_mode("G", 1);
    *set.exclusive_group_mode_pointer("H") = 1;

    const AUTH_INF item = plainModule("X", "F", { "a" });
    QFETCH(QString, how);
    if (how == "refresh")
        set.refresh_group();
    else if (how == "append")
        set.append(item);
    else if (how == "appendMany")
        set.append(QVector<AUTH_INF> { item, item });
    else if (how == "appendNone")
        set.append(QVector<AUTH_INF>());
    else
        set.acquire(set.AUTH_INF_DATA());

    QCOMPARE(set.exclusive_group_select("G"), 0);
    QCOMPARE(set.exclusive_group_select("H"), 0);
}

void TestAuthSetGroups::listsNamePairs_data()
{
    QTest::addColumn<bool>("shared");
    QTest::addColumn<QString>("group");
    QTest::addColumn<Pairs>("expected");

    const Pairs ordinaryPairs {
        { "a", "a_tr" }, { "b", "b_tr" }, { "c", "c_tr" }, { "d", "d_tr" }
    };
    QTest::newRow("all modules of the group") << false << "G" << ordinaryPairs;
    QTest::newRow("by the translated name") << false << "G_tr" << ordinaryPairs;
    QTest::newRow("another group") << false << "H" << Pairs { { "k", "k_tr" } };
    QTest::newRow("unknown group") << false << "F" << Pairs();
    QTest::newRow("empty group name") << false << "" << Pairs();
    QTest::newRow("equal pairs once")
        << true << "G" << Pairs { { "a", "a_tr" }, { "b", "b_tr" }, { "c", "c_tr" } };
}

void TestAuthSetGroups::listsNamePairs()
{
    QFETCH(bool, shared);
    QFETCH(QString, group);
    const AUTH_SET set = shared ? withSharedNames() : ordinary();
    QTEST(set.exclusive_group_inner_mode_namelist_at(group), "expected");
    QTEST(set.findExclusiveGroupInnerModeList(group), "expected");
}

void TestAuthSetGroups::findsNamePairs_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<Pair>("pair");
    QTest::addColumn<int>("index");

    QTest::newRow("plain") << "G"
                           << "c" << Pair("c", "c_tr") << 2;
    QTest::newRow("translated") << "G"
                                << "d_tr" << Pair("d", "d_tr") << 3;
    QTest::newRow("translated group") << "H_tr"
                                      << "k" << Pair("k", "k_tr") << 0;
    QTest::newRow("mode of another group") << "G"
                                           << "k" << Pair() << -1;
    QTest::newRow("unknown group") << "F"
                                   << "a" << Pair() << -1;
    QTest::newRow("case matters") << "G"
                                  << "C" << Pair() << -1;
    QTest::newRow("empty mode") << "G"
                                << "" << Pair() << -1;
}

void TestAuthSetGroups::findsNamePairs()
{
    const AUTH_SET set = ordinary();
    QFETCH(QString, group);
    QFETCH(QString, mode);
    QTEST(set.findExclusiveGroupInnerModeName(group, mode), "pair");
    QTEST(set.exclusive_group_innerMode_index(group, mode), "index");
}

void TestAuthSetGroups::describesModes_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QVector<int>>("modules");
    QTest::addColumn<QStringList>("descriptions");

    const QVector<int> modules { 0, 0, 1, 4 };
    const QStringList descriptions { "about P/a", "about P/b", "about Q/c", "about S/d" };
    QTest::newRow("a pair per mode") << "G" << modules << descriptions;
    QTest::newRow("by the translated name") << "G_tr" << modules << descriptions;
    QTest::newRow("another group") << "H" << QVector<int> { 3 } << QStringList { "about R/k" };
    QTest::newRow("unknown group") << "F" << QVector<int>() << QStringList();
}

void TestAuthSetGroups::describesModes()
{
    QFETCH(QString, group);
    QVector<int> modules;
    QStringList descriptions;
    const QVector<QPair<int, QString>> found = ordinary().exclusive_group_mode_description(group);
    for (const QPair<int, QString> &mode : found) {
        modules.append(mode.first);
        descriptions.append(mode.second);
    }
    QTEST(modules, "modules");
    QTEST(descriptions, "descriptions");
}

void TestAuthSetGroups::givesParameterEntries_data()
{
    QTest::addColumn<bool>("shared");
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("byPosition");
    QTest::addColumn<QStringList>("byName");

    QTest::newRow("second mode of a module")
        << false << "G" << 1 << "b" << QStringList { "P/b" } << QStringList { "P/b" };
    QTest::newRow("module without the flag")
        << false << "G" << 2 << "c_tr" << QStringList { "Q/c" } << QStringList { "Q/c" };
    QTest::newRow("translated group")
        << false << "G_tr" << 3 << "d" << QStringList { "S/d" } << QStringList { "S/d" };
    QTest::newRow("no such mode") << false << "G" << 4 << "k" << QStringList() << QStringList();
    QTest::newRow("negative position and empty mode")
        << false << "G" << -1 << "" << QStringList() << QStringList();
    QTest::newRow("unknown group") << false << "F" << 0 << "a" << QStringList() << QStringList();
    QTest::newRow("shared names: the fifth mode, the third pair")
        << true << "G" << 4 << "c" << QStringList { "Q/c" } << QStringList { "Q/a" };
}

void TestAuthSetGroups::givesParameterEntries()
{
    QFETCH(bool, shared);
    QFETCH(QString, group);
    QFETCH(int, position);
    QFETCH(QString, mode);
    const AUTH_SET set = shared ? withSharedNames() : ordinary();
    QTEST(keys(set.exclusive_group_parameter_settings_origin(group, position)), "byPosition");
    QTEST(keys(set.exclusive_group_parameter_settings_origin(group, mode)), "byName");
}

void TestAuthSetGroups::currentSelection_data()
{
    QTest::addColumn<bool>("shared");
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("position");
    QTest::addColumn<Pair>("expected");

    QTest::newRow("the first mode at start") << false << "G" << 0 << Pair("a", "a_tr");
    QTest::newRow("the fourth mode") << false << "G" << 3 << Pair("d", "d_tr");
    QTest::newRow("by the translated name") << false << "G_tr" << 3 << Pair("d", "d_tr");
    QTest::newRow("unknown group") << false << "F" << 3 << Pair();
    QTest::newRow("a mode beyond the name pairs") << true << "G" << 3 << Pair();
    QTest::newRow("a mode whose position is another name's pair")
        << true << "G" << 2 << Pair("c", "c_tr");
}

void TestAuthSetGroups::currentSelection()
{
    QFETCH(bool, shared);
    QFETCH(QString, group);
    QFETCH(int, position);
    AUTH_SET set = shared ? withSharedNames() : ordinary();
    set.exclusive_group_set_mode("G", position);
    QCOMPARE(set.exclusive_group_select("G"), position);
    QTEST(set.currentExclusiveGroupSelect(group), "expected");
}

void TestAuthSetGroups::standardNames_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("expected");

    QTest::newRow("known") << "G"
                           << "a"
                           << "App:G:a";
    QTest::newRow("names are not looked up") << "G_tr"
                                             << "nothing"
                                             << "App:G_tr:nothing";
    QTest::newRow("colons are not escaped") << "G:1"
                                            << ":"
                                            << "App:G:1::";
    QTest::newRow("empty") << ""
                           << ""
                           << "App::";
}

void TestAuthSetGroups::standardNames()
{
    QFETCH(QString, group);
    QFETCH(QString, mode);
    QTEST(ordinary().stdModeNameForm(group, mode), "expected");
}

void TestAuthSetGroups::listsAllModes()
{
    AUTH_SET set = ordinary();
    const Pairs expected { { "App:G:a", "App:G_tr:a_tr" },
                           { "App:G:b", "App:G_tr:b_tr" },
                           { "App:G:c", "App:G_tr:c_tr" },
                           { "App:G:d", "App:G_tr:d_tr" },
                           { "App:H:k", "App:H_tr:k_tr" } };
    QCOMPARE(set.currentModeList(), expected);
    set.exclusive_group_set_mode("G", 2);
    QCOMPARE(set.currentModeList(), expected);
}

void TestAuthSetGroups::listsModesOfCrossedGroups()
{
    // The modes of "H" are looked up by that name, which is the translated name of G first.
    QCOMPARE(withCrossedNames().currentModeList(),
             (Pairs { { "App:G:a", "App:H:a_tr" },
                      { "App:G:b", "App:H:b_tr" },
                      { "App:H:a", "App:H_tr:a_tr" },
                      { "App:H:b", "App:H_tr:b_tr" } }));
}

void TestAuthSetGroups::listsModesWithoutATranslatedGroup()
{
    QCOMPARE(withSharedTranslation().currentModeList(),
             (Pairs { { "App:G:a", "App:T:a_tr" }, { "App:H:b", "App::b_tr" } }));
}

void TestAuthSetGroups::matchesCodes_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("unknown codes are left out")
        << QStringList { "App:G:a", "x" } << QStringList { "App:G:a" };
    QTest::newRow("translated codes give plain names")
        << QStringList { "App:H_tr:k_tr" } << QStringList { "App:H:k" };
    QTest::newRow("order and doubles are kept")
        << QStringList { "App:H:k", "App:G:b", "App:G_tr:b_tr" }
        << QStringList { "App:H:k", "App:G:b", "App:G:b" };
    QTest::newRow("plain and translated do not mix")
        << QStringList { "App:G:a_tr", "App:G_tr:a" } << QStringList();
    QTest::newRow("no codes") << QStringList() << QStringList();
    QTest::newRow("an empty code") << QStringList { "" } << QStringList();
}

void TestAuthSetGroups::matchesCodes()
{
    QFETCH(QStringList, codes);
    QFETCH(QStringList, expected);
    const AUTH_SET set = ordinary();
    QCOMPARE(set.currentModeMatching(codes), expected);
    QCOMPARE(set.currentModeMatchingCount(codes), expected.size());
}

void TestAuthSetGroups::looksResolvedNamesUpAgain()
{
    AUTH_SET set = withCrossedNames();
    // Asked for group H by the name that is only its own.
    QCOMPARE(set.findExclusiveGroupName("H_tr"), Pair("H", "H_tr"));
    QCOMPARE(set.findExclusiveGroupName("H"), Pair("G", "H"));
    // These look the group up once.
    QCOMPARE(set.exclusive_group_mode_count("H_tr"), 3);
    QCOMPARE(set.exclusive_group_orginal_model("H_tr", 2), QString("Q"));
    QCOMPARE(set.exclusive_group_mode_description("H_tr").size(), 3);
    QCOMPARE(set.exclusive_group_inner_mode_namelist_at("H_tr").size(), 3);
    QCOMPARE(set.findExclusiveGroupInnerModeName("H_tr", "d"), Pair("d", "d_tr"));
    QCOMPARE(keys(set.exclusive_group_parameter_settings_origin("H_tr", 2)), QStringList { "Q/d" });
    // These hand the name "H" on, which leads to group G.
    QCOMPARE(set.exclusive_group_innerMode_index("H_tr", "b"), 1);
    QCOMPARE(set.exclusive_group_innerMode_index("H_tr", "d"), -1);
    QCOMPARE(keys(set.exclusive_group_parameter_settings_origin("H_tr", "b")),
             QStringList { "P/b" });
    QCOMPARE(set.exclusive_group_parameter_settings_origin("H_tr", "d"), QVector<QStringList>());

    set.exclusive_group_set_mode("H_tr", 2);
    QCOMPARE(set.exclusive_group_select("H_tr"), 2);
    QCOMPARE(set.exclusive_group_select("G"), 0);
    QCOMPARE(set.currentExclusiveGroupSelect("H_tr"), Pair("a", "a_tr"));
    set.exclusive_group_set_mode("H_tr", "b");
    QCOMPARE(set.exclusive_group_select("H_tr"), 2);
    QCOMPARE(set.exclusive_group_select("G"), 1);
    QCOMPARE(set.currentExclusiveGroupSelect("H_tr"), Pair("b", "b_tr"));
}

void TestAuthSetGroups::survivesListsThatDisagree()
{
    AUTH_INF item = exclusiveModule("P", "G", { "a", "b" });
    item.inner_mode_count = 4;
    item.inner_mode_nameList_tr.removeLast();
    item.inner_mode_description = QStringList { "only one" };
    item.inner_mode_parameterList.removeLast();
    AUTH_SET set = registry({ item, exclusiveModule("Q", "G", { "c" }) });

    QCOMPARE(set.exclusive_group_mode_count("G"), 5);
    QCOMPARE(set.exclusive_group_orginal_model("G", 3), QString("P"));
    QCOMPARE(set.exclusive_group_orginal_model("G", 4), QString("Q"));
    QCOMPARE(set.exclusive_group_inner_mode_namelist_at("G"),
             (Pairs { { "a", "a_tr" }, { "b", QString() }, { "c", "c_tr" } }));
    QCOMPARE(set.exclusive_group_mode_description("G"),
             (QVector<QPair<int, QString>> {
                 { 0, "only one" }, { 0, "" }, { 0, "" }, { 0, "" }, { 1, "about Q/c" } }));
    QCOMPARE(set.exclusive_group_parameter_settings_origin("G", 1), QVector<QStringList>());
    QCOMPARE(keys(set.exclusive_group_parameter_settings_origin("G", 4)), QStringList { "Q/c" });
    // The third name pair belongs to Q, the third mode to P.
    set.exclusive_group_set_mode("G", "c");
    QCOMPARE(set.exclusive_group_select("G"), 2);
    // A translated name that is missing is an empty one, and the first pair with it is b's.
    QCOMPARE(set.findExclusiveGroupInnerModeName("G", ""), Pair("b", QString()));
}

void TestAuthSetGroups::survivesSenselessCounts_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("modes");
    QTest::addColumn<Pairs>("pairs");
    QTest::addColumn<int>("descriptions");

    const Pairs pairs { { "a", "a_tr" } };
    const int huge = std::numeric_limits<int>::max();
    QTest::newRow("none: names without modes are not listed") << 0 << 0 << Pairs() << 0;
    QTest::newRow("negative") << -3 << 0 << Pairs() << 0;
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << 0 << Pairs() << 0;
    QTest::newRow("more than names") << 3 << 3 << pairs << 3;
    QTest::newRow("huge: the list of descriptions ends") << huge << huge << pairs << 1000000;
}

void TestAuthSetGroups::survivesSenselessCounts()
{
    QFETCH(int, count);
    QFETCH(int, modes);
    AUTH_INF item = exclusiveModule("P", "G", { "a" });
    item.inner_mode_count = count;
    AUTH_SET set = registry({ item });
    QCOMPARE(set.exclusive_group_mode_count("G"), modes);
    QTEST(set.exclusive_group_inner_mode_namelist_at("G"), "pairs");
    QTEST(set.exclusive_group_mode_description("G").size(), "descriptions");

    const int last = modes - 1;
    QCOMPARE(set.exclusive_group_orginal_model("G", last), modes > 0 ? QString("P") : QString());
    set.exclusive_group_set_mode("G", last);
    QCOMPARE(set.exclusive_group_select("G"), qMax(last, 0));
    QCOMPARE(set.currentExclusiveGroupSelect("G"), Pair());
    QCOMPARE(set.exclusive_group_parameter_settings_origin("G", last), QVector<QStringList>());
}

void TestAuthSetGroups::survivesHugeCountsOfSeveralModules()
{
    AUTH_INF first = exclusiveModule("P", "G", { "a" });
    first.inner_mode_count = std::numeric_limits<int>::max() - 1;
    AUTH_INF second = exclusiveModule("Q", "G", { "b" });
    second.inner_mode_count = std::numeric_limits<int>::max();
    const AUTH_SET set = registry({ first, second, second });
    const int last = std::numeric_limits<int>::max() - 1;
    QCOMPARE(set.exclusive_group_mode_count("G"), std::numeric_limits<int>::max());
    QCOMPARE(set.exclusive_group_orginal_model("G", last - 1), QString("P"));
    QCOMPARE(set.exclusive_group_orginal_model("G", last), QString("Q"));
    QCOMPARE(set.exclusive_group_mode_description("G").size(), 1000000);
}

void TestAuthSetGroups::survivesEmptyNames()
{
    AUTH_INF item = exclusiveModule("", "", { "", "b" });
    item.group_tr = "T";
    AUTH_SET set = registry({ item });
    QCOMPARE(set.currentExclusiveGroupList(), (Pairs { { "", "T" } }));
    QCOMPARE(set.exclusive_group_mode_count("T"), 2);
    QCOMPARE(set.exclusive_group_mode_count(""), 2);
    QCOMPARE(set.currentModeList(),
             (Pairs { { "App::", "App:T:_tr" }, { "App::b", "App:T:b_tr" } }));
    // Positions by name are not given for a group without a name, selecting by name works.
    QCOMPARE(set.exclusive_group_innerMode_index("T", "b"), -1);
    set.exclusive_group_set_mode("T", "b");
    QCOMPARE(set.exclusive_group_select("T"), 1);
    // A mode without a plain name is not selected by its translated one.
    set.exclusive_group_set_mode("T", "_tr");
    QCOMPARE(set.exclusive_group_select("T"), 1);
    QCOMPARE(set.findExclusiveGroupInnerModeName("T", "_tr"), Pair("", "_tr"));
}

void TestAuthSetGroups::unknownGroupsNeverMeanTheNamelessOne()
{
    AUTH_INF nameless = exclusiveModule("P", "", { "a", "b" });
    AUTH_SET set = registry({ nameless });
    QCOMPARE(set.exclusive_group_mode_count("unknown"), 0);
    QCOMPARE(set.exclusive_group_select("unknown"), -1);
    QVERIFY(!set.exclusive_group_mode_pointer("unknown"));
    set.exclusive_group_set_mode("unknown", 1);
    set.exclusive_group_set_mode("unknown", "b");
    QCOMPARE(set.exclusive_group_select(""), 0);

    // Nor a group that has no translated name.
    AUTH_SET shared = withSharedTranslation();
    QCOMPARE(shared.findExclusiveGroupName(""), Pair("H", ""));
    shared.append(exclusiveModule("S", "H", { "c" }));
    shared.exclusive_group_set_mode("unknown", "c");
    QCOMPARE(shared.exclusive_group_select("H"), 0);
    QCOMPARE(shared.exclusive_group_parameter_settings_origin("unknown", "b"),
             QVector<QStringList>());
}

void TestAuthSetGroups::growsByAppending()
{
    AUTH_SET set;
    set.append(exclusiveModule("P", "G", { "a" }));
    QCOMPARE(set.exclusive_group_innerMode_index("G", "b"), -1);
    set.append(exclusiveModule("Q", "G", { "a", "b" }));
    QCOMPARE(set.exclusive_group_innerMode_index("G", "b"), 1);
    QCOMPARE(set.exclusive_group_mode_count("G"), 3);
    set.append(exclusiveModule("R", "H", { "b" }));
    QCOMPARE(set.currentModeList(),
             (Pairs {
                 { ":G:a", ":G_tr:a_tr" }, { ":G:b", ":G_tr:b_tr" }, { ":H:b", ":H_tr:b_tr" } }));
}

QTEST_GUILESS_MAIN(TestAuthSetGroups)
#include "tst_auth_set_groups.moc"

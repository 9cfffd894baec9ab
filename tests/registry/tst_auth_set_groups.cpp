// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The exclusive groups of a registry, their modes and selections.

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

QStringList modulesOfModes(const AUTH_SET &set, const QString &group)
{
    QStringList modules;
    for (int i = -1; i <= set.exclusive_group_mode_count(group); ++i)
        modules.append(set.exclusive_group_orginal_model(group, i));
    return modules;
}

} // namespace

class TestAuthSetGroups : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutGroups()
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

    void listsGroups()
    {
        const AUTH_SET set = ordinary();
        QCOMPARE(set.exclusive_group_namelist(), (QStringList { "G", "H" }));
        QCOMPARE(set.exclusive_group_namelist_global(), (QStringList { "G_tr", "H_tr" }));
        QCOMPARE(set.currentExclusiveGroupList(), (Pairs { { "G", "G_tr" }, { "H", "H_tr" } }));
        QCOMPARE(set.findExclusiveGroupName("H_tr"), Pair("H", "H_tr"));
        QCOMPARE(set.findExclusiveGroupName("F"), Pair());
        QCOMPARE(set.findExclusiveGroupName("g"), Pair());
    }

    void deduplicatesTranslatedNamesOnTheirOwn()
    {
        AUTH_SET set = withSharedTranslation();
        QCOMPARE(set.exclusive_group_namelist_global(), QStringList { "T" });
        QCOMPARE(set.currentExclusiveGroupList(), (Pairs { { "G", "T" }, { "H", QString() } }));
        QCOMPARE(set.currentModeList(),
                 (Pairs { { "App:G:a", "App:T:a_tr" }, { "App:H:b", "App::b_tr" } }));

        AUTH_INF late = exclusiveModule("S", "G", { "c" });
        late.group_tr = "U";
        set.append(late);
        // The new translated name is the second of its list and so becomes that of the second
        // group.
        QCOMPARE(set.currentExclusiveGroupList(), (Pairs { { "G", "T" }, { "H", "U" } }));
        QCOMPARE(set.findExclusiveGroupName("U"), Pair("H", "U"));
        QCOMPARE(set.findExclusiveGroupName(""), Pair());
    }

    void modesOfSeveralModulesFollowEachOther()
    {
        const QVector<AUTH_INF> items { plainModule("Q", "G", { "a", "b" }),
                                        exclusiveModule("P", "G", { "c", "d" }),
                                        plainModule("S", "G", { "e" }) };
        AUTH_SET grown;
        for (const AUTH_INF &item : items)
            grown.append(item);
        const QStringList modules { "", "Q", "Q", "P", "P", "S", "" };
        QCOMPARE(modulesOfModes(registry(items), "G"), modules);
        QCOMPARE(modulesOfModes(grown, "G_tr"), modules);
    }

    void selectsByPosition()
    {
        AUTH_SET set = ordinary();
        set.exclusive_group_set_mode("G_tr", 3);
        for (int nothing : { 4, 7, -1 })
            set.exclusive_group_set_mode("G", nothing);
        set.exclusive_group_set_mode("F", 0);
        QCOMPARE(set.exclusive_group_select("G"), 3);
        QCOMPARE(set.exclusive_group_select("G_tr"), 3);
        QCOMPARE(set.exclusive_group_select("H"), 0);
    }

    void selectsByName_data()
    {
        QTest::addColumn<bool>("shared");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<int>("expected");
        const auto row
            = [](const char *name, bool shared, const char *group, const char *mode, int expected) {
                  QTest::newRow(name) << shared << QString(group) << QString(mode) << expected;
              };
        row("plain names", false, "G", "d", 3);
        row("translated names", false, "G_tr", "b_tr", 1);
        row("unknown mode changes nothing", false, "G", "k", 2);
        row("unknown group changes nothing", false, "F", "a", 2);
        row("a shared name selects its first mode", true, "G", "b", 1);
        // c is the fifth mode, but the third name pair: name pairs count here.
        row("behind shared names pairs are counted, not modes", true, "G", "c", 2);
    }
    void selectsByName()
    {
        QFETCH(bool, shared);
        AUTH_SET set = shared ? withSharedNames() : ordinary();
        set.exclusive_group_set_mode("G", shared ? 4 : 2);
        QFETCH(QString, group);
        QFETCH(QString, mode);
        set.exclusive_group_set_mode(group, mode);
        QTEST(set.exclusive_group_select("G"), "expected");
    }

    void tellsTheSelectedNamePair()
    {
        AUTH_SET set = ordinary();
        QCOMPARE(set.currentExclusiveGroupSelect("G"), Pair("a", "a_tr"));
        set.exclusive_group_set_mode("G", 3);
        QCOMPARE(set.currentExclusiveGroupSelect("G_tr"), Pair("d", "d_tr"));
        QCOMPARE(set.currentExclusiveGroupSelect("F"), Pair());

        AUTH_INF moreNames = exclusiveModule("P", "G", { "a", "b" });
        moreNames.inner_mode_count = 1;
        AUTH_SET longer = registry({ moreNames });
        *longer.exclusive_group_mode_pointer("G") = 1;
        // The second name pair is there, a second mode is not.
        QCOMPARE(longer.currentExclusiveGroupSelect("G"), Pair());

        AUTH_SET shared = withSharedNames();
        QCOMPARE(shared.exclusive_group_inner_mode_namelist_at("G").size(), 3);
        QCOMPARE(shared.exclusive_group_mode_count("G"), 5);
        shared.exclusive_group_set_mode("G", 3);
        // The fourth mode is there, a fourth name pair is not.
        QCOMPARE(shared.exclusive_group_select("G"), 3);
        QCOMPARE(shared.currentExclusiveGroupSelect("G"), Pair());
        QCOMPARE(keys(shared.exclusive_group_parameter_settings_origin("G", 4)),
                 QStringList { "Q/c" });
        QCOMPARE(keys(shared.exclusive_group_parameter_settings_origin("G", "c")),
                 QStringList { "Q/a" });
    }

    void selectionIsWrittenThroughThePointer()
    {
        AUTH_SET set = ordinary();
        int *selection = set.exclusive_group_mode_pointer("G_tr");
        QVERIFY(selection);
        QCOMPARE(*selection, 0);
        *selection = 2;
        QCOMPARE(set.currentExclusiveGroupSelect("G"), Pair("c", "c_tr"));
        for (int nothing : { 4, -5 }) {
            *selection = nothing;
            QCOMPARE(set.exclusive_group_select("G"), nothing);
            QCOMPARE(set.currentExclusiveGroupSelect("G"), Pair());
        }
        set.exclusive_group_set_mode("G", 3);
        QCOMPARE(*selection, 3);
    }

    void selectionsAreResetByEveryRebuild_data()
    {
        QTest::addColumn<int>("how");
        QTest::newRow("refresh_group") << 0;
        QTest::newRow("append of a module of another group") << 1;
        QTest::newRow("append of none") << 2;
        QTest::newRow("acquire of the same modules") << 3;
    }
    void selectionsAreResetByEveryRebuild()
    {
        AUTH_SET set = ordinary();
        set.exclusive_group_set_mode("G", "b");
        *set.exclusive_group_mode_pointer("H") = 7;
        QFETCH(int, how);
        if (how == 0)
            set.refresh_group();
        else if (how == 1)
            set.append(exclusiveModule("T", "I", { "e" }));
        else if (how == 2)
            set.append(QVector<AUTH_INF>());
        else
            set.acquire(set.AUTH_INF_DATA());
        QCOMPARE(set.exclusive_group_select("G"), 0);
        QCOMPARE(set.exclusive_group_select("H"), 0);
    }

    void describesModes()
    {
        const QVector<QPair<int, QString>> expected {
            { 0, "about P/a" }, { 0, "about P/b" }, { 1, "about Q/c" }, { 4, "about S/d" }
        };
        QCOMPARE(ordinary().exclusive_group_mode_description("G_tr"), expected);
        QCOMPARE(ordinary().exclusive_group_mode_description("F").size(), 0);
    }

    void listsAndMatchesModes()
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

        const QStringList codes { "App:H:k", "x", "App:G:b", "", "App:G:a_tr", "App:G_tr:b_tr" };
        QCOMPARE(set.currentModeMatching(codes), (QStringList { "App:H:k", "App:G:b", "App:G:b" }));
        QCOMPARE(set.currentModeMatchingCount(codes), 3);
        QCOMPARE(set.stdModeNameForm("G:1", ":"), QString("App:G:1::"));
    }

    void resolvesNamesTwice()
    {
        // The translated name of group G is the plain name of the other group.
        AUTH_INF first = exclusiveModule("P", "G", { "a", "b" });
        first.group_tr = "H";
        AUTH_SET set = registry({ first, exclusiveModule("Q", "H", { "b", "c", "d" }) });
        QCOMPARE(set.findExclusiveGroupName("H"), Pair("G", "H"));
        QCOMPARE(set.findExclusiveGroupName("H_tr"), Pair("H", "H_tr"));
        // These look the group up once.
        QCOMPARE(modulesOfModes(set, "H_tr"), (QStringList { "", "Q", "Q", "Q", "" }));
        QCOMPARE(set.findExclusiveGroupInnerModeName("H_tr", "d"), Pair("d", "d_tr"));
        QCOMPARE(keys(set.exclusive_group_parameter_settings_origin("H_tr", 2)),
                 QStringList { "Q/d" });
        set.exclusive_group_set_mode("H_tr", 2);
        QCOMPARE(set.exclusive_group_select("H_tr"), 2);
        // These hand the name "H" on, which leads to group G.
        QCOMPARE(set.exclusive_group_innerMode_index("H_tr", "d"), -1);
        QCOMPARE(keys(set.exclusive_group_parameter_settings_origin("H_tr", "b")),
                 QStringList { "P/b" });
        QCOMPARE(set.currentExclusiveGroupSelect("H_tr"), Pair("a", "a_tr"));
        set.exclusive_group_set_mode("H_tr", "b");
        QCOMPARE(set.exclusive_group_select("H_tr"), 2);
        QCOMPARE(set.exclusive_group_select("G"), 1);
    }

    void survivesSenselessCounts_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("modes");
        QTest::addColumn<int>("descriptions");
        const int huge = std::numeric_limits<int>::max();
        QTest::newRow("none: names without modes are not listed") << 0 << 0 << 0;
        QTest::newRow("lowest") << std::numeric_limits<int>::min() << 0 << 0;
        QTest::newRow("more than names") << 3 << 3 << 3;
        QTest::newRow("huge: the list of descriptions ends") << huge << huge << 1000000;
    }
    void survivesSenselessCounts()
    {
        QFETCH(int, count);
        QFETCH(int, modes);
        AUTH_INF item = exclusiveModule("P", "G", { "a" });
        item.inner_mode_count = count;
        AUTH_SET set = registry({ item });
        QCOMPARE(set.exclusive_group_mode_count("G"), modes);
        QCOMPARE(set.exclusive_group_inner_mode_namelist_at("G").size(), modes > 0 ? 1 : 0);
        QTEST(set.exclusive_group_mode_description("G").size(), "descriptions");
        const int last = modes - 1;
        QCOMPARE(set.exclusive_group_orginal_model("G", last), QString(modes > 0 ? "P" : ""));
        set.exclusive_group_set_mode("G", last);
        QCOMPARE(set.exclusive_group_select("G"), qMax(last, 0));
        QCOMPARE(set.currentExclusiveGroupSelect("G"), Pair());
        QCOMPARE(set.exclusive_group_parameter_settings_origin("G", last), QVector<QStringList>());
    }

    void survivesHugeCountsOfSeveralModules()
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

    void unknownGroupsNeverMeanTheNamelessOne()
    {
        AUTH_SET set = registry({ exclusiveModule("P", "", { "", "b" }) });
        QCOMPARE(set.exclusive_group_mode_count("unknown"), 0);
        QVERIFY(!set.exclusive_group_mode_pointer("unknown"));
        set.exclusive_group_set_mode("unknown", 1);
        set.exclusive_group_set_mode("unknown", "b");
        QCOMPARE(set.exclusive_group_select(""), 0);
        // Positions by name are not given for a group without a name, selecting by name works.
        QCOMPARE(set.exclusive_group_innerMode_index("_tr", "b"), -1);
        set.exclusive_group_set_mode("_tr", "b");
        QCOMPARE(set.exclusive_group_select(""), 1);
        // A mode without a plain name is not selected by its translated one.
        set.exclusive_group_set_mode("_tr", "_tr");
        QCOMPARE(set.exclusive_group_select(""), 1);
    }
};

QTEST_GUILESS_MAIN(TestAuthSetGroups)
#include "tst_auth_set_groups.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The exclusive groups of a registry, their modes and selections: what random registries of a few
// modules do not show.

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

AUTH_INF withCount(AUTH_INF item, int count)
{
    item.inner_mode_count = count;
    return item;
}

} // namespace

class TestAuthSetGroups : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutGroups()
    {
        AUTH_SET set = registry({ plainModule("P", "G", { "a" }) });
        QCOMPARE(set.exclusive_group_namelist() + set.exclusive_group_namelist_global(),
                 QStringList());
        QCOMPARE(set.currentModeList(), Pairs());
        QCOMPARE(set.exclusive_group_select("G"), -1);
        QVERIFY(!set.exclusive_group_mode_pointer("G"));
    }

    /// The last module has no flag.
    void joinsTheModesOfModules_data()
    {
        QTest::addColumn<QString>("group");
        QTest::newRow("plain name") << "G";
        QTest::newRow("translated name") << "G_tr";
    }
    void joinsTheModesOfModules()
    {
        QFETCH(QString, group);
        AUTH_SET set = registry({ exclusiveModule("P", "G", { "a", "b" }),
                                  exclusiveModule("Q", "G", { "a", "c", "d" }),
                                  plainModule("R", "G", { "e" }) });
        QCOMPARE(set.exclusive_group_mode_count(group), 6);
        // Two modes share their names.
        QCOMPARE(set.exclusive_group_inner_mode_namelist_at(group).size(), 5);
        const QVector<QPair<int, QString>> descriptions { { 0, "about P/a" }, { 0, "about P/b" },
                                                          { 1, "about Q/a" }, { 1, "about Q/c" },
                                                          { 1, "about Q/d" }, { 2, "about R/e" } };
        QCOMPARE(set.exclusive_group_mode_description(group), descriptions);
        QCOMPARE(set.currentModeMatching({ "App:G:d", "x" }), QStringList { "App:G:d" });

        int *selection = set.exclusive_group_mode_pointer(group);
        for (int position : { 3, 7 })
            set.exclusive_group_set_mode(group, position);
        QCOMPARE(set.exclusive_group_select(group), 3);
        QCOMPARE(set.currentExclusiveGroupSelect(group), Pair("d", "d_tr"));
        QCOMPARE(*selection, 3);
        set.refresh_group();
        QCOMPARE(set.exclusive_group_select(group), 0);
    }

    void survivesSenselessCounts_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("modes");
        QTest::addColumn<int>("descriptions");
        const int huge = std::numeric_limits<int>::max();
        QTest::newRow("lowest") << std::numeric_limits<int>::min() << 0 << 0;
        QTest::newRow("fewer than names") << 1 << 1 << 1;
        QTest::newRow("more than names") << 3 << 3 << 3;
        QTest::newRow("huge: the list of descriptions ends") << huge << huge << 1000000;
    }
    void survivesSenselessCounts()
    {
        QFETCH(int, count);
        QFETCH(int, modes);
        AUTH_SET set = registry({ withCount(exclusiveModule("P", "G", { "a", "b" }), count) });
        QCOMPARE(set.exclusive_group_mode_count("G"), modes);
        QCOMPARE(set.exclusive_group_inner_mode_namelist_at("G").size(), modes > 0 ? 2 : 0);
        QTEST(set.exclusive_group_mode_description("G").size(), "descriptions");
        const int last = modes - 1;
        QCOMPARE(set.exclusive_group_orginal_model("G", last), QString(modes > 0 ? "P" : ""));
        set.exclusive_group_set_mode("G", last);
        QCOMPARE(set.exclusive_group_select("G"), qMax(last, 0));
        QCOMPARE(set.exclusive_group_parameter_settings_origin("G", last).isEmpty(), count != 1);
        *set.exclusive_group_mode_pointer("G") = modes;
        QCOMPARE(set.currentExclusiveGroupSelect("G"), Pair());
    }

    void survivesHugeCountsOfSeveralModules()
    {
        const int huge = std::numeric_limits<int>::max();
        const AUTH_INF second = withCount(exclusiveModule("Q", "G", { "b" }), huge);
        const AUTH_SET set
            = registry({ withCount(exclusiveModule("P", "G", { "a" }), huge - 1), second, second });
        QCOMPARE(set.exclusive_group_mode_count("G"), huge);
        QCOMPARE(set.exclusive_group_orginal_model("G", huge - 2), QString("P"));
        QCOMPARE(set.exclusive_group_orginal_model("G", huge - 1), QString("Q"));
        QCOMPARE(set.exclusive_group_mode_description("G").size(), 1000000);
    }
};

QTEST_GUILESS_MAIN(TestAuthSetGroups)
#include "tst_auth_set_groups.moc"

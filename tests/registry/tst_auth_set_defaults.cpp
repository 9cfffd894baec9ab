// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The default parameters and results of a registry, and lists of parameters that a host combines:
// the odd cases. Random ones are compared with plain scans elsewhere.

#include <Kelto/AUTH_SET>

#include "support/parameters.h"

#include <QTest>

namespace {

using Modules = QVector<AUTH_INF>;

AUTH_SET registryOf(const Modules &modules)
{
    AUTH_SET set;
    set.append(modules);
    return set;
}

/// A module in the exclusive group G. Its only mode, of its own name, has these parameters.
AUTH_INF single(const QString &name, const ParameterEntries &entries)
{
    AUTH_INF item = exclusiveModule(name, "G", { name });
    item.inner_mode_parameterList = { entries };
    return item;
}

Parameters ofValues(const QVariantList &values)
{
    Parameters list;
    for (const QVariant &value : values)
        list.append(valued("x", value));
    return list;
}

} // namespace

class TestAuthSetDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sortsParameters_data()
    {
        QTest::addColumn<ParameterEntries>("first");
        QTest::addColumn<ParameterEntries>("second");
        QTest::addColumn<ParameterEntries>("expected");
        const auto row = [](const char *name, const ParameterEntries &first,
                            const ParameterEntries &second, const ParameterEntries &expected) {
            QTest::newRow(name) << first << second << expected;
        };
        row("capital letters first, what two modes share comes once",
            { entry("beta"), entry("Alpha"), entry("alpha") }, { entry("beta") },
            { entry("Alpha"), entry("alpha"), entry("beta") });
        row("symbols that differ in case keep two places, both of the first mode",
            { entry("x", "e") }, { entry("x", "E") }, { entry("x", "e"), entry("x", "e") });
        row("an entry of eight texts is empty and comes first", { entry("a") },
            { entry("b").mid(0, 8) }, { QStringList(), entry("a") });
    }
    void sortsParameters()
    {
        QFETCH(ParameterEntries, first);
        QFETCH(ParameterEntries, second);
        QFETCH(ParameterEntries, expected);
        const AUTH_SET set = registryOf({ single("P", first), single("Q", second) });
        QCOMPARE(shown(set.defaultParameterList("G")), shown(parameters(expected)));
        QVERIFY(!set.defaultParameterList("G").constFirst().value().isValid());
    }

    void asksForNoNameBehindTheLastMode()
    {
        AUTH_INF item = exclusiveModule("P", "G", { "a", "b", "c" });
        // The plain name of each pair but the first is found as the translated one of the pair
        // before it.
        item.inner_mode_nameList_tr = QStringList { "b", "c", "d" };
        item.inner_mode_count = 2;
        item.inner_mode_parameterList = { { entry("x") }, { entry("y") } };
        QCOMPARE(shown(registryOf({ item }).defaultParameterList("G")),
                 shown(parameters({ entry("x") })));
    }

    void takesResultsFromFlaggedModulesOnly()
    {
        AUTH_INF flagless = plainModule("Q", "G", { "a" });
        flagless.output_results = { entry("a") };
        AUTH_INF flagged = exclusiveModule("P", "G", { "a" });
        flagged.output_results = { entry("b") };
        const AUTH_SET set = registryOf({ flagged, flagless });
        QCOMPARE(shown(set.defaultResultList("G")), shown(parameters({ entry("b") })));
        QCOMPARE(shown(set.defaultResultList(&flagless)), shown(parameters({ entry("a") })));
        QCOMPARE(set.defaultResultList(static_cast<const AUTH_INF *>(nullptr)).size(), 0);
    }

    void survivesAHugeCount()
    {
        AUTH_INF item = single("P", { entry("x") });
        item.inner_mode_count = 2000000000;
        const AUTH_SET set = registryOf({ item, single("Q", { entry("y") }) });
        // The second name pair means the second mode of the first module.
        const QStringList expected = shown(parameters({ entry("x") }));
        QCOMPARE(shown(set.defaultParameterList("G")), expected);
        QCOMPARE(shown(set.defaultParameterList()), expected);
        QCOMPARE(shown(set.defaultParameterListInSubGroup("G", "S")), expected);
    }

    void takesNothingForAnEmptyList()
    {
        const AUTH_SET set;
        const Parameters list = ofValues({ 1, 1 });
        const VParameter parameter = list.first();
        const Parameters empty;
        QCOMPARE(shown(set.mergingList(&list, &list)), shown(ofValues({ 1 })));
        QCOMPARE(shown(set.mergingList(nullptr, &list)), shown(ofValues({ 1 })));
        QCOMPARE(shown(set.mergingList(&list, nullptr)), shown(ofValues({ 1 })));
        QCOMPARE(set.mergingList(nullptr, nullptr).size(), 0);
        QCOMPARE(shown(set.sharingList(&list, &list)), shown(list));
        QCOMPARE(set.sharingList(nullptr, &list).size(), 0);
        QCOMPARE(set.sharingList(&list, nullptr).size(), 0);
        QCOMPARE(set.indexParameterInList(nullptr, &parameter), -1);
        QCOMPARE(set.indexParameterInList(&list, nullptr), -1);
        QCOMPARE(set.indexParameterInList(&empty, &parameter), -1);
        QCOMPARE(set.isParameterContains(&empty, &parameter), false);
        QCOMPARE(set.isParameterContains(nullptr, nullptr), false);
    }
};

QTEST_GUILESS_MAIN(TestAuthSetDefaults)
#include "tst_auth_set_defaults.moc"

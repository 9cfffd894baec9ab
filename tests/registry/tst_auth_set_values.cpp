// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The stored values in memory: looking up, storing, and taking over those of a calculation.

#include "support/directorytest.h"
#include "support/moduleitems.h"
#include "support/storedvalues.h"
#include "support/testfiles.h"

#include <QMap>
#include <QTest>

#include <functional>

using Change = std::function<void(AUTH_SET &)>;
Q_DECLARE_METATYPE(Change)

class TestAuthSetValues : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void looksUp_data();
    void looksUp();
    void looksUpInGroups_data();
    void looksUpInGroups();
    void keepsDefaultSettings();
    void replacesDefaultSettings();
    void leavesTheVeryListAlone();
    void takesBackAListThatWasWrittenTo();
    void keepsDefaultSettingsFromTheHost();
    void takesOverACalculation_data();
    void takesOverACalculation();
    void takesOverOddKeys_data();
    void takesOverOddKeys();
    void changesNothingWithoutAttributes_data();
    void changesNothingWithoutAttributes();
    void takesOverAnotherCalculation();
    void keepsTheOrderOfCalculations();
    void keepsTemporaryValues();
    void deletesTemporaryValues();
    void keepsManyTemporaryValues();
    void keepsStoresApart();
    void keepsValuesWhenModulesChange_data();
    void keepsValuesWhenModulesChange();
};

void TestAuthSetValues::looksUp_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("set");
    QTest::addColumn<QVariant>("calculation");
    QTest::addColumn<QVariant>("temporary");

    const QVariant none;
    QTest::newRow("set value") << "a/x" << QVariant(1) << none << none;
    QTest::newRow("set value of another type") << "a/y" << QVariant("two") << none << none;
    QTest::newRow("set value without a group") << "top" << QVariant(3.5) << none << none;
    QTest::newRow("calculation value") << "Attribute/E" << none << QVariant(210000) << none;
    QTest::newRow("unit") << "Unit/E" << none << QVariant("MPa") << none;
    QTest::newRow("missing unit") << "Unit/L" << none << none << none;
    QTest::newRow("temporary value") << "t" << none << none << QVariant(1);
    QTest::newRow("unknown") << "nowhere" << none << none << none;
    QTest::newRow("in another case") << "A/X" << none << none << none;
    QTest::newRow("another case of the name") << "attribute/E" << none << none << none;
    QTest::newRow("group only") << "a" << none << none << none;
    QTest::newRow("name only") << "E" << none << none << none;
    QTest::newRow("empty") << "" << none << none << none;
}

void TestAuthSetValues::looksUp()
{
    QFETCH(QString, key);
    QFETCH(QVariant, set);
    QFETCH(QVariant, calculation);
    QFETCH(QVariant, temporary);
    const AUTH_SET registry = filled();
    QCOMPARE(described(registry.value_set(key)), described(set));
    QCOMPARE(described(registry.value_cal(key)), described(calculation));
    QCOMPARE(described(registry.value_temp(key)), described(temporary));
    // Where there is nothing at all.
    QDir("Config").removeRecursively();
    QCOMPARE(AUTH_SET().value_set(key), QVariant());
    QCOMPARE(AUTH_SET().value_cal(key), QVariant());
    QCOMPARE(AUTH_SET().value_temp(key), QVariant());
}

void TestAuthSetValues::looksUpInGroups_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<Entries>("list");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");

    const QVariant none;
    const Entries g { { "k", 1 }, { "l", "two" }, { "k", 3 } };
    QTest::newRow("the first of two keys") << "g" << g << "k" << QVariant(1);
    QTest::newRow("another key") << "g" << g << "l" << QVariant("two");
    QTest::newRow("unknown key") << "g" << g << "nowhere" << none;
    QTest::newRow("key in another case") << "g" << g << "K" << none;
    QTest::newRow("key with its group") << "g" << g << "g/k" << none;
    QTest::newRow("no key") << "g" << g << "" << none;
    QTest::newRow("another group") << "h" << Entries { { "m", 4 } } << "m" << QVariant(4);
    QTest::newRow("key of another group") << "h" << Entries { { "m", 4 } } << "k" << none;
    QTest::newRow("empty group") << "empty" << Entries() << "k" << none;
    QTest::newRow("unknown group") << "nowhere" << Entries() << "k" << none;
    QTest::newRow("group in another case") << "G" << Entries() << "k" << none;
    QTest::newRow("no group") << "" << Entries() << "k" << none;
}

void TestAuthSetValues::looksUpInGroups()
{
    QFETCH(QString, group);
    QFETCH(Entries, list);
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const AUTH_SET registry = filled();
    QCOMPARE(described(registry.value_group(group)), described(list));
    QCOMPARE(described(registry.value_group_at(group, key)), described(value));
    QCOMPARE(AUTH_SET().value_group(group), Entries());
    QCOMPARE(AUTH_SET().value_group_at(group, key), QVariant());
}

void TestAuthSetValues::keepsDefaultSettings()
{
    AUTH_SET set;
    const Entries first { { "b", 1 }, { "a", 2 } };
    const Entries second { { "c", 3 } };
    set.setDefaultSettings("z", first);
    set.setDefaultSettings("y", second);
    set.setDefaultSettings("", { { "d", 4 } });
    QCOMPARE(described(set.value_group("z")), described(first));
    QCOMPARE(described(set.value_group("y")), described(second));
    QCOMPARE(described(set.value_group("")), described(Entries { { "d", 4 } }));
    // A group without a name is not what an unknown one means.
    QCOMPARE(set.value_group("nowhere"), Entries());
    // Groups are in the order in which they came.
    QCOMPARE(set.value_group_p("nowhere"), set.value_group_p("z"));
}

void TestAuthSetValues::replacesDefaultSettings()
{
    AUTH_SET set;
    set.setDefaultSettings("g", { { "a", 1 }, { "b", 2 } });
    set.setDefaultSettings("h", { { "a", 3 } });
    set.setDefaultSettings("g", { { "b", 4 } });
    QCOMPARE(described(set.value_group("g")), described(Entries { { "b", 4 } }));
    QCOMPARE(set.value_group_at("g", "a"), QVariant());
    QCOMPARE(described(set.value_group("h")), described(Entries { { "a", 3 } }));
    QCOMPARE(set.value_group_p("nowhere"), set.value_group_p("g"));
    // An empty group is still there, as the first one.
    set.setDefaultSettings("g", {});
    QCOMPARE(set.value_group("g"), Entries());
    QCOMPARE(set.value_group_p("nowhere"), set.value_group_p("g"));
}

void TestAuthSetValues::leavesTheVeryListAlone()
{
    AUTH_SET set;
    const Entries list { { "k", 1 } };
    set.setDefaultSettings("g", list);
    QVERIFY(set.value_group("g").isSharedWith(list));
    set.setDefaultSettings("g", list);
    QVERIFY(set.value_group("g").isSharedWith(list));
    // A list with equal entries is another one.
    const Entries equal { { "k", 1 } };
    set.setDefaultSettings("g", equal);
    QVERIFY(set.value_group("g").isSharedWith(equal));
    QVERIFY(!set.value_group("g").isSharedWith(list));
}

void TestAuthSetValues::takesBackAListThatWasWrittenTo()
{
    AUTH_SET set;
    const Entries given { { "k", 1 } };
    set.setDefaultSettings("g", given);
    *set.value_group_at_p("g", "k") = 2;
    QCOMPARE(described(given), described(Entries { { "k", 1 } }));
    QCOMPARE(set.value_group_at("g", "k"), QVariant(2));
    set.setDefaultSettings("g", given);
    QCOMPARE(set.value_group_at("g", "k"), QVariant(1));
    // Also when the list was lent as a whole, and may have been given other keys.
    (*set.value_group_p("g"))[0].first = "l";
    set.setDefaultSettings("g", given);
    QCOMPARE(set.value_group_at("g", "k"), QVariant(1));
    QCOMPARE(set.value_group_at("g", "l"), QVariant());
}

void TestAuthSetValues::keepsDefaultSettingsFromTheHost()
{
    AUTH_SET set;
    Entries list { { "k", 1 } };
    set.setDefaultSettings("g", list);
    list[0].second = 2;
    QCOMPARE(set.value_group_at("g", "k"), QVariant(1));
    Entries copy = set.value_group("g");
    copy[0].second = 3;
    QCOMPARE(set.value_group_at("g", "k"), QVariant(1));
}

void TestAuthSetValues::takesOverACalculation_data()
{
    QTest::addColumn<Entries>("data");
    QTest::addColumn<Entries>("expected");

    const auto row = [](const char *name, const Entries &data, const Entries &expected) {
        QTest::newRow(name) << data << expected;
    };
    const QVariant none;
    row("nothing", {}, {});
    row("a value and its unit", { { "Attribute/E", 210000 }, { "Unit/E", "MPa" } },
        { { "Attribute/E", 210000 }, { "Unit/E", "MPa" } });
    row("the unit first", { { "Unit/E", "MPa" }, { "Attribute/E", 210000 } },
        { { "Attribute/E", 210000 }, { "Unit/E", "MPa" } });
    row("types are kept",
        { { "Attribute/a", 1.5 }, { "Attribute/b", true }, { "Attribute/c", QStringList { "x" } } },
        { { "Attribute/a", 1.5 },
          { "Unit/a", none },
          { "Attribute/b", true },
          { "Unit/b", none },
          { "Attribute/c", QStringList { "x" } },
          { "Unit/c", none } });
    row("a missing unit is invalid", { { "Attribute/E", 1 } },
        { { "Attribute/E", 1 }, { "Unit/E", none } });
    row("an invalid value", { { "Attribute/E", none }, { "Unit/E", "MPa" } },
        { { "Attribute/E", none }, { "Unit/E", "MPa" } });
    row("units only", { { "Unit/E", "MPa" } }, { { "Unit/E", none } });
    row("a unit without its value", { { "Attribute/E", 1 }, { "Unit/F", "N" } },
        { { "Attribute/E", 1 }, { "Unit/E", none }, { "Unit/F", none } });
    row("other groups", { { "Attribute/E", 1 }, { "Symbol/E", "E" }, { "top", 1 } },
        { { "Attribute/E", 1 }, { "Unit/E", none }, { "Symbol/E", none }, { "top", none } });
    row("group in another case", { { "attribute/E", 1 }, { "ATTRIBUTE/F", 2 } },
        { { "attribute/E", none }, { "Attribute/E", none }, { "Attribute/F", none } });
    row("group with a longer name", { { "Attributes/E", 1 } },
        { { "Attributes/E", none }, { "Attribute/E", none } });
    row("keys that differ in case", { { "Attribute/e", 1 }, { "Attribute/E", 2 } },
        { { "Attribute/e", 1 }, { "Unit/e", none }, { "Attribute/E", 2 }, { "Unit/E", none } });
    row("the first of two equal keys", { { "Attribute/E", 1 }, { "Attribute/E", 2 } },
        { { "Attribute/E", 1 }, { "Unit/E", none } });
    row("the first of two equal units",
        { { "Attribute/E", 1 }, { "Unit/E", "a" }, { "Unit/E", "b" } },
        { { "Attribute/E", 1 }, { "Unit/E", "a" } });
}

void TestAuthSetValues::takesOverACalculation()
{
    QFETCH(Entries, data);
    QFETCH(Entries, expected);
    AUTH_SET set;
    set.getCalculationLData(data);
    Entries found;
    for (const auto &entry : qAsConst(expected))
        found.append({ entry.first, set.value_cal(entry.first) });
    QCOMPARE(described(found), described(expected));
}

void TestAuthSetValues::takesOverOddKeys_data()
{
    QTest::addColumn<Entries>("data");
    QTest::addColumn<Entries>("expected");

    const auto row = [](const char *name, const Entries &data, const Entries &expected) {
        QTest::newRow(name) << data << expected;
    };
    const QVariant none;
    row("only the last part of a longer key, which is not there", { { "Attribute/a/b", 1 } },
        { { "Attribute/b", none }, { "Unit/b", none }, { "Attribute/a/b", none } });
    row("only the last part of a longer key, which is there",
        { { "Attribute/a/b", 1 }, { "Attribute/b", 2 }, { "Unit/b", "mm" }, { "Unit/a/b", "in" } },
        { { "Attribute/b", 2 },
          { "Unit/b", "mm" },
          { "Attribute/a/b", none },
          { "Unit/a/b", none } });
    row("a key that ends with a slash", { { "Attribute/E/", 1 }, { "Attribute/", 2 } },
        { { "Attribute/", 2 }, { "Unit/", none }, { "Attribute/E/", none } });
    row("the group's name as a key without a group", { { "Attribute", 1 } },
        { { "Attribute", none }, { "Attribute/Attribute", none } });
    row("that key beside the group, which it then belongs to",
        { { "Attribute", 1 }, { "Attribute/E", 2 }, { "Attribute/Attribute", 3 } },
        { { "Attribute", none },
          { "Attribute/Attribute", 3 },
          { "Unit/Attribute", none },
          { "Attribute/E", 2 } });
    row("the group's name inside of a key", { { "x/Attribute/E", 1 } },
        { { "Attribute/E", none }, { "x/Attribute/E", none } });
}

void TestAuthSetValues::takesOverOddKeys()
{
    takesOverACalculation();
}

void TestAuthSetValues::changesNothingWithoutAttributes_data()
{
    QTest::addColumn<Entries>("data");
    QTest::newRow("nothing") << Entries();
    QTest::newRow("units only") << Entries { { "Unit/E", "kPa" }, { "Unit/L", "mm" } };
    QTest::newRow("group in another case") << Entries { { "attribute/E", 1 } };
    QTest::newRow("group with a longer name") << Entries { { "Attributes/E", 1 } };
    QTest::newRow("the group's name without a group") << Entries { { "Attribute", 1 } };
    QTest::newRow("the group's name inside of a key") << Entries { { "x/Attribute/E", 1 } };
}

void TestAuthSetValues::changesNothingWithoutAttributes()
{
    QFETCH(Entries, data);
    AUTH_SET set = filled();
    set.getCalculationLData(data);
    QCOMPARE(state(set), state(filled()));
    // Not even entries without values: an empty store lends a place that is not stored.
    AUTH_SET empty;
    empty.getCalculationLData(data);
    *empty.value_cal_p("Attribute/Attribute") = 1;
    QCOMPARE(empty.value_cal("Attribute/Attribute"), QVariant());
}

void TestAuthSetValues::takesOverAnotherCalculation()
{
    AUTH_SET set;
    set.getCalculationLData(
        { { "Attribute/E", 1 }, { "Unit/E", "MPa" }, { "Attribute/L", 2 }, { "Unit/L", "mm" } });
    set.getCalculationLData({ { "Attribute/E", "3" }, { "Attribute/F", 4 } });
    // Equal names are overwritten, with the unit that is missing; other names stay.
    QCOMPARE(described(set.value_cal("Attribute/E")), described(QVariant("3")));
    QCOMPARE(set.value_cal("Unit/E"), QVariant());
    QCOMPARE(set.value_cal("Attribute/L"), QVariant(2));
    QCOMPARE(set.value_cal("Unit/L"), QVariant("mm"));
    QCOMPARE(set.value_cal("Attribute/F"), QVariant(4));
}

void TestAuthSetValues::keepsTheOrderOfCalculations()
{
    AUTH_SET set;
    set.getCalculationLData({ { "Unit/b", "mm" }, { "Attribute/b", 1 }, { "Attribute/a", 2 } });
    // An unknown key gives the first value.
    QCOMPARE(set.value_cal_p("nowhere"), set.value_cal_p("Attribute/b"));
    set.getCalculationLData({ { "Attribute/a", 3 }, { "Attribute/0", 4 } });
    QCOMPARE(set.value_cal_p("nowhere"), set.value_cal_p("Attribute/b"));
}

void TestAuthSetValues::keepsTemporaryValues()
{
    AUTH_SET set;
    set.set_temp("t", 1);
    set.set_temp("T", "other case");
    set.set_temp("", 2.5);
    set.set_temp("t/u", QStringList { "x", "y" });
    QCOMPARE(described(set.value_temp("t")), described(QVariant(1)));
    QCOMPARE(described(set.value_temp("T")), described(QVariant("other case")));
    QCOMPARE(described(set.value_temp("")), described(QVariant(2.5)));
    QCOMPARE(described(set.value_temp("t/u")), described(QVariant(QStringList { "x", "y" })));
    QCOMPARE(set.value_temp("u"), QVariant());

    set.set_temp("t", "1");
    QCOMPARE(described(set.value_temp("t")), described(QVariant("1")));
    set.set_temp("t", QVariant());
    QCOMPARE(set.value_temp("t"), QVariant());
    QCOMPARE(filesIn("."), QStringList());
}

void TestAuthSetValues::deletesTemporaryValues()
{
    AUTH_SET set;
    set.delete_temp("t");
    set.set_temp("t", 1);
    set.set_temp("u", 2);
    set.set_temp("t", 3);
    set.delete_temp("T");
    QCOMPARE(set.value_temp("t"), QVariant(3));
    set.delete_temp("t");
    QCOMPARE(set.value_temp("t"), QVariant());
    QCOMPARE(set.value_temp("u"), QVariant(2));
    set.set_temp("t", 4);
    QCOMPARE(set.value_temp("t"), QVariant(4));
}

void TestAuthSetValues::keepsManyTemporaryValues()
{
    AUTH_SET set;
    QMap<QString, int> expected;
    for (int i = 0; i < 2000; ++i) {
        const QString key = QString::number(i * 7 % 500);
        if (i % 3 == 2) {
            set.delete_temp(key);
            expected.remove(key);
        } else {
            set.set_temp(key, i);
            expected.insert(key, i);
        }
        const QString other = QString::number(i % 500);
        QCOMPARE(set.value_temp(other),
                 expected.contains(other) ? QVariant(expected.value(other)) : QVariant());
    }
    QVERIFY(expected.size() > 100);
}

void TestAuthSetValues::keepsStoresApart()
{
    AUTH_SET set;
    const QString key = "Attribute/E";
    set.setValueInSet(key, 1);
    set.getCalculationLData({ { key, 2 } });
    set.setDefaultSettings("Attribute", { { key, 3 } });
    set.set_temp(key, 4);
    QCOMPARE(set.value_temp(key), QVariant(4));
    set.delete_temp(key);
    QCOMPARE(set.value_set(key), QVariant(1));
    QCOMPARE(set.value_cal(key), QVariant(2));
    QCOMPARE(set.value_group_at("Attribute", key), QVariant(3));
}

void TestAuthSetValues::keepsValuesWhenModulesChange_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("clear", [](AUTH_SET &set) { set.clear(); });
    row("acquire", [](AUTH_SET &set) { set.acquire({ exclusiveModule("P", "g", { "k" }) }); });
    row("append", [](AUTH_SET &set) { set.append(exclusiveModule("P", "g", { "k" })); });
    row("refresh_group", [](AUTH_SET &set) { set.refresh_group(); });
}

void TestAuthSetValues::keepsValuesWhenModulesChange()
{
    QFETCH(Change, change);
    AUTH_SET set = filled();
    QVariant *value = set.value_set_p("a/x");
    change(set);
    QCOMPARE(state(set), state(filled()));
    *value = 2;
    QCOMPARE(set.value_set("a/x"), QVariant(2));
}

QTEST_GUILESS_MAIN(TestAuthSetValues)
#include "tst_auth_set_values.moc"

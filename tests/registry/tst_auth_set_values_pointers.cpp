// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Stored values that are lent for writing, and the copies of a registry that are not to notice.

#include "support/directorytest.h"
#include "support/registrycopies.h"
#include "support/storedvalues.h"

#include <QTest>

#include <functional>

namespace {

/// Takes a pointer from a registry and gives a function that writes through it.
using Lending = std::function<std::function<void()>(AUTH_SET &)>;

std::function<void()> writing(QVariant *value)
{
    return [value] { *value = "written"; };
}

} // namespace

Q_DECLARE_METATYPE(Lending)

class TestAuthSetValuePointers : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void lendsValues_data();
    void lendsValues();
    void lendsGroups_data();
    void lendsGroups();
    void lendsValuesOfGroups_data();
    void lendsValuesOfGroups();
    void lendsAPlaceOfItsOwnWhereThereIsNothing_data();
    void lendsAPlaceOfItsOwnWhereThereIsNothing();
    void lendsAnEmptyListWhereThereIsNoGroup();
    void findsWhatWasWrittenThroughALentList();
    void copiesDoNotSeeLaterChanges_data();
    void copiesDoNotSeeLaterChanges();
    void copiesDoNotSeeWritesThroughPointers_data();
    void copiesDoNotSeeWritesThroughPointers();
    void pointersOutliveCopies_data();
    void pointersOutliveCopies();
    void takesBackALentList();
    void takesBackACopyOfALentList();
};

void TestAuthSetValuePointers::lendsValues_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("setKey");
    QTest::addColumn<QString>("calculationKey");

    const auto row = [](const char *name, const char *key, const char *set, const char *cal) {
        QTest::newRow(name) << QString(key) << QString(set) << QString(cal);
    };
    row("first set value", "a/x", "a/x", "Attribute/E");
    row("last set value", "top", "top", "Attribute/E");
    row("last calculation value", "Unit/L", "a/x", "Unit/L");
    row("unknown: the first of each", "nowhere", "a/x", "Attribute/E");
    row("another case: the first of each", "TOP", "a/x", "Attribute/E");
    row("empty: the first of each", "", "a/x", "Attribute/E");
}

void TestAuthSetValuePointers::lendsValues()
{
    QFETCH(QString, key);
    QFETCH(QString, setKey);
    QFETCH(QString, calculationKey);
    AUTH_SET set = filled();

    QVariant *value = set.value_set_p(key);
    QCOMPARE(described(*value), described(set.value_set(setKey)));
    QCOMPARE(value, set.value_set_p(setKey));
    *value = "written";
    QCOMPARE(set.value_set(setKey), QVariant("written"));

    value = set.value_cal_p(key);
    QCOMPARE(described(*value), described(set.value_cal(calculationKey)));
    QCOMPARE(value, set.value_cal_p(calculationKey));
    *value = "also written";
    QCOMPARE(set.value_cal(calculationKey), QVariant("also written"));

    // Nothing was appended: apart from the two values all is as it was.
    AUTH_SET expected = filled();
    *expected.value_set_p(setKey) = "written";
    *expected.value_cal_p(calculationKey) = "also written";
    QCOMPARE(state(set), state(expected));
}

void TestAuthSetValuePointers::lendsGroups_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("lent");
    QTest::newRow("first group") << "g"
                                 << "g";
    QTest::newRow("another group") << "h"
                                   << "h";
    QTest::newRow("empty group") << "empty"
                                 << "empty";
    QTest::newRow("unknown: the first") << "nowhere"
                                        << "g";
    QTest::newRow("another case: the first") << "H"
                                             << "g";
    QTest::newRow("no name: the first") << ""
                                        << "g";
}

void TestAuthSetValuePointers::lendsGroups()
{
    QFETCH(QString, group);
    QFETCH(QString, lent);
    AUTH_SET set = filled();
    Entries *list = set.value_group_p(group);
    QCOMPARE(described(*list), described(set.value_group(lent)));
    QCOMPARE(list, set.value_group_p(lent));
    *list = { { "written", 1 } };
    QCOMPARE(described(set.value_group(lent)), described(Entries { { "written", 1 } }));
    QCOMPARE(set.value_group_at(lent, "written"), QVariant(1));

    AUTH_SET expected = filled();
    expected.setDefaultSettings(lent, { { "written", 1 } });
    QCOMPARE(state(set), state(expected));
}

void TestAuthSetValuePointers::lendsValuesOfGroups_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("lentGroup");
    QTest::addColumn<int>("lentPosition");

    QTest::newRow("first key") << "g"
                               << "k"
                               << "g" << 0;
    QTest::newRow("another key") << "g"
                                 << "l"
                                 << "g" << 1;
    QTest::newRow("another group") << "h"
                                   << "m"
                                   << "h" << 0;
    QTest::newRow("unknown key: the first of the group") << "h"
                                                         << "k"
                                                         << "h" << 0;
    QTest::newRow("unknown group: the key in the first group") << "nowhere"
                                                               << "l"
                                                               << "g" << 1;
    QTest::newRow("unknown group and key: the first of all") << "nowhere"
                                                             << "m"
                                                             << "g" << 0;
    QTest::newRow("no names: the first of all") << ""
                                                << ""
                                                << "g" << 0;
}

void TestAuthSetValuePointers::lendsValuesOfGroups()
{
    QFETCH(QString, group);
    QFETCH(QString, key);
    QFETCH(QString, lentGroup);
    QFETCH(int, lentPosition);
    AUTH_SET set = filled();
    QVariant *value = set.value_group_at_p(group, key);
    QCOMPARE(described(*value), described(set.value_group(lentGroup).at(lentPosition).second));
    QCOMPARE(value, &(*set.value_group_p(group))[lentPosition].second);
    *value = "written";
    Entries expected = filled().value_group(lentGroup);
    expected[lentPosition].second = "written";
    QCOMPARE(described(set.value_group(lentGroup)), described(expected));
}

void TestAuthSetValuePointers::lendsAPlaceOfItsOwnWhereThereIsNothing_data()
{
    using Lender = std::function<QVariant *(AUTH_SET &)>;
    QTest::addColumn<Lending>("lending");
    const auto row = [](const char *name, const Lender &lender) {
        QTest::newRow(name) << Lending([lender](AUTH_SET &set) {
            QVariant *value = lender(set);
            // What was written there before is of no consequence.
            if (!value || value->isValid())
                return std::function<void()>();
            return writing(value);
        });
    };
    row("set values", [](AUTH_SET &set) { return set.value_set_p("x"); });
    row("calculation values", [](AUTH_SET &set) { return set.value_cal_p("x"); });
    row("groups", [](AUTH_SET &set) { return set.value_group_at_p("g", "x"); });
    row("an empty group", [](AUTH_SET &set) {
        set.setDefaultSettings("g", {});
        return set.value_group_at_p("g", "x");
    });
    row("an empty first group, for an unknown one", [](AUTH_SET &set) {
        set.setDefaultSettings("g", {});
        set.setDefaultSettings("h", { { "x", 1 } });
        return set.value_group_at_p("nowhere", "x");
    });
    row("an empty group beside another", [](AUTH_SET &set) {
        set.setDefaultSettings("h", { { "x", 1 } });
        set.setDefaultSettings("g", {});
        return set.value_group_at_p("g", "x");
    });
}

void TestAuthSetValuePointers::lendsAPlaceOfItsOwnWhereThereIsNothing()
{
    QFETCH(Lending, lending);
    AUTH_SET set;
    for (int i = 0; i < 2; ++i) {
        const std::function<void()> write = lending(set);
        QVERIFY(write);
        write();
        QCOMPARE(set.value_set("x"), QVariant());
        QCOMPARE(set.value_cal("x"), QVariant());
        QCOMPARE(set.value_group("g"), Entries());
        QCOMPARE(set.value_group_at("g", "x"), QVariant());
        QVERIFY(set.value_group_at("h", "x") != QVariant("written"));
    }
}

void TestAuthSetValuePointers::lendsAnEmptyListWhereThereIsNoGroup()
{
    AUTH_SET set;
    for (int i = 0; i < 2; ++i) {
        Entries *list = set.value_group_p("g");
        QVERIFY(list);
        QCOMPARE(*list, Entries());
        list->append({ "x", 1 });
        QCOMPARE(set.value_group("g"), Entries());
        QCOMPARE(set.value_group_at("g", "x"), QVariant());
        QCOMPARE(*set.value_group_at_p("g", "x"), QVariant());
    }
    set.setDefaultSettings("g", { { "y", 2 } });
    QCOMPARE(described(*set.value_group_p("g")), described(Entries { { "y", 2 } }));
}

void TestAuthSetValuePointers::findsWhatWasWrittenThroughALentList()
{
    AUTH_SET set;
    Entries values;
    for (int i = 0; i < 100; ++i)
        values.append({ QString::number(i), i });
    set.setDefaultSettings("g", values);
    // So often that a look-up would have become quicker than a walk along the list.
    for (int i = 0; i < 10000; ++i)
        QCOMPARE(set.value_group_at("g", QString::number(i % 100)), QVariant(i % 100));

    Entries *list = set.value_group_p("g");
    for (int i = 0; i < 10000; ++i) {
        const int position = i % 100;
        (*list)[position].first = "k" + QString::number(i);
        QCOMPARE(set.value_group_at("g", "k" + QString::number(i)), QVariant(position));
        QCOMPARE(set.value_group_at("g", QString::number(position)), QVariant());
    }
    list->clear();
    QCOMPARE(set.value_group_at("g", "k9999"), QVariant());
}

void TestAuthSetValuePointers::copiesDoNotSeeLaterChanges_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };

    row("setValueInSet", [](AUTH_SET &set) { set.setValueInSet("a/x", 2); });
    row("getCalculationLData", [](AUTH_SET &set) {
        set.getCalculationLData({ { "Attribute/E", 1 } });
    });
    row("setDefaultSettings of a group", [](AUTH_SET &set) {
        set.setDefaultSettings("g", { { "k", 2 } });
    });
    row("setDefaultSettings of a new group", [](AUTH_SET &set) {
        set.setDefaultSettings("new", { { "k", 2 } });
    });
    row("set_temp", [](AUTH_SET &set) { set.set_temp("t", 2); });
    row("delete_temp", [](AUTH_SET &set) { set.delete_temp("t"); });
    row("value_set_p", [](AUTH_SET &set) { *set.value_set_p("a/y") = 2; });
    row("value_cal_p", [](AUTH_SET &set) { *set.value_cal_p("Unit/E") = 2; });
    row("value_group_p", [](AUTH_SET &set) { set.value_group_p("g")->clear(); });
    row("value_group_at_p", [](AUTH_SET &set) { *set.value_group_at_p("g", "l") = 2; });
    row("load", [](AUTH_SET &set) {
        const Entries saved { { "k", "loaded" } };
        set.save("values.ini", &saved);
        set.load("values.ini", set.value_group_p("g"));
    });
}

void TestAuthSetValuePointers::copiesDoNotSeeLaterChanges()
{
    QFETCH(Change, change);
    AUTH_SET assigned;
    assigned.setDefaultSettings("new", { { "n", 1 } });
    changeOneAfterTheOther(filled(), assigned, state, change);
}

void TestAuthSetValuePointers::copiesDoNotSeeWritesThroughPointers_data()
{
    QTest::addColumn<Lending>("lending");
    const auto row
        = [](const char *name, const Lending &lending) { QTest::newRow(name) << lending; };
    row("set value", [](AUTH_SET &set) { return writing(set.value_set_p("a/y")); });
    row("set value of an unknown key",
        [](AUTH_SET &set) { return writing(set.value_set_p("nowhere")); });
    row("calculation value", [](AUTH_SET &set) { return writing(set.value_cal_p("Unit/E")); });
    row("calculation value of an unknown key",
        [](AUTH_SET &set) { return writing(set.value_cal_p("nowhere")); });
    row("value of a group", [](AUTH_SET &set) { return writing(set.value_group_at_p("g", "l")); });
    row("value of an unknown group",
        [](AUTH_SET &set) { return writing(set.value_group_at_p("nowhere", "l")); });
    row("value in a lent list",
        [](AUTH_SET &set) { return writing(&(*set.value_group_p("g"))[1].second); });
    row("key in a lent list", [](AUTH_SET &set) {
        QString *key = &(*set.value_group_p("g"))[1].first;
        return [key] { *key = "written"; };
    });
    row("a lent list as a whole", [](AUTH_SET &set) {
        Entries *list = set.value_group_p("h");
        return [list] { list->append({ "written", 1 }); };
    });
    row("a value of a list that was lent before", [](AUTH_SET &set) {
        set.value_group_p("g");
        return writing(set.value_group_at_p("g", "l"));
    });
    row("a value of a list that the host still has", [](AUTH_SET &set) {
        static Entries held;
        held = { { "k", 1 } };
        set.setDefaultSettings("h", held);
        return writing(set.value_group_at_p("h", "k"));
    });
    row("a value of a list that the host got a copy of", [](AUTH_SET &set) {
        static Entries held;
        held = set.value_group("h");
        return writing(set.value_group_at_p("h", "m"));
    });
}

void TestAuthSetValuePointers::copiesDoNotSeeWritesThroughPointers()
{
    QFETCH(Lending, lending);
    AUTH_SET original = filled();
    const AUTH_SET earlier(original);
    const std::function<void()> write = lending(original);
    const QStringList before = state(original);
    const AUTH_SET copy(original);
    const AUTH_SET copyOfCopy(copy);
    AUTH_SET assigned = filled();
    assigned.value_group_p("g")->clear();
    assigned = original;
    const Entries list = original.value_group("g");
    const QStringList listBefore = described(list);

    write();
    QVERIFY(state(original) != before);
    QCOMPARE(state(copy), before);
    QCOMPARE(state(copyOfCopy), before);
    QCOMPARE(state(assigned), before);
    QCOMPARE(state(earlier), state(filled()));
    QCOMPARE(described(list), listBefore);
}

void TestAuthSetValuePointers::pointersOutliveCopies_data()
{
    copiesDoNotSeeWritesThroughPointers_data();
}

void TestAuthSetValuePointers::pointersOutliveCopies()
{
    QFETCH(Lending, lending);
    AUTH_SET original = filled();
    const std::function<void()> write = lending(original);
    {
        AUTH_SET copy(original);
        *copy.value_set_p("a/x") = "of the copy";
        copy.value_group_p("g")->clear();
    }
    const AUTH_SET copy(original);
    const QStringList before = state(original);
    // Asking does not end the validity either.
    original.value_group("g");
    original.value_set("a/x");
    write();
    QVERIFY(state(original) != before);
    QCOMPARE(state(copy), before);
}

void TestAuthSetValuePointers::takesBackALentList()
{
    AUTH_SET set;
    const Entries given { { "k", 1 }, { "l", 2 } };
    set.setDefaultSettings("g", given);
    Entries *list = set.value_group_p("g");
    QVariant *value = set.value_group_at_p("g", "l");
    set.setDefaultSettings("g", *list);
    QCOMPARE(set.value_group_p("g"), list);
    QCOMPARE(set.value_group_at_p("g", "l"), value);
    *value = "written";
    QCOMPARE(set.value_group_at("g", "l"), QVariant("written"));
    QCOMPARE(described(given), described(Entries { { "k", 1 }, { "l", 2 } }));
}

void TestAuthSetValuePointers::takesBackACopyOfALentList()
{
    AUTH_SET set;
    set.setDefaultSettings("g", { { "k", 1 }, { "l", 2 } });
    QVariant *value = set.value_group_at_p("g", "l");
    set.setDefaultSettings("g", set.value_group("g"));
    // Groups that are added do not move the others.
    for (int i = 0; i < 100; ++i)
        set.setDefaultSettings(QString::number(i), {});
    QCOMPARE(set.value_group_at_p("g", "l"), value);
    *value = "written";
    QCOMPARE(set.value_group_at("g", "l"), QVariant("written"));
}

QTEST_GUILESS_MAIN(TestAuthSetValuePointers)
#include "tst_auth_set_values_pointers.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A settings store in memory; no row here has a file.

#include <Kelto/VIniSettings>

#include "models/plainsettings.h"
#include "support/directorytest.h"
#include "support/settingsjson.h"

#include <QTest>

#include <functional>
#include <utility>

namespace {

using Change = std::function<void(VIniSettings &)>;
using Query = std::function<QVariant(VIniSettings &)>;

/// Groups that appear in the order b, a, with a key in none, and groups in groups.
Entries grouped()
{
    return { { "b/1", 1 }, { "a/1", "one" }, { "b/2", 2 },
             { "top", 3 }, { "a/x/y", 4 },   { "ab/1", 5 } };
}

Entries withDoubles()
{
    return { { "a", 1 }, { "g/b", 2 }, { "a", 3 }, { "g/b", 4 }, { "c", 5 } };
}

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Query)

class TestVIniSettings : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void takesDataAsItIs_data();
    void takesDataAsItIs();
    void answers_data();
    void answers();
    void changes_data();
    void changes();
    void removes_data();
    void removes();
    void copiesAreIndependent();
    void copiesKeepKeysApart();
};

void TestVIniSettings::startsEmpty()
{
    const VIniSettings store;
    QCOMPARE(store.filepath(), QString());
    QCOMPARE(store.allKeys(), QStringList());
    QCOMPARE(store.data(), Entries());
    QCOMPARE(store.allGroups(), QStringList());
    QCOMPARE(store.styleSheetFormat(), QString());
}

void TestVIniSettings::takesDataAsItIs_data()
{
    QTest::addColumn<Entries>("data");
    QTest::addColumn<QStringList>("keys");

    QTest::newRow("nothing") << Entries() << QStringList();
    QTest::newRow("order is kept")
        << grouped() << QStringList { "b/1", "a/1", "b/2", "top", "a/x/y", "ab/1" };
    QTest::newRow("doubles are kept")
        << withDoubles() << QStringList { "a", "g/b", "a", "g/b", "c" };
    QTest::newRow("empty keys and invalid values are kept")
        << Entries { { "", 1 }, { "a", {} }, { "/", 2 } } << QStringList { "", "a", "/" };
}

void TestVIniSettings::takesDataAsItIs()
{
    QFETCH(Entries, data);
    QFETCH(QStringList, keys);

    const VIniSettings constructed(data);
    QCOMPARE(constructed.filepath(), QString());
    QCOMPARE(constructed.allKeys(), keys);
    QCOMPARE(described(constructed.data()), described(data));
    QCOMPARE(constructed.allKeys(&data), keys);

    VIniSettings replaced(Entries { { "old", 1 } });
    replaced.setValue(data, true);
    QCOMPARE(replaced.allKeys(), keys);
    QCOMPARE(described(replaced.data()), described(data));
}

void TestVIniSettings::answers_data()
{
    QTest::addColumn<Entries>("data");
    QTest::addColumn<Query>("query");
    QTest::addColumn<QVariant>("expected");
    const auto row
        = [](const char *name, const Entries &data, const Query &query, const QVariant &expected) {
              QTest::newRow(name) << data << query << expected;
          };
    const auto valueOf = [](const QString &key) {
        return Query([key](VIniSettings &store) { return store.value(key); });
    };
    row("value of a key", grouped(), valueOf("a/1"), "one");
    row("value keeps its type", grouped(), valueOf("b/2"), 2);
    row("value of a top-level key", grouped(), valueOf("top"), 3);
    row("value of the first of two", withDoubles(), valueOf("g/b"), 2);
    row("value of an unknown key is invalid", grouped(), valueOf("nowhere"), QVariant());
    row("value compares with case", grouped(), valueOf("A/1"), QVariant());
    row("value wants the whole key", grouped(), valueOf("1"), QVariant());
    row("value in an empty store is invalid", {}, valueOf(""), QVariant());
    row("value of the empty key", { { "", 7 } }, valueOf(""), 7);

    const auto contains = [](const QStringList &keys) {
        return Query([keys](VIniSettings &store) { return store.contains(keys); });
    };
    const auto containsOne = [](const QString &key) {
        return Query([key](VIniSettings &store) { return store.contains(key); });
    };
    row("contains a key", grouped(), containsOne("a/1"), true);
    row("contains no group", grouped(), containsOne("a"), false);
    row("contains compares with case", grouped(), containsOne("Top"), false);
    row("contains nothing when empty", {}, containsOne(""), false);
    row("contains all keys", grouped(), contains({ "top", "b/1" }), true);
    row("contains not all keys", grouped(), contains({ "top", "nowhere", "b/1" }), false);
    row("contains a key that is asked for twice", grouped(), contains({ "top", "top" }), true);
    row("contains all of no keys", grouped(), contains({}), true);
    row("contains all of no keys when empty", {}, contains({}), true);

    const auto keysOf = [](const QString &group) {
        return Query([group](VIniSettings &store) { return store.allKeys(group); });
    };
    row("the empty group holds the top-level keys", grouped(), keysOf(""), QStringList { "top" });
    row("a null group is the empty group", grouped(), keysOf(QString()), QStringList { "top" });
    row("a group holds its whole keys in order", grouped(), keysOf("b"),
        QStringList { "b/1", "b/2" });
    row("a group holds the keys of its groups and not those of a longer name", grouped(),
        keysOf("a"), QStringList { "a/1", "a/x/y" });
    row("a group in a group", grouped(), keysOf("a/x"), QStringList { "a/x/y" });
    row("a whole key is no group", grouped(), keysOf("a/1"), QStringList());
    row("a group holds the top-level key of its name",
        { { "grpx/y", 1 }, { "grp", 2 }, { "x/grp", 3 }, { "grp/x", 4 } }, keysOf("grp"),
        QStringList { "grp", "grp/x" });
    row("a top-level key alone makes no group of another case", grouped(), keysOf("TOP"),
        QStringList());
    row("a group with a slash at its end", { { "a/b", 1 }, { "a//b", 2 } }, keysOf("a/"),
        QStringList { "a//b" });
    row("a key that is group and slash", { { "a/", 1 } }, keysOf("a"), QStringList { "a/" });
    row("a group of doubles", withDoubles(), keysOf("g"), QStringList { "g/b", "g/b" });
    row("an unknown group", grouped(), keysOf("nowhere"), QStringList());
    row("the empty group without top-level keys", { { "/x", 1 } }, keysOf(""), QStringList());
    row("the empty key is a top-level key", { { "", 1 } }, keysOf(""), QStringList { "" });

    const auto groups = [](VIniSettings &store) { return store.allGroups(); };
    row("groups in order of first appearance", { { "b/1", 1 }, { "a/1", 2 }, { "b/2", 3 } }, groups,
        QStringList { "b", "a" });
    row("groups are first parts", grouped(), groups, QStringList { "b", "a", "ab" });
    row("no groups of top-level keys", { { "a", 1 }, { "", 2 } }, groups, QStringList());
    row("groups differ by case", { { "A/1", 1 }, { "a/1", 2 } }, groups, QStringList { "A", "a" });
    row("a key with a slash in front has the empty group", { { "/a", 1 }, { "b/", 2 } }, groups,
        QStringList { "", "b" });
}

void TestVIniSettings::answers()
{
    QFETCH(Entries, data);
    QFETCH(Query, query);
    QFETCH(QVariant, expected);

    VIniSettings store(data);
    QCOMPARE(described(query(store)), described(expected));
    QCOMPARE(described(store.data()), described(data));
    QCOMPARE(store.allKeys(), PlainSettings::allKeys(data));
}

void TestVIniSettings::changes_data()
{
    QTest::addColumn<Entries>("data");
    QTest::addColumn<Change>("change");
    QTest::addColumn<Entries>("expected");
    const auto row
        = [](const char *name, const Entries &data, const Change &change, const Entries &expected) {
              QTest::newRow(name) << data << change << expected;
          };
    const auto set = [](const QString &key, const QVariant &value) {
        return Change([=](VIniSettings &store) { store.setValue(key, value); });
    };
    const Entries two { { "a", 1 }, { "b", 2 } };
    row("setting a known key changes it in place", two, set("a", "x"),
        { { "a", "x" }, { "b", 2 } });
    row("setting an unknown key appends it", two, set("g/c", 3),
        { { "a", 1 }, { "b", 2 }, { "g/c", 3 } });
    row("setting compares with case", two, set("B", 3), { { "a", 1 }, { "b", 2 }, { "B", 3 } });
    row("setting changes the first of two", withDoubles(), set("a", 9),
        { { "a", 9 }, { "g/b", 2 }, { "a", 3 }, { "g/b", 4 }, { "c", 5 } });
    row("setting in an empty store", {}, set("a", 1), { { "a", 1 } });
    row("setting an invalid value keeps the key", two, set("b", QVariant()),
        { { "a", 1 }, { "b", {} } });
    row("setting the empty key", two, set("", 3), { { "a", 1 }, { "b", 2 }, { "", 3 } });

    const auto merge = [](const Entries &data) {
        return Change([=](VIniSettings &store) { store.setValue(data, false); });
    };
    row("merging updates in place and appends at the end", two,
        merge({ { "c", 3 }, { "a", 4 }, { "d", 5 } }),
        { { "a", 4 }, { "b", 2 }, { "c", 3 }, { "d", 5 } });
    row("merging doubles takes the last of them", two, merge({ { "c", 3 }, { "c", 4 } }),
        { { "a", 1 }, { "b", 2 }, { "c", 4 } });
    row("merging into doubles changes the first", withDoubles(), merge({ { "g/b", 9 } }),
        { { "a", 1 }, { "g/b", 9 }, { "a", 3 }, { "g/b", 4 }, { "c", 5 } });
    row("merging nothing", two, merge({}), two);
    row("merging into nothing", {}, merge(two), two);

    const auto replace = [](const Entries &data) {
        return Change([=](VIniSettings &store) { store.setValue(data, true); });
    };
    row("replacing forgets what was held", two, replace({ { "c", 3 } }), { { "c", 3 } });
    row("replacing keeps doubles", two, replace(withDoubles()), withDoubles());
    row("replacing by nothing", two, replace({}), {});

    row("quick-save mode without a file changes nothing else", two,
        [](VIniSettings &store) {
            store.setQuickSaveMode(true);
            store.setValue("a", 5);
            store.setValue("c", 6);
        },
        { { "a", 5 }, { "b", 2 }, { "c", 6 } });
    row(
        "saving without a file changes nothing", two,
        [](VIniSettings &store) { store.saveLocal(); }, two);
    row(
        "binding to the empty path changes nothing", two,
        [](VIniSettings &store) { store.setPath(QString()); }, two);
}

void TestVIniSettings::changes()
{
    QFETCH(Entries, data);
    QFETCH(Change, change);
    QFETCH(Entries, expected);

    VIniSettings store(data);
    change(store);
    QCOMPARE(described(store.data()), described(expected));
    QCOMPARE(store.allKeys(), PlainSettings::allKeys(expected));
    QCOMPARE(store.filepath(), QString());
}

void TestVIniSettings::removes_data()
{
    QTest::addColumn<Entries>("data");
    QTest::addColumn<Query>("removal");
    QTest::addColumn<bool>("result");
    QTest::addColumn<Entries>("left");
    const auto row
        = [](const char *name, const Entries &data, const Query &removal, bool result,
             const Entries &left) { QTest::newRow(name) << data << removal << result << left; };
    const Entries three { { "a", 1 }, { "g/b", 2 }, { "c", 3 } };
    const auto one = [](const QString &key) {
        return Query([=](VIniSettings &store) { return store.remove(key); });
    };
    row("a key", three, one("g/b"), true, { { "a", 1 }, { "c", 3 } });
    row("an unknown key", three, one("b"), false, three);
    row("a key in another case", three, one("A"), false, three);
    row("the first of two", withDoubles(), one("a"), true,
        { { "g/b", 2 }, { "a", 3 }, { "g/b", 4 }, { "c", 5 } });
    row("from an empty store", {}, one(""), false, {});

    const auto many = [](const QStringList &keys) {
        return Query([=](VIniSettings &store) { return store.remove(keys); });
    };
    row("several keys", three, many({ "c", "a" }), true, { { "g/b", 2 } });
    row("no keys", three, many({}), true, three);
    row("no keys from an empty store", {}, many({}), true, {});
    row("up to the first unknown key", three, many({ "c", "nowhere", "a" }), false,
        { { "a", 1 }, { "g/b", 2 } });
    row("a key named twice fails the second time", three, many({ "a", "a", "c" }), false,
        { { "g/b", 2 }, { "c", 3 } });
    row("a double key named twice", withDoubles(), many({ "a", "a", "c" }), true,
        { { "g/b", 2 }, { "g/b", 4 } });
    row("a double key named three times", withDoubles(), many({ "a", "a", "a", "c" }), false,
        { { "g/b", 2 }, { "g/b", 4 }, { "c", 5 } });

    const auto group = [](const QString &name) {
        return Query([=](VIniSettings &store) { return store.removeGroup(name); });
    };
    row("a group", grouped(), group("b"), true,
        { { "a/1", "one" }, { "top", 3 }, { "a/x/y", 4 }, { "ab/1", 5 } });
    row("a group with the groups in it", grouped(), group("a"), true,
        { { "b/1", 1 }, { "b/2", 2 }, { "top", 3 }, { "ab/1", 5 } });
    row("a group in a group", grouped(), group("a/x"), true,
        { { "b/1", 1 }, { "a/1", "one" }, { "b/2", 2 }, { "top", 3 }, { "ab/1", 5 } });
    row("a group with the top-level key of its name", { { "g", 1 }, { "gx", 2 }, { "g/x", 3 } },
        group("g"), true, { { "gx", 2 } });
    row("a group that is a top-level key only", grouped(), group("top"), true,
        { { "b/1", 1 }, { "a/1", "one" }, { "b/2", 2 }, { "a/x/y", 4 }, { "ab/1", 5 } });
    row("the empty group removes the top-level keys", grouped(), group(""), true,
        { { "b/1", 1 }, { "a/1", "one" }, { "b/2", 2 }, { "a/x/y", 4 }, { "ab/1", 5 } });
    row("a group of doubles", withDoubles(), group("g"), true,
        { { "a", 1 }, { "a", 3 }, { "c", 5 } });
    row("a group without keys", grouped(), group("nowhere"), false, grouped());
    row("a group of an empty store", {}, group("g"), false, {});
}

void TestVIniSettings::removes()
{
    QFETCH(Entries, data);
    QFETCH(Query, removal);
    QFETCH(Entries, left);

    VIniSettings store(data);
    QTEST(removal(store).toBool(), "result");
    QCOMPARE(described(store.data()), described(left));
    QCOMPARE(store.allKeys(), PlainSettings::allKeys(left));
}

void TestVIniSettings::copiesAreIndependent()
{
    VIniSettings original(Entries { { "a", 1 }, { "b", 2 } });
    VIniSettings copy(original);
    copy.setValue("a", "copy");
    QVERIFY(copy.remove("b"));
    QCOMPARE(described(original.data()), described(Entries { { "a", 1 }, { "b", 2 } }));
    QCOMPARE(original.allKeys(), (QStringList { "a", "b" }));
    QCOMPARE(described(copy.data()), described(Entries { { "a", "copy" } }));

    VIniSettings assigned(Entries { { "old", 0 } });
    assigned = original;
    original.setValue("c", 3);
    QCOMPARE(described(assigned.data()), described(Entries { { "a", 1 }, { "b", 2 } }));

    const VIniSettings &itself = assigned;
    assigned = itself;
    QCOMPARE(assigned.allKeys(), (QStringList { "a", "b" }));

    // What a moved-from store holds is open, but it must still be a store.
    VIniSettings moved(std::move(assigned));
    QCOMPARE(moved.allKeys(), (QStringList { "a", "b" }));
    assigned = moved;
    QCOMPARE(assigned.allKeys(), (QStringList { "a", "b" }));
}

void TestVIniSettings::copiesKeepKeysApart()
{
    VIniSettings original(Entries { { "a", 1 } });
    Entries target;
    original.setValue("x", 2, &target);
    VIniSettings copy(original);
    original.setValue(Entries(), false);
    QCOMPARE(original.allKeys(), QStringList { "a" });
    QCOMPARE(copy.allKeys(), (QStringList { "a", "x" }));
}

QTEST_GUILESS_MAIN(TestVIniSettings)
#include "tst_vinisettings.moc"

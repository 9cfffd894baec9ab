// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The operations of a settings store that work on vectors of the caller, and what they leave behind
// in the store. All operations together are compared with their plain rules.

#include <Kelto/VIniSettings>

#include "models/plainsettings.h"
#include "support/directorytest.h"
#include "support/randomentries.h"

#include <QTest>

#include <functional>

namespace {

Entries withDoubles()
{
    return { { "a", 1 }, { "g/b", 2 }, { "a", 3 }, { "g/b", 4 }, { "c", 5 } };
}

using Change = std::function<void(VIniSettings &)>;

/// A store with the entry a, whose keys say that it also has x and y.
VIniSettings storeWithKeysApart()
{
    VIniSettings store(Entries { { "a", 1 } });
    Entries target;
    store.setValue("x", 2, &target);
    store.setValue("y", 3, &target);
    return store;
}

/// What is asked and changed in one walk of random operations.
struct Texts
{
    QStringList keys;
    QStringList groups;
};

/// Does the same with both stores; what the two operations answered, and the vector they filled.
QVector<QStringList> doSomething(Dice *dice, const Texts &texts, VIniSettings *store,
                                 PlainSettings *plain)
{
    const QString key = dice->oneOf(texts.keys);
    const QStringList keys = dice->someOf(texts.keys, dice->between(0, 4));
    const QString group = dice->oneOf(texts.groups);
    const Entries entries = someEntries(dice, texts.keys, dice->between(0, 6));
    const QVariant value = dice->between(0, 999);
    Entries target = someEntries(dice, texts.keys, dice->between(0, 3));
    Entries plainTarget = target;
    bool answer = false;
    bool plainAnswer = false;
    switch (dice->between(0, 11)) {
    case 0:
        answer = store->remove(key);
        plainAnswer = plain->remove(key);
        break;
    case 1:
        answer = store->remove(keys);
        plainAnswer = plain->remove(keys);
        break;
    case 2:
        answer = store->removeGroup(group);
        plainAnswer = plain->removeGroup(group);
        break;
    case 3:
        store->setValue(key, value, &target);
        plain->setValue(key, value, &plainTarget);
        break;
    case 4:
        store->setValue(&target, &entries);
        plain->setValue(&plainTarget, &entries);
        break;
    case 5:
    case 6:
        answer = dice->chance(30);
        plainAnswer = answer;
        store->setValue(entries, answer);
        plain->setValue(entries, plainAnswer);
        break;
    default:
        store->setValue(key, value);
        plain->setValue(key, value);
    }
    const auto line = [](bool answered, const Entries &filled) {
        return QStringList(answered ? "yes" : "no") + described(filled);
    };
    return { line(answer, target), line(plainAnswer, plainTarget) };
}

template <typename Store> QStringList allAnswers(const Store &store, const Texts &texts)
{
    QStringList answers = described(store.data());
    answers << "keys" << store.allKeys() << "groups" << store.allGroups()
            << store.styleSheetFormat();
    for (const QString &key : texts.keys)
        answers << key << described(store.value(key)) << (store.contains(key) ? "yes" : "no");
    for (const QString &group : texts.groups)
        answers << "group" << group << store.allKeys(group);
    answers << (store.contains(texts.keys.mid(0, 2)) ? "both" : "not both");
    return answers;
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestVIniSettingsVectors : public SilentDirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void setsInAVectorOfTheCaller_data();
    void setsInAVectorOfTheCaller();
    void setsAllOfOneVectorInAnother_data();
    void setsAllOfOneVectorInAnother();
    void setsAVectorInItself();
    void looksIntoAVectorOfTheCaller();
    void standsNullPointers();
    void keepsKeysApart_data();
    void keepsKeysApart();
    void agreesWithThePlainRules_data();
    void agreesWithThePlainRules();
};

void TestVIniSettingsVectors::setsInAVectorOfTheCaller_data()
{
    QTest::addColumn<Entries>("target");
    QTest::addColumn<QString>("key");
    QTest::addColumn<Entries>("expected");
    QTest::addColumn<QStringList>("keysOfStore");

    QTest::newRow("a known key in place")
        << Entries { { "x", 1 }, { "y", 2 } } << "x" << Entries { { "x", "new" }, { "y", 2 } }
        << QStringList { "a" };
    QTest::newRow("the first of two")
        << Entries { { "x", 1 }, { "x", 2 } } << "x" << Entries { { "x", "new" }, { "x", 2 } }
        << QStringList { "a" };
    QTest::newRow("an unknown key is appended there and to the store's keys")
        << Entries { { "x", 1 } } << "y" << Entries { { "x", 1 }, { "y", "new" } }
        << QStringList { "a", "y" };
    QTest::newRow("another case is another key")
        << Entries { { "x", 1 } } << "X" << Entries { { "x", 1 }, { "X", "new" } }
        << QStringList { "a", "X" };
    QTest::newRow("a key that the store has is appended to its keys once more")
        << Entries() << "a" << Entries { { "a", "new" } } << QStringList { "a", "a" };
}

void TestVIniSettingsVectors::setsInAVectorOfTheCaller()
{
    QFETCH(Entries, target);
    QFETCH(QString, key);
    QFETCH(Entries, expected);
    QFETCH(QStringList, keysOfStore);

    VIniSettings store(Entries { { "a", 1 } });
    store.setValue(key, "new", &target);
    QCOMPARE(described(target), described(expected));
    QCOMPARE(store.allKeys(), keysOfStore);
    QCOMPARE(described(store.data()), described(Entries { { "a", 1 } }));
    QCOMPARE(store.contains(key), keysOfStore.contains(key));
    QCOMPARE(described(store.value(key)), described(key == "a" ? QVariant(1) : QVariant()));
}

void TestVIniSettingsVectors::setsAllOfOneVectorInAnother_data()
{
    QTest::addColumn<Entries>("target");
    QTest::addColumn<Entries>("source");
    QTest::addColumn<Entries>("expected");
    QTest::addColumn<QStringList>("keysOfStore");

    QTest::newRow("known in place, unknown appended in order")
        << Entries { { "x", 1 }, { "y", 2 } } << Entries { { "w", 3 }, { "y", 4 }, { "v", 5 } }
        << Entries { { "x", 1 }, { "y", 4 }, { "w", 3 }, { "v", 5 } }
        << QStringList { "a", "w", "v" };
    QTest::newRow("the last of doubles counts")
        << Entries() << Entries { { "x", 1 }, { "x", 2 } } << Entries { { "x", 2 } }
        << QStringList { "a", "x" };
    QTest::newRow("nothing") << Entries { { "x", 1 } } << Entries() << Entries { { "x", 1 } }
                             << QStringList { "a" };
}

void TestVIniSettingsVectors::setsAllOfOneVectorInAnother()
{
    QFETCH(Entries, target);
    QFETCH(Entries, source);
    QFETCH(Entries, expected);

    VIniSettings store(Entries { { "a", 1 } });
    store.setValue(&target, &source);
    QCOMPARE(described(target), described(expected));
    QTEST(store.allKeys(), "keysOfStore");
    QCOMPARE(described(store.data()), described(Entries { { "a", 1 } }));
}

void TestVIniSettingsVectors::setsAVectorInItself()
{
    VIniSettings store;
    Entries target = withDoubles();
    store.setValue(&target, &target);
    QCOMPARE(described(target),
             described(Entries { { "a", 3 }, { "g/b", 4 }, { "a", 3 }, { "g/b", 4 }, { "c", 5 } }));
    QCOMPARE(store.allKeys(), QStringList());
}

void TestVIniSettingsVectors::looksIntoAVectorOfTheCaller()
{
    const VIniSettings store(Entries { { "own", 1 } });
    Entries others = withDoubles();
    const Entries &constant = others;
    QCOMPARE(described(store.value("a", &others)), described(QVariant(1)));
    QCOMPARE(described(store.value("g/b", &constant)), described(QVariant(2)));
    QCOMPARE(described(store.value("A", &others)), described(QVariant()));
    QCOMPARE(described(store.value("own", &others)), described(QVariant()));
    QCOMPARE(store.allKeys(&constant), (QStringList { "a", "g/b", "a", "g/b", "c" }));

    const Entries none;
    QCOMPARE(described(store.value("a", &none)), described(QVariant()));
    QCOMPARE(store.allKeys(&none), QStringList());
}

void TestVIniSettingsVectors::standsNullPointers()
{
    VIniSettings store(Entries { { "a", 1 } });
    Entries *nothing = nullptr;
    Entries target { { "x", 1 } };
    store.setValue("b", 2, nothing);
    store.setValue(nothing, &target);
    store.setValue(&target, nothing);
    store.setValue(nothing, nothing);
    QCOMPARE(described(store.value("a", nothing)), described(QVariant()));
    QCOMPARE(store.allKeys(nothing), QStringList());
    QCOMPARE(store.allKeys(), QStringList { "a" });
    QCOMPARE(described(target), described(Entries { { "x", 1 } }));
}

void TestVIniSettingsVectors::keepsKeysApart_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<Entries>("data");
    const auto row = [](const char *name, const Change &change, const QStringList &keys,
                        const Entries &data) { QTest::newRow(name) << change << keys << data; };
    const Entries before { { "a", 1 } };
    row(
        "until something is done", [](VIniSettings &) {}, { "a", "x", "y" }, before);
    row("a key that is set is appended to both", [](VIniSettings &s) { s.setValue("b", 4); },
        { "a", "x", "y", "b" }, { { "a", 1 }, { "b", 4 } });
    row("setting a key apart makes an entry and a second key",
        [](VIniSettings &s) { s.setValue("x", 4); }, { "a", "x", "y", "x" },
        { { "a", 1 }, { "x", 4 } });
    row("setting a known key", [](VIniSettings &s) { s.setValue("a", 4); }, { "a", "x", "y" },
        { { "a", 4 } });
    row(
        "merging nothing makes them agree", [](VIniSettings &s) { s.setValue(Entries(), false); },
        { "a" }, before);
    row("merging makes them agree",
        [](VIniSettings &s) {
            s.setValue(Entries { { "x", 5 } }, false);
        },
        { "a", "x" }, { { "a", 1 }, { "x", 5 } });
    row("replacing makes them agree",
        [](VIniSettings &s) {
            s.setValue(Entries { { "z", 5 } }, true);
        },
        { "z" }, { { "z", 5 } });
    row("replacing by nothing makes them agree",
        [](VIniSettings &s) { s.setValue(Entries(), true); }, {}, {});
    row(
        "removing a key that has no entry", [](VIniSettings &s) { QVERIFY(s.remove("y")); },
        { "a", "x" }, before);
    row("removing all of them",
        [](VIniSettings &s) {
            QVERIFY(s.remove({ "y", "x", "a" }));
        },
        {}, {});
    row("removing the empty group", [](VIniSettings &s) { QVERIFY(s.removeGroup(QString())); }, {},
        {});
    row(
        "saving without a file", [](VIniSettings &s) { s.saveLocal(); }, { "a", "x", "y" }, before);
}

void TestVIniSettingsVectors::keepsKeysApart()
{
    QFETCH(Change, change);
    QFETCH(Entries, data);

    VIniSettings store = storeWithKeysApart();
    change(store);
    QTEST(store.allKeys(), "keys");
    QCOMPARE(described(store.data()), described(data));
}

void TestVIniSettingsVectors::agreesWithThePlainRules_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<QStringList>("keys");
    const QStringList few { "a", "a/b", "normal/x", "normal" };
    const QStringList states { "ID/QtClassName", "ID/ClassName", "ID",     "normal/a", "normal/b",
                               "hover/a",        "hover",        "/slash", "",         "top",
                               "hover/a/b",      "Normal/x" };
    QStringList many;
    for (int i = 0; i < 60; ++i)
        many.append(labelled(i % 3 == 0 ? "top" : i % 3 == 1 ? "g/" : "h/", i));
    for (int seed = 1; seed <= 20; ++seed) {
        QTest::addRow("few keys, seed %d", seed) << seed << few;
        QTest::addRow("keys of style sheets, seed %d", seed) << seed << states;
        QTest::addRow("many keys, seed %d", seed) << seed << many;
    }
}

void TestVIniSettingsVectors::agreesWithThePlainRules()
{
    QFETCH(int, seed);
    QFETCH(QStringList, keys);
    Dice dice { unsigned(seed) };
    const Texts texts { keys, { "", "a", "a/b", "normal", "hover", "g", "h", "ID", "nowhere" } };
    const Entries start = someEntries(&dice, keys, dice.between(0, 2 * keys.size()));

    VIniSettings store(start);
    PlainSettings plain(start);
    QCOMPARE(allAnswers(store, texts), allAnswers(plain, texts));
    for (int i = 0; i < 60; ++i) {
        const QVector<QStringList> answers = doSomething(&dice, texts, &store, &plain);
        QCOMPARE(answers.at(0), answers.at(1));
        QCOMPARE(allAnswers(store, texts), allAnswers(plain, texts));
    }
}

QTEST_GUILESS_MAIN(TestVIniSettingsVectors)
#include "tst_vinisettings_vectors.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/keyvaluelist_p.h"

#include "support/randomentries.h"

#include <QTest>

namespace {

int plainIndexOf(const Entries &entries, const QString &key)
{
    for (int i = 0; i < entries.size(); ++i) {
        if (entries.at(i).first == key)
            return i;
    }
    return -1;
}

QVariant plainValueOf(const Entries &entries, const QString &key)
{
    const int index = plainIndexOf(entries, key);
    return index < 0 ? QVariant() : entries.at(index).second;
}

bool plainSet(Entries *entries, const QString &key, const QVariant &value)
{
    const int index = plainIndexOf(*entries, key);
    if (index < 0)
        entries->append({ key, value });
    else
        (*entries)[index].second = value;
    return index < 0;
}

QStringList plainKeys(const Entries &entries)
{
    QStringList keys;
    for (const auto &entry : entries)
        keys.append(entry.first);
    return keys;
}

/// Every @p step-th key of many, so that some of them are in a list and some are not.
QStringList manyKeys(int count, int step)
{
    QStringList keys;
    for (int i = 0; i < count; i += step)
        keys.append(labelled("group/key ", i));
    return keys;
}

/// A list together with what it ought to hold.
struct Pair
{
    KeyValueList list;
    Entries plain;
};

void removeSome(Dice *dice, Pair *pair)
{
    // Marks may be fewer or more than there are entries.
    QVector<bool> marks(dice->between(0, pair->plain.size() + 3));
    Entries kept;
    for (bool &mark : marks)
        mark = dice->chance(20);
    for (int i = 0; i < pair->plain.size(); ++i) {
        if (i >= marks.size() || !marks.at(i))
            kept.append(pair->plain.at(i));
    }
    pair->plain = kept;
    pair->list.removeMarked(marks);
}

/// One random change of both; false when they answered differently.
bool change(Dice *dice, const QStringList &keys, Pair *pair)
{
    const QString key = dice->oneOf(keys);
    const QVariant value = dice->between(0, 999);
    switch (dice->between(0, 19)) {
    case 0: {
        const Entries more = someEntries(dice, keys, dice->between(0, 9));
        for (const auto &entry : more)
            plainSet(&pair->plain, entry.first, entry.second);
        pair->list.merge(more);
        return true;
    }
    case 1:
        removeSome(dice, pair);
        return true;
    case 2:
    case 3:
        if (!pair->plain.isEmpty()) {
            const int index = dice->between(0, pair->plain.size() - 1);
            pair->plain.remove(index);
            pair->list.removeAt(index);
        }
        return true;
    case 4:
    case 5:
        if (!pair->plain.isEmpty()) {
            const int index = dice->between(0, pair->plain.size() - 1);
            pair->plain[index].second = value;
            *pair->list.lendValue(index) = value;
        }
        return true;
    case 6:
    case 7:
    case 8:
        pair->plain.append({ key, value });
        pair->list.append(key, value);
        return true;
    default:
        return pair->list.set(key, value) == plainSet(&pair->plain, key, value);
    }
}

} // namespace

class TestKeyValueList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatAWalkFinds_data();
    void findsWhatAWalkFinds();
    void staysRightUnderRandomChanges_data();
    void staysRightUnderRandomChanges();
    void staysRightWhenItGrowsBack();
    void copiesAreIndependent();
    void lentValuesReachNoCopy();
    void lentEntriesReachNoCopy();
    void findsKeysThatChangedUnseen();
    void replacesEntries_data();
    void replacesEntries();
    void replacesByItsOwnEntries();
    void isEmptyAfterTake();
    void dropsMarkedPositions_data();
    void dropsMarkedPositions();
};

void TestKeyValueList::findsWhatAWalkFinds_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("empty") << 0;
    QTest::newRow("one entry") << 1;
    QTest::newRow("short enough for walks only") << 16;
    QTest::newRow("just long enough for an index") << 17;
    QTest::newRow("long") << 1000;
}

void TestKeyValueList::findsWhatAWalkFinds()
{
    QFETCH(int, count);
    Entries entries;
    for (int i = 0; i < count; ++i)
        entries.append({ labelled("key ", i / 2), i });
    const KeyValueList list(entries);
    QCOMPARE(list.size(), count);
    QCOMPARE(list.keys(), plainKeys(entries));
    // Often enough for walks in the beginning and the index afterwards.
    for (int round = 0; round < 40; ++round) {
        for (int i = -1; i <= 20; ++i) {
            const QString key = labelled("key ", i * qMax(1, count / 40));
            QCOMPARE(list.indexOf(key), plainIndexOf(entries, key));
            QCOMPARE(firstIndexOf(entries, key), plainIndexOf(entries, key));
            QCOMPARE(described(list.value(key)), described(plainValueOf(entries, key)));
            QCOMPARE(described(firstValueOf(entries, key)), described(plainValueOf(entries, key)));
        }
    }
    QCOMPARE(described(list.entries()), described(entries));
}

void TestKeyValueList::staysRightUnderRandomChanges_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("lookUps");
    for (int seed = 1; seed <= 10; ++seed) {
        QTest::addRow("few keys, seed %d", seed) << seed << manyKeys(8, 2) << 6 << 5;
        QTest::addRow("many keys asked a little, seed %d", seed)
            << seed << manyKeys(120, 1) << 60 << 3;
        QTest::addRow("many keys asked a lot, seed %d", seed)
            << seed << manyKeys(120, 1) << 60 << 80;
        QTest::addRow("many doubles asked a lot, seed %d", seed)
            << seed << manyKeys(24, 1) << 200 << 80;
    }
}

void TestKeyValueList::staysRightUnderRandomChanges()
{
    QFETCH(int, seed);
    QFETCH(QStringList, keys);
    QFETCH(int, start);
    QFETCH(int, lookUps);
    Dice dice { unsigned(seed) };
    const Entries entries = someEntries(&dice, keys, start);
    const QStringList asked = keys + QStringList { "nowhere", "" };

    Pair pair { KeyValueList(entries), entries };
    for (int i = 0; i < 150; ++i) {
        for (int changes = dice.between(1, 3); changes > 0; --changes)
            QVERIFY(change(&dice, keys, &pair));
        for (int j = 0; j < lookUps; ++j) {
            const QString key = dice.oneOf(asked);
            QCOMPARE(pair.list.indexOf(key), plainIndexOf(pair.plain, key));
            QCOMPARE(pair.list.value(key), plainValueOf(pair.plain, key));
        }
        QCOMPARE(pair.list.entries(), pair.plain);
        QCOMPARE(pair.list.keys(), plainKeys(pair.plain));
        QCOMPARE(pair.list.size(), pair.plain.size());
    }
}

void TestKeyValueList::staysRightWhenItGrowsBack()
{
    Entries plain;
    for (int i = 0; i < 50; ++i)
        plain.append({ labelled("key ", i), i });
    KeyValueList list(plain);
    for (int i = 0; i < 100; ++i)
        QCOMPARE(list.indexOf("key 49"), 49);

    QVector<bool> marks(50, false);
    marks[10] = true;
    marks[20] = true;
    list.removeMarked(marks);
    list.append("new", 1);
    list.append("newer", 2);
    QCOMPARE(list.indexOf("key 49"), 47);
    QCOMPARE(list.indexOf("key 10"), -1);
    QCOMPARE(list.indexOf("newer"), 49);
}

void TestKeyValueList::copiesAreIndependent()
{
    KeyValueList list;
    for (int i = 0; i < 100; ++i)
        list.append(labelled("key ", i), i);
    for (int i = 0; i < 100; ++i)
        QCOMPARE(list.indexOf("key 99"), 99);

    KeyValueList copy = list;
    copy.removeAt(0);
    *list.lendValue(99) = "changed";
    list.append("new", 1);
    QCOMPARE(copy.indexOf("key 99"), 98);
    QCOMPARE(copy.value("key 99"), QVariant(99));
    QCOMPARE(copy.indexOf("new"), -1);
    QCOMPARE(list.indexOf("key 99"), 99);
    QCOMPARE(list.value("key 99"), QVariant("changed"));
    QCOMPARE(list.indexOf("new"), 100);
    QCOMPARE(list.indexOf("key 0"), 0);
}

void TestKeyValueList::lentValuesReachNoCopy()
{
    const Entries before { { "a", 1 }, { "b", 2 } };
    KeyValueList list(before);
    const KeyValueList early = list;
    QVariant *value = list.lendValue(1);
    const KeyValueList late = list;
    KeyValueList assigned;
    assigned = list;
    *value = "written";
    QCOMPARE(described(list.entries()), described(Entries { { "a", 1 }, { "b", "written" } }));
    for (const KeyValueList &copy : { early, late, assigned, KeyValueList(before) })
        QCOMPARE(described(copy.entries()), described(before));
}

void TestKeyValueList::lentEntriesReachNoCopy()
{
    const Entries before { { "a", 1 }, { "b", 2 } };
    KeyValueList list(before);
    const KeyValueList early = list;
    KeyValues *entries = list.lendEntries();
    KeyValue *first = entries->data();
    const KeyValueList late = list;
    *first = { "c", "written" };
    entries->append({ "d", 3 });
    QCOMPARE(described(list.entries()),
             described(Entries { { "c", "written" }, { "b", 2 }, { "d", 3 } }));
    for (const KeyValueList &copy : { early, late, KeyValueList(before) })
        QCOMPARE(described(copy.entries()), described(before));
}

void TestKeyValueList::findsKeysThatChangedUnseen()
{
    Entries plain;
    for (int i = 0; i < 50; ++i)
        plain.append({ labelled("key ", i), i });
    KeyValueList list(plain);
    KeyValueList other(plain);
    for (int i = 0; i < 100; ++i) {
        QCOMPARE(list.indexOf("key 49"), 49);
        QCOMPARE(other.indexOf("key 49"), 49);
    }
    KeyValues *entries = list.lendEntries();
    for (int i = 0; i < 100; ++i)
        QCOMPARE(list.indexOf("key 49"), 49);
    (*entries)[49].first = "renamed";
    QCOMPARE(list.indexOf("key 49"), -1);
    QCOMPARE(list.indexOf("renamed"), 49);

    list = other;
    QCOMPARE(list.indexOf("key 49"), 49);
    QCOMPARE(list.indexOf("renamed"), -1);
}

void TestKeyValueList::replacesEntries_data()
{
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<bool>("staysInPlace");
    const Entries same { { "a", 1 }, { "b", 2 }, { "a", 3 } };
    QTest::newRow("the same") << same << true;
    QTest::newRow("the same keys")
        << Entries { { "a", "x" }, { "b", 2.5 }, { "a", QVariant() } } << true;
    QTest::newRow("another key") << Entries { { "a", 1 }, { "c", 2 }, { "a", 3 } } << false;
    QTest::newRow("more entries") << Entries(same + Entries { { "c", 4 } }) << false;
    QTest::newRow("fewer entries") << same.mid(0, 2) << false;
    QTest::newRow("none") << Entries() << false;
}

void TestKeyValueList::replacesEntries()
{
    QFETCH(Entries, entries);
    QFETCH(bool, staysInPlace);
    KeyValueList list(Entries { { "a", 1 }, { "b", 2 }, { "a", 3 } });
    const QVariant *place = list.lendValue(1);
    list.replace(entries);
    QCOMPARE(described(list.entries()), described(entries));
    if (staysInPlace)
        QCOMPARE(static_cast<const QVariant *>(list.lendValue(1)), place);
    for (const auto &entry : qAsConst(entries))
        QCOMPARE(list.indexOf(entry.first), firstIndexOf(entries, entry.first));
}

void TestKeyValueList::replacesByItsOwnEntries()
{
    KeyValueList list(Entries { { "a", 1 }, { "b", 2 } });
    QVariant *place = list.lendValue(1);
    list.replace(Entries(list.entries()));
    const Entries copied = list.copiedEntries();
    list.replace(copied);
    *place = "written";
    QCOMPARE(described(list.value("b")), described(QVariant("written")));
    QCOMPARE(described(copied), described(Entries { { "a", 1 }, { "b", 2 } }));
}

void TestKeyValueList::isEmptyAfterTake()
{
    Entries entries;
    for (int i = 0; i < 50; ++i)
        entries.append({ labelled("key ", i), i });
    KeyValueList list(entries);
    for (int i = 0; i < 100; ++i)
        QCOMPARE(list.indexOf("key 49"), 49);

    QCOMPARE(described(list.take()), described(entries));
    QCOMPARE(list.size(), 0);
    QCOMPARE(list.indexOf("key 49"), -1);
    // As long as before, with other keys.
    for (int i = 0; i < 50; ++i)
        list.append(labelled("other ", i), i);
    QCOMPARE(list.indexOf("key 49"), -1);
    QVERIFY(list.set("key 49", 1));
    QCOMPARE(list.indexOf("key 49"), 50);
}

void TestKeyValueList::dropsMarkedPositions_data()
{
    QTest::addColumn<QVector<bool>>("marks");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("none") << QVector<bool>() << QStringList { "a", "b", "c" };
    QTest::newRow("first and last") << QVector<bool> { true, false, true } << QStringList { "b" };
    QTest::newRow("fewer marks than elements")
        << QVector<bool> { true } << QStringList { "b", "c" };
    QTest::newRow("more marks than elements")
        << QVector<bool> { false, true, false, true, true } << QStringList { "a", "c" };
    QTest::newRow("all") << QVector<bool> { true, true, true } << QStringList();
}

void TestKeyValueList::dropsMarkedPositions()
{
    QFETCH(QVector<bool>, marks);
    QTEST(withoutMarked(QStringList { "a", "b", "c" }, marks), "expected");
}

QTEST_GUILESS_MAIN(TestKeyValueList)
#include "tst_keyvaluelist.moc"

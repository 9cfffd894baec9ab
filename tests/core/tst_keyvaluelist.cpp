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
struct Twins
{
    KeyValueList list;
    Entries plain;

    void set(const QString &key, const QVariant &value)
    {
        const int index = plainIndexOf(plain, key);
        if (index < 0)
            plain.append({ key, value });
        else
            plain[index].second = value;
    }

    void removeSome(Dice *dice)
    {
        // Marks may be fewer or more than there are entries.
        QVector<bool> marks(dice->between(0, plain.size() + 3));
        for (bool &mark : marks)
            mark = dice->chance(20);
        for (int i = qMin(plain.size(), marks.size()) - 1; i >= 0; --i) {
            if (marks.at(i))
                plain.remove(i);
        }
        list.removeMarked(marks);
    }

    /// Changes one value, or removes it.
    void changeAt(int index, const QVariant &value, bool remove)
    {
        if (remove) {
            plain.remove(index);
            list.removeAt(index);
        } else {
            plain[index].second = value;
            *list.valuePointer(index) = value;
        }
    }

    /// Changes all of it at once. What was in the list before must not be found any more.
    void exchange(Dice *dice, const QStringList &keys)
    {
        const bool isWhole = dice->chance(50);
        for (auto &entry : plain)
            entry = { isWhole || dice->chance(10) ? dice->oneOf(keys) : entry.first, 1 };
        switch (dice->between(0, 3)) {
        case 0:
            list.replace(plain);
            break;
        case 1:
            *list.entriesPointer() = plain;
            break;
        case 2:
            list.valuePointer(0);
            list.replace(plain);
            break;
        default:
            list.take();
            for (const auto &entry : qAsConst(plain))
                list.append(entry.first, entry.second);
        }
    }

    /// One random change of both; false when they answered differently.
    bool change(Dice *dice, const QStringList &keys)
    {
        const QString key = dice->oneOf(keys);
        const QVariant value = dice->between(0, 999);
        const int kind = dice->between(0, 20);
        if (kind == 20 && !plain.isEmpty()) {
            exchange(dice, keys);
        } else if (kind == 0) {
            const Entries more = someEntries(dice, keys, dice->between(0, 9));
            for (const auto &entry : more)
                set(entry.first, entry.second);
            list.merge(more);
        } else if (kind == 1) {
            removeSome(dice);
        } else if (kind < 6 && !plain.isEmpty()) {
            changeAt(dice->between(0, plain.size() - 1), value, kind < 4);
        } else if (kind < 9) {
            plain.append({ key, value });
            list.append(key, value);
        } else {
            const bool isNew = plainIndexOf(plain, key) < 0;
            set(key, value);
            return list.set(key, value) == isNew;
        }
        return true;
    }
};

} // namespace

class TestKeyValueList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstPositionsAreThoseInAList()
    {
        const QStringList list { "a", "b", "a", "", "B" };
        FirstPositions positions;
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(positions.indexOf("a"), -1);
            for (const QString &text : list)
                positions.append(text);
            const QStringList texts = list + QStringList { "A", "c", QString() };
            for (const QString &text : texts) {
                QCOMPARE(positions.indexOf(text), list.indexOf(text));
                QCOMPARE(positions.contains(text), list.contains(text));
            }
            QCOMPARE(positions.size(), list.size());
            positions.clear();
            QCOMPARE(positions.size(), 0);
        }
    }

    void staysRightUnderRandomChanges_data()
    {
        QTest::addColumn<int>("seed");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("lookUps");
        for (int seed = 1; seed <= 10; ++seed) {
            const auto row
                = [seed](const char *name, const QStringList &keys, int start, int lookUps) {
                      QTest::addRow("%s, seed %d", name, seed) << seed << keys << start << lookUps;
                  };
            row("none at first", manyKeys(40, 1), 0, 20);
            row("few keys", manyKeys(8, 2), 6, 5);
            row("many keys asked a little", manyKeys(120, 1), 60, 3);
            row("many keys asked a lot", manyKeys(120, 1), 60, 80);
            row("many duplicates asked a lot", manyKeys(24, 1), 200, 80);
        }
    }
    void staysRightUnderRandomChanges()
    {
        QFETCH(int, seed);
        QFETCH(QStringList, keys);
        QFETCH(int, start);
        QFETCH(int, lookUps);
        Dice dice { unsigned(seed) };
        const Entries entries = someEntries(&dice, keys, start);
        const QStringList asked = keys + QStringList { "nowhere", "" };
        Twins twins { KeyValueList(entries), entries };
        Twins copy = twins;
        for (int i = 0; i < 150; ++i) {
            if (dice.chance(5))
                std::swap(twins, copy);
            if (dice.chance(5))
                copy = twins;
            for (int changes = dice.between(1, 3); changes > 0; --changes)
                QVERIFY(twins.change(&dice, keys));
            for (int j = 0; j < lookUps; ++j) {
                const QString key = dice.oneOf(asked);
                const int index = plainIndexOf(twins.plain, key);
                const QVariant value = twins.plain.value(index).second;
                QCOMPARE(twins.list.indexOf(key), index);
                QCOMPARE(firstIndexOf(twins.plain, key), index);
                QCOMPARE(twins.list.value(key), value);
                QCOMPARE(firstValueOf(twins.plain, key), value);
            }
            QCOMPARE(twins.list.entries(), twins.plain);
            QCOMPARE(twins.list.keys(), plainKeys(twins.plain));
            QCOMPARE(twins.list.size(), twins.plain.size());
        }
    }

    void pointersReachNoCopy()
    {
        const Entries before { { "a", 1 }, { "b", 2 } };
        KeyValueList list(before);
        const KeyValueList early = list;
        QVariant *value = list.valuePointer(1);
        KeyValueList later = list;
        *value = "written";
        const Entries between = list.entries();
        QCOMPARE(described(between), described(Entries { { "a", 1 }, { "b", "written" } }));

        KeyValues *entries = list.entriesPointer();
        KeyValueList latest;
        latest = list;
        (*entries)[0] = { "c", "written" };
        entries->append({ "d", 3 });
        QCOMPARE(described(list.entries()),
                 described(Entries { { "c", "written" }, { "b", "written" }, { "d", 3 } }));
        QCOMPARE(described(latest.entries()), described(between));
        for (const KeyValueList &copy : { early, later, KeyValueList(before) })
            QCOMPARE(described(copy.entries()), described(before));
    }

    void replacesEntries_data()
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
    void replacesEntries()
    {
        QFETCH(Entries, entries);
        QFETCH(bool, staysInPlace);
        KeyValueList list(Entries { { "a", 1 }, { "b", 2 }, { "a", 3 } });
        const QVariant *place = list.valuePointer(1);
        // A list may be given back to itself, also as the copy that was kept.
        list.replace(Entries(list.entries()));
        list.replace(list.copiedEntries());
        list.replace(entries);
        QCOMPARE(described(list.entries()), described(entries));
        if (staysInPlace)
            QCOMPARE(static_cast<const QVariant *>(list.valuePointer(1)), place);
        for (const auto &entry : qAsConst(entries))
            QCOMPARE(list.indexOf(entry.first), plainIndexOf(entries, entry.first));
    }
};

QTEST_GUILESS_MAIN(TestKeyValueList)
#include "tst_keyvaluelist.moc"

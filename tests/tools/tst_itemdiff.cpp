// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The comparison of items: what is told of a change, and on random items, that what is gone one way
// has come the other way.

#include "itemdiff.h"
#include "support/hintitems.h"
#include "support/parameters.h"

#include <QTest>

class TestItemDiff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tells_data();
    void tells();
    void renamesOnce();
    void findsNothingInOneItem();
    void isTheSameBackwards();
};

namespace {

QString shown(const QString &text)
{
    return text.isNull() ? QString("none") : '"' + text + '"';
}

QStringList linesOf(const QVector<ItemChange> &changes, bool isBackwards)
{
    QStringList lines;
    for (const ItemChange &change : changes) {
        QStringList texts { shown(change.before), shown(change.after) };
        QString name = change.name;
        ItemChange::Kind kind = change.kind;
        if (isBackwards && kind == ItemChange::Changed)
            std::swap(texts[0], texts[1]);
        if (isBackwards && kind == ItemChange::Renamed) {
            name = change.after;
            texts[1] = shown(change.name);
        }
        if (isBackwards && kind == ItemChange::Added)
            kind = ItemChange::Removed;
        else if (isBackwards && kind == ItemChange::Removed)
            kind = ItemChange::Added;
        QStringList modes = change.modes;
        modes.sort();
        lines.append(QString("%1 %2 %3 %4 %5: %6")
                         .arg(QString::number(change.subject), name, QString::number(kind),
                              change.property ? change.property : "", modes.join('+'),
                              texts.join(" -> ")));
    }
    lines.sort();
    return lines;
}

} // namespace

void TestItemDiff::tells_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QStringList>("lines");

    const auto row = [](const char *name, const char *key, const char *before, const char *after,
                        const char *line) {
        QTest::newRow(name) << QString(key) << QString(before) << QString(after)
                            << QStringList(line);
    };
    row("a key of the host", "Author", "a", "b", "Author value");
    row("filters of files", "Files.x", "*.a", "*.b", "x files");
    row("a limit of a parameter", "Max.x", "5", "4", "x maximum loses");
    row("a limit of a result", "Max.R", "5", "4", "R maximum");
}

void TestItemDiff::tells()
{
    QFETCH(QString, key);
    QFETCH(QString, before);
    QFETCH(QString, after);

    AUTH_INF item;
    item.inner_mode_count = 1;
    item.inner_mode_nameList = QStringList { "A" };
    item.inner_mode_parameterList = { { entry("x") } };
    item.output_results = { entry("R") };
    item.extraKey = { { key, before } };
    AUTH_INF changed = item;
    changed.extraKey = { { key, after } };
    QStringList found;
    const QVector<ItemChange> changes = itemDiff(item, changed);
    for (const ItemChange &change : changes)
        found.append(change.name + ' ' + change.property + (change.loses ? " loses" : ""));
    QTEST(found, "lines");
}

void TestItemDiff::renamesOnce()
{
    AUTH_INF before;
    before.inner_mode_count = 2;
    before.inner_mode_nameList = QStringList { "Part load", "Part-load" };
    AUTH_INF after = before;
    after.inner_mode_nameList = QStringList { "part_load", "full load" };
    QStringList found;
    const QVector<ItemChange> changes = itemDiff(before, after);
    for (const ItemChange &change : changes)
        found.append(QString("%1 %2 %3").arg(change.name).arg(change.kind).arg(change.after));
    QCOMPARE(found,
             QStringList({ QString("Part load %1 part_load").arg(ItemChange::Renamed),
                           QString("Part-load %1 ").arg(ItemChange::Removed),
                           QString("full load %1 ").arg(ItemChange::Added) }));
}

void TestItemDiff::findsNothingInOneItem()
{
    HintItemMaker maker(7);
    for (int round = 0; round < 1000; ++round) {
        const AUTH_INF item = maker.item();
        QCOMPARE(linesOf(itemDiff(item, item), false), QStringList());
    }
}

void TestItemDiff::isTheSameBackwards()
{
    HintItemMaker maker(8);
    int changed = 0;
    for (int round = 0; round < 1000; ++round) {
        const AUTH_INF before = maker.item();
        AUTH_INF after = before;
        const AUTH_INF other = maker.item();
        after.extraKey = other.extraKey;
        after.output_results = other.output_results;
        if (maker.dice().chance(30))
            after = other;
        const QStringList lines = linesOf(itemDiff(before, after), false);
        QCOMPARE(linesOf(itemDiff(after, before), true).join('\n'), lines.join('\n'));
        changed += lines.isEmpty() ? 0 : 1;
    }
    QVERIFY(changed > 500);
}

QTEST_GUILESS_MAIN(TestItemDiff)

#include "tst_itemdiff.moc"

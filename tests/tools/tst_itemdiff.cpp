// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The comparison of items, on random ones: what is gone one way has come the other way.

#include "itemdiff.h"
#include "support/hintitems.h"

#include <QTest>

class TestItemDiff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

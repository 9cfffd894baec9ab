// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/namesort_p.h"

#include <QPair>
#include <QStringList>
#include <QTest>

namespace {

/// A name and what tells its bearers apart.
using Bearer = QPair<QString, int>;
using Bearers = QVector<Bearer>;

Bearers sorted(const Bearers &list)
{
    return sortedByFirstBearer(list, [](const Bearer &bearer) { return bearer.first; });
}

} // namespace

class TestNameSort : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sorts_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QVector<int>>("positions");

        const auto row
            = [](const char *name, const QStringList &names, const QVector<int> &positions) {
                  QTest::newRow(name) << names << positions;
              };
        row("nothing", {}, {});
        row("in reverse", { "c", "b", "a" }, { 2, 1, 0 });
        row("capital letters first", { "a", "Z", "b", "A" }, { 3, 1, 0, 2 });
        row("digits before letters, underscores between", { "a", "_", "A", "1" }, { 3, 2, 1, 0 });
        row("no numbers in texts", { "a10", "a9", "a1" }, { 2, 0, 1 });
        row("a beginning before the whole", { "ab", "a", "" }, { 2, 1, 0 });
        row("no language has a say", { "é", "z", "ä", "a" }, { 3, 1, 2, 0 });
        // Two units of the second character come before the one of the first.
        row("by units and not by characters", { "～", "😀" }, { 1, 0 });
        row("the first in the list, wherever it is", { "b", "a", "b", "a" }, { 1, 1, 0, 0 });
        row("every place to the first of many", { "x", "x", "a", "x", "x" }, { 2, 0, 0, 0, 0 });
        row("a null name is an empty one", { QString(), "a", "" }, { 0, 0, 1 });
    }
    void sorts()
    {
        QFETCH(QStringList, names);
        QFETCH(QVector<int>, positions);
        Bearers list;
        for (int i = 0; i < names.size(); ++i)
            list.append({ names.at(i), i });
        Bearers expected;
        for (const int position : qAsConst(positions))
            expected.append(list.at(position));
        QCOMPARE(sorted(list), expected);
        QCOMPARE(sorted(expected), expected);
    }

    void findsTheFirstOfMany()
    {
        Bearers list;
        for (int i = 0; i < 1000; ++i)
            list.append({ QString::number(i % 3), i });
        QCOMPARE(sorted(list),
                 Bearers(334, { "0", 0 }) + Bearers(333, { "1", 1 }) + Bearers(333, { "2", 2 }));
    }
};

QTEST_GUILESS_MAIN(TestNameSort)
#include "tst_namesort.moc"

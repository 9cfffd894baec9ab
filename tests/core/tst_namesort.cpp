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

QString nameOf(const Bearer &bearer)
{
    return bearer.first;
}

/// The bearers of @p names, numbered by their position.
Bearers numbered(const QStringList &names)
{
    Bearers bearers;
    for (int i = 0; i < names.size(); ++i)
        bearers.append({ names.at(i), i });
    return bearers;
}

} // namespace

class TestNameSort : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sorts_data();
    void sorts();
    void sortingAgainChangesNothing_data();
    void sortingAgainChangesNothing();
    void sortsByAnythingThatIsAName();
    void findsTheFirstOfMany();
};

void TestNameSort::sorts_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QVector<int>>("positions");

    const auto row = [](const char *name, const QStringList &names, const QVector<int> &positions) {
        QTest::newRow(name) << names << positions;
    };
    row("nothing", {}, {});
    row("one", { "a" }, { 0 });
    row("in order", { "a", "b", "c" }, { 0, 1, 2 });
    row("in reverse", { "c", "b", "a" }, { 2, 1, 0 });
    row("capital letters first", { "beta", "Alpha", "alpha" }, { 1, 2, 0 });
    row("all capital letters first", { "a", "Z", "b", "A" }, { 3, 1, 0, 2 });
    row("digits before letters, underscores between", { "a", "_", "A", "1" }, { 3, 2, 1, 0 });
    row("no numbers in texts", { "a10", "a9", "a1" }, { 2, 0, 1 });
    row("a beginning before the whole", { "ab", "a", "" }, { 2, 1, 0 });
    row("no language has a say", { "é", "z", "ä", "a" }, { 3, 1, 2, 0 });
    // Two units of the second character come before the one of the first.
    row("by units and not by characters", { "～", "😀" }, { 1, 0 });
    row("spaces count", { "a", " a" }, { 1, 0 });

    row("both places to the first of two", { "a", "a" }, { 0, 0 });
    row("the first in the list, wherever it is", { "b", "a", "b", "a" }, { 1, 1, 0, 0 });
    row("every place to the first of many", { "x", "x", "a", "x", "x" }, { 2, 0, 0, 0, 0 });
    row("case makes two names", { "a", "A", "a", "A" }, { 1, 1, 0, 0 });
    row("empty names", { "", "a", "" }, { 0, 0, 1 });
    row("a null name is an empty one", { QString(), "a", "" }, { 0, 0, 1 });
    row("an empty name is a null one", { "", "a", QString() }, { 0, 0, 1 });
}

void TestNameSort::sorts()
{
    QFETCH(QStringList, names);
    QFETCH(QVector<int>, positions);

    const Bearers list = numbered(names);
    Bearers expected;
    for (int position : qAsConst(positions))
        expected.append(list.at(position));

    QCOMPARE(sortedByFirstBearer(list, nameOf), expected);
    QCOMPARE(list, numbered(names));
}

void TestNameSort::sortingAgainChangesNothing_data()
{
    sorts_data();
}

void TestNameSort::sortingAgainChangesNothing()
{
    QFETCH(QStringList, names);

    const Bearers sorted = sortedByFirstBearer(numbered(names), nameOf);
    QCOMPARE(sortedByFirstBearer(sorted, nameOf), sorted);
}

void TestNameSort::sortsByAnythingThatIsAName()
{
    const QVector<int> numbers { 30, 9, 30, 200 };
    QCOMPARE(sortedByFirstBearer(numbers, [](int number) { return QString::number(number); }),
             (QVector<int> { 200, 30, 30, 9 }));
}

void TestNameSort::findsTheFirstOfMany()
{
    QStringList names;
    for (int i = 0; i < 1000; ++i)
        names.append(QString::number(i % 3));
    const Bearers sorted = sortedByFirstBearer(numbered(names), nameOf);
    QCOMPARE(sorted,
             Bearers(334, { "0", 0 }) + Bearers(333, { "1", 1 }) + Bearers(333, { "2", 2 }));
}

QTEST_GUILESS_MAIN(TestNameSort)
#include "tst_namesort.moc"

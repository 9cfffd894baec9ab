// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/firstpositions_p.h"

#include <QStringList>
#include <QTest>

class TestFirstPositions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatAListFinds_data();
    void findsWhatAListFinds();
    void startsOverAfterClear();
    void combinesTwoLists_data();
    void combinesTwoLists();
};

void TestFirstPositions::findsWhatAListFinds_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");

    const QStringList names { "a", "b", "a", "", "B" };
    QTest::newRow("nothing in an empty list") << QStringList() << "a" << -1;
    QTest::newRow("the first of two") << names << "a" << 0;
    QTest::newRow("position counts doubles") << names << "B" << 4;
    QTest::newRow("case matters") << names << "A" << -1;
    QTest::newRow("an empty text") << names << "" << 3;
    QTest::newRow("a null text is an empty text") << names << QString() << 3;
    QTest::newRow("unknown") << names << "c" << -1;
}

void TestFirstPositions::findsWhatAListFinds()
{
    QFETCH(QStringList, list);
    QFETCH(QString, text);
    QFETCH(int, expected);

    FirstPositions positions;
    for (const QString &entry : qAsConst(list))
        positions.append(entry);

    QCOMPARE(list.indexOf(text), expected);
    QCOMPARE(positions.indexOf(text), expected);
    QCOMPARE(positions.contains(text), expected >= 0);
    QCOMPARE(positions.size(), list.size());
}

void TestFirstPositions::startsOverAfterClear()
{
    FirstPositions positions;
    positions.append("a");
    positions.append("b");
    positions.clear();
    QCOMPARE(positions.size(), 0);
    QCOMPARE(positions.indexOf("a"), -1);

    positions.append("b");
    QCOMPARE(positions.indexOf("b"), 0);
}

void TestFirstPositions::combinesTwoLists_data()
{
    QTest::addColumn<int>("one");
    QTest::addColumn<int>("other");
    QTest::addColumn<int>("expected");

    QTest::newRow("in neither") << -1 << -1 << -1;
    QTest::newRow("in the first only") << 4 << -1 << 4;
    QTest::newRow("in the second only") << -1 << 0 << 0;
    QTest::newRow("earlier in the first") << 1 << 2 << 1;
    QTest::newRow("earlier in the second") << 3 << 2 << 2;
}

void TestFirstPositions::combinesTwoLists()
{
    QFETCH(int, one);
    QFETCH(int, other);
    QTEST(firstOfEither(one, other), "expected");
}

QTEST_GUILESS_MAIN(TestFirstPositions)
#include "tst_firstpositions.moc"

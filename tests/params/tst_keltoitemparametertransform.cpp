// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/KeltoItemParameterTransform>
#include <Kelto/VParameter>

#include <QTest>

#include <limits>

using Transform = KeltoItemParameterTransform;
using Table = QVector<QStringList>;
using Numbers = QVector<double>;

Q_DECLARE_METATYPE(Table)
Q_DECLARE_METATYPE(QVector<Table>)

namespace {

const double infinity = std::numeric_limits<double>::infinity();
const double nan = std::numeric_limits<double>::quiet_NaN();

/// As texts, "not a number" is equal to itself and 0 differs from -0.
QStringList exactly(const Numbers &numbers)
{
    QStringList texts;
    for (const double number : numbers)
        texts.append(QString::number(number, 'g', 17));
    return texts;
}

QStringList exactly(const QVector<QPointF> &points)
{
    QStringList texts;
    for (const QPointF &point : points)
        texts.append(exactly(Numbers { point.x(), point.y() }).join(" "));
    return texts;
}

/// @p count tables of one row and one cell: the table's position.
QVector<Table> numberedTables(int count)
{
    QVector<Table> tables;
    for (int i = 0; i < count; ++i)
        tables.append(Table { { QString::number(i) } });
    return tables;
}

} // namespace

class TestKeltoItemParameterTransform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesNumbers_data();
    void writesNumbers();
    void writesWholeNumbers_data();
    void writesWholeNumbers();
    void readsNumbers_data();
    void readsNumbers();
    void writesPoints_data();
    void writesPoints();
    void writesWholePoints_data();
    void writesWholePoints();
    void readsPoints_data();
    void readsPoints();
    void writesTables_data();
    void writesTables();
    void readsTables_data();
    void readsTables();
    void readsGroups_data();
    void readsGroups();
    void writesGroups_data();
    void writesGroups();
    void ordersGroupsAsTexts();
    void canBeCalledOnAnInstance();
};

void TestKeltoItemParameterTransform::writesNumbers_data()
{
    QTest::addColumn<Numbers>("numbers");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("none") << Numbers() << QStringList();
    QTest::newRow("in order, doubles kept")
        << Numbers { 2.5, -1, 2.5 } << QStringList { "2.5", "-1", "2.5" };
    QTest::newRow("no more digits than needed")
        << Numbers { 0.1, 100000, 0 } << QStringList { "0.1", "100000", "0" };
    QTest::newRow("six digits") << Numbers { 1234567, 0.123456789, 2.0 / 3 }
                                << QStringList { "1.23457e+06", "0.123457", "0.666667" };
    QTest::newRow("powers of ten")
        << Numbers { 999999, 1e6, 0.0001, 0.00001, 1e300 }
        << QStringList { "999999", "1e+06", "0.0001", "1e-05", "1e+300" };
    QTest::newRow("infinite and not a number")
        << Numbers { infinity, -infinity, nan } << QStringList { "inf", "-inf", "nan" };
    QTest::newRow("extremes") << Numbers { std::numeric_limits<double>::max(),
                                           std::numeric_limits<double>::denorm_min() }
                              << QStringList { "1.79769e+308", "4.94066e-324" };
}

void TestKeltoItemParameterTransform::writesNumbers()
{
    QFETCH(Numbers, numbers);
    QTEST(Transform::from_array(numbers), "expected");
}

void TestKeltoItemParameterTransform::writesWholeNumbers_data()
{
    QTest::addColumn<QVector<int>>("numbers");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("none") << QVector<int>() << QStringList();
    QTest::newRow("in order, doubles kept")
        << QVector<int> { 3, -1, 0, 3 } << QStringList { "3", "-1", "0", "3" };
    QTest::newRow("all digits") << QVector<int> { 1234567, std::numeric_limits<int>::max(),
                                                  std::numeric_limits<int>::min() }
                                << QStringList { "1234567", "2147483647", "-2147483648" };
}

void TestKeltoItemParameterTransform::writesWholeNumbers()
{
    QFETCH(QVector<int>, numbers);
    QTEST(Transform::from_array(numbers), "expected");
}

void TestKeltoItemParameterTransform::readsNumbers_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<Numbers>("expected");

    QTest::newRow("none") << QStringList() << Numbers();
    QTest::newRow("in order, doubles kept")
        << QStringList { "2.5", "-1", "2.5" } << Numbers { 2.5, -1, 2.5 };
    QTest::newRow("powers of ten")
        << QStringList { "1.23457e+06", "1E-3", "+4" } << Numbers { 1234570, 0.001, 4 };
    QTest::newRow("all digits") << QStringList { "0.1234567890123" } << Numbers { 0.1234567890123 };
    QTest::newRow("no number is 0, and not left out")
        << QStringList { "1", "two", "", QString(), "3" } << Numbers { 1, 0, 0, 0, 3 };
    QTest::newRow("a number with something behind it is 0")
        << QStringList { "1mm", "1|2", "1,5", "0x10" } << Numbers { 0, 0, 0, 0 };
    QTest::newRow("spaces around a number") << QStringList { " 1.5 " } << Numbers { 1.5 };
    QTest::newRow("infinite and not a number")
        << QStringList { "inf", "-inf", "nan" } << Numbers { infinity, -infinity, nan };
    QTest::newRow("beyond the range")
        << QStringList { "1e400", "-1e400", "1e-400" } << Numbers { infinity, -infinity, 0 };
}

void TestKeltoItemParameterTransform::readsNumbers()
{
    QFETCH(QStringList, list);
    QFETCH(Numbers, expected);
    QCOMPARE(exactly(Transform::to_array(list)), exactly(expected));
}

void TestKeltoItemParameterTransform::writesPoints_data()
{
    QTest::addColumn<QVector<QPointF>>("points");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("none") << QVector<QPointF>() << QStringList();
    QTest::newRow("x before y, in order")
        << QVector<QPointF> { { 1.5, -2 }, { 0, 0 } } << QStringList { "1.5|-2", "0|0" };
    QTest::newRow("six digits") << QVector<QPointF> { { 1234567, 0.1 } }
                                << QStringList { "1.23457e+06|0.1" };
    QTest::newRow("infinite and not a number")
        << QVector<QPointF> { { -infinity, nan } } << QStringList { "-inf|nan" };
}

void TestKeltoItemParameterTransform::writesPoints()
{
    QFETCH(QVector<QPointF>, points);
    QTEST(Transform::from_2Dpoints(points), "expected");
}

void TestKeltoItemParameterTransform::writesWholePoints_data()
{
    QTest::addColumn<QVector<QPoint>>("points");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("none") << QVector<QPoint>() << QStringList();
    QTest::newRow("x before y, in order, all digits")
        << QVector<QPoint> { { 1234567, -2 }, { 0, 3 } } << QStringList { "1234567|-2", "0|3" };
}

void TestKeltoItemParameterTransform::writesWholePoints()
{
    QFETCH(QVector<QPoint>, points);
    QTEST(Transform::from_2Dpoints(points), "expected");
}

void TestKeltoItemParameterTransform::readsPoints_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QVector<QPointF>>("expected");

    const QVector<QPointF> none;
    const QVector<QPointF> one { { 1, 2 } };
    QTest::newRow("none") << QStringList() << none;
    QTest::newRow("x before y, in order, doubles kept")
        << QStringList { "1.5|-2", "0|1e3", "1.5|-2" }
        << QVector<QPointF> { { 1.5, -2 }, { 0, 1000 }, { 1.5, -2 } };
    QTest::newRow("a text of one part ends the list") << QStringList { "1|2", "3", "4|5" } << one;
    QTest::newRow("a text of three parts ends the list")
        << QStringList { "1|2", "3|4|5", "4|5" } << one;
    QTest::newRow("an empty third part ends the list") << QStringList { "1|2", "3|4|" } << one;
    QTest::newRow("an empty text ends the list") << QStringList { "1|2", "", "4|5" } << one;
    QTest::newRow("a null text ends the list") << QStringList { QString(), "4|5" } << none;
    QTest::newRow("the first text ends the list") << QStringList { "1 2", "4|5" } << none;
    QTest::newRow("two empty parts are the origin")
        << QStringList { "|", "1|2" } << QVector<QPointF> { { 0, 0 }, { 1, 2 } };
    QTest::newRow("one empty part is 0")
        << QStringList { "|7", "7|" } << QVector<QPointF> { { 0, 7 }, { 7, 0 } };
    QTest::newRow("no number is 0")
        << QStringList { "x|2", "1|y" } << QVector<QPointF> { { 0, 2 }, { 1, 0 } };
    QTest::newRow("infinite and not a number")
        << QStringList { "inf|nan", "-inf|1" }
        << QVector<QPointF> { { infinity, nan }, { -infinity, 1 } };
}

void TestKeltoItemParameterTransform::readsPoints()
{
    QFETCH(QStringList, list);
    QFETCH(QVector<QPointF>, expected);
    QCOMPARE(exactly(Transform::to_2Dpoints(list)), exactly(expected));
}

void TestKeltoItemParameterTransform::writesTables_data()
{
    QTest::addColumn<Table>("rows");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("none") << Table() << QStringList();
    QTest::newRow("one row") << Table { { "a", "b", "c" } } << QStringList { "a|b|c" };
    QTest::newRow("one cell") << Table { { "a" } } << QStringList { "a" };
    QTest::newRow("each row behind all before it")
        << Table { { "a", "b" }, { "c", "d" } } << QStringList { "a|b", "a|bc|d" };
    QTest::newRow("rows of different lengths") << Table { { "a" }, { "b", "c", "d" }, { "e" } }
                                               << QStringList { "a", "ab|c|d", "ab|c|de" };
    QTest::newRow("a row without cells repeats the text before")
        << Table { {}, { "a", "b" }, {}, { "c" } } << QStringList { "", "a|b", "a|b", "a|bc" };
    QTest::newRow("empty cells") << Table { { "" }, { "", "" }, { "", "", "" } }
                                 << QStringList { "", "|", "|||" };
    QTest::newRow("cells are not escaped")
        << Table { { "a|b", "c" }, { "|" } } << QStringList { "a|b|c", "a|b|c|" };
}

void TestKeltoItemParameterTransform::writesTables()
{
    QFETCH(Table, rows);
    QTEST(Transform::from_XDpoints(rows), "expected");
}

void TestKeltoItemParameterTransform::readsTables_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<Table>("expected");

    QTest::newRow("none") << QStringList() << Table();
    QTest::newRow("a row per text, in order")
        << QStringList { "a|b|c", "d|e" } << Table { { "a", "b", "c" }, { "d", "e" } };
    QTest::newRow("no separator gives one cell") << QStringList { "abc" } << Table { { "abc" } };
    QTest::newRow("an empty text gives one empty cell")
        << QStringList { "", QString() } << Table { { "" }, { "" } };
    QTest::newRow("empty cells are kept")
        << QStringList { "|a||b|" } << Table { { "", "a", "", "b", "" } };
    QTest::newRow("cells are kept as they are")
        << QStringList { " a | 1,5 " } << Table { { " a ", " 1,5 " } };
}

void TestKeltoItemParameterTransform::readsTables()
{
    QFETCH(QStringList, list);
    QTEST(Transform::to_XDpoints(list), "expected");
}

void TestKeltoItemParameterTransform::readsGroups_data()
{
    QTest::addColumn<QVariantMap>("groups");
    QTest::addColumn<QVector<Table>>("expected");

    const auto row
        = [](const char *name, const QVariantMap &groups, const QVector<Table> &expected) {
              QTest::newRow(name) << groups << expected;
          };
    const Table noRows;
    row("none", {}, {});
    row("a table per key", { { "0", QStringList { "a|b", "c" } }, { "1", QStringList { "d" } } },
        { { { "a", "b" }, { "c" } }, { { "d" } } });
    row("10 comes before 2", { { "2", QStringList { "two" } }, { "10", QStringList { "ten" } } },
        { { { "ten" } }, { { "two" } } });
    row("keys that are no numbers, by their characters",
        { { "b", "3" }, { "", "0" }, { "B", "2" }, { "-1", "1" }, { "ä", "4" } },
        { { { "0" } }, { { "1" } }, { { "2" } }, { { "3" } }, { { "4" } } });
    row("an empty list is a table without rows", { { "0", QStringList() } }, { noRows });
    row("no value is a table without rows", { { "0", QVariant() } }, { noRows });
    row("a number is a table without rows", { { "0", 1.5 } }, { noRows });
    row("one text is one row", { { "0", "a|b" } }, { { { "a", "b" } } });
    row("a list of values is read as texts", { { "0", QVariantList { 1, "a|b" } } },
        { { { "1" }, { "a", "b" } } });
}

void TestKeltoItemParameterTransform::readsGroups()
{
    QFETCH(QVariantMap, groups);
    QTEST(Transform::to_multiGroup(groups), "expected");
}

void TestKeltoItemParameterTransform::writesGroups_data()
{
    QTest::addColumn<QVector<Table>>("groups");
    QTest::addColumn<QVariantMap>("expected");

    QTest::newRow("none") << QVector<Table>() << QVariantMap();
    QTest::newRow("positions are the keys")
        << QVector<Table> { { { "a", "b" } }, { { "c" } } }
        << QVariantMap { { "0", QStringList { "a|b" } }, { "1", QStringList { "c" } } };
    QTest::newRow("rows continue within a table and not beyond it")
        << QVector<Table> { { { "a" }, { "b" } }, { { "c" }, { "d" } } }
        << QVariantMap { { "0", QStringList { "a", "ab" } }, { "1", QStringList { "c", "cd" } } };
    QTest::newRow("a table without rows is an empty list")
        << QVector<Table> { {}, { {} } }
        << QVariantMap { { "0", QStringList() }, { "1", QStringList { "" } } };
}

void TestKeltoItemParameterTransform::writesGroups()
{
    QFETCH(QVector<Table>, groups);
    const QVariantMap written = Transform::from_multiGroup(groups);
    QTEST(written, "expected");
    for (const QVariant &table : written)
        QCOMPARE(table.type(), QVariant::StringList);
}

void TestKeltoItemParameterTransform::ordersGroupsAsTexts()
{
    const QVector<Table> tables
        = Transform::to_multiGroup(Transform::from_multiGroup(numberedTables(11)));
    const QVector<Table> expected { { { "0" } }, { { "1" } }, { { "10" } }, { { "2" } },
                                    { { "3" } }, { { "4" } }, { { "5" } },  { { "6" } },
                                    { { "7" } }, { { "8" } }, { { "9" } } };
    QCOMPARE(tables, expected);
}

void TestKeltoItemParameterTransform::canBeCalledOnAnInstance()
{
    Transform transform;
    QCOMPARE(transform.to_array({ "1", "2" }), (Numbers { 1, 2 }));
    QCOMPARE(Transform().from_array(Numbers { 1, 2 }), (QStringList { "1", "2" }));
    QCOMPARE(Transform().from_XDpoints({ { "a", "b" } }), QStringList { "a|b" });
    VParameter parameter(2.5, "n", "u", "s");
    QCOMPARE(transform.multiplication2D(&parameter, 2, { 3 }), QVariant(6.0));
}

QTEST_GUILESS_MAIN(TestKeltoItemParameterTransform)
#include "tst_keltoitemparametertransform.moc"

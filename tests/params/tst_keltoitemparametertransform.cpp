// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/KeltoItemParameterTransform>
#include <Kelto/VParameter>

#include <QTest>

#include <limits>

using Transform = KeltoItemParameterTransform;
using Table = QVector<QStringList>;
using Tables = QVector<Table>;
using Numbers = QVector<double>;
using Points = QVector<QPointF>;

Q_DECLARE_METATYPE(Tables)

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

QStringList exactly(const Points &points)
{
    QStringList texts;
    for (const QPointF &point : points)
        texts.append(exactly(Numbers { point.x(), point.y() }).join(" "));
    return texts;
}

/// @p value of a parameter with several values, multiplied.
QVariant multiplied(const QString &kind, const QVariant &value, const Numbers &factors)
{
    const VParameter parameter("own value", { "n", "n" }, {}, "s", {}, kind, true);
    return Transform::multiplication2D(&parameter, value, factors);
}

void row(const char *name, const QStringList &found, const QStringList &expected)
{
    QTest::newRow(name) << found << expected;
}

} // namespace

class TestKeltoItemParameterTransform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void converts_data()
    {
        QTest::addColumn<QStringList>("found");
        QTest::addColumn<QStringList>("expected");

        const auto numbers
            = [](const char *name, const Numbers &values, const QStringList &expected) {
                  row(name, Transform::from_array(values), expected);
              };
        numbers("no numbers", {}, {});
        numbers("at most six digits, in order, duplicates kept",
                { 0.1, 100000, 0, 1234567, 0.123456789, 0.1 },
                { "0.1", "100000", "0", "1.23457e+06", "0.123457", "0.1" });
        numbers("infinite and not a number", { infinity, -infinity, nan },
                { "inf", "-inf", "nan" });
        row("whole numbers with all digits",
            Transform::from_array(QVector<int> { 1234567, std::numeric_limits<int>::min() }),
            { "1234567", "-2147483648" });
        row("points, x before y",
            Transform::from_2Dpoints(Points { { 1.5, -2 }, { 1234567, nan } }),
            { "1.5|-2", "1.23457e+06|nan" });
        row("whole points with all digits",
            Transform::from_2Dpoints(QVector<QPoint> { { 1234567, -2 }, { 0, 3 } }),
            { "1234567|-2", "0|3" });

        const auto rows = [](const char *name, const Table &table, const QStringList &expected) {
            row(name, Transform::from_XDpoints(table), expected);
        };
        rows("no rows", {}, {});
        rows("each row behind all before it", { { "a", "b" }, { "c", "d" } }, { "a|b", "a|bc|d" });
        rows("a row without cells repeats the text before", { {}, { "a", "b" }, {}, { "c" } },
             { "", "a|b", "a|b", "a|bc" });
        rows("empty cells", { { "" }, { "", "" }, { "", "", "" } }, { "", "|", "|||" });
        rows("cells are not escaped", { { "a|b", "c" }, { "|" } }, { "a|b|c", "a|b|c|" });

        const auto read = [](const char *name, const QStringList &list, const Numbers &expected) {
            row(name, exactly(Transform::to_array(list)), exactly(expected));
        };
        read("no texts", {}, {});
        read("all digits, in order, duplicates kept", { "0.1234567890123", "-1E-3", "-1E-3" },
             { 0.1234567890123, -0.001, -0.001 });
        read("no number is 0, and not left out", { "1", "two", "", QString(), "1mm", "1,5", "3" },
             { 1, 0, 0, 0, 0, 0, 3 });
        read("infinite and not a number, from texts", { "inf", "-inf", "nan" },
             { infinity, -infinity, nan });

        const auto points = [](const char *name, const QStringList &list, const Points &expected) {
            row(name, exactly(Transform::to_2Dpoints(list)), exactly(expected));
        };
        points("a text of one part ends the points", { "1|2", "3", "4|5" }, { { 1, 2 } });
        points("a text of three parts ends the points", { "1|2", "3|4|", "4|5" }, { { 1, 2 } });
        points("an empty text ends the points", { "", "4|5" }, {});
        points("parts that are no numbers are 0", { "|", "|7", "x|2", "inf|nan" },
               { { 0, 0 }, { 0, 7 }, { 0, 2 }, { infinity, nan } });
    }
    void converts()
    {
        QFETCH(QStringList, found);
        QTEST(found, "expected");
    }

    void readsTables_data()
    {
        QTest::addColumn<QVariantMap>("groups");
        QTest::addColumn<Tables>("expected");

        const auto row = [](const char *name, const QVariantMap &groups, const Tables &expected) {
            QTest::newRow(name) << groups << expected;
        };
        const Table noRows;
        row("none", {}, {});
        row("empty cells are kept", { { "0", QStringList { "|a||", "", " a " } }, { "1", "d|e" } },
            { { { "", "a", "", "" }, { "" }, { " a " } }, { { "d", "e" } } });
        row("keys that are no numbers, by their characters",
            { { "b", "3" }, { "", "0" }, { "B", "2" }, { "-1", "1" } },
            { { { "0" } }, { { "1" } }, { { "2" } }, { { "3" } } });
        row("no texts are a table without rows",
            { { "0", QStringList() }, { "1", QVariant() }, { "2", 1.5 } },
            { noRows, noRows, noRows });
        row("a list of values is read as texts", { { "0", QVariantList { 1, "a|b" } } },
            { { { "1" }, { "a", "b" } } });
    }
    void readsTables()
    {
        QFETCH(QVariantMap, groups);
        QTEST(Transform::to_multiGroup(groups), "expected");
    }

    void writesGroups()
    {
        const Tables groups { { { "a", "b" }, { "c" } }, {}, { { "d" }, { "e" } } };
        const QVariantMap expected { { "0", QStringList { "a|b", "a|bc" } },
                                     { "1", QStringList() },
                                     { "2", QStringList { "d", "de" } } };
        QCOMPARE(Transform::from_multiGroup(groups), expected);
        QCOMPARE(Transform::from_multiGroup({}), QVariantMap());
    }

    void putsGroup10Before2()
    {
        Tables groups;
        for (int i = 0; i < 11; ++i)
            groups.append({ { QString::number(i) } });
        Tables expected = groups;
        expected.move(10, 2);
        QCOMPARE(Transform::to_multiGroup(Transform::from_multiGroup(groups)), expected);
    }

    void multipliesOneValue_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<Numbers>("factors");
        QTest::addColumn<double>("expected");

        const auto row
            = [](const char *name, const QVariant &value, const Numbers &factors, double expected) {
                  QTest::newRow(name) << value << factors << expected;
              };
        row("more digits than are ever written", 1.23456789, { 2 }, 2.46913578);
        row("a number as text, only the first factor counts", "2.5", { 3, 5, 7 }, 7.5);
        row("a missing factor is 1", 2.5, {}, 2.5);
        row("no number is 0", "two", { 2 }, 0);
        row("a list is no number", QStringList { "1", "2" }, { 2 }, 0);
        row("infinite times 0", infinity, { 0 }, nan);
    }
    /// Whatever the object name is.
    void multipliesOneValue()
    {
        QFETCH(QVariant, value);
        QFETCH(Numbers, factors);
        for (const char *objectName : { "float", "anything", "QVector<double>" }) {
            const VParameter parameter("own value", {}, {}, "", {}, objectName, false);
            const QVariant product = Transform::multiplication2D(&parameter, value, factors);
            QCOMPARE(product.type(), QVariant::Double);
            QTEST(product.toDouble(), "expected");
        }
    }

    void multipliesLists_data()
    {
        QTest::addColumn<QVariant>("product");
        QTest::addColumn<QStringList>("expected");

        const auto row = [](const char *name, const QString &kind, const QVariant &value,
                            const Numbers &factors, const QStringList &expected) {
            QTest::newRow(name) << multiplied("QVector<" + kind + ">", value, factors) << expected;
        };
        const QStringList numbers { "1", "2.5", "x" };
        row("float: all by the first factor", "float", numbers, { 2, 9 }, { "2", "5", "0" });
        row("double: a missing factor is 1", "double", "2.50", {}, { "2.5" });
        row("int: fractions stay, six digits", "int", QStringList { "3", "1234567" }, { 1.5 },
            { "4.5", "1.85185e+06" });
        row("a number is no list", "double", 2.5, { 2 }, {});
        row("a list of values", "double", QVariantList { 1, "2" }, { 2 }, { "2", "4" });

        const QStringList points { "1|2", "0.5|-1", "3", "4|5" };
        row("QPointF: the list ends where it is broken", "QPointF", points, { 2, 3, 9 },
            { "2|6", "1|-3" });
        row("QPoint: fractions stay", "QPoint", points, { 1.5, 1 }, { "1.5|2", "0.75|-1" });
        row("points: a missing second factor is 1", "QPointF", points, { 2 }, { "2|2", "1|-1" });
        row("points: missing factors are 1", "QPoint", points, {}, { "1|2", "0.5|-1" });
        row("table: not scaled, each row behind all before it", "QStringList",
            QStringList { "1|2.50", "3|x" }, { 2, 3 }, { "1|2.50", "1|2.503|x" });
    }
    void multipliesLists()
    {
        QFETCH(QVariant, product);
        QCOMPARE(product.type(), QVariant::StringList);
        QTEST(product.toStringList(), "expected");
    }

    void knowsNoOtherKinds()
    {
        for (const char *kind :
             { "", "float", "QVector<qreal>", "qvector<double>", "qvector<qstringlist>",
               "QVector<double> ", "QVector<QString>", "QStringList" })
            QVERIFY2(!multiplied(kind, QStringList { "1|2" }, { 2, 3 }).isValid(), kind);
        QVERIFY(!Transform::multiplication2D(nullptr, 2.5, { 2 }).isValid());
    }
};

QTEST_GUILESS_MAIN(TestKeltoItemParameterTransform)
#include "tst_keltoitemparametertransform.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/KeltoItemParameterTransform>
#include <Kelto/VParameter>

#include <QTest>

#include <limits>

using Transform = KeltoItemParameterTransform;
using Numbers = QVector<double>;

namespace {

const double infinity = std::numeric_limits<double>::infinity();
const double nan = std::numeric_limits<double>::quiet_NaN();

VParameter parameterOf(const QString &objectName, bool multi)
{
    return VParameter("own value", { "n", "n" }, {}, "s", {}, objectName, multi);
}

} // namespace

class TestKeltoItemParameterMultiplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void multipliesOneValue_data();
    void multipliesOneValue();
    void multipliesLists_data();
    void multipliesLists();
    void knowsNoOtherKinds_data();
    void knowsNoOtherKinds();
    void multipliesNothingWithoutAParameter();
    void leavesItsArgumentsAlone();
    void keepsLongListsInOrder();
};

void TestKeltoItemParameterMultiplication::multipliesOneValue_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Numbers>("factors");
    QTest::addColumn<double>("expected");

    const auto row = [](const char *name, const QVariant &value, const Numbers &factors,
                        double expected, const QString &objectName = "float") {
        QTest::newRow(name) << objectName << value << factors << expected;
    };
    row("a number", 2.5, { 2 }, 5);
    row("a whole number", 3, { 1.5 }, 4.5);
    row("a number as text", "2.5", { 2 }, 5);
    row("more digits than are ever written", 1.23456789, { 1 }, 1.23456789);
    row("only the first factor counts", 2, { 3, 5, 7 }, 6);
    row("a missing factor is 1", 2.5, {}, 2.5);
    row("no number is 0", "two", { 2 }, 0);
    row("no value is 0", QVariant(), { 2 }, 0);
    row("a list is no number", QStringList { "1", "2" }, { 2 }, 0);
    row("an infinite factor", 2, { -infinity }, -infinity);
    row("infinite times 0", infinity, { 0 }, nan);
    row("a factor that is not a number", 2, { nan }, nan);
    row("the object name does not matter", 2, { 3 }, 6, "anything");
    row("not even one of a list", "2", { 3 }, 6, "QVector<double>");
}

void TestKeltoItemParameterMultiplication::multipliesOneValue()
{
    QFETCH(QString, objectName);
    QFETCH(QVariant, value);
    QFETCH(Numbers, factors);
    const VParameter parameter = parameterOf(objectName, false);
    const QVariant product = Transform::multiplication2D(&parameter, value, factors);
    QCOMPARE(product.type(), QVariant::Double);
    QTEST(product.toDouble(), "expected");
}

void TestKeltoItemParameterMultiplication::multipliesLists_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Numbers>("factors");
    QTest::addColumn<QStringList>("expected");

    const auto row = [](const char *name, const QString &kind, const QVariant &value,
                        const Numbers &factors, const QStringList &expected) {
        QTest::newRow(name) << "QVector<" + kind + ">" << value << factors << expected;
    };
    const QStringList numbers { "1", "2.5", "x" };
    row("float: all by the first factor", "float", numbers, { 2, 9 }, { "2", "5", "0" });
    row("double: all by the first factor", "double", numbers, { 2, 9 }, { "2", "5", "0" });
    row("int: fractions stay", "int", QStringList { "3" }, { 1.5 }, { "4.5" });
    row("array: six digits", "int", QStringList { "1234567" }, { 1 }, { "1.23457e+06" });
    row("array: no texts", "double", QStringList(), { 2 }, {});
    row("array: no value", "double", QVariant(), { 2 }, {});
    row("array: a number is no list", "double", 2.5, { 2 }, {});
    row("array: one text is a list of one", "double", "2.5", { 2 }, { "5" });
    row("array: a list of values", "double", QVariantList { 1, "2" }, { 2 }, { "2", "4" });
    row("array: a missing factor is 1", "float", QStringList { "2.50" }, {}, { "2.5" });
    row("array: infinite and not a number", "float", QStringList { "1", "-1", "0", "nan" },
        { infinity }, { "inf", "-inf", "nan", "nan" });

    const QStringList points { "1|2", "0.5|-1" };
    row("QPointF: x by the first, y by the second", "QPointF", points, { 2, 3, 9 },
        { "2|6", "1|-3" });
    row("QPoint: x by the first, y by the second", "QPoint", QStringList { "1|2" }, { 2, 3 },
        { "2|6" });
    row("QPoint: fractions stay", "QPoint", points, { 1.5, 1 }, { "1.5|2", "0.75|-1" });
    row("points: a missing second factor is 1", "QPointF", points, { 2 }, { "2|2", "1|-1" });
    row("points: missing factors are 1", "QPoint", points, {}, points);
    row("points: the list ends where it is broken", "QPointF", QStringList { "1|2", "3", "4|5" },
        { 2, 3 }, { "2|6" });
    row("points: no texts", "QPointF", QStringList(), { 2, 3 }, {});
    row("points: infinite and not a number", "QPointF", QStringList { "0|1" },
        { infinity, -infinity }, { "nan|-inf" });

    row("table: not scaled", "QStringList", QStringList { "1|2.50|x" }, { 2, 3, 4 },
        { "1|2.50|x" });
    row("table: each row behind all before it", "QStringList", QStringList { "1|2", "3|4" },
        { 2, 3 }, { "1|2", "1|23|4" });
    row("table: more columns than factors", "QStringList", QStringList { "1|2|3" }, { 2 },
        { "1|2|3" });
    row("table: no factors", "QStringList", QStringList { "", "1" }, {}, { "", "1" });
    row("table: no texts", "QStringList", QStringList(), { 2 }, {});
}

void TestKeltoItemParameterMultiplication::multipliesLists()
{
    QFETCH(QString, objectName);
    QFETCH(QVariant, value);
    QFETCH(Numbers, factors);
    const VParameter parameter = parameterOf(objectName, true);
    const QVariant product = Transform::multiplication2D(&parameter, value, factors);
    QCOMPARE(product.type(), QVariant::StringList);
    QTEST(product.toStringList(), "expected");
}

void TestKeltoItemParameterMultiplication::knowsNoOtherKinds_data()
{
    QTest::addColumn<QString>("objectName");

    const QStringList names { "",
                              "float",
                              "QVector<qreal>",
                              "qvector<double>",
                              "QVector<Double>",
                              "QVector<double> ",
                              "QVector< double >",
                              "QVector<QPointF",
                              "QVector<QString>",
                              "QStringList" };
    for (const QString &name : names)
        QTest::newRow(qPrintable("'" + name + "'")) << name;
}

void TestKeltoItemParameterMultiplication::knowsNoOtherKinds()
{
    QFETCH(QString, objectName);
    const VParameter parameter = parameterOf(objectName, true);
    const QVariant product
        = Transform::multiplication2D(&parameter, QStringList { "1|2" }, { 2, 3 });
    QCOMPARE(product.isValid(), false);
}

void TestKeltoItemParameterMultiplication::multipliesNothingWithoutAParameter()
{
    QCOMPARE(Transform::multiplication2D(nullptr, 2.5, { 2 }).isValid(), false);
}

void TestKeltoItemParameterMultiplication::leavesItsArgumentsAlone()
{
    VParameter parameter = parameterOf("QVector<double>", true);
    const VParameter before = parameter;
    const QVariant value = QStringList { "1", "2" };
    const Numbers factors { 2 };
    const QVariant product = Transform::multiplication2D(&parameter, value, factors);
    QCOMPARE(product, QVariant(QStringList { "2", "4" }));
    QVERIFY(parameter.isEqual(&before));
    QCOMPARE(value, QVariant(QStringList { "1", "2" }));
    QCOMPARE(factors, Numbers { 2 });
}

void TestKeltoItemParameterMultiplication::keepsLongListsInOrder()
{
    QVector<QPoint> points;
    QVector<QPointF> expected;
    for (int i = 0; i < 100000; ++i) {
        points.append(QPoint(i, -i));
        expected.append(QPointF(2.0 * i, -3.0 * i));
    }
    const QStringList list = Transform::from_2Dpoints(points);
    const VParameter parameter = parameterOf("QVector<QPoint>", true);
    const QVariant product = Transform::multiplication2D(&parameter, list, { 2, 3 });
    QCOMPARE(product.toStringList(), Transform::from_2Dpoints(expected));
    QCOMPARE(Transform::to_2Dpoints(product.toStringList()), expected);
}

QTEST_GUILESS_MAIN(TestKeltoItemParameterMultiplication)
#include "tst_keltoitemparametertransform_multiplication.moc"

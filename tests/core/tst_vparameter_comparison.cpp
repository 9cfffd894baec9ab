// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/VParameter>

#include "core/vparameter_p.h"

#include <QTest>

#include <limits>

using NamePair = QPair<QString, QString>;

Q_DECLARE_METATYPE(VParameter)

namespace {

VParameter filled()
{
    return VParameter(1.5, { "n", "N" }, { "u", "U" }, "s", { "g", "G" }, "o", true);
}

VParameter withValue(const QVariant &value)
{
    VParameter parameter = filled();
    parameter.set(value);
    return parameter;
}

VParameter named(const QString &first, const QString &second)
{
    return VParameter(QVariant(), { first, second }, {}, "", {}, "", false);
}

} // namespace

class TestVParameterComparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matchesNames_data();
    void matchesNames();
    void comparesEachField_data();
    void comparesEachField();
    void comparesValues_data();
    void comparesValues();
    void takesNullForEmpty_data();
    void takesNullForEmpty();
    void isNotEqualToNothing();
    void isEqualToACopy();
    void isNotEqualToACopyWithoutANumber();
};

void TestVParameterComparison::matchesNames_data()
{
    QTest::addColumn<VParameter>("parameter");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");

    const auto row
        = [](const char *name, const NamePair &names, const QString &text, bool expected) {
              QTest::newRow(name) << named(names.first, names.second) << text << expected;
          };
    row("exactly the plain name", { "a", "b" }, "a", true);
    row("exactly the translated name", { "a", "b" }, "b", true);
    row("another name", { "a", "b" }, "c", false);
    row("both names together", { "a", "b" }, "ab", false);
    row("a part of the name", { "inner diameter", "x" }, "inner", false);
    row("spaces and case", { "Young's modulus", "x" }, "Young's Modulus", true);
    row("underscore and case", { "Young's modulus", "x" }, "young's_modulus", true);
    row("hyphen and case", { "Young's modulus", "x" }, "YOUNG'S-MODULUS", true);
    row("underscore for a space", { "Inner Diameter", "x" }, "inner_diameter", true);
    row("underscore for a hyphen of the translated name", { "x", "inner-diameter" },
        "inner_diameter", true);
    row("a trailing dot counts", { "Inner Diameter", "inner-diameter" }, "innerdiameter.", false);
    row("an apostrophe counts", { "Young's modulus", "x" }, "youngs modulus", false);
    row("a slash counts", { "a/b", "x" }, "ab", false);
    row("separators at both ends and in rows", { "__a  b--", "x" }, " - a_-_b", true);
    row("a tab counts", { "a\tb", "x" }, "ab", false);
    row("a no-break space counts", { QString("a") + QChar(0x00a0) + "b", "x" }, "ab", false);
    row("a long dash counts", { QString("a") + QChar(0x2013) + "b", "x" }, "ab", false);
    row("case beyond ASCII", { QString::fromUtf8("Länge"), "x" }, QString::fromUtf8("LÄNGE"), true);
    row("a letter with two capital ones is not these two", { "ß", "x" }, "SS", false);
    row("nor are they that letter", { "SS", "x" }, "ß", false);
    row("Greek in capital and small letters", { "x", "ΟΔΟΣ" }, "οδοσ", true);
    row("a letter that looks different at the end of a word is another one", { "x", "ΟΔΟΣ" },
        "οδος", false);
    row("Chinese", { "x", QString::fromUtf8("弹性 模量") }, QString::fromUtf8("弹性模量"), true);
    row("an empty text is no name", { "a", "b" }, "", false);
    row("an empty text is an empty name", { "a", "" }, "", true);
    row("a null text is an empty name", { "", "b" }, QString(), true);
    row("a text of separators is a null name", { QString(), "b" }, " _-", true);
    row("an empty text is a name of separators", { "- -", "b" }, "", true);
}

void TestVParameterComparison::matchesNames()
{
    QFETCH(VParameter, parameter);
    QFETCH(QString, text);
    QTEST(parameter.isName(text), "expected");
}

void TestVParameterComparison::comparesEachField_data()
{
    QTest::addColumn<VParameter>("other");

    const NamePair n("n", "N");
    const NamePair u("u", "U");
    const NamePair g("g", "G");
    const auto row
        = [](const char *name, const VParameter &other) { QTest::newRow(name) << other; };
    row("plain name", VParameter(1.5, { "x", "N" }, u, "s", g, "o", true));
    row("translated name", VParameter(1.5, { "n", "x" }, u, "s", g, "o", true));
    row("names swapped", VParameter(1.5, { "N", "n" }, u, "s", g, "o", true));
    row("names that isName() takes for equal",
        VParameter(1.5, { "n_", "N" }, u, "s", g, "o", true));
    row("case of the name", VParameter(1.5, { "N", "N" }, u, "s", g, "o", true));
    row("first unit", VParameter(1.5, n, { "x", "U" }, "s", g, "o", true));
    row("second unit", VParameter(1.5, n, { "u", "x" }, "s", g, "o", true));
    row("symbol", VParameter(1.5, n, u, "x", g, "o", true));
    row("case of the symbol", VParameter(1.5, n, u, "S", g, "o", true));
    row("plain group", VParameter(1.5, n, u, "s", { "x", "G" }, "o", true));
    row("translated group", VParameter(1.5, n, u, "s", { "g", "x" }, "o", true));
    row("name and group swapped", VParameter(1.5, g, u, "s", n, "o", true));
    row("object name", VParameter(1.5, n, u, "s", g, "x", true));
    row("one value instead of several", VParameter(1.5, n, u, "s", g, "o", false));
    row("all but the value", VParameter(1.5, {}, {}, "", {}, "", false));
}

void TestVParameterComparison::comparesEachField()
{
    QFETCH(VParameter, other);
    const VParameter parameter = filled();
    QVERIFY(!parameter.isEqual(&other));
    QVERIFY(!other.isEqual(&parameter));
}

void TestVParameterComparison::comparesValues_data()
{
    QTest::addColumn<VParameter>("parameter");
    QTest::addColumn<VParameter>("other");
    QTest::addColumn<bool>("expected");

    const auto row
        = [](const char *name, const QVariant &value, const QVariant &other, bool expected) {
              QTest::newRow(name) << withValue(value) << withValue(other) << expected;
          };
    row("equal numbers", 1.5, 1.5, true);
    row("numbers that differ", 1.5, 2.5, false);
    row("equal texts", "x", "x", true);
    row("texts that differ by case", "x", "X", false);
    row("no value on either side", QVariant(), QVariant(), true);
    row("no value on this side", QVariant(), 1.5, false);
    row("no value on the other side", 1.5, QVariant(), false);
    row("a whole number and its text", 1, "1", true);
    row("a text and its whole number", "1", 1, true);
    row("a whole and a floating-point number", 1, 1.0, true);
    row("the other text becomes a number", 1, "01", true);
    row("the other number becomes a text", "01", 1, false);
    row("a number and a word", 1, "one", false);
    row("equal lists", QStringList { "a", "b" }, QStringList { "a", "b" }, true);
    row("lists in another order", QStringList { "a", "b" }, QStringList { "b", "a" }, false);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    row("not a number", nan, nan, false);
    const double infinity = std::numeric_limits<double>::infinity();
    row("infinite numbers", infinity, infinity, true);
    row("infinite numbers of opposite signs", infinity, -infinity, false);
}

void TestVParameterComparison::comparesValues()
{
    QFETCH(VParameter, parameter);
    QFETCH(VParameter, other);
    QFETCH(bool, expected);
    QCOMPARE(parameter.isEqual(&other), expected);
    if (expected)
        QCOMPARE(parameterHash(parameter), parameterHash(other));
}

void TestVParameterComparison::takesNullForEmpty_data()
{
    QTest::addColumn<VParameter>("parameter");

    QTest::newRow("cleared") << VParameter();
    QTest::newRow("null texts") << VParameter(QStringList());
    QTest::newRow("empty texts") << VParameter(QVariant(), { "", "" }, { "", "" }, "", { "", "" },
                                               "", false);
    QTest::newRow("an entry of empty texts") << VParameter(QVector<QString>(9, "").toList());
}

void TestVParameterComparison::takesNullForEmpty()
{
    QFETCH(VParameter, parameter);
    const VParameter empty;
    QVERIFY(empty.isEqual(&parameter));
    QVERIFY(parameter.isEqual(&empty));
    QCOMPARE(parameterHash(parameter), parameterHash(empty));
}

void TestVParameterComparison::isNotEqualToNothing()
{
    QVERIFY(!VParameter().isEqual(nullptr));
    QVERIFY(!filled().isEqual(nullptr));
}

void TestVParameterComparison::isEqualToACopy()
{
    const VParameter parameter = filled();
    VParameter copy = parameter;
    QVERIFY(parameter.isEqual(&parameter));
    QVERIFY(parameter.isEqual(&copy));

    copy.set(copy.toSetsForm());
    QVERIFY(parameter.isEqual(&copy));
    copy.set(2.5);
    QVERIFY(!parameter.isEqual(&copy));
}

void TestVParameterComparison::isNotEqualToACopyWithoutANumber()
{
    const VParameter parameter = withValue(std::numeric_limits<double>::quiet_NaN());
    const VParameter copy = parameter;
    QVERIFY(!parameter.isEqual(&copy));
    QVERIFY(!parameter.isEqual(&parameter));
}

QTEST_GUILESS_MAIN(TestVParameterComparison)
#include "tst_vparameter_comparison.moc"

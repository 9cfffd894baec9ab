// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/VParameter>

#include <QTest>
#include <QVector>

#include <limits>
#include <type_traits>
#include <utility>

using Change = void (*)(VParameter &);
using NamePair = QPair<QString, QString>;

Q_DECLARE_METATYPE(VParameter)
Q_DECLARE_METATYPE(Change)

namespace {

/// Tells null texts from empty ones.
QString shown(const QString &text)
{
    return text.isNull() ? QString("null") : QString("'" + text + "'");
}

/// Tells the types of values apart.
QString shown(const QVariant &value)
{
    const bool isList = value.type() == QVariant::StringList || value.type() == QVariant::List;
    const QString text = isList ? value.toStringList().join(",") : value.toString();
    return value.isValid() ? QString(value.typeName()) + " " + text : QString("no value");
}

/// All fields; the group comes before the name and the value last.
QStringList fields(const VParameter &parameter)
{
    return { shown(parameter.group().first),
             shown(parameter.group().second),
             shown(parameter.name().first),
             shown(parameter.name().second),
             shown(parameter.unit().first),
             shown(parameter.unit().second),
             shown(parameter.symbol()),
             shown(parameter.parameterObjectName()),
             parameter.isMulti() ? "multi" : "single",
             shown(parameter.value()) };
}

QStringList fieldsWith(QStringList texts, const QString &multi, const QString &value)
{
    return texts << multi << value;
}

VParameter filled()
{
    return VParameter(1.5, { "n", "N" }, { "u", "U" }, "s", { "g", "G" }, "o", true);
}

QStringList filledTexts()
{
    return { "'g'", "'G'", "'n'", "'N'", "'u'", "'U'", "'s'", "'o'" };
}

QStringList cleared()
{
    return { "null", "null", "null", "null", "null", "null", "''", "''", "single", "no value" };
}

QStringList untouched()
{
    return { "null", "null", "null", "null", "null", "null", "null", "null", "single", "no value" };
}

QStringList entry(const QString &multi)
{
    return { "0", "1", "2", multi, "4", "5", "6", "7", "8" };
}

QStringList entryTexts()
{
    return { "'0'", "'8'", "'1'", "'7'", "'4'", "'5'", "'6'", "'2'" };
}

/// Runs a row of the columns change and expected.
void checkChange()
{
    QFETCH(Change, change);
    VParameter parameter = filled();
    change(parameter);
    QTEST(fields(parameter), "expected");
}

void addChange(const char *name, const QStringList &expected, Change change)
{
    QTest::newRow(name) << change << expected;
}

void addChangeColumns()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QStringList>("expected");
}

} // namespace

class TestVParameter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructs_data();
    void constructs();
    void setsTheValue_data();
    void setsTheValue();
    void readsSetsForm_data();
    void readsSetsForm();
    void keepsTheFlagWithAnotherWord_data();
    void keepsTheFlagWithAnotherWord();
    void replacesAllFields_data();
    void replacesAllFields();
    void writesSetsForm_data();
    void writesSetsForm();
    void restoresAllButTheValue_data();
    void restoresAllButTheValue();
    void copiesAreIndependent_data();
    void copiesAreIndependent();
    void canBeUsedAfterMoving();
    void canBeHeldByContainers();
};

void TestVParameter::constructs_data()
{
    QTest::addColumn<VParameter>("parameter");
    QTest::addColumn<QStringList>("expected");

    const QString null;
    const double infinity = std::numeric_limits<double>::infinity();
    const QStringList length {
        "''", "''", "'Length'", "'Length'", "'mm'", "'mm'", "'L'", "'float'"
    };

    QTest::newRow("empty: pairs are null, symbol and object name are not")
        << VParameter() << cleared();
    QTest::newRow("seven fields") << filled() << fieldsWith(filledTexts(), "multi", "double 1.5");
    QTest::newRow("seven null fields stay null")
        << VParameter(QVariant(), {}, {}, null, {}, null, false) << untouched();
    QTest::newRow("seven empty fields stay empty")
        << VParameter("", { "", "" }, { "", "" }, "", { "", "" }, "", true)
        << fieldsWith(QVector<QString>(8, "''").toList(), "multi", "QString ");
    QTest::newRow("a floating-point value")
        << VParameter(2.5, "Length", "mm", "L") << fieldsWith(length, "single", "double 2.5");
    QTest::newRow("a whole number becomes a floating-point value")
        << VParameter(2, "Length", "mm", "L") << fieldsWith(length, "single", "double 2");
    QTest::newRow("an infinite value")
        << VParameter(infinity, "Length", "mm", "L") << fieldsWith(length, "single", "double inf");
    QTest::newRow("a value that is no number")
        << VParameter(std::numeric_limits<double>::quiet_NaN(), "Length", "mm", "L")
        << fieldsWith(length, "single", "double nan");
    QTest::newRow("a floating-point value without texts has no null group")
        << VParameter(0.0, null, null, null)
        << QStringList { "''",   "''",   "null",    "null",   "null",
                         "null", "null", "'float'", "single", "double 0" };
    QTest::newRow("an entry of one value")
        << VParameter(entry("false")) << fieldsWith(entryTexts(), "single", "no value");
    QTest::newRow("an entry of several values")
        << VParameter(entry("true")) << fieldsWith(entryTexts(), "multi", "no value");
    QTest::newRow("an entry with a capital True")
        << VParameter(entry("True")) << fieldsWith(entryTexts(), "single", "no value");
    QTest::newRow("an entry of eight texts") << VParameter(entry("true").mid(1)) << untouched();
    QTest::newRow("an entry of ten texts") << VParameter(entry("true") << "9") << untouched();
    QTest::newRow("an entry without texts") << VParameter(QStringList()) << untouched();
    QTest::newRow("a copy") << VParameter(filled())
                            << fieldsWith(filledTexts(), "multi", "double 1.5");
}

void TestVParameter::constructs()
{
    QFETCH(VParameter, parameter);
    QTEST(fields(parameter), "expected");
}

void TestVParameter::setsTheValue_data()
{
    addChangeColumns();
    const auto row = [](const char *name, const QString &value, Change change) {
        addChange(name, fieldsWith(filledTexts(), "multi", value), change);
    };

    row("a number", "double 2.5", [](VParameter &p) { p.set(2.5); });
    row("a whole number", "int 0", [](VParameter &p) { p.set(0); });
    row("a truth value", "bool true", [](VParameter &p) { p.set(true); });
    row("a literal", "QString x", [](VParameter &p) { p.set("x"); });
    row("a text", "QString x", [](VParameter &p) { p.set(QString("x")); });
    row("a Latin-1 text", "QString x", [](VParameter &p) { p.set(QLatin1String("x")); });
    row("a QVariant", "QString x", [](VParameter &p) { p.set(QVariant("x")); });
    row("an invalid QVariant", "no value", [](VParameter &p) { p.set(QVariant()); });
    const Change setToList = [](VParameter &p) { p.set(QVariantList { 1, 2 }); };
    row("a list of values", "QVariantList 1,2", setToList);
    row("a list in a QVariant, even of nine texts", "QStringList 0,1,2,true,4,5,6,7,8",
        [](VParameter &p) { p.set(QVariant(entry("true"))); });
}

void TestVParameter::setsTheValue()
{
    checkChange();
}

void TestVParameter::readsSetsForm_data()
{
    addChangeColumns();
    const QStringList single = fieldsWith(entryTexts(), "single", "double 1.5");
    const QStringList multi = fieldsWith(entryTexts(), "multi", "double 1.5");
    const QStringList unchanged = fieldsWith(filledTexts(), "multi", "double 1.5");

    addChange("keeps the value", single, [](VParameter &p) { p.set(entry("false")); });
    const Change setInPlace = [](VParameter &p) {
        p.set({ "0", "1", "2", "false", "4", "5", "6", "7", "8" });
    };
    addChange("written in place", single, setInPlace);
    addChange("the word true", multi, [](VParameter &p) { p.set(entry("true")); });
    const Change clearAndSet = [](VParameter &p) { p.clear(), p.set(entry("TRUE")); };
    addChange("TRUE does not set a cleared() flag", fieldsWith(entryTexts(), "single", "no value"),
              clearAndSet);
    const Change setTwice = [](VParameter &p) { p.set(entry("false")), p.set(entry("true")); };
    addChange("true after false", multi, setTwice);
    addChange("null texts stay null",
              fieldsWith(QVector<QString>(8, "null").toList(), "multi", "double 1.5"),
              [](VParameter &p) { p.set(QVector<QString>(9).toList()); });
    addChange("eight texts change nothing", unchanged,
              [](VParameter &p) { p.set(entry("false").mid(1)); });
    addChange("ten texts change nothing", unchanged,
              [](VParameter &p) { p.set(entry("false") << "9"); });
    addChange("no texts change nothing", unchanged, [](VParameter &p) { p.set(QStringList()); });
}

void TestVParameter::readsSetsForm()
{
    checkChange();
}

void TestVParameter::keepsTheFlagWithAnotherWord_data()
{
    QTest::addColumn<QString>("word");

    QTest::newRow("one") << "1";
    QTest::newRow("zero") << "0";
    QTest::newRow("capital letters") << "TRUE";
    QTest::newRow("capital letters, false") << "FALSE";
    QTest::newRow("a capital letter") << "True";
    QTest::newRow("a capital letter, false") << "False";
    QTest::newRow("a space in front") << " true";
    QTest::newRow("a space in front, false") << " false";
    QTest::newRow("a space behind") << "true ";
    QTest::newRow("a space behind, false") << "false ";
    QTest::newRow("the first letter") << "t";
    QTest::newRow("the first letter, false") << "f";
    QTest::newRow("more letters") << "trueish";
    QTest::newRow("yes") << "yes";
    QTest::newRow("no") << "no";
    QTest::newRow("on") << "on";
    QTest::newRow("off") << "off";
    QTest::newRow("multi") << "multi";
    QTest::newRow("a space") << " ";
    QTest::newRow("empty") << "";
    QTest::newRow("null") << QString();
}

void TestVParameter::keepsTheFlagWithAnotherWord()
{
    QFETCH(QString, word);
    for (bool multi : { false, true }) {
        VParameter parameter(1.5, { "n", "N" }, { "u", "U" }, "s", { "g", "G" }, "o", multi);
        parameter.set(entry(word));
        QCOMPARE(fields(parameter),
                 fieldsWith(entryTexts(), multi ? "multi" : "single", "double 1.5"));
    }
}

void TestVParameter::replacesAllFields_data()
{
    addChangeColumns();
    const QStringList unchanged = fieldsWith(filledTexts(), "multi", "double 1.5");
    const QStringList others { "'g2'", "'G2'", "'n2'", "'N2'", "'u2'", "'U2'", "'s2'", "'o2'" };

    const Change setSeven = [](VParameter &p) {
        p.set(2, { "n2", "N2" }, { "u2", "U2" }, "s2", { "g2", "G2" }, "o2", false);
    };
    addChange("set to seven fields", fieldsWith(others, "single", "int 2"), setSeven);
    addChange("set to another parameter", fieldsWith(entryTexts(), "single", "no value"),
              [](VParameter &p) { p.set(VParameter(entry("false"))); });
    addChange("set to an empty parameter", cleared(), [](VParameter &p) { p.set(VParameter()); });
    addChange("set to null texts", untouched(),
              [](VParameter &p) { p.set(VParameter(QStringList())); });
    addChange("set to itself", unchanged, [](VParameter &p) { p.set(p); });
    addChange("assigned", cleared(), [](VParameter &p) { p = VParameter(); });
    const Change assignItself = [](VParameter &p) {
        const VParameter &same = p;
        p = same;
    };
    addChange("assigned to itself", unchanged, assignItself);
    addChange("cleared", cleared(), [](VParameter &p) { p.clear(); });
    addChange("cleared() twice", cleared(), [](VParameter &p) { p.clear(), p.clear(); });
}

void TestVParameter::replacesAllFields()
{
    checkChange();
}

void TestVParameter::writesSetsForm_data()
{
    QTest::addColumn<VParameter>("parameter");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("a cleared() parameter")
        << VParameter() << QStringList { "", "", "", "false", "", "", "", "", "" };
    QTest::newRow("the order of the places, without the value")
        << filled() << QStringList { "g", "n", "o", "true", "u", "U", "s", "N", "G" };
    QTest::newRow("one value") << VParameter(entry("false")) << entry("false");
    QTest::newRow("an unknown word comes back as false")
        << VParameter(entry("yes")) << entry("false");
    QTest::newRow("a floating-point value")
        << VParameter(2.5, "Length", "mm", "L")
        << QStringList { "", "Length", "float", "false", "mm", "mm", "L", "Length", "" };
}

void TestVParameter::writesSetsForm()
{
    QFETCH(VParameter, parameter);
    QTEST(parameter.toSetsForm(), "expected");
}

void TestVParameter::restoresAllButTheValue_data()
{
    QTest::addColumn<VParameter>("parameter");

    QTest::newRow("empty") << VParameter();
    QTest::newRow("null texts") << VParameter(QStringList());
    QTest::newRow("filled") << filled();
    QTest::newRow("one value") << VParameter(2.5, "Length", "mm", "L");
    QTest::newRow("words and separators as texts")
        << VParameter(1, { "true", "false" }, { "|", ":" }, "/", { " ", "\n" }, "-_", true);
}

void TestVParameter::restoresAllButTheValue()
{
    QFETCH(VParameter, parameter);
    VParameter restored;
    restored.set(parameter.toSetsForm());
    QCOMPARE(shown(restored.value()), QString("no value"));

    restored.set(parameter.value());
    QCOMPARE(fields(restored), fields(parameter));
    QVERIFY(restored.isEqual(&parameter));
}

void TestVParameter::copiesAreIndependent_data()
{
    QTest::addColumn<Change>("change");

    const auto row = [](const char *name, Change change) { QTest::newRow(name) << change; };
    row("value", [](VParameter &p) { p.set(2.5); });
    row("seven fields", [](VParameter &p) { p.set(2, {}, {}, "", {}, "", false); });
    row("entry", [](VParameter &p) { p.set(entry("false")); });
    row("other parameter", [](VParameter &p) { p.set(VParameter(entry("true"))); });
    row("assignment", [](VParameter &p) { p = VParameter(); });
    row("clear", [](VParameter &p) { p.clear(); });
}

void TestVParameter::copiesAreIndependent()
{
    QFETCH(Change, change);
    const QStringList before = fields(filled());

    VParameter original = filled();
    VParameter copy = original;
    VParameter taken;
    taken.set(original);
    change(original);
    QVERIFY(fields(original) != before);
    QCOMPARE(fields(copy), before);
    QCOMPARE(fields(taken), before);

    original = copy;
    change(copy);
    QVERIFY(fields(copy) != before);
    QCOMPARE(fields(original), before);
}

void TestVParameter::canBeUsedAfterMoving()
{
    const QStringList before = fields(filled());
    VParameter source = filled();
    const VParameter constructed = std::move(source);
    QCOMPARE(fields(constructed), before);
    QCOMPARE(fields(source), before);

    VParameter assigned;
    assigned = std::move(source);
    QCOMPARE(fields(assigned), before);
    QCOMPARE(source.toSetsForm(), filled().toSetsForm());
    source.clear();
    QCOMPARE(fields(source), cleared());
    QCOMPARE(fields(assigned), before);
}

void TestVParameter::canBeHeldByContainers()
{
    QVector<VParameter> parameters(2);
    for (int i = 0; i < 1000; ++i)
        parameters.append(VParameter(i, QString::number(i), "", ""));
    parameters.remove(0);
    QCOMPARE(parameters.size(), 1001);
    QCOMPARE(fields(parameters.first()), cleared());
    QCOMPARE(parameters.last().name(), NamePair("999", "999"));
    QCOMPARE(parameters.last().value(), QVariant(999.0));

    const bool isMovedInMemory = !QTypeInfo<VParameter>::isStatic;
    QVERIFY(isMovedInMemory);
    const bool listsConvert = std::is_convertible<QStringList, VParameter>::value;
    QVERIFY(!listsConvert);
}

QTEST_GUILESS_MAIN(TestVParameter)
#include "tst_vparameter.moc"

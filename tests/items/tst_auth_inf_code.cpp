// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The source text of a module item, letter by letter.

#include "support/referencefile.h"

#include <Kelto/AUTH_INF>

#include <QRegularExpression>
#include <QTest>

#include <limits>

namespace {

const char calculation[] = "calculation";

QStringList entry(const QString &key)
{
    return { "g", key, "float", "false", "mm", "m", "s", key + " tr", "g tr" };
}

AUTH_INF itemOfType(const QString &type)
{
    AUTH_INF item;
    item.type = type;
    return item;
}

AUTH_INF calculationWithModes(int count, const QVector<QVector<QStringList>> &parameters)
{
    AUTH_INF item = itemOfType(calculation);
    item.inner_mode_count = count;
    item.inner_mode_parameterList = parameters;
    return item;
}

AUTH_INF calculationWithResults(const QVector<QStringList> &results)
{
    AUTH_INF item = itemOfType(calculation);
    item.output_results = results;
    return item;
}

template <typename Value> AUTH_INF itemWith(Value AUTH_INF::*field, const Value &value)
{
    AUTH_INF item;
    item.*field = value;
    return item;
}

AUTH_INF itemWithExtraKeys(const QVector<VDataItem> &extraKeys)
{
    return itemWith(&AUTH_INF::extraKey, extraKeys);
}

/// An item whose plain and translated texts differ everywhere.
AUTH_INF fullItem(const QString &type)
{
    AUTH_INF item = itemOfType(type);
    item.number = 7;
    item.name = "梁";
    item.name_tr = "Beam";
    item.description = "弯曲 and shear";
    item.icon = ":/icons/beam.svg";
    item.type_tr = "计算";
    item.group = "Bridges";
    item.group_tr = "静力";
    item.exclusive_group = true;
    item.lib_name = QStringList { "beam", "solver" };
    item.inner_mode_count = 2;
    item.inner_mode_description = QStringList { "one end", "两端" };
    item.inner_mode_nameList = QStringList { "Cantilever", "简支" };
    item.inner_mode_nameList_tr = QStringList { "悬臂", "Simple" };
    item.inner_mode_parameterList = { { entry("Load"), entry("长度") }, { entry("Load") } };
    item.trObjectName = "BeamTexts";
    item.codeFunctionName = "beamItem";
    item.output_results = { entry("Deflection"), entry("应力") };
    item.extraKey = { { "page", 12 }, { "author", "王" } };
    return item;
}

/// The statements on @p member of a variable "inf", each with the line break at its end.
QString statementsOn(const QString &member, const QString &text)
{
    QString found;
    bool inside = false;
    const QStringList lines = text.split('\n');
    for (const QString &line : lines) {
        if (line.startsWith("inf." + member + "=") || line.startsWith("inf." + member + ".")
            || line.startsWith("inf." + member + "<<"))
            inside = true;
        if (inside)
            found += line + "\n";
        if (line.endsWith(';'))
            inside = false;
    }
    return found;
}

/// What each statement is about, in order, without doubles.
QStringList membersIn(const QString &text)
{
    static const QRegularExpression statement("^inf\\.(\\w+)", QRegularExpression::MultilineOption);
    QStringList members;
    for (auto found = statement.globalMatch(text); found.hasNext();)
        members.append(found.next().captured(1));
    members.removeDuplicates();
    return members;
}

} // namespace

Q_DECLARE_METATYPE(AUTH_INF)

class TestAuthInfCode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalsReference_data();
    void equalsReference();
    void writesStatement_data();
    void writesStatement();
    void writesExtraValue_data();
    void writesExtraValue();
    void writesMembersInOrder_data();
    void writesMembersInOrder();
    void choosesContextAndVariable_data();
    void choosesContextAndVariable();
    void endsWithTheLastOfAMillionModes_data();
    void endsWithTheLastOfAMillionModes();
};

void TestAuthInfCode::equalsReference_data()
{
    QTest::addColumn<AUTH_INF>("item");
    QTest::addColumn<QString>("file");

    QTest::newRow("a default item") << AUTH_INF() << "default.txt";
    QTest::newRow("a calculation") << fullItem(calculation) << "calculation.txt";
    QTest::newRow("an item of another type has no parameters and no results")
        << fullItem("tool") << "tool.txt";
    QTest::newRow("the type differs by case") << fullItem("Calculation") << "othercase.txt";
}

void TestAuthInfCode::equalsReference()
{
    QFETCH(AUTH_INF, item);
    QFETCH(QString, file);
    const QString difference
        = differenceFromReference(item.to_code(), QStringLiteral(KELTO_TEST_DATA "/") + file);
    QVERIFY2(difference.isEmpty(), qUtf8Printable(difference));
}

void TestAuthInfCode::writesStatement_data()
{
    QTest::addColumn<AUTH_INF>("item");
    QTest::addColumn<QString>("member");
    QTest::addColumn<QString>("expected");

    const auto row
        = [](const char *name, const AUTH_INF &item, const QString &member,
             const QString &expected) { QTest::newRow(name) << item << member << expected; };
    using Item = AUTH_INF;
    const auto named = [](const QString &name) { return itemWith(&Item::name, name); };
    row("a number", itemWith(&Item::number, 12), "number", "inf.number=12;\n");
    row("the least number", itemWith(&Item::number, std::numeric_limits<int>::min()), "number",
        "inf.number=-2147483648;\n");
    row("a name", named("Beam"), "name", "inf.name=\"Beam\";\n");
    row("a Chinese name", named("梁"), "name", "inf.name=\"梁\";\n");
    row("an empty name", named(""), "name", "inf.name=\"\";\n");
    row("a double quote is not escaped", named("a\"b"), "name", "inf.name=\"a\"b\";\n");
    row("a backslash is not escaped", named("a\\b"), "name", "inf.name=\"a\\b\";\n");
    row("a percent sign", named("%1"), "name", "inf.name=\"%1\";\n");
    row("a translated name is made from the plain one", fullItem("tool"), "name_tr",
        "inf.name_tr=BeamTexts::tr(\"梁\");\n");
    row("a description is translated", itemWith(&Item::description, QString("text")), "description",
        "inf.description=UCal::tr(\"text\");\n");
    row("an empty description", AUTH_INF(), "description", "inf.description=UCal::tr(\"\");\n");
    row("an icon", itemWith(&Item::icon, QString("a.svg")), "icon", "inf.icon=\"a.svg\";\n");
    row("a type", itemOfType("tool"), "type", "inf.type=\"tool\";\n");
    row("a translated type is made from the plain one", fullItem("tool"), "type_tr",
        "inf.type_tr=BeamTexts::tr(\"tool\");\n");
    row("a group", fullItem("tool"), "group", "inf.group=\"Bridges\";\n");
    row("a translated group is made from the plain one", fullItem("tool"), "group_tr",
        "inf.group_tr=BeamTexts::tr(\"Bridges\");\n");
    row("an exclusive group", fullItem("tool"), "exclusive_group", "inf.exclusive_group=true;\n");
    row("no exclusive group", AUTH_INF(), "exclusive_group", "inf.exclusive_group=false;\n");
    row("no library", AUTH_INF(), "lib_name", "inf.lib_name=QStringList{\n};\n");
    row("one library", itemWith(&Item::lib_name, QStringList { "a" }), "lib_name",
        "inf.lib_name=QStringList{\n    \"a\"\n};\n");
    row("three libraries", itemWith(&Item::lib_name, QStringList { "a", "", "c" }), "lib_name",
        "inf.lib_name=QStringList{\n    \"a\",\n    \"\",\n    \"c\"\n};\n");
    row("a number of modes", itemWith(&Item::inner_mode_count, -1), "inner_mode_count",
        "inf.inner_mode_count=-1;\n");
    row("mode descriptions are translated", fullItem("tool"), "inner_mode_description",
        "inf.inner_mode_description=QStringList{\n    BeamTexts::tr(\"one end\"),\n"
        "    BeamTexts::tr(\"两端\")\n};\n");
    row("mode names", fullItem("tool"), "inner_mode_nameList",
        "inf.inner_mode_nameList=QStringList{\n    \"Cantilever\",\n    \"简支\"\n};\n");
    row("translated mode names are made from the plain ones", fullItem("tool"),
        "inner_mode_nameList_tr",
        "inf.inner_mode_nameList_tr=QStringList{\n    BeamTexts::tr(\"Cantilever\"),\n"
        "    BeamTexts::tr(\"简支\")\n};\n");
    row("a translation context", fullItem("tool"), "trObjectName",
        "inf.trObjectName=\"BeamTexts\";\n");
    row("a function name", fullItem("tool"), "codeFunctionName",
        "inf.codeFunctionName=\"beamItem\";\n");

    const QString modes = "inner_mode_parameterList";
    const QString clear = "inf.inner_mode_parameterList.clear();\n";
    const QString mode = "inf.inner_mode_parameterList<<QVector<QStringList>();\n";
    const QString first = "inf.inner_mode_parameterList.data()[0]<<QStringList{\n";
    const QString second = "inf.inner_mode_parameterList.data()[1]<<QStringList{\n";
    const QString x
        = "    \"g\",\n    \"x\",\n    \"float\",\n    \"false\",\n    \"mm\",\n"
          "    \"m\",\n    \"s\",\n    UCal::tr(\"x tr\"),\n    UCal::tr(\"g tr\")\n};\n";
    row("the mode of a default item is empty", itemOfType(calculation), modes, clear + mode);
    row("one parameter", calculationWithModes(1, { { entry("x") } }), modes,
        clear + mode + first + x);
    row("two parameters of a mode", calculationWithModes(1, { { entry("x"), entry("x") } }), modes,
        clear + mode + first + x + first + x);
    row("a parameter of a second mode", calculationWithModes(2, { {}, { entry("x") } }), modes,
        clear + mode + mode + second + x);
    row("more modes than lists are empty", calculationWithModes(3, { { entry("x") } }), modes,
        clear + mode + first + x + mode + mode);
    row("fewer modes than lists leave the others out",
        calculationWithModes(1, { {}, { entry("x") } }), modes, clear + mode);
    row("no modes", calculationWithModes(0, { { entry("x") } }), modes, clear);
    row("a negative number of modes", calculationWithModes(-1, { { entry("x") } }), modes, clear);
    row("an entry without strings", calculationWithModes(1, { { QStringList() } }), modes,
        clear + mode + first + "};\n");
    row("an entry of eight strings", calculationWithModes(1, { { entry("x").mid(0, 8) } }), modes,
        clear + mode + first + x.section('\n', 0, 6) + "\n    UCal::tr(\"x tr\")\n};\n");
    row("the tenth string is not translated",
        calculationWithModes(1, { { entry("x") + QStringList("more") } }), modes,
        clear + mode + first + x.section('\n', 0, 8) + ",\n    \"more\"\n};\n");

    const QString results = "output_results";
    const QString clearResults = "inf.output_results.clear();\n";
    const QString result = "inf.output_results<<QStringList();\n";
    row("no results", itemOfType(calculation), results, clearResults);
    row("one result", calculationWithResults({ entry("x") }), results,
        clearResults + result + "inf.output_results.data()[0]=QStringList{\n" + x);
    row("two results, one of them empty", calculationWithResults({ QStringList(), entry("x") }),
        results,
        clearResults + result + "inf.output_results.data()[0]=QStringList{\n};\n" + result
            + "inf.output_results.data()[1]=QStringList{\n" + x);
    row("no parameters for another type", fullItem("tool"), modes, "");
    row("no results for another type", fullItem("tool"), results, "");
    row("no parameters for a type with a space", fullItem("calculation "), modes, "");

    row("no extra keys", AUTH_INF(), "extraKey", "inf.extraKey.clear();\n");
    row("two extra keys", itemWithExtraKeys({ { "a", 12 }, { "", "b c" } }), "extraKey",
        "inf.extraKey.clear();\ninf.extraKey<<VDataItem(\"a\",12);\n"
        "inf.extraKey<<VDataItem(\"\",\"b c\");\n");
}

void TestAuthInfCode::writesStatement()
{
    QFETCH(AUTH_INF, item);
    QFETCH(QString, member);
    QTEST(statementsOn(member, item.to_code()), "expected");
}

void TestAuthInfCode::writesExtraValue_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("a number") << QVariant(12) << "12";
    QTest::newRow("a text that is a number") << QVariant("12") << "12";
    QTest::newRow("a negative fraction") << QVariant(-0.5) << "-0.5";
    QTest::newRow("a number with an exponent") << QVariant("1e5") << "1e5";
    QTest::newRow("a number with leading zeros stays") << QVariant("012") << "012";
    QTest::newRow("a number with a sign stays") << QVariant("+1") << "+1";
    QTest::newRow("a number with blanks around it keeps them") << QVariant(" 12 ") << " 12 ";
    QTest::newRow("a number that only double precision holds") << QVariant("1e300") << "1e300";
    QTest::newRow("a word that is a number") << QVariant("nan") << "nan";
    QTest::newRow("a text") << QVariant("abc") << "\"abc\"";
    QTest::newRow("Chinese text") << QVariant("王") << "\"王\"";
    QTest::newRow("a number with more behind it") << QVariant("12 mm") << "\"12 mm\"";
    QTest::newRow("a number with a decimal comma") << QVariant("1,5") << "\"1,5\"";
    QTest::newRow("a number with a comma between its thousands")
        << QVariant("1,000") << "\"1,000\"";
    QTest::newRow("a hexadecimal number") << QVariant("0x10") << "\"0x10\"";
    QTest::newRow("a number beyond all numbers") << QVariant("1e999") << "\"1e999\"";
    QTest::newRow("an empty text") << QVariant("") << "\"\"";
    QTest::newRow("a double quote is not escaped") << QVariant("a\"b") << "\"a\"b\"";
    QTest::newRow("true") << QVariant(true) << "\"true\"";
    QTest::newRow("an invalid value") << QVariant() << "\"\"";
    QTest::newRow("a list of one text") << QVariant(QStringList { "a" }) << "\"a\"";
    QTest::newRow("a list of one number") << QVariant(QStringList { "1" }) << "1";
    QTest::newRow("a list of two") << QVariant(QStringList { "a", "b" }) << "\"\"";
}

void TestAuthInfCode::writesExtraValue()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    const QString line = "inf.extraKey<<VDataItem(\"key\"," + expected + ");\n";
    QCOMPARE(statementsOn("extraKey", itemWithExtraKeys({ { "key", value } }).to_code()),
             QString("inf.extraKey.clear();\n" + line));
}

void TestAuthInfCode::writesMembersInOrder_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("expected");

    const QStringList fields { "number",
                               "name",
                               "name_tr",
                               "description",
                               "icon",
                               "type",
                               "type_tr",
                               "group",
                               "group_tr",
                               "exclusive_group",
                               "lib_name",
                               "inner_mode_count",
                               "inner_mode_description",
                               "inner_mode_nameList",
                               "inner_mode_nameList_tr" };
    const QStringList names { "trObjectName", "codeFunctionName" };
    const QStringList extraKeys { "extraKey" };
    const QStringList parameters { "inner_mode_parameterList" };
    const QStringList results { "output_results" };
    QTest::newRow("a calculation")
        << calculation << fields + parameters + names + results + extraKeys;
    QTest::newRow("another type") << "tool" << fields + names + extraKeys;
    QTest::newRow("no type") << "" << fields + names + extraKeys;
}

void TestAuthInfCode::writesMembersInOrder()
{
    QFETCH(QString, type);
    QTEST(membersIn(fullItem(type).to_code()), "expected");
}

void TestAuthInfCode::choosesContextAndVariable_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("firstLine");
    QTest::addColumn<QString>("thirdLine");
    QTest::addColumn<QString>("fourthLine");

    const AUTH_INF item;
    const AUTH_INF withContext = itemWith(&AUTH_INF::trObjectName, QString("Texts"));
    const auto row
        = [](const char *name, const QString &text, const QString &first, const QString &third,
             const QString &fourth) { QTest::newRow(name) << text << first << third << fourth; };
    row("without a context in the item", item.to_code(), "KeltoItem inf;", "inf.name=\"Default\";",
        "inf.name_tr=UCal::tr(\"Default\");");
    row("with an empty context in the item",
        itemWith(&AUTH_INF::trObjectName, QString("")).to_code(), "KeltoItem inf;",
        "inf.name=\"Default\";", "inf.name_tr=UCal::tr(\"Default\");");
    row("with a context in the item", withContext.to_code(), "KeltoItem inf;",
        "inf.name=\"Default\";", "inf.name_tr=Texts::tr(\"Default\");");
    row("both given", withContext.to_code("Host", "beam"), "KeltoItem beam;",
        "beam.name=\"Default\";", "beam.name_tr=Host::tr(\"Default\");");
    row("both empty", item.to_code("", ""), "KeltoItem ;", ".name=\"Default\";",
        ".name_tr=::tr(\"Default\");");
}

void TestAuthInfCode::choosesContextAndVariable()
{
    QFETCH(QString, text);
    QVERIFY(text.endsWith(";\n"));
    const QStringList lines = text.split('\n');
    QTEST(lines.value(0), "firstLine");
    QTEST(lines.value(2), "thirdLine");
    QTEST(lines.value(3), "fourthLine");
}

void TestAuthInfCode::endsWithTheLastOfAMillionModes_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("expected");

    QTest::newRow("all of a million") << 1000000 << 1000000;
    QTest::newRow("one more") << 1000001 << 1000000;
    QTest::newRow("the largest number") << std::numeric_limits<int>::max() << 1000000;
    QTest::newRow("the least number") << std::numeric_limits<int>::min() << 0;
}

void TestAuthInfCode::endsWithTheLastOfAMillionModes()
{
    QFETCH(int, count);
    const QString text = calculationWithModes(count, {}).to_code();
    QTEST(text.count("inf.inner_mode_parameterList<<QVector<QStringList>();\n"), "expected");
    QVERIFY(text.contains("inf.inner_mode_count=" + QString::number(count) + ";\n"));
    QVERIFY(text.endsWith("inf.extraKey.clear();\n"));
}

QTEST_GUILESS_MAIN(TestAuthInfCode)
#include "tst_auth_inf_code.moc"

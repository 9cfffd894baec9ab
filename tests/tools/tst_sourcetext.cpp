// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What generated source text cannot carry.

#include "sourcetext.h"
#include "sourcetokens.h"
#include "support/harditems.h"

#include <KeltoParameterEntry>

#include <QTest>

#include <limits>

using Reason = SourceTextProblem::Reason;

namespace {

/// "section/key: text" of each problem, with the reason behind it.
QStringList listed(const AUTH_INF &item)
{
    QStringList list;
    const QVector<SourceTextProblem> problems = sourceTextProblems(item);
    for (const SourceTextProblem &problem : problems)
        list.append(problem.section + '/' + problem.key + ": " + problem.text + ' '
                    + reasonText(problem.reason));
    return list;
}

/// Texts that try to end a literal, an identifier or a number.
QString hostileText(Dice &dice)
{
    static const QStringList pieces {
        "\"",    "\\",     "?\?/", "?",   "/",          "\n",  "\r",
        "\t",    "\u2028", "0",    "8",   "1",          ".",   "e9",
        "E-400", "-",      "+",    "inf", "nan",        "x()", ");",
        "{",     "}",      "//",   "#",   "::",         "tr",  "if",
        "main",  "Text",   " ",    "梁",  "\u202e",     "/*",  "\u00a0",
        "R(",    "a",      "_",    "B",   "2147483648", "4e9", "system(\"id\")",
        "'",     "<:",     "%:",   "\f",
    };
    return dice.someOf(pieces, dice.between(1, 4)).join("");
}

/// Texts of which some read as numbers.
QString numberText(Dice &dice)
{
    static const QStringList pieces {
        "0", "8", "1", ".", "e9", "E-400", "-", "+", " ", "21474836"
    };
    return dice.someOf(pieces, dice.between(1, 3)).join("");
}

/// An item that can be carried, with hostile texts in up to three places.
AUTH_INF hostileItem(Dice &dice)
{
    AUTH_INF item = fullItem();
    item.type = dice.oneOf({ "calculation", "calculation", "calculation", "tool" });
    for (int i = dice.between(0, 3); i > 0; --i) {
        const QString text = hostileText(dice);
        QString *const texts[] = {
            &item.name,
            &item.description,
            &item.icon,
            &item.type,
            &item.group,
            &item.lib_name[1],
            &item.inner_mode_description[0],
            &item.inner_mode_nameList[1],
            &item.trObjectName,
            &item.codeFunctionName,
            &item.inner_mode_parameterList[0][1][dice.between(0, 8)],
            &item.output_results[1][dice.between(0, 8)],
            &item.extraKey[3].key,
        };
        const int place = dice.between(0, 20);
        if (place < int(std::size(texts)))
            *texts[place] = text;
        else if (place < 19)
            item.extraKey[dice.between(0, 8)].value = dice.chance(50) ? text : numberText(dice);
        else
            item.inner_mode_count = dice.between(-1, 5);
    }
    if (item.type != "calculation") {
        item.inner_mode_parameterList.clear();
        item.output_results.clear();
    }
    return item;
}

/// The value that C++ gives a number as it is spelt; nothing where it does not fit.
double compiledNumber(const QString &text)
{
    const QString digits = text.trimmed();
    const QString whole = digits.mid(digits.startsWith('-') || digits.startsWith('+') ? 1 : 0);
    bool isWhole = false;
    const qlonglong value = whole.toLongLong(&isWhole, 0);
    if (!isWhole)
        return text.toDouble();
    if (value > std::numeric_limits<int>::max())
        return std::numeric_limits<double>::quiet_NaN();
    return digits.startsWith('-') ? -double(value) : double(value);
}

} // namespace

class TestSourceText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void carriesText_data();
    void carriesText();
    void carriesValue_data();
    void carriesValue();
    void takesNames_data();
    void takesNames();
    void namesThePlace();
    void comparesTheModeCount_data();
    void comparesTheModeCount();
    void letsNothingElseThrough();
    void writesLiterals_data();
    void writesLiterals();
};

void TestSourceText::carriesText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const QString &text, const char *reason) {
        QTest::newRow(name) << text << QString(reason);
    };
    row("letters of any language", "Träger 梁 \U0001f600", "");
    row("single quotes and comments", "'it' // /* */ # %", "");
    row("a tabulator", "a\tb", "");
    row("two question marks", "What?? Why??x", "");
    row("the marks of one character", "a\u200eb", "");
    row("a number", "010", "");
    row("an empty text", "", "");
    row("a double quote", "2\" pipe", "holds a double quote");
    row("a backslash", "C:\\items", "holds a backslash");
    row("a backslash at the end", "a\\", "holds a backslash");
    row("the first of two", "\\\"", "holds a backslash");
    row("a line feed", "a\nb", "holds a line break");
    row("a carriage return", "a\rb", "holds a line break");
    row("a form feed", "a\fb", "holds a control character");
    row("a vertical tabulator", "a\vb", "holds a control character");
    row("a next line", "a\u0085b", "holds a line break");
    row("a line separator", "a\u2028b", "holds a line break");
    row("a NUL", QString("a") + QChar(0) + "b", "holds a control character");
    row("a delete", "a\u007f", "holds a control character");
    row("an escape", "a\u001b[1m", "holds a control character");
    for (const char c : { '=', '/', '\'', '(', ')', '!', '<', '>', '-' })
        QTest::addRow("a trigraph with %c", c) << "What?" + QString("?")
                + QChar(c) << "holds \"??\" and a character that make another one in C++";
    row("a text that is turned", "a\u202eb",
        "holds a character that changes the direction of the text");
    row("an isolate", "a\u2066b\u2069", "holds a character that changes the direction of the text");
    row("half a pair", QString("a") + QChar(0xd83d), "holds half a character");
    row("the other half", QString(QChar(0xde00)) + "a", "holds half a character");
}

void TestSourceText::carriesText()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    AUTH_INF item;
    item.name = text;
    QCOMPARE(listed(item).join('\n'),
             expected.isEmpty() ? QString() : "KeltoItem/name: " + text + ' ' + expected);
}

void TestSourceText::carriesValue_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    const auto carried = [](const QVariant &value) {
        QTest::addRow("%s", qPrintable("carries " + value.toString().simplified())) << value << "";
    };
    for (const char *text : { "0",
                              "12",
                              "-3",
                              "+3",
                              " 12 ",
                              "2147483647",
                              "-2147483647",
                              "0.5",
                              ".5",
                              "5.",
                              "1e5",
                              "1E+06",
                              "08.5",
                              "4294967296.0",
                              "1e308",
                              "1e999",
                              "0e9",
                              "0x10",
                              "1,5",
                              "abc",
                              "12 mm",
                              "1e",
                              "2.2250738585072014e-308" })
        carried(QString(text));
    carried(true);
    carried(0.1);
    QTest::newRow("carries nothing") << QVariant() << "";
    QTest::newRow("carries a list of one") << QVariant(QStringList("a")) << "";

    const auto refused = [](const QVariant &value, const char *reason) {
        QTest::addRow("%s", qPrintable("refuses " + value.toString().simplified()))
            << value << reason;
    };
    const char *octal = "reads as a number that begins with 0, which C++ takes for an octal one";
    for (const char *text : { "08", "010", "-007", "00" })
        refused(QString(text), octal);
    const char *large = "reads as a number that is too large or too small";
    for (const char *text : { "2147483648", "-2147483648", "99999999999999999999" })
        refused(QString(text), large);
    const char *none = "reads as a number and is none in C++";
    for (const char *text : { "inf", "-inf", "nan", "\n12",
                              "\u00a0"
                              "12" })
        refused(QString(text), none);
    refused("a\"b", "holds a double quote");
    refused(QByteArray("abc"), "is not one text");
    QTest::newRow("refuses a list of two")
        << QVariant(QStringList { "a", "b" }) << "is not one text";
    QTest::newRow("refuses a list of none") << QVariant(QStringList()) << "is not one text";
}

void TestSourceText::carriesValue()
{
    QFETCH(QVariant, value);
    AUTH_INF item;
    item.extraKey = { { "key", value } };
    const QVector<SourceTextProblem> problems = sourceTextProblems(item);
    QTEST(problems.isEmpty() ? QString() : reasonText(problems.constFirst().reason), "expected");
}

void TestSourceText::takesNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isFunction");
    QTest::addColumn<bool>("isContext");

    for (const char *text : { "beam", "B2_x", "_b", "_", "inf", "main", "QObject", "Quantity", "A",
                              "Q", "qBeam", "Literal", "PRIme", "FEM", "SIGMA", "LOAD_MAX" })
        QTest::newRow(text) << text << true << true;
    for (const char *text : { "A::B", "Host::Module::Texts" })
        QTest::newRow(text) << text << false << true;
    QTest::newRow("tr") << "tr" << true << false;
    for (const char *text : { "x());system(0);//",
                              "a b",
                              "2a",
                              "a-b",
                              "梁",
                              "a::",
                              "::a",
                              "a:::b",
                              "A::A",
                              "A::if",
                              "if",
                              "co_await",
                              "xor",
                              "slots",
                              "KeltoItem",
                              "QStringList",
                              "VDataItem",
                              "__LINE__",
                              "_Bool",
                              "a__b",
                              "a\n",
                              "a;",
                              "a/**/",
                              "a.b",
                              "$a",
                              "AUTH_INF",
                              "BUFSIZ",
                              "EOF",
                              "TRUE",
                              "M_PI",
                              "Q_OBJECT",
                              "Q_emitted",
                              "QT_VERSION",
                              "KELTO_x",
                              "QStringLiteral",
                              "QByteArrayLiteral",
                              "PRIu64",
                              "GL_ARB_sync",
                              "qApp",
                              "qDebug",
                              "qMove",
                              "qPrintable",
                              "offsetof",
                              "va_start" })
        QTest::newRow(text) << text << false << false;
}

void TestSourceText::takesNames()
{
    QFETCH(QString, text);
    QTEST(isFreeIdentifier(text), "isFunction");
    QTEST(isFreeContext(text), "isContext");
    AUTH_INF item;
    item.codeFunctionName = text;
    QTEST(sourceTextProblems(item).isEmpty(), "isFunction");
    item.codeFunctionName.clear();
    item.trObjectName = text;
    QTEST(sourceTextProblems(item).isEmpty(), "isContext");
}

void TestSourceText::namesThePlace()
{
    AUTH_INF item = fullItem();
    QCOMPARE(listed(item), QStringList());
    item.lib_name[1] = "\"1";
    item.inner_mode_description[1] = "\"2";
    item.trObjectName = "a b";
    item.codeFunctionName = "if";
    // In two modes, and in three places of one entry.
    item.inner_mode_parameterList[0][0][KeltoParameterEntry::Symbol] = "\"3";
    item.inner_mode_parameterList[2][0][KeltoParameterEntry::Symbol] = "\"3";
    for (const int place : { KeltoParameterEntry::Unit, KeltoParameterEntry::SecondUnit })
        item.inner_mode_parameterList[0][0][place] = "\"4";
    item.output_results[0][KeltoParameterEntry::Key] = "\"5";
    item.output_results[0].append("\"6");
    item.extraKey[0] = { "\"7", QStringList { "8", "9" } };
    QCOMPARE(listed(item),
             (QStringList {
                 "KeltoItem/lib_name: \"1 holds a double quote",
                 "KeltoItem/inner_mode_description: \"2 holds a double quote",
                 "KeltoItem/Tr_ObjectName: a b is not an identifier",
                 "KeltoItem/codeFunctionName: if is a name that means something else",
                 "Unit/Load: \"4 holds a double quote", "Symbol/Load: \"3 holds a double quote",
                 "Result/\"5: \"5 holds a double quote", "Result/\"5: \"6 holds a double quote",
                 "ExtraKey/\"7: \"7 holds a double quote", "ExtraKey/\"7: 8, 9 is not one text" }));
    item = fullItem();
    item.type = "tool";
    QCOMPARE(listed(item),
             QStringList("KeltoItem/type: tool is not the type \"calculation\", and only that has "
                         "parameters and results"));
}

void TestSourceText::comparesTheModeCount_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("names");
    QTest::addColumn<int>("lists");
    QTest::addColumn<bool>("isCarried");

    QTest::newRow("as many") << 3 << 3 << 3 << true;
    QTest::newRow("none") << 0 << 0 << 0 << true;
    QTest::newRow("one without a name") << 1 << 0 << 0 << true;
    QTest::newRow("names without parameters") << 0 << 3 << 0 << true;
    QTest::newRow("fewer than have parameters") << 2 << 3 << 3 << false;
    QTest::newRow("more than names") << 4 << 3 << 3 << false;
    QTest::newRow("negative") << -1 << 0 << 0 << false;
    QTest::newRow("more than the library writes") << 1000001 << 0 << 1000001 << false;
}

void TestSourceText::comparesTheModeCount()
{
    QFETCH(int, count);
    QFETCH(int, names);
    QFETCH(int, lists);
    AUTH_INF item;
    item.type = "calculation";
    item.inner_mode_count = count;
    item.inner_mode_nameList.clear();
    for (int i = 0; i < names; ++i)
        item.inner_mode_nameList.append("mode");
    // Most have no parameters, which would take long.
    item.inner_mode_parameterList.resize(lists);
    if (lists > 0)
        item.inner_mode_parameterList.last() = { entry("Load") };
    QTEST(sourceTextProblems(item).isEmpty(), "isCarried");
}

void TestSourceText::letsNothingElseThrough()
{
    Dice dice(1);
    int carried = 0;
    for (int round = 0; round < 3000; ++round) {
        const AUTH_INF item = hostileItem(dice);
        if (!sourceTextProblems(item).isEmpty())
            continue;
        ++carried;
        const QString context = item.trObjectName.isEmpty() ? "UCal" : item.trObjectName;
        QCOMPARE(tokensOf(item.to_code()), ItemTokens::of(item, context));
        for (const VDataItem &extra : item.extraKey) {
            bool isNumber = false;
            const double number = extra.value.toString().toDouble(&isNumber);
            if (isNumber)
                QCOMPARE(compiledNumber(extra.value.toString()), number);
        }
    }
    QVERIFY2(carried > 1000 && carried < 2000, qPrintable(QString::number(carried)));
}

void TestSourceText::writesLiterals_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("plain") << "Träger 梁"
                           << "\"Träger 梁\"";
    QTest::newRow("empty") << ""
                           << "\"\"";
    QTest::newRow("quotes and backslashes") << "\"a\\b\""
                                            << "\"\\\"a\\\\b\\\"\"";
    QTest::newRow("a digit behind a line break") << "a\n1"
                                                 << "\"a\\0121\"";
    QTest::newRow("a trigraph") << QString("?") + "?/"
                                << "\"\\?\\?/\"";
    QTest::newRow("a delete") << "\u007f"
                              << "\"\\177\"";
}

void TestSourceText::writesLiterals()
{
    QFETCH(QString, text);
    QTEST(stringLiteral(text), "expected");
}

QTEST_GUILESS_MAIN(TestSourceText)

#include "tst_sourcetext.moc"

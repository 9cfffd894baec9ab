// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/VParameter>

#include "core/vparameter_p.h"

#include <QTest>
#include <QVector>

#include <limits>
#include <utility>

using Change = void (*)(VParameter &);
using NamePair = QPair<QString, QString>;

Q_DECLARE_METATYPE(VParameter)
Q_DECLARE_METATYPE(Change)

namespace {

const double infinity = std::numeric_limits<double>::infinity();
const double nan = std::numeric_limits<double>::quiet_NaN();

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

/// All fields in a line; the group comes before the name and the value last.
QString fields(const VParameter &p)
{
    QStringList texts;
    for (const QString &text :
         { p.group().first, p.group().second, p.name().first, p.name().second, p.unit().first,
           p.unit().second, p.symbol(), p.parameterObjectName() })
        texts.append(shown(text));
    return texts.join(" ") + (p.isMulti() ? ", multi, " : ", single, ") + shown(p.value());
}

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

QStringList entry(const QString &multi)
{
    return { "0", "1", "2", multi, "4", "5", "6", "7", "8" };
}

QString filledTexts()
{
    return "'g' 'G' 'n' 'N' 'u' 'U' 's' 'o', multi, ";
}

QString entryTexts()
{
    return "'0' '8' '1' '7' '4' '5' '6' '2', ";
}

QString lengthTexts()
{
    return "'' '' 'Length' 'Length' 'mm' 'mm' 'L' 'float', single, ";
}

QString cleared()
{
    return "null null null null null null '' '', single, no value";
}

QString untouched()
{
    return "null null null null null null null null, single, no value";
}

} // namespace

class TestVParameter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructs_data()
    {
        QTest::addColumn<VParameter>("parameter");
        QTest::addColumn<QString>("expected");

        const QString null;
        QTest::newRow("empty: pairs are null, symbol and object name are not")
            << VParameter() << cleared();
        QTest::newRow("seven fields") << filled() << filledTexts() + "double 1.5";
        QTest::newRow("seven null fields stay null")
            << VParameter(QVariant(), {}, {}, null, {}, null, false) << untouched();
        QTest::newRow("a floating-point value")
            << VParameter(2.5, "Length", "mm", "L") << lengthTexts() + "double 2.5";
        QTest::newRow("a whole number becomes a floating-point value")
            << VParameter(2, "Length", "mm", "L") << lengthTexts() + "double 2";
        QTest::newRow("a floating-point value without texts has no null group")
            << VParameter(0.0, null, null, null)
            << "'' '' null null null null null 'float', single, double 0";
        QTest::newRow("an entry of one value")
            << VParameter(entry("false")) << entryTexts() + "single, no value";
        QTest::newRow("an entry of several values")
            << VParameter(entry("true")) << entryTexts() + "multi, no value";
        QTest::newRow("an entry of eight texts") << VParameter(entry("true").mid(1)) << untouched();
        QTest::newRow("an entry of ten texts") << VParameter(entry("true") << "9") << untouched();
    }
    void constructs()
    {
        QFETCH(VParameter, parameter);
        QTEST(fields(parameter), "expected");
    }

    void changes_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QString>("expected");

        const auto row = [](const char *name, const QString &expected, Change change) {
            QTest::newRow(name) << change << expected;
        };
        // A literal is no truth value, and a list in a QVariant is no entry.
        row("a number", filledTexts() + "double 2.5", [](VParameter &p) { p.set(2.5); });
        row("a truth value", filledTexts() + "bool true", [](VParameter &p) { p.set(true); });
        row("a literal", filledTexts() + "QString x", [](VParameter &p) { p.set("x"); });
        row("a text", filledTexts() + "QString x", [](VParameter &p) { p.set(QString("x")); });
        row("no value", filledTexts() + "no value", [](VParameter &p) { p.set(QVariant()); });
        row("a list of nine texts as a value", filledTexts() + "QStringList 0,1,2,true,4,5,6,7,8",
            [](VParameter &p) { p.set(QVariant(entry("true"))); });

        row("an entry leaves the value", entryTexts() + "single, double 1.5",
            [](VParameter &p) { p.set(entry("false")); });
        row("an entry after clear()", entryTexts() + "multi, no value",
            [](VParameter &p) { p.clear(), p.set(entry("true")); });
        row("null texts of an entry stay null",
            "null null null null null null null null, multi, double 1.5",
            [](VParameter &p) { p.set(QVector<QString>(9).toList()); });
        row("eight texts change nothing", filledTexts() + "double 1.5",
            [](VParameter &p) { p.set(entry("false").mid(1)); });
        row("ten texts change nothing", filledTexts() + "double 1.5",
            [](VParameter &p) { p.set(entry("false") << "9"); });
        row("no texts change nothing", filledTexts() + "double 1.5",
            [](VParameter &p) { p.set(QStringList()); });

        const Change setSeven = [](VParameter &p) {
            p.set(2, { "n2", "N2" }, { "u2", "U2" }, "s2", { "g2", "G2" }, "o2", false);
        };
        row("seven fields", "'g2' 'G2' 'n2' 'N2' 'u2' 'U2' 's2' 'o2', single, int 2", setSeven);
        row("another parameter", entryTexts() + "single, no value",
            [](VParameter &p) { p.set(VParameter(entry("false"))); });
        row("itself", filledTexts() + "double 1.5", [](VParameter &p) { p.set(p); });
        row("assigned", cleared(), [](VParameter &p) { p = VParameter(); });
        row("cleared", cleared(), [](VParameter &p) { p.clear(); });
    }
    /// Nothing that is done to a parameter reaches its copies.
    void changes()
    {
        QFETCH(Change, change);
        VParameter parameter = filled();
        const VParameter copy = parameter;
        VParameter taken;
        taken.set(parameter);
        change(parameter);
        QTEST(fields(parameter), "expected");
        QCOMPARE(fields(copy), fields(filled()));
        QCOMPARE(fields(taken), fields(filled()));

        parameter = copy;
        change(taken);
        QTEST(fields(taken), "expected");
        QCOMPARE(fields(parameter), fields(filled()));
    }

    void keepsTheFlagWithAnotherWord()
    {
        for (const char *word :
             { "1", "0", "TRUE", "FALSE", "True", "False", " true", "false ", "trueish", "" }) {
            for (const bool multi : { false, true }) {
                VParameter parameter({}, {}, {}, {}, {}, {}, multi);
                parameter.set(entry(word));
                QVERIFY2(parameter.isMulti() == multi, word);
                QCOMPARE(parameter.symbol(), QString("6"));
            }
        }
    }

    void writesSetsForm_data()
    {
        QTest::addColumn<VParameter>("parameter");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("empty") << VParameter()
                               << QStringList { "", "", "", "false", "", "", "", "", "" };
        QTest::newRow("filled") << filled()
                                << QStringList { "g", "n", "o", "true", "u", "U", "s", "N", "G" };
        QTest::newRow("an unknown word is false") << VParameter(entry("yes")) << entry("false");
        QTest::newRow("a floating-point value")
            << VParameter(2.5, "Length", "mm", "L")
            << QStringList { "", "Length", "float", "false", "mm", "mm", "L", "Length", "" };
    }
    /// The form restores all but the value.
    void writesSetsForm()
    {
        QFETCH(VParameter, parameter);
        QTEST(parameter.toSetsForm(), "expected");
        VParameter restored(parameter.toSetsForm());
        QVERIFY(!restored.value().isValid());
        restored.set(parameter.value());
        QVERIFY(restored.isEqual(&parameter));
    }

    void canBeUsedAfterMoving()
    {
        VParameter source = filled();
        VParameter moved = std::move(source);
        QCOMPARE(fields(source), fields(filled()));
        source.clear();
        QCOMPARE(fields(source), cleared());
        QCOMPARE(fields(moved), fields(filled()));
    }

    void matchesNames_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("expected");

        const auto row
            = [](const char *name, const NamePair &names, const QString &text, bool expected) {
                  QTest::newRow(name) << names.first << names.second << text << expected;
              };
        row("the plain name", { "a", "b" }, "a", true);
        row("the translated name", { "a", "b" }, "b", true);
        row("another name", { "a", "b" }, "c", false);
        row("a part of the name", { "inner diameter", "x" }, "inner", false);
        row("spaces, underscores, hyphens and case", { "Young's modulus", "x" },
            "_YOUNG'S -modulus", true);
        row("those of the name", { "x", "-Inner_ Diameter" }, "innerdiameter", true);
        row("a trailing dot counts", { "Inner Diameter", "x" }, "innerdiameter.", false);
        row("an apostrophe counts", { "Young's modulus", "x" }, "youngs modulus", false);
        row("a tab counts", { "a\tb", "x" }, "ab", false);
        row("a no-break space counts", { QString("a") + QChar(0x00a0) + "b", "x" }, "ab", false);
        row("case beyond ASCII", { "Länge", "x" }, "LÄNGE", true);
        row("a letter with two capital ones is not these two", { "ß", "x" }, "SS", false);
        row("an empty text is no name", { "a", "b" }, "", false);
        row("a null text is an empty name", { "", "b" }, QString(), true);
        row("an empty text is a name of separators", { "a", "- _" }, "", true);
    }
    void matchesNames()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(QString, text);
        const VParameter parameter({}, { first, second }, {}, "", {}, "", false);
        QTEST(parameter.isName(text), "expected");
    }

    void comparesEachField()
    {
        const VParameter parameter = filled();
        const QStringList form = parameter.toSetsForm();
        for (int i = 0; i < form.size(); ++i) {
            const QStringList texts { form.at(i).toUpper(), form.at(i) + "_", "false" };
            for (const QString &text : texts) {
                QStringList changed = form;
                changed[i] = text;
                VParameter other(changed);
                other.set(1.5);
                const bool isSame = other.toSetsForm() == form;
                QCOMPARE(parameter.isEqual(&other), isSame);
                QCOMPARE(other.isEqual(&parameter), isSame);
            }
        }
    }

    void comparesValues_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("other");
        QTest::addColumn<bool>("expected");

        const auto row = [](const char *name, const QVariant &value, const QVariant &other,
                            bool expected) { QTest::newRow(name) << value << other << expected; };
        row("equal numbers", 1.5, 1.5, true);
        row("numbers that differ", 1.5, 2.5, false);
        row("texts that differ by case", "x", "X", false);
        row("no value on either side", QVariant(), QVariant(), true);
        row("no value on this side", QVariant(), 1.5, false);
        row("no value on the other side", 1.5, QVariant(), false);
        row("the other text becomes a number", 1, "01", true);
        row("the other number becomes a text", "01", 1, false);
        row("lists in another order", QStringList { "a", "b" }, QStringList { "b", "a" }, false);
        row("not a number", nan, nan, false);
        row("infinite numbers", infinity, infinity, true);
    }
    void comparesValues()
    {
        QFETCH(QVariant, value);
        QFETCH(QVariant, other);
        const VParameter parameter = withValue(value);
        const VParameter otherParameter = withValue(other);
        QTEST(parameter.isEqual(&otherParameter), "expected");
        QCOMPARE(parameterHash(parameter), parameterHash(otherParameter));
        const VParameter copy = parameter;
        QCOMPARE(parameter.isEqual(&copy), value == value);
    }

    void takesNullForEmpty()
    {
        const VParameter null { QStringList() };
        const VParameter empty(QVector<QString>(9, "").toList());
        QVERIFY(null.isEqual(&empty));
        QCOMPARE(parameterHash(null), parameterHash(empty));
    }

    void isNotEqualToNothing() { QVERIFY(!VParameter().isEqual(nullptr)); }
};

QTEST_GUILESS_MAIN(TestVParameter)
#include "tst_vparameter.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What is missing and what is wrong, as data and in words.

#include "support/hintitems.h"

#include <Kelto/KeltoItemFinding>
#include <Kelto/KeltoItemParameterVerify>

#include <QTest>
#include <QTranslator>

using ExtraKeys = QVector<VDataItem>;
using Values = QVector<QPair<QString, QVariant>>;
using Verify = KeltoItemParameterVerify;
using Finding = KeltoItemFinding;

Q_DECLARE_METATYPE(ExtraKeys)

namespace {

QStringList entry(const QString &key, const QString &objectName = "text", bool isMulti = false)
{
    return { "", key, objectName, isMulti ? "true" : "false", "", "", "", "", "" };
}

/// An item with the mode "A".
AUTH_INF itemOf(const QVector<QStringList> &entries, const ExtraKeys &extraKeys = {})
{
    AUTH_INF item;
    item.inner_mode_nameList = QStringList { "A" };
    item.inner_mode_parameterList = { entries };
    item.extraKey = extraKeys;
    return item;
}

Values valuesOf(const QStringList &keys)
{
    Values values;
    for (const QString &key : keys)
        values.append({ key, "1" });
    return values;
}

QStringList textsOf(const QVector<Finding> &findings)
{
    QStringList texts;
    for (const Finding &finding : findings)
        texts.append(finding.text());
    return texts;
}

} // namespace

class TestKeltoItemParameterVerifyExplain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Of any item, whatever it holds: what is missing, what is explained and what is valid agree.
    void agreesWithIsValid()
    {
        int absent = 0;
        int valid = 0;
        for (unsigned seed = 0; seed < 1000; ++seed) {
            HintItemMaker maker(seed);
            const AUTH_INF item = maker.item();
            const Values values = maker.values();
            const QStringList skipped
                = maker.dice().someOf({ "Load", "长度", "" }, maker.dice().between(0, 2));
            for (const QString &mode : HintItemMaker::modes()) {
                const int position = item.inner_mode_nameList.indexOf(mode);
                const auto entries = item.inner_mode_parameterList.value(position);
                const QStringList missing = Verify::missing(&item, &values, mode, skipped);
                QStringList explained;
                bool isAbsent = false;
                const auto findings = Verify::explain(&item, &values, mode, skipped);
                for (const Finding &finding : findings) {
                    if (finding.kind == Finding::Missing || finding.kind == Finding::NearMiss)
                        explained.append(finding.valueKey);
                    isAbsent = isAbsent || finding.isAbsence();
                    QVERIFY(!finding.text().isEmpty());
                }
                const bool isValid = Verify::isValid(&item, &values, mode, skipped);
                QCOMPARE(isValid, missing.isEmpty() && !entries.isEmpty());
                QCOMPARE(isValid, !isAbsent);
                QCOMPARE(explained, missing);
                QCOMPARE(missing, plainlyMissing(entries, values, skipped));
                absent += missing.size();
                valid += int(isValid);
            }
        }
        QVERIFY2(absent > 500 && valid > 100, qPrintable(QString("%1 %2").arg(absent).arg(valid)));
    }

    void takesTheFormsOfIsValid()
    {
        AUTH_INF item = itemOf({ entry("x"), entry("y"), entry("x") });
        item.inner_mode_parameterList[0][1][0] = "Load";
        const Values none;
        QCOMPARE(Verify::missing(&item, &none, "A"), QStringList({ "Attribute/x", "Attribute/y" }));
        QCOMPARE(Verify::missing(&item, &none, "A", "Load"), QStringList("Attribute/x"));
        QCOMPARE(Verify::missing(&item, &none, "A", QStringList { "", "Load" }), QStringList());
        QCOMPARE(Verify::explain(&item, &none, "A").size(), 2);
        QCOMPARE(Verify::explain(&item, &none, "A", "Load").size(), 1);
        QCOMPARE(Verify::missing(nullptr, &none, "A"), QStringList());
        QCOMPARE(Verify::missing(&item, nullptr, "A", ""), QStringList());
        QVERIFY(Verify::explain(nullptr, &none, "A").isEmpty());
        QVERIFY(Verify::explain(&item, nullptr, "A", "").isEmpty());
    }

    void namesParameters_data()
    {
        QTest::addColumn<QStringList>("entry");
        QTest::addColumn<QString>("expected");

        QTest::newRow("all there is")
            << QStringList { "Shape", "L", "float", "false", "mm", "m", "l", "Length", "Geometry" }
            << "Length (l, mm), in Geometry: no value.";
        QTest::newRow("no translations")
            << QStringList { "Shape", "L", "float", "false", "", "m", "l", "", "" }
            << "L (l), in Shape: no value.";
        QTest::newRow("a label") << QStringList { "", "N", "float", "false", "mm",
                                                  "", "",  "Count", "" }
                                 << "Number of parts (mm): no value.";
        QTest::newRow("a key alone") << QStringList { "", "%1%2" } << "%1%2: no value.";
        QTest::newRow("more than an entry has")
            << QStringList { "", "x", "", "", "", "", "", "X", "G", "more" }
            << "X, in G: no value.";
        QTest::newRow("nothing") << QStringList() << ": no value.";
    }
    void namesParameters()
    {
        QFETCH(QStringList, entry);
        const AUTH_INF item = itemOf({ entry }, { { "Label.N", "Number of parts" } });
        const Values none;
        QTEST(textsOf(Verify::explain(&item, &none, "A")).join("\n"), "expected");
    }

    void findsSimilarKeys_data()
    {
        QTest::addColumn<QStringList>("wanted");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QStringList>("expected");

        const auto row = [](const char *name, const QStringList &wanted, const QStringList &keys,
                            const QStringList &expected) {
            QTest::newRow(name) << wanted << keys << expected;
        };
        row("case", { "Length" }, { "Attribute/length" }, { "Attribute/length" });
        row("case of the section", { "Length" }, { "attribute/Length" }, { "attribute/Length" });
        row("no section", { "Length" }, { "Length" }, { "Length" });
        row("no section and case", { "Length" }, { "length" }, { "length" });
        row("white space", { "Beam length" }, { " Attribute/ Beam   length" },
            { " Attribute/ Beam   length" });
        row("a letter too many", { "Length" }, { "Attribute/Lenngth" }, { "Attribute/Lenngth" });
        row("a letter too few", { "Length" }, { "Attribute/Lngth" }, { "Attribute/Lngth" });
        row("another letter", { "Length" }, { "Attribute/Lengxh" }, { "Attribute/Lengxh" });
        row("two letters swapped", { "Torque" }, { "Attribute/Toqrue" }, { "Attribute/Toqrue" });
        row("two mistakes in a short key", { "Length" }, { "Attribute/Lenhg" }, { "" });
        row("two mistakes in a long key", { "Temperature" }, { "Attribute/Tempertaur" },
            { "Attribute/Tempertaur" });
        row("three mistakes", { "Temperature" }, { "Attribute/Temprtaur" }, { "" });
        row("a mistake in the section", { "Length" }, { "Axtribute/Length" },
            { "Axtribute/Length" });
        row("a mistake and no section", { "Length" }, { "Lengxh" }, { "" });
        row("keys of two letters", { "xy" }, { "Attribute/xz" }, { "" });
        row("keys of three letters", { "xyz" }, { "Attribute/xz" }, { "Attribute/xz" });
        row("another number", { "Load 1" }, { "Attribute/Load 2" }, { "" });
        row("its unit", { "Length" }, { "Unit/Length" }, { "" });
        row("the key of another parameter", { "Load", "Road" }, { "Attribute/Road" }, { "" });
        row("the nearest", { "Temperature" },
            { "Attribute/Temperaturen", "attribute/temperature", "Attribute/Temperatura" },
            { "attribute/temperature" });
        row("no section before a mistake", { "Length" }, { "Attribute/Lengths", "length" },
            { "length" });
        row("the first of several", { "Length" }, { "Attribute/Lengths", "Attribute/Lengxh" },
            { "Attribute/Lengths" });
        row("one for two", { "Load", "Loa" }, { "Attribute/Loads" }, { "Attribute/Loads", "" });
    }
    void findsSimilarKeys()
    {
        QFETCH(QStringList, wanted);
        QFETCH(QStringList, keys);
        QVector<QStringList> entries;
        for (const QString &key : wanted)
            entries.append(entry(key));
        const AUTH_INF item = itemOf(entries);
        const Values values = valuesOf(keys);
        QStringList found;
        const QVector<Finding> findings = Verify::explain(&item, &values, "A");
        for (const Finding &finding : findings) {
            found.append(finding.found);
            QCOMPARE(finding.kind, finding.found.isEmpty() ? Finding::Missing : Finding::NearMiss);
        }
        QTEST(found, "expected");
    }

    void looksAtValues_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("isMulti");
        QTest::addColumn<ExtraKeys>("extraKeys");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QStringList>("expected");

        const auto row = [](const char *name, const QString &kind, const QVariant &value,
                            const QStringList &expected = {}, const ExtraKeys &extraKeys = {}) {
            QTest::newRow(name) << kind << kind.startsWith("QVector") << extraKeys << value
                                << expected;
        };
        const QStringList empty { "x: the value is empty." };
        row("an empty text", "text", "", empty);
        row("nothing", "float", QVariant(), empty);
        row("an empty number", "float", "", empty, { { "Min.x", 1 } });
        row("empty and optional", "float", "", {}, { { "Optional.x", "true" }, { "Min.x", 1 } });
        row("an empty list", "QVector<float>", QStringList(), empty);
        row("an empty text for a list", "QVector<float>", "", empty);
        row("an empty list, optional", "QVector<float>", QStringList(), {},
            { { "Optional.x", "true" } });
        row("an empty element", "QVector<float>", QStringList { "1", "" },
            { "x, value 2: \"\" is not a number." });
        row("any text", "text", "abc");
        row("white space", "text", " ");

        row("a number", "float", 2.5);
        row("a number as text", "double", "-2.5e3");
        row("text for a number", "float", "2 mm", { "x: \"2 mm\" is not a number." });
        row("a decimal comma", "float", "2,5", { "x: \"2,5\" is not a number." });
        row("a decimal comma that made a list", "float", QStringList { "2", "5" },
            { "x: \"2,5\" is not a number." });
        row("no end", "double", "inf", { "x: \"inf\" is not a number." });
        row("a whole number", "int", "2.0");
        row("a fraction", "int", "2.5", { "x: \"2.5\" is not a whole number." });
        row("numbers", "QVector<double>", QStringList { "1", "2" });
        row("one number for several", "QVector<double>", "1");
        row("text among numbers", "QVector<int>", QStringList { "1", "a", "1.5" },
            { "x, value 2: \"a\" is not a whole number.",
              "x, value 3: \"1.5\" is not a whole number." });
        row("points", "QVector<QPointF>", QStringList { "1|2.5", "-1|0" });
        row("no points", "QVector<QPointF>", QStringList { "1", "1|2|3", "1|a" },
            { "x, value 1: \"1\" is not two numbers with \"|\" between them.",
              "x, value 2: \"1|2|3\" is not two numbers with \"|\" between them.",
              "x, value 3: \"1|a\" is not two numbers with \"|\" between them." });
        row("a whole point with a fraction", "QVector<QPoint>", QStringList { "1|2.5" },
            { "x, value 1: \"1|2.5\" is not two whole numbers with \"|\" between them." });
        row("a table", "QVector<QStringList>", QStringList { "a|b", "c" });
        row("a flag", "bool", true);
        row("a flag as text", "bool", "false");
        row("neither true nor false", "bool", "maybe",
            { "x: \"maybe\" is not among the choices (true, false)." });
        row("other case", "bool", "True",
            { "x: \"True\" is not among the choices (true, false)." });
        row("an empty flag", "bool", "", empty);
        row("a flag with choices of its own", "bool", "yes", {}, { { "Choices.x", "yes|no" } });

        const ExtraKeys limits { { "Min.x", 0 }, { "Max.x", "10.5" } };
        row("at the limits", "QVector<float>", QStringList { "0", "10.5" }, {}, limits);
        row("outside the limits", "float", 11,
            { "x: 11 is outside the allowed range (0 .. 10.5)." }, limits);
        row("below", "float", "-1", { "x: -1 is outside the allowed range (≥ 0)." },
            { { "Min.x", 0 } });
        row("above", "float", "-1", { "x: -1 is outside the allowed range (≤ -2)." },
            { { "Max.x", "-2" } });
        row("a point outside", "QVector<QPointF>", QStringList { "1|2", "3|11" },
            { "x, value 2: 3|11 is outside the allowed range (0 .. 10.5)." }, limits);
        row("a cell outside", "QVector<QStringList>", QStringList { "1", "3|11|4" },
            { "x, value 2: 3|11|4 is outside the allowed range (0 .. 10.5)." }, limits);
        row("a limit makes a number", "text", "a", { "x: \"a\" is not a number." }, limits);

        const ExtraKeys choices { { "Choices.x", "steel=Steel|wood" } };
        row("a choice", "text", "steel", {}, choices);
        row("a label for a choice", "text", "Steel",
            { "x: \"Steel\" is not among the choices (steel, wood)." }, choices);
        row("many choices", "text", "z",
            { "x: \"z\" is not among the choices (1, 2, 3, 4, 5, 6, 7, 8, 9, 10, ...)." },
            { { "Choices.x", "1|2|3|4|5|6|7|8|9|10|11" } });
        row("of several one is no choice", "QVector<QStringList>", QStringList { "wood", "iron" },
            { "x, value 2: \"iron\" is not among the choices (steel, wood)." }, choices);
        row("a hint for the mode", "float", 5, { "x: 5 is outside the allowed range (≤ 4)." },
            { { "Max.x", 9 }, { "Max.x@A", 4 } });
        row("does not count", "float", "abc", {}, { { "When.x", "y=0" } });
        row("counts", "float", "abc", { "x: \"abc\" is not a number." }, { { "When.x", "y=0|1" } });
    }
    void looksAtValues()
    {
        QFETCH(QString, kind);
        QFETCH(bool, isMulti);
        QFETCH(ExtraKeys, extraKeys);
        QFETCH(QVariant, value);
        const AUTH_INF item = itemOf({ entry("x", kind, isMulti), entry("y") }, extraKeys);
        const Values values { { "Attribute/y", 1 }, { "Attribute/x", value } };
        QTEST(textsOf(Verify::explain(&item, &values, "A")), "expected");
    }

    void asksForWhatMayBeEmpty()
    {
        const AUTH_INF item
            = itemOf({ entry("x"), entry("y"), entry("z") },
                     { { "Optional.x", "true" }, { "When.y", "z=1" }, { "Optional.z", "false" } });
        const Values none;
        QCOMPARE(textsOf(Verify::explain(&item, &none, "A")),
                 QStringList({ "x: no value. It may stay empty, but then an empty text has to be "
                               "stored.",
                               "y: no value. It may stay empty, but then an empty text has to be "
                               "stored.",
                               "z: no value." }));
    }

    void namesModes_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QStringList>("nearest");

        const auto row = [](const char *name, const QString &mode, const QString &expected,
                            const QStringList &nearest = {}) {
            QTest::newRow(name) << mode << expected << nearest;
        };
        row("unknown", "Plate", "There is no mode \"Plate\".");
        row("without a name", "", "There is no mode \"\".");
        row("case", "tension", "There is no mode \"tension\". Similar: Tension.", { "Tension" });
        row("a typing error", "Tensoin", "There is no mode \"Tensoin\". Similar: Tension.",
            { "Tension" });
        row("two near ones", "xension", "There is no mode \"xension\". Similar: Tension, Pension.",
            { "Tension", "Pension" });
        row("translated", "拉伸",
            "\"拉伸\" is a translated name. The mode is needed under its plain name, \"Tension\".",
            { "Tension" });
        row("without parameters", "Pension", "The mode \"Pension\" has no parameters.");
        row("without a list", "Bending", "The mode \"Bending\" has no parameters.");
    }
    void namesModes()
    {
        AUTH_INF item = itemOf({ entry("x") });
        item.inner_mode_nameList = QStringList { "Tension", "Pension", "Bending" };
        item.inner_mode_nameList_tr = QStringList { "拉伸", "", "", "more" };
        item.inner_mode_parameterList.append(QVector<QStringList>());
        QFETCH(QString, mode);
        const Values none;
        const QVector<Finding> findings = Verify::explain(&item, &none, mode);
        QTEST(textsOf(findings).join("\n"), "expected");
        QTEST(findings.first().expected, "nearest");
        QCOMPARE(findings.first().found, mode);
        QCOMPARE(findings.first().valueKey, "");
        QVERIFY(findings.first().isAbsence());
    }

    void givesData()
    {
        const AUTH_INF item = itemOf({ { "g", "x", "float", "true", "mm", "m", "s", "tr", "h" } },
                                     { { "Max.x", 4 }, { "Label.x", "Width" } });
        const Values values { { "Attribute/x", QStringList { "1", "5" } } };
        const QVector<Finding> findings = Verify::explain(&item, &values, "A");
        QCOMPARE(findings.size(), 1);
        const Finding finding = findings.first();
        QCOMPARE(finding.kind, Finding::OutsideLimits);
        QCOMPARE(finding.valueKey, "Attribute/x");
        QCOMPARE(finding.found, "5");
        QCOMPARE(finding.position, 1);
        QCOMPARE(finding.expected, QStringList("≤ 4"));
        QVERIFY(!finding.isAbsence());
        const QStringList places { "g", "x", "float", "true", "mm", "m", "s", "Width", "h" };
        QCOMPARE(finding.parameter.toSetsForm(), places);
    }

    /// Names stay as the item has them, and sentences follow the language.
    void speaksTheLanguageOfTheProgram()
    {
        const AUTH_INF item
            = itemOf({ { "g", "L", "float", "true", "mm", "", "l", "长度", "几何" }, entry("x") },
                     { { "Choices.x", "a|b" } });
        const Values values { { "Attribute/L", QStringList { "1", "?" } }, { "Attribute/x", "c" } };
        const QVector<Finding> findings = Verify::explain(&item, &values, "A");
        QTranslator chinese;
        QVERIFY(chinese.load(QLocale("zh_CN"), "kelto", "_", ":/kelto/translations"));
        QCoreApplication::installTranslator(&chinese);
        QCOMPARE(textsOf(findings),
                 QStringList({ "长度（l，mm），属于几何，第 2 个值：“?”不是数。",
                               "x：“c”不在可选值之中（a，b）。" }));
    }

private:
    static QStringList plainlyMissing(const QVector<QStringList> &entries, const Values &values,
                                      const QStringList &skipped)
    {
        QStringList missing;
        for (const QStringList &texts : entries) {
            const QString key = "Attribute/" + texts.value(1);
            bool isThere = skipped.contains(texts.value(0)) || skipped.contains(texts.value(8))
                || missing.contains(key);
            for (const auto &value : values)
                isThere = isThere || value.first == key;
            if (!isThere)
                missing.append(key);
        }
        return missing;
    }
};

QTEST_GUILESS_MAIN(TestKeltoItemParameterVerifyExplain)
#include "tst_keltoitemparameterverify_explain.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/AUTH_INF>
#include <Kelto/KeltoItemHints>

#include <QTest>

using ExtraKeys = QVector<VDataItem>;

Q_DECLARE_METATYPE(ExtraKeys)

class TestKeltoItemHintsProblems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatIsWrong_data()
    {
        QTest::addColumn<ExtraKeys>("extraKeys");
        QTest::addColumn<QStringList>("expected");

        const auto row
            = [](const char *name, const ExtraKeys &extraKeys, const QStringList &expected = {}) {
                  QTest::newRow(name) << extraKeys << expected;
              };
        row("the host's own extra keys",
            { { "Author", "x" },
              { "Price.L", "x" },
              { "min.L", "x" },
              { "Min", "x" },
              { "Order.L", "x" },
              { "Orders", "x" },
              { ".L", "x" },
              { "", "x" } });
        row("an unknown parameter", { { "Min.l", 1 } },
            { "Min.l: there is no parameter or result \"l\"." });
        row("no key", { { "Min.", 1 } }, { "Min.: there is no parameter or result \"\"." });
        row("a parameter that is no result", { { "Belong.L", "A" } },
            { "Belong.L: there is no result \"L\"." });
        row("an unknown mode", { { "Min.L@C", 1 } }, { "Min.L@C: there is no inner mode \"C\"." });
        row("a translated mode", { { "Min.L@甲", 1 } },
            { "Min.L@甲: there is no inner mode \"甲\"." });
        row("an order for an unknown mode", { { "Order@C", "L" } },
            { "Order@C: there is no inner mode \"C\"." });
        row("each unknown key of an order", { { "Order", "x|L|y|" } },
            { "Order: there is no parameter or result \"\".",
              "Order: there is no parameter or result \"x\".",
              "Order: there is no parameter or result \"y\"." });
        row("an empty order", { { "Order", "" } });
        row("an unknown mode of a result", { { "Belong.R", "A|C" } },
            { "Belong.R: there is no inner mode \"C\"." });
        row("a text with a comma from a file", { { "Help.L", QStringList { "a", "b" } } },
            { "Help.L: the value has to be one text. In a file, one with a comma needs quotes." });
        row("nothing", { { "Help.L", QVariant() } },
            { "Help.L: the value has to be one text. In a file, one with a comma needs quotes." });
        row("an empty list", { { "Help.L", QStringList() } },
            { "Help.L: the value has to be one text. In a file, one with a comma needs quotes." });
        row("a limit that is no number", { { "Max.L", "5 mm" } },
            { "Max.L: \"5 mm\" is not a number." });
        row("a limit without end", { { "Max.L", "inf" } }, { "Max.L: \"inf\" is not a number." });
        row("a decimal comma", { { "Max.L", "0,5" } }, { "Max.L: \"0,5\" is not a number." });
        row("a default that is no number beside a limit", { { "Default.L", "a" }, { "Max.L", 5 } },
            { "Default.L: \"a\" is not a number." });
        row("neither true nor false", { { "Optional.L", "yes" }, { "Advanced.L", "True" } },
            { "Optional.L: \"yes\" is neither \"true\" nor \"false\".",
              "Advanced.L: \"True\" is neither \"true\" nor \"false\"." });
        row("limits that allow nothing", { { "Min.L", 6 }, { "Max.L", "5" } },
            { "Min.L: with \"6\" the minimum is above the maximum.",
              "Max.L: with \"5\" the minimum is above the maximum." });
        row("limits that allow one number", { { "Min.L", 5 }, { "Max.L", 5 } });
        row("limits that allow nothing in one mode", { { "Min.L", 6 }, { "Max.L@B", 5 } },
            { "Min.L: with \"6\" the minimum is above the maximum.",
              "Max.L@B: with \"5\" the minimum is above the maximum." });
        row("a default outside the limits", { { "Default.L", 6 }, { "Max.L", 5 } },
            { "Default.L: \"6\" is outside the limits: the maximum is 5." });
        row("a default outside two limits",
            { { "Default.L", 6 }, { "Min.L", " 1e-1 " }, { "Max.L@B", 5 }, { "Max.L", 5.5 } },
            { "Default.L: \"6\" is outside the limits: the minimum is 1e-1 and the maximum 5.",
              "Default.L: \"6\" is outside the limits: the minimum is 1e-1 and the maximum 5.5." });
        row("one of several outside the limits", { { "Default.N", "1;-6" }, { "Min.N", -5 } },
            { "Default.N: \"1;-6\" is outside the limits: the minimum is -5." });
        row("a default that is no number", { { "Default.L", "abc" } },
            { "Default.L: \"abc\" is not a number." });
        row("an empty default", { { "Default.L", "" } }, { "Default.L: \"\" is not a number." });
        row("one of several that is no number", { { "Default.N", "1;2|3" } },
            { "Default.N: \"1;2|3\" is not a number." });
        row("whole numbers", { { "Default.W", "1;2.0" } });
        row("a fraction for a whole number", { { "Default.W", "1;1.5" } },
            { "Default.W: \"1;1.5\" is not a number." });
        row("one fraction for a whole number", { { "Default.I", "1.5" } },
            { "Default.I: \"1.5\" is not such a number as the parameter holds." });
        row("points", { { "Default.P", "1|2;3|4.5" } });
        row("a point with one coordinate", { { "Default.P", "1|2;3" } },
            { "Default.P: \"1|2;3\" is not a number." });
        row("a flag", { { "Default.F", true } });
        row("a flag that is neither true nor false", { { "Default.F", "maybe" } },
            { "Default.F: \"maybe\" is neither \"true\" nor \"false\"." });
        row("a flag with choices of its own",
            { { "Default.F", "yes" }, { "Choices.F", "yes|no" } });
        row("a default that is no choice", { { "Default.L", "one" }, { "Choices.L", "1=one|2" } },
            { "Default.L: \"one\" is none of the choices: \"1\", \"2\"." });
        row("a default that is none of many choices",
            { { "Default.L", "%1" }, { "Choices.L", "1|2|3|4|5|6|7|8|%4" } },
            { "Default.L: \"%1\" is none of the choices, such as \"1\", \"2\", \"3\", \"4\", "
              "\"5\", "
              "\"6\", \"7\", \"8\"." });
        row("no choices", { { "Choices.L", " " } },
            { "Choices.L: \" \" offers nothing, or one value twice." });
        row("a choice twice", { { "Choices.L", "1=a| 1 =b" } },
            { "Choices.L: \"1=a| 1 =b\" offers nothing, or one value twice." });
        row("two choices of one label", { { "Choices.L", "1=a|2=a" } });
        const QString noCondition = "When.L: \"%1\" is not \"parameter=value\".";
        const QString circle = "When.%1: with \"%2\" parameters depend on each other in a circle.";
        row("no condition", { { "When.L", "N" } }, { noCondition.arg("N") });
        row("a condition on nothing it names", { { "When.L", " =1" } }, { noCondition.arg(" =1") });
        row("an empty condition", { { "When.L", "" } }, { noCondition.arg("") });
        row("a condition on an unknown parameter", { { "When.L", " Nn =1=2" } },
            { "When.L: there is no parameter \"Nn\"." });
        row("a condition on a result", { { "When.L", "R=1" } },
            { "When.L: there is no parameter \"R\"." });
        row("a condition on itself", { { "When.L", "L=1" } }, { circle.arg("L", "L=1") });
        row("conditions in a circle, and one on them",
            { { "When.M", "L=1" }, { "When.L", "N=1" }, { "When.N", "L=%1" } },
            { circle.arg("L", "N=1"), circle.arg("N", "L=%1") });
        row("a circle in one mode", { { "When.L", "N=1" }, { "When.N@A", "L=1" } },
            { circle.arg("L", "N=1"), circle.arg("N@A", "L=1") });
        const ExtraKeys choices { { "Choices.N", "a=one|b" }, { "Choices.N@B", "c" } };
        row("a condition on what can be chosen", choices + ExtraKeys { { "When.L@A", "N=c|b" } });
        row("a condition on a label", choices + ExtraKeys { { "When.L@A", "N=one|c" } },
            { "When.L@A: no value in \"N=one|c\" can be chosen." });
        row("a condition on what can be chosen in one mode",
            choices + ExtraKeys { { "When.L", "N=b" } },
            { "When.L: no value in \"N=b\" can be chosen." });
        row("a condition on nothing", choices + ExtraKeys { { "When.L", "N=" } });
        row("a circle that can never be",
            { { "Choices.N", "1" }, { "When.L", "N=2" }, { "When.N", "L=1" } },
            { "When.L: no value in \"N=2\" can be chosen." });
        row("one extra key twice", { { "Min.L", 1 }, { "Min.L", "x" } },
            { "Min.L: this extra key is there twice; the first one counts." });
        row("one after a senseless one", { { "Min.L", "x" }, { "Min.L", 1 } },
            { "Min.L: \"x\" is not a number.",
              "Min.L: this extra key is there twice; the first one counts." });
    }
    void saysWhatIsWrong()
    {
        const auto entry = [](const char *key, const char *multi, const char *kind = "float") {
            return QStringList { "g", key, kind, multi, "mm", "m", "s", key, "g" };
        };
        AUTH_INF item;
        item.inner_mode_nameList = QStringList { "A", "B" };
        item.inner_mode_nameList_tr = QStringList { "甲", "乙" };
        item.inner_mode_parameterList
            = { { entry("L", "false"), entry("N", "true"), entry("M", "false"),
                  entry("W", "true", "QVector<int>"), entry("P", "true", "QVector<QPointF>"),
                  entry("F", "false", "bool"), entry("I", "false", "int") },
                { entry("L", "false") } };
        item.output_results = { entry("R", "false") };
        QFETCH(ExtraKeys, extraKeys);
        item.extraKey = extraKeys;

        QStringList texts;
        const QVector<KeltoItemHints::Problem> problems = KeltoItemHints(item).problems();
        for (const KeltoItemHints::Problem &problem : problems)
            texts.append(problem.text());
        QTEST(texts, "expected");
    }
};

QTEST_GUILESS_MAIN(TestKeltoItemHintsProblems)
#include "tst_keltoitemhints_problems.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What divides the parts of a value, and the white space around them: findings, and what --fix
// makes of the file.

#include "lint/fixes.h"

#include "lint/lintconfig.h"
#include "lintfindings.h"
#include "support/directorytest.h"

#include <QTest>

class TestKeltoLintLists : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
};

void TestKeltoLintLists::finds_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("fixed");

    const auto row = [](const char *name, const QString &end, const QStringList &lines,
                        const QString &fixed = QString()) {
        QTest::newRow(name) << end << lines << (fixed.isNull() ? end : fixed);
    };
    const QString bars
        = "split-text a \"|\" divides the parts of this hint, and not a comma: write ";
    const QString quotes = "split-text the comma makes a list of the text, which is then not read "
                           "as a text; put quotes around it";
    row("choices", "Choices.A=water,oil, other\n", { "1:16 " + bars + "Choices.A=water|oil|other" },
        "Choices.A=water|oil|other\n");
    row("choices with labels", "Choices.A = 1=Water, 2=Oil\n",
        { "1:20 " + bars + "Choices.A=1=Water|2=Oil" }, "Choices.A = 1=Water|2=Oil\n");
    row("choices of which some may be the rest of a label", "Choices.A=1=Water, cold, 2=Oil\n",
        { "1:18 split-text a \"|\" divides the parts of this hint, and not a comma" });
    row("choices with bars and a comma", "Choices.A=1=Water, cold|2=Oil\n", { "1:18 " + quotes });
    row("choices in quotes", "Choices.A=\"wa;ter\",oil\n",
        { "1:19 " + bars + "Choices.A=wa;ter|oil" });
    row("a condition", "When.B=A=1,2\n", { "1:11 " + bars + "When.B=A=1|2" }, "When.B=A=1|2\n");
    row("a condition on a choice with a comma", "Choices.A=\"1, 2|3\"\nWhen.B=A=1, 2\n",
        { "2:11 " + quotes });
    row("two conditions", "When.B=A=1, R=2\n",
        { "1:11 split-text a \"|\" divides the parts of this hint, and not a comma" });
    row("choices with semicolons", "Choices.A=1;2\n",
        { "1:12 cut-text the text ends at the \";\"; a \"|\" divides the parts of this hint, and "
          "a comment stands on a line of its own" });
    row("no condition", "When.B=A,1\n", { "1:9 " + quotes });
    row("an order", "Order=A, B, \"E, F\", R\n", { "1:8 " + bars + "Order=A|B|E|F|R" });
    row("an order without quotes", "Order@Shear=A, B, R\n",
        { "1:14 " + bars + "Order@Shear=A|B|R" }, "Order@Shear=A|B|R\n");
    row("an order with an unknown key", "Order=A, C\n", { "1:8 " + bars + "Order=A|C" });
    row("an order of one key with a comma", "Order=E, F\n", { "1:8 " + quotes });
    row("the modes of a result", "Belong.R=Bending, Shear\n",
        { "1:17 " + bars + "Belong.R=Bending|Shear" }, "Belong.R=Bending|Shear\n");
    row("a mode with a comma", "Belong.R=Twist, free\n", { "1:15 " + quotes });
    row("a text", "Help.A=Water, oil\n", { "1:13 " + quotes });
    row("another key of a host", "Colours=red, green\n", { "1:12 " + quotes });
    row("two words for one", "[Multi]\nA=true, false\n",
        { "2:7 split-text the comma makes a list of the value, which is then not read; write one "
          "value" });
    row("a text in single quotes", "[Symbol]\nA='a, b'\n", { "2:5 " + quotes });
    row("a text like a value of another type", "[Symbol]\nA=@Size(1, 2)\n", { "2:10 " + quotes });
    row("many choices", "Choices.A=" + QString("a,").repeated(80) + "b\n",
        { "1:12 split-text a \"|\" divides the parts of this hint, and not a comma" },
        "Choices.A=" + QString("a|").repeated(80) + "b\n");

    const QString blanks = " is dropped; put quotes around the text where it is meant";
    row("white space behind a comma", "[Unit]\nA=mm,   m\n",
        { "2:7 dropped-white-space white space in front of \"m\"" + blanks }, "[Unit]\nA=mm, m\n");
    row("white space before a comma", "[Unit]\nA=mm , m\n",
        { "2:5 dropped-white-space white space behind \"mm\"" + blanks }, "[Unit]\nA=mm, m\n");
    row("white space in front of the rest of a list", "[Unit]\nA=mm,\\\n    m\n",
        { "3:5 white-space-at-ends \"    m\" begins or ends with white space, which is a part of "
          "the "
          "text" });
    row("white space in front of a comment", "Help.A=Water  ; cold\n",
        { "1:15 cut-text the text ends at the \";\"; put quotes around it, or put the comment on a "
          "line of its own" });
    row("white space that is a part of an element", "[Unit]\nA=mm, \" m\"\n",
        { "2:7 white-space-at-ends \" m\" begins or ends with white space, which is a part of the "
          "text" });
}

void TestKeltoLintLists::finds()
{
    QFETCH(QString, end);
    QFETCH(QStringList, lines);
    QFETCH(QString, fixed);

    const QByteArray head
        = "[KeltoItem]\nname=Beam\ntype=calculation\nexclusive_group=true\n"
          "inner_mode_count=3\n"
          "inner_mode_nameList=Bending, Shear, \"Twist, free\"\noutput_results=R\n"
          "[Attribute]\nA=\nB=\nE%2C%20F=\n[Belong]\nA=Bending, \"Twist, free\"\n"
          "B=Shear\nE%2C%20F=Shear\n[Result]\nR=\n[ExtraKey]\n";
    writeFile("first.ini", head + end.toUtf8());
    const ItemFile file("first.ini");
    const int headLines = head.count('\n');
    QStringList found;
    const Findings findings = findingsIn(file);
    for (Finding finding : findings) {
        finding.position.line -= headLines;
        if (finding.position.line > 0)
            found.append(lineOf(finding));
    }
    QCOMPARE(found, lines);
    QCOMPARE(fixedFile(file, LintConfig({})).bytes.mid(head.size()), fixed.toUtf8());
}

QTEST_GUILESS_MAIN(TestKeltoLintLists)

#include "tst_kelto_lint_lists.moc"

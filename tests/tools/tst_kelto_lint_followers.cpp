// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// One cause is one finding, at its place.

#include "console.h"
#include "lint/fixes.h"
#include "lint/lintconfig.h"
#include "lintfindings.h"
#include "support/directorytest.h"

#include <QTest>

class TestKeltoLintFollowers : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheCause_data();
    void findsTheCause();
    void findsWhatFollowsFromWhatIsSwitchedOff();
    void fixesWhereItIsRead_data();
    void fixesWhereItIsRead();
};

namespace {

const char *const cleanItem
    = "[KeltoItem]\nname=Pump\ntype=calculation\ngroup=Fluids\nexclusive_group=true\n"
      "inner_mode_count=2\ninner_mode_nameList=Design, Part load\n\n"
      "[Attribute]\nFlow=\nStatic head=\nSpeed=\n\n"
      "[Belong]\nFlow=Design\nStatic head=Design\nSpeed=Part load\n\n"
      "[Unit]\nFlow=m³/h, m³/s\nStatic head=m, m\nSpeed=Hz, Hz\n\n"
      "[Symbol]\nFlow=Q\nStatic head=H\nSpeed=n\n\n"
      "[ExtraKey]\nDefault.Flow=5\nMin.Flow=1\nHelp.Flow=\"Volume, not mass\"\nMax.Speed=60\n"
      "When.Flow=Speed=50\n";

} // namespace

void TestKeltoLintFollowers::findsTheCause_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QStringList>("lines");

    const auto row
        = [](const char *name, const char *before, const char *after, const QStringList &lines) {
              QTest::newRow(name) << QByteArray(before) << QByteArray(after) << lines;
          };
    const auto header = [](int line, const char *section) {
        return QStringList(
            QString("%1:1 broken-header the \"[\" in front of the header is missing, "
                    "so that the keys below do not belong to the section \"%2\"")
                .arg(line)
                .arg(section));
    };
    const QString hashKey = "%1:1 hash-key \"#\" begins no comment here: the line is a key; a "
                            "comment begins with \";\"";
    const QString noEqualsSign = "%1:1 no-equals-sign the line has no \"=\" and is ignored";
    row("nothing", "", "", {});

    row("a header without its first bracket", "[Symbol]", "Symbol]", header(24, "Symbol"));
    row("the first header without its first bracket", "[KeltoItem]", "KeltoItem]",
        header(1, "KeltoItem"));
    row("a header of parameters without its first bracket", "[Attribute]", "Attribute]",
        header(9, "Attribute"));
    row("a header of modes without its first bracket", "[Belong]", "belong]",
        header(14, "Belong") + QStringList());
    row("a header without its second bracket", "[Symbol]", "[Symbol",
        { "24:1 broken-header the header has no \"]\"" });
    row("a header without brackets", "[Symbol]", "Symbol ",
        { "24:1 broken-header the line has no \"=\" and is ignored; the header of a section is "
          "written [Symbol]" });
    row("another header for the fields", "[KeltoItem]", "[Item]",
        { "1:1 misspelt-section nothing is read from the section \"Item\". Did you mean "
          "\"KeltoItem\"?" });
    row("text behind a header", "[Symbol]", "[Symbol] of parameters",
        { "24:1 broken-header the text behind the header is ignored" });

    row("parameters without an equals sign", "Flow=\nStatic head=\nSpeed=\n\n",
        "Flow\nStatic head \nSpeed=\n\n", { noEqualsSign.arg(10), noEqualsSign.arg(11) });
    row("a field with a colon", "name=", "name: ", { noEqualsSign.arg(2) });
    row("modes of a parameter behind a blank", "Static head=Design", "Static head Design",
        { noEqualsSign.arg(16) });

    row("a result without an equals sign", "[Unit]\n", "[Result]\nPower\n\n[Unit]\nPower=kW, kW\n",
        { noEqualsSign.arg(20) });

    row("a quote that is not closed", "group=", "description=\"Pumps, radial\ngroup=",
        { "4:13 quote-across-lines the quote is not closed on this line, and all up to line 35 is "
          "read as a part of this value" });
    row("a quote that is not closed in the last line", "When.Flow=Speed=50", "Help.Speed=\"Speed",
        { "34:12 quote-across-lines the quote is not closed on this line, and all up to line 34 is "
          "read as a part of this value" });
    row("a quote in a line without an equals sign", "Static head=\nSpeed=", "Static \"head\nSpeed=",
        { "11:1 no-equals-sign the line has no \"=\" and a quote that is not closed, and all up to "
          "line 34 is ignored with it" });
    row("a backslash at the end of a line", "name=", "icon=img\\\nname=",
        { "2:9 joined-lines the backslash at the end of the line makes the next line a part of "
          "this value" });

    row("semicolons between modes", "Design, Part load", "Design; Part load",
        { "7:27 cut-text the list ends at the \";\"; a comma divides its elements, and a comment "
          "stands on a line of its own" });
    row("semicolons between units", "m³/h, m³/s", "m³/h; m³/s",
        { "20:10 cut-text the list ends at the \";\"; a comma divides its elements, and a comment "
          "stands on a line of its own" });
    row("a comma in the name of a mode", "=Design, Part load", "=Design, at 20 °C, Part load",
        { "6:18 mode-count \"inner_mode_count\" is 2, and \"inner_mode_nameList\" has 3; a name "
          "with a comma needs quotes" });
    row("a blank at the end of a mode", "Design, Part load", "\"Design \", Part load",
        { "7:21 unknown-mode the name of the mode begins or ends with white space, and [Belong] "
          "names it without" });
    row("blanks at both ends of a mode", "Design, Part load", "Design, \"  Part load \"",
        { "7:29 unknown-mode the name of the mode begins or ends with white space, and [Belong] "
          "names it without" });
    row("a blank at the end of a copy of a mode", "Design, Part load",
        "Design, Part load, \"Part load \"",
        { "6:18 mode-count \"inner_mode_count\" is 2, and \"inner_mode_nameList\" has 3; a name "
          "with a comma needs quotes",
          "7:40 white-space-at-ends \"Part load \" begins or ends with white space, which is a "
          "part "
          "of the text",
          "7:40 like-modes the inner modes \"Part load\" and \"Part load \" differ only in case or "
          "white space" });
    row("a line that was to be a comment", "name=", "# name=Beam\nname=",
        { "2:1 hash-key \"#\" begins no comment here: the line is a key; a comment begins with "
          "\";\"" });

    row("parameters with a colon", "Flow=\nStatic head=\nSpeed=\n\n",
        "Flow:\nStatic head : \nSpeed=\n\n", { noEqualsSign.arg(10), noEqualsSign.arg(11) });
    row("a quote in a key", "Static head=H", "Static head 5\"=H",
        { "26:1 no-equals-sign the quote hides the \"=\", and all up to line 34 is ignored; write "
          "a quote in a key as %22" });
    const QString blankMode = "%1 unknown-mode the name of the mode begins or ends with white "
                              "space, and [Belong] names it without";
    row("a mode on a line of its own", "Design, Part load", "Design,\\\n\tPart load",
        { blankMode.arg("8:2") });
    row("a full-width blank before a mode", "Design, Part load", "Design,\u3000Part load",
        { blankMode.arg("7:28") });
    row("white space around the mode of a parameter", "=Part load", "=\" Part load\"",
        { "17:7 unknown-mode there is no mode \" Part load\". Did you mean \"Part load\"?" });
    row("lines behind \"#\" below each header", "group=Fluids",
        "#group=Solids\ngroup=Fluids\n[Attribute]\n#Head=\n[Belong]\n#Speed=Design\n[Symbol]\n"
        "#Flow=Q\n[KeltoItem]",
        { hashKey.arg(4), hashKey.arg(7), hashKey.arg(9), hashKey.arg(11) });
    row("no list of modes", "inner_mode_nameList=Design, Part load", "inner_mode_description=A, B",
        { "10:1 missing-modes there are parameters, but \"inner_mode_nameList\" names no mode to "
          "which they belong" });
    row("a superfluous comma behind the mode of a parameter", "=Part load", "=Part load,",
        { "17:17 unknown-mode a superfluous comma makes an empty name" });
    row("a superfluous comma behind the modes", "Design, Part load", "Design, Part load,",
        { "6:18 mode-count \"inner_mode_count\" is 2, and \"inner_mode_nameList\" has 3; a "
          "superfluous comma makes an empty name" });
    row("a declaration that no other section knows", "[Attribute]\nFlow=", "[Attribute]\nFlwo=",
        { "15:1 undeclared-key there is no parameter \"Flow\". Did you mean \"Flwo\"? Other "
          "sections have this key, too, so that its declaration may be misspelt" });
    row("a parameter that is misspelt in one section", "[Belong]\nFlow=", "[Belong]\nFlwo=",
        { "15:1 undeclared-key there is no parameter \"Flwo\". Did you mean \"Flow\"?" });
    row("a backslash at the end of a header", "[Symbol]", "[Symbol\\",
        { "24:1 broken-header the header has no \"]\"",
          "24:1 unknown-section nothing is read from the section \"Symbol/\nFlow=Q\"" });
    row("a backslash at the end of a line without an equals sign",
        "name=", "a comment\\\non two lines\nname=",
        { "2:1 no-equals-sign the line has no \"=\" and a backslash at its end, and all up to line "
          "3 is ignored with it" });
    row("a backslash in front of a line with a key", "name=", "a comment\\\nname=",
        { "2:1 quote-in-key the backslash at the end of the line makes the next line a part of the "
          "key" });
    row("no header", "[KeltoItem]\n", "",
        { "1:1 key-outside-section the keys up to line 6 stand in no section and are not read" });
    row("a unit in Latin 1", "m³/h", "m\xb3/h", { "20:6 not-utf8 the bytes are not UTF-8" });
    row("a header with a quote", "[Symbol]", "[Symbol] \"of a pump",
        { "24:1 broken-header the header has a quote that is not closed, and all up to line 34 is "
          "ignored" });
    row("comments behind what is no text", "count=2", "count=2 ; A, B", {});
    row("a comment behind a declaration", "Flow=\n", "Flow= ; large\n", {});

    // What is wrong beside it.
    row("a name behind \"#\"", "name=", "#name=",
        { "1:1 missing-name the item has no name: [KeltoItem] has no key \"name\"",
          hashKey.arg(2) });
    row("a key in no section beside another of its name", "[Unit]",
        "[General]\ninner_mode_count=3\n[Unit]",
        { "20:1 key-outside-section the key stands in no section and is not read" });
    row("a misspelt mode beside a header without its bracket",
        "Part load\n\n[Unit]\nFlow=m³/h, m³/s\nStatic head=m, m\nSpeed=Hz, Hz\n\n[Symbol]",
        "Prt load\n\n[Unit]\nSymbol]",
        QStringList("17:7 unknown-mode there is no mode \"Prt load\". Did you mean \"Part load\"?")
            + header(20, "Symbol"));
    row("two quotes that are not closed", "Flow=Q\nStatic head=H", "Flow=\"Q\nStatic head=\"H",
        { "25:6 quote-across-lines the quote is not closed on this line, and all up to line 26 is "
          "read as a part of this value",
          "26:14 stray-quote the quote is not around the whole text and is dropped; put quotes "
          "around all of it and write the ones inside as \\\"" });
    row("a quote that is not closed in front of two others", "name=Pump\n",
        "icon=\"pump\nname=Pump\n; of 5\" pipes\nlib_name=\"a\ndescription=\"b\n",
        { "2:6 quote-across-lines the quote is not closed on this line, and all up to line 4 is "
          "read as a part of this value",
          "5:10 quote-across-lines the quote is not closed on this line, and all up to line 6 is "
          "read as a part of this value",
          "6:14 stray-quote the quote is not around the whole text and is dropped; put quotes "
          "around all of it and write the ones inside as \\\"" });
    row("a text that is meant to have two lines",
        "group=", "description=\"Pumps,\nradial and axial\"\ngroup=",
        { "4:13 quote-across-lines the quote is not closed on this line, and all up to line 5 is "
          "read as a part of this value" });
    row("an error that follows from a line that was to be a comment", "[ExtraKey]\n",
        "[ExtraKey]\n# Flow%41=q\n",
        { "30:1 hash-key \"#\" begins no comment here: the line is a key; a comment begins with "
          "\";\"",
          "30:7 escape-in-key the key is read as \"# FlowA\"; write \"%\" as %25" });
    row("errors beside a line that was to be a comment", "Static head=\n", "# Static head=\n",
        { "11:1 hash-key \"#\" begins no comment here: the line is a key; a comment begins with "
          "\";\"",
          "16:1 undeclared-key there is no parameter \"Static head\"",
          "21:1 undeclared-key there is neither a parameter nor a result \"Static head\"",
          "26:1 undeclared-key there is neither a parameter nor a result \"Static head\"" });
}

void TestKeltoLintFollowers::findsTheCause()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QStringList, lines);

    QByteArray bytes(cleanItem);
    QVERIFY(bytes.contains(before));
    const int place = bytes.indexOf(before);
    writeFile("first.ini", bytes.replace(place, before.size(), after));
    QCOMPARE(linesOf(findingsIn(ItemFile("first.ini")), Severity::Warning), lines);
}

void TestKeltoLintFollowers::findsWhatFollowsFromWhatIsSwitchedOff()
{
    writeFile("first.ini", QByteArray(cleanItem).replace("Speed=\n", "Speed\n"));
    writeFile(".kelto-lint.ini", "[Rules]\nno-equals-sign=off\n");
    const QStringList paths { "first.ini" };
    Console console;
    QCOMPARE(linesOf(lint(paths, LintConfig(paths), console).findings, Severity::Warning),
             QStringList({ "7:29 mode-without-parameters no parameter belongs to the mode \"Part "
                           "load\", and values for it are never complete",
                           "17:1 undeclared-key there is no parameter \"Speed\"",
                           "33:5 bad-hint Max.Speed: there is no parameter or result \"Speed\"",
                           "34:11 bad-hint When.Flow: there is no parameter \"Speed\"" }));
}

void TestKeltoLintFollowers::fixesWhereItIsRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("fixed");

    QTest::newRow("what follows from what is switched off")
        << QByteArray("[KeltoItem]\nname=Beam\ninner_mode_count: 1\ninner_mode_nameList=A\n")
        << QByteArray("[Rules]\nno-equals-sign=off\n")
        << QByteArray("[KeltoItem]\nname=Beam\ninner_mode_count: 1\ninner_mode_nameList=A\n"
                      "inner_mode_count=1\n");
    QTest::newRow("results, before a section that is misspelt")
        << QByteArray("[KeltoItem]\nname=Beam\n[Result]\nR=\n[Keltoitem]\nicon=a\n") << QByteArray()
        << QByteArray("[KeltoItem]\nname=Beam\noutput_results=R\n[Result]\nR=\n[Keltoitem]\n"
                      "icon=a\n");
}

void TestKeltoLintFollowers::fixesWhereItIsRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, fixed);

    writeFile("first.ini", bytes);
    writeFile(".kelto-lint.ini", settings);
    QCOMPARE(fixedFile(ItemFile("first.ini"), LintConfig({ "first.ini" })).bytes, fixed);
}

QTEST_GUILESS_MAIN(TestKeltoLintFollowers)

#include "tst_kelto_lint_followers.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Findings about how one file is written, and what is mended in it.

#include "console.h"
#include "lint/fixes.h"
#include "lint/lintconfig.h"
#include "lint/lintitem.h"
#include "lintfindings.h"
#include "support/directorytest.h"
#include "terminaltext.h"

#include <QTest>

class TestKeltoLintFiles : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void findsInOneFile_data();
    void findsInOneFile();
    void mendsWithOneRightAnswerOnly_data();
    void mendsWithOneRightAnswerOnly();
    void addsALine_data();
    void addsALine();
    void takesEscapesForMeantInSavedFiles_data();
    void takesEscapesForMeantInSavedFiles();
    void findsNothingButUtf16();
    void printsNoChangeOfDirection();
};

void TestKeltoLintFiles::findsInOneFile_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("lines");

    const auto row = [](const char *name, const QByteArray &file, const QStringList &lines) {
        QTest::newRow(name) << file << lines;
    };

    const QByteArray modes = "[KeltoItem]\nname=Beam\nexclusive_group=true\ninner_mode_count=2\n"
                             "inner_mode_nameList=";
    const QByteArray lists = modes + "A, B\n[Attribute]\nLength=\n[Belong]\nLength=";
    row("a full-width comma between modes", lists + "A，B\n",
        { "9:9 other-comma the \"，\" divides no list; write a \",\" for it" });
    row("another character between modes, and an unknown one", lists + "A | B | D\n",
        { "9:10 other-comma the \"|\" divides no list; write a \",\" for it",
          "9:8 unknown-mode there is no mode \"D\"" });
    row("a full-width comma between unknown modes", lists + "C，D\n",
        { "9:8 unknown-mode there is no mode \"C，D\"" });
    row("a full-width comma in the list of modes",
        modes + "A、B\n[Attribute]\nLength=\n[Belong]\nLength=A, B\n",
        { "5:22 other-comma the \"、\" divides no list; write a \",\" for it" });
    row("a full-width comma in the name of a mode",
        modes + "A，a, B\n[Attribute]\nLength=\n[Belong]\nLength=\"A，a\", B\n", {});
    row("a full-width comma between results",
        "[KeltoItem]\nname=Beam\noutput_results=A，B\n[Result]\nA=\nB=\n",
        { "3:17 other-comma the \"，\" divides no list; write a \",\" for it" });
    row("a full-width comma in a description",
        modes + "A, B\ninner_mode_description=a，b\n[Attribute]\nLength=\n[Belong]\nLength=A, B\n",
        { "6:24 list-length there are 1 descriptions for 2 modes" });
    row("quotes around a list", lists + "\"A, B\"\n",
        { "9:8 other-comma the quotes make one text of the list; leave them out" });
    row("units in quotes and with a full-width comma",
        "[KeltoItem]\nname=Beam\noutput_results=A, B\n[Result]\nA=\nB=\n[Unit]\nA=\"mm, "
        "m\"\nB=mm，m\n",
        { "8:3 other-comma the quotes make one text of the list; leave them out",
          "9:5 other-comma the \"，\" divides no list; write a \",\" for it" });
    row("a count that is too large", modes + "A\n[Attribute]\nLength=\n[Belong]\nLength=A\n",
        { "4:18 mode-count \"inner_mode_count\" is 2, and \"inner_mode_nameList\" has 1" });
    row("a count that the descriptions confirm",
        modes + "A\ninner_mode_description=a, b\n[Attribute]\nLength=\n[Belong]\nLength=A\n",
        { "5:21 mode-count \"inner_mode_count\" is 2, and \"inner_mode_nameList\" has 1" });
    row("a flag without a text",
        "[KeltoItem]\nname=Beam\nexclusive_group=\ninner_mode_count=1\ninner_mode_nameList=A\n"
        "[Attribute]\nLength=\n[Belong]\nLength=A\n",
        { "5:1 missing-exclusive-group modes are listed, and \"exclusive_group\" does not say "
          "whether one of them is selected at a time" });
    row("a count that is too small",
        modes + "A, B, C\n[Attribute]\nLength=\n[Belong]\nLength=A, B, C\n",
        { "4:18 mode-count \"inner_mode_count\" is 2, and \"inner_mode_nameList\" has 3; a name "
          "with "
          "a comma needs quotes" });
    row("a slash in a key that stands in every section",
        modes
            + "A, B\n[Attribute]\nLoad/m=\n[Belong]\nLoad/m=A, B\n[Unit]\nLoad/m=N/m, N/m\n"
              "[Symbol]\nLoad/m=q\n[ExtraKey]\nMin.Load/m=1\n",
        { "7:1 slash-in-key of the key only \"m\" is read, what stands behind the \"/\"" });
    row("a key with a slash that is described by what is read of it",
        modes + "A, B\n[Attribute]\nLoad/m=\n[Belong]\nm=A, B\n",
        { "7:1 slash-in-key of the key only \"m\" is read, what stands behind the \"/\"" });
    row("escapes behind an \"@\"", "[KeltoItem]\nname=Beam\nicon=@home\\new\\x41.png\n",
        { "3:11 unquoted-escape the backslash and what follows are read as another character; "
          "write a backslash as \\\\, or put quotes around the text where the other character is "
          "meant",
          "3:15 unquoted-escape the backslash and what follows are read as another character; "
          "write a backslash as \\\\, or put quotes around the text where the other character is "
          "meant" });
    row("a text that only begins like another type", "[KeltoItem]\nname=Beam\nicon=@Size(3\n", {});
    row("an empty list in another one", "[KeltoItem]\nname=Beam\nlib_name=a, @Invalid()\n",
        { "3:13 typed-value the text is read as a value of another type; write \"@@\" for \"@\" "
          "where a text is meant" });
    row("a section that Qt calls none", "[KeltoItem]\nname=Beam\n[General]\nicon=a\n",
        { "4:1 key-outside-section the key stands in no section and is not read" });
    row("two symbols of a parameter", lists + "A, B\n[Symbol]\nLength=l\nLength=L\n",
        { "12:1 duplicate-key \"Length\" stands in line 11, too, with another value; only one of "
          "them is read" });
    row("a flag in capital letters", "[KeltoItem]\nname=Beam\nexclusive_group=TRUE\n", {});
    row("a declaration without \"=\" is one more finding for each key",
        "[KeltoItem]\nname=Beam\n[Attribute]\nLength\n[Unit]\nLength=\n[Symbol]\nLength=l\n"
        "[Group]\nWidth=\n[Multi]\nWidth=false\n",
        { "3:1 empty-section the section has no keys",
          "4:1 no-equals-sign the line has no \"=\" and is ignored",
          "6:1 undeclared-key there is neither a parameter nor a result \"Length\"",
          "10:1 undeclared-key there is neither a parameter nor a result \"Width\"",
          "12:1 undeclared-key there is neither a parameter nor a result \"Width\"" });
    row("a flag without a text is as good as none",
        "[KeltoItem]\nname=Beam\n[Result]\nLength=\n[Multi]\nLength=\n",
        { "4:1 results-not-read no result is read, since \"output_results\" is missing under "
          "[KeltoItem]" });
    row("parameters in an unknown section",
        "[KeltoItem]\nname=Beam\n[Params]\nLength=\n[Unit]\nLength=\n[Symbol]\nLength=l\n",
        { "3:1 unknown-section nothing is read from the section \"Params\"",
          "6:1 undeclared-key there is neither a parameter nor a result \"Length\"" });
}

void TestKeltoLintFiles::mendsWithOneRightAnswerOnly_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("fixes");

    const QByteArray item = "[KeltoItem]\nname=Beam\n";
    const auto row = [](const char *name, const QByteArray &file, const char *rule, int fixes) {
        QTest::newRow(name) << file << QString(rule) << fixes;
    };
    row("a key in other letters",
        item
            + "[ExtraKey]\nGr\xc3\xb6\xc3\x9f"
              "e=1\n",
        "non-ascii-key", 1);
    row("a key in other letters that is there already",
        item
            + "[ExtraKey]\nGr\xc3\xb6\xc3\x9f"
              "e=1\nGr%F6%DF"
              "e=2\n",
        "non-ascii-key", 0);
    row("a field in other letters", item + "d\xc3\xa9scription=a\n", "non-ascii-key", 0);
    row("a field in capital letters", item + "DESCRIPTION=a\n", "misspelt-key", 1);
    row("two fields that would become one", item + "DESCRIPTION=a\nDescription=b\n", "misspelt-key",
        0);
    row("a section in small letters", item + "[belong]\nLength=a\n", "misspelt-section", 1);
    row("two sections that would become one", item + "[belong]\nLength=a\n[BELONG]\nLength=b\n",
        "misspelt-section", 0);
    row("full-width commas", item + "inner_mode_count=2\ninner_mode_nameList=A ， B\n",
        "other-comma", 1);
    row("full-width commas in quotes", item + "inner_mode_count=2\ninner_mode_nameList=\"A，B\"\n",
        "other-comma", 0);
    row("a mode in other letters",
        item
            + "inner_mode_count=2\ninner_mode_nameList=part, "
              "FULL\n[Attribute]\na=\n[Belong]\na=Part\n",
        "unknown-mode", 1);
    row("a mode in other letters than two",
        item
            + "inner_mode_count=2\ninner_mode_nameList=part, "
              "PART\n[Attribute]\na=\n[Belong]\na=Part\n",
        "unknown-mode", 0);
    row("results that no field counts", item + "[Result]\na=\nb=\n", "results-not-read", 1);
    row("a result with a comma", item + "[Result]\na%2Cb=\n", "results-not-read", 0);
    row("one unit", item + "[Unit]\nPower=kW\n", "single-unit", 1);
    row("one unit beside others that are converted", item + "[Unit]\nPower=kW\nLength=mm, m\n",
        "single-unit", 0);
}

void TestKeltoLintFiles::mendsWithOneRightAnswerOnly()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, rule);
    QFETCH(int, fixes);

    writeFile("first.ini", file);
    const Findings findings = findingsIn(ItemFile("first.ini"));
    QVERIFY(countOf(findings, rule) > 0);
    const auto isMended
        = [&rule](const Finding &each) { return each.rule == rule && !each.fix.isEmpty(); };
    QCOMPARE(int(std::count_if(findings.cbegin(), findings.cend(), isMended)), fixes);
}

void TestKeltoLintFiles::addsALine_data()
{
    QTest::addColumn<QByteArray>("lineEnd");
    QTest::addColumn<QByteArray>("end");

    for (const QByteArray &lineEnd : { QByteArray("\n"), QByteArray("\r\n"), QByteArray("\r") }) {
        QTest::addRow("behind %s", lineEnd.toHex().constData()) << lineEnd << lineEnd + lineEnd;
        QTest::addRow("at the end, behind %s", lineEnd.toHex().constData())
            << lineEnd << QByteArray();
    }
}

void TestKeltoLintFiles::addsALine()
{
    QFETCH(QByteArray, lineEnd);
    QFETCH(QByteArray, end);

    const QByteArray lines
        = QByteArray("[KeltoItem]\nname=Beam\ninner_mode_nameList=A").replace("\n", lineEnd);
    writeFile("first.ini", lines + end);
    QCOMPARE(fixedFile(ItemFile("first.ini"), LintConfig({})).bytes,
             lines + lineEnd + "inner_mode_count=1" + end);
}

void TestKeltoLintFiles::takesEscapesForMeantInSavedFiles_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<int>("count");

    const auto row = [](const char *name, const char *before, const char *after, int count) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << count;
    };
    row("as it is saved", "", "", 0);
    row("line ends of Windows", "\n", "\r\n", 0);
    row("results added", "type=", "output_results = a, b\ntype=", 0);
    row("an escape in an extra key", "Author=", "Author=a\\nb", 0);
    row("a comment", "name=", "; Name\nname=", 1);
    row("a comment in front", "[ExtraKey]", "; Keys\n[ExtraKey]", 1);
    row("a blank behind an equals sign", "name=", "name= ", 1);
    row("quotes around another text", "type=calculation", "type=\"calculation\"", 1);
    row("another escape for the same character", "\\t", "\\x9", 1);
    row("a field less", "number=0\n", "", 1);
    row("another order of keys", "Author=\nEdition=\n", "Edition=\nAuthor=\n", 1);
    row("another order of sections", "[ExtraKey]", "[KeltoItem]\nname=Beam\n\n[ExtraKey]", 1);
    row("no empty line between sections", "\n\n", "\n", 1);
    row("an escape in the name of a file", "icon=", "icon=a\\tb", 1);
}

void TestKeltoLintFiles::takesEscapesForMeantInSavedFiles()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(int, count);

    AUTH_INF item;
    item.name = "Beam";
    item.description = "a\tb";
    item.type = "calculation";
    item.extraKey = { { "Author", QString() }, { "Edition", QString() } };
    item.save_ini("saved.ini");
    QByteArray bytes = fileContent("saved.ini");
    QVERIFY(bytes.contains(before));
    writeFile("first.ini", before.isEmpty() ? bytes : bytes.replace(before, after));
    const Findings findings = findingsIn(ItemFile("first.ini"));
    QCOMPARE(countOf(findings, "unquoted-escape"), count);
}

void TestKeltoLintFiles::findsNothingButUtf16()
{
    const QByteArray text("\xff\xfe[\0K\0]\0\n\0", 10);
    writeFile("first.ini", text);
    writeFile("second.ini", text.mid(2));
    const QStringList paths { "first.ini", "second.ini" };
    Console console;
    QCOMPARE(linesWithFilesOf(lint(paths, LintConfig(paths), console).findings),
             QStringList({ "first.ini:1:1 not-utf8 the file is UTF-16; save it as UTF-8",
                           "second.ini:1:1 not-utf8 the file is UTF-16; save it as UTF-8" }));
}

void TestKeltoLintFiles::findsInOneFile()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, lines);

    writeFile("first.ini", file);
    Findings findings;
    const ItemFile item("first.ini");
    for (const RuleArea &area : { damageRules(), keyRules(), structureRules(), valueRules() })
        area.checkFile(LintItem(item), &findings);
    QCOMPARE(linesOf(findings), lines);
}

void TestKeltoLintFiles::printsNoChangeOfDirection()
{
    QCOMPARE(printable(QString::fromUtf8("a\u202eb\u2067c\u200fd\u200be")),
             QString::fromUtf8("a\ufffdb\ufffdc\ufffdd\u200be"));
}

QTEST_GUILESS_MAIN(TestKeltoLintFiles)

#include "tst_kelto_lint_files.moc"

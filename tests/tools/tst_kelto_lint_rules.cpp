// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Findings about what an item says, one row each: the files, and all findings in them.

#include "lint/lintitem.h"
#include "lintfindings.h"
#include "support/directorytest.h"
#include "units/unit.h"

#include <QTest>

class TestKeltoLintRules : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
};

namespace {

/// What the rules that are not about the way a file is written find.
Findings findingsAbout(const QVector<ItemFile> &files)
{
    Findings findings;
    for (const RuleArea &area :
         { nameRules(), registryRules(), codeRules(), hintRules(), unitRules() }) {
        for (const ItemFile &file : files) {
            if (area.checkFile)
                area.checkFile(LintItem(file), &findings);
        }
        if (area.checkAll)
            area.checkAll(files, &findings);
    }
    return findings;
}

} // namespace

void TestKeltoLintRules::finds_data()
{
    QTest::addColumn<QString>("files");
    QTest::addColumn<QStringList>("lines");

    const QString head = "[KeltoItem]\nname=Beam\ntype=calculation\ngroup=Statics\n";
    const QString mode = "exclusive_group=true\ninner_mode_count=1\ninner_mode_nameList=Bending\n";
    const QString item = head + mode;
    const QString length = "[Attribute]\nLength=\n[Belong]\nLength=Bending\n";
    const QString letters = "[Result]\nA=\nB=\nC=\nD=\nE=\nF=\nG=\nH=\nI=\nJ=\nK=\n";
    const auto row = [](const char *name, const QString &files, const QStringList &lines) {
        QTest::newRow(name) << files << lines;
    };
    const auto plate = [&](const QString &name, const QString &group, const QString &modes) {
        return QString("; --- second.ini ---\n[KeltoItem]\nname=" + name + "\ntype=calculation\n"
                       + "group=" + group + "\ninner_mode_nameList=" + modes + '\n');
    };

    // Names.
    row("like names are told apart by mode",
        head
            + "inner_mode_count=2\ninner_mode_nameList=A, B\n[Attribute]\nEnd_load=\nend load=\n"
              "[Belong]\nEnd_load=A\nend load=B\n",
        {});
    row("like names are reported once, not in each mode",
        head
            + "inner_mode_count=2\ninner_mode_nameList=A, B\n[Attribute]\nend load=\nEnd_load=\n"
              "[Belong]\nEnd_load=A, B\nend load=A, B\n",
        { "first.ini:8:1 like-names \"end load\" is the same name as \"End_load\" to a search by "
          "name" });
    row("like results of one mode",
        head
            + "inner_mode_count=2\ninner_mode_nameList=A, B\noutput_results=w, x\n"
              "[Result]\nMax-Stress=\nmax stress=\n",
        { "first.ini:10:1 like-names \"max stress\" is the same name as \"Max-Stress\" to a search "
          "by name" });
    row("like results of different modes",
        head
            + "inner_mode_count=2\ninner_mode_nameList=A, B\noutput_results=w, x\n"
              "[Result]\nMax-Stress=\nmax stress=\n"
              "[ExtraKey]\nBelong.Max-Stress=A\nBelong.max stress=B\n",
        {});
    row("a parameter and a result of like names",
        item + "output_results=x\n" + length + "[Result]\nlength=\n", {});
    row("modes that differ in white space only",
        head + "inner_mode_count=2\ninner_mode_nameList=One end, \"One  end\"\n",
        { "first.ini:6:30 like-modes the inner modes \"One end\" and \"One  end\" differ only in "
          "case or white space" });
    row("colons in all names",
        "[KeltoItem]\nname=A:1\ntype=calculation\ngroup=B:2\ninner_mode_count=2\n"
        "inner_mode_nameList=C, D:3\n",
        { "first.ini:2:6 colon-in-name the name \"A:1\" of the module holds a \":\"",
          "first.ini:4:7 colon-in-name the name \"B:2\" of the group holds a \":\"",
          "first.ini:6:24 colon-in-name the name \"D:3\" of the inner mode holds a \":\"" });
    row("a colon in a module and the mode of its name",
        "[KeltoItem]\nname=A:1\ntype=calculation\ngroup=B\ninner_mode_nameList=A:1\n",
        { "first.ini:2:6 colon-in-name the name \"A:1\" of the module holds a \":\"" });
    row("an update with results",
        "[KeltoItem]\nname=Update\ntype=calculation\ninner_mode_count=1\n"
        "inner_mode_nameList=Update\noutput_results=x\n[Result]\nLength=\n",
        { "first.ini:2:6 update-module a module named \"Update\" makes the program write its name "
          "and version to Config/update.ini, and this one is a calculation" });
    row("an update with two modes",
        "[KeltoItem]\nname=Update\ntype=tool\ninner_mode_count=2\ninner_mode_nameList=Look, Get\n",
        { "first.ini:2:6 update-module a module named \"Update\" makes the program write its name "
          "and version to Config/update.ini, and this one is a calculation" });
    row("an update that is written small",
        "[KeltoItem]\nname=update\ntype=tool\nexclusive_group=true\n", {});

    // Registries.
    row("modules without a name",
        "[KeltoItem]\ntype=a\n; --- second.ini ---\n[KeltoItem]\ntype=a\n", {});
    row("a copy of a module is one finding", item + plate("Beam", "Statics", "Bending"),
        { "second.ini:2:6 module-twice another module is named \"Beam\" as well: first.ini" });
    row("a mode of two modules, one without the flag", item + plate("Plate", "Statics", "Bending"),
        { "second.ini:5:21 mode-twice the group \"Statics\" has an inner mode \"Bending\" already: "
          "first.ini" });
    row("a mode of two modules of other groups", item + plate("Plate", "Plates", "Bending"), {});
    row("a mode of two modules without the flag",
        head + "inner_mode_nameList=Bending\n" + plate("Plate", "Statics", "Bending"), {});
    row("a mode that stands in a list three times",
        head + "inner_mode_count=3\ninner_mode_nameList=A, A, A\n",
        { "first.ini:6:24 mode-twice two inner modes are named \"A\"" });
    const QString groups = item + "Tr_ObjectName=T\n" + plate("Plate", "Plates", "Plate")
        + "exclusive_group=true\nTr_ObjectName=T\n";
    const auto translations = [](const QString &context, const QString &statics,
                                 const QString &plates) {
        return QString("; --- translations/host_de.ts ---\n<TS><context><name>" + context
                       + "</name><message><source>Statics</source><translation>" + statics
                       + "</translation></message><message><source>Plates</source><translation>"
                       + plates + "</translation></message></context></TS>\n");
    };
    row("a group is translated to another group", groups + translations("T", "Plates", "Platten"),
        { "first.ini:4:7 group-translation the translation \"Plates\" of the group \"Statics\" is "
          "also a name of the group \"Plates\": translations/host_de.ts" });
    row("two groups have one translation", groups + translations("T", "Platten", "Platten"),
        { "second.ini:4:7 group-translation the translation \"Platten\" of the group \"Plates\" is "
          "also a name of the group \"Statics\": translations/host_de.ts" });
    row("groups are translated to themselves", groups + translations("T", "Statics", "Plates"), {});
    row("translations of another context", groups + translations("U", "Plates", "Plates"), {});
    row("translations that are missing", groups + translations("T", "", ""), {});
    row("a file of translations that is broken",
        groups + "; --- host_de.ts ---\n<TS><context><name>T</name><message><sour", {});

    // Source text.
    row("texts that cannot be carried",
        item
            + "icon=\"a\\\\b\"\ndescription=\"a\\nb\"\n[Attribute]\na%22b=\n[Belong]\na%22b="
              "Bending\n"
              "[Symbol]\na%22b=\"\\\"\"\n[ExtraKey]\nEdition=\"a\\\"\"\n",
        { "first.ini:9:13 text-in-code \"a b\" holds a line break",
          "first.ini:8:6 text-in-code \"a\\b\" holds a backslash",
          "first.ini:11:1 text-in-code \"a\"b\" holds a double quote",
          "first.ini:15:7 text-in-code \"\"\" holds a double quote",
          "first.ini:17:9 text-in-code \"a\"\" holds a double quote" });
    row("a text in a list that cannot be carried", head + "lib_name=a, \"b\\\\\", \"b\\\\\"\n",
        { "first.ini:5:13 text-in-code \"b\\\" holds a backslash" });
    row("an escape that wants quotes is another finding", item + "description=a\\nb\n", {});
    row("a long text is shortened", item + "icon=\"\\\\" + QString(100, 'i') + "\"\n",
        { "first.ini:8:6 text-in-code \"\\iiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiii…\" holds a "
          "backslash" });
    row("numbers that are none",
        item
            + "[ExtraKey]\nA=08\nB=-010\nC=inf\nD=nan\nE=4294967296\nF=1e999\nG=-2147483647\nH=1."
              "50\n"
              "I=0x10\nJ=0\nK=.5\nL=2147483648\n",
        { "first.ini:9:3 number-in-code \"08\" reads as a number that begins with 0, which C++ "
          "takes for an octal one",
          "first.ini:10:3 number-in-code \"-010\" reads as a number that begins with 0, which C++ "
          "takes for an octal one",
          "first.ini:11:3 number-in-code \"inf\" reads as a number and is none in C++",
          "first.ini:12:3 number-in-code \"nan\" reads as a number and is none in C++",
          "first.ini:13:3 number-in-code \"4294967296\" reads as a number that is too large or too "
          "small",
          "first.ini:20:3 number-in-code \"2147483648\" reads as a number that is too large or too "
          "small" });
    row("names that are no identifiers", item + "codeFunctionName=class\nTr_ObjectName=A::2b\n",
        { "first.ini:9:15 name-in-code \"A::2b\" is not an identifier",
          "first.ini:8:18 name-in-code \"class\" is a name that means something else" });
    row("a function that generated source text has itself",
        item + "codeFunctionName=allItems\nTr_ObjectName=loaded\n",
        { "first.ini:8:18 name-in-code \"allItems\" is a name that means something else" });
    row("names that are identifiers", item + "codeFunctionName=_beam2\nTr_ObjectName=A::B\n", {});
    row("a type that is absent", "[KeltoItem]\nname=Beam\n" + mode + length,
        { "first.ini:1:1 not-a-calculation \"\" is not the type \"calculation\", and only that has "
          "parameters and results" });
    row("a type that is misspelt", "[KeltoItem]\nname=Beam\ntpye=calculation\n" + mode + length,
        {});
    row("a type without parameters", "[KeltoItem]\nname=Beam\ntype=tool\n" + mode, {});
    row("two functions of one name",
        item + "codeFunctionName=beam\n" + plate("Plate", "Plates", "A")
            + "codeFunctionName=beam\n",
        { "second.ini:6:18 function-twice the function of another module is named \"beam\" as "
          "well: first.ini" });
    row("modules of one name and one function",
        item + "codeFunctionName=beam\n" + plate("Beam", "Plates", "A") + "codeFunctionName=beam\n",
        { "second.ini:2:6 module-twice another module is named \"Beam\" as well: first.ini" });

    // Hints.
    row("hints that are wrong",
        item + "output_results=x\n" + length
            + "[Result]\nStress=\n[ObjectName]\nLength=double\n[ExtraKey]\nDefault.Length=long\n"
              "Min.Lngth=1\nHelp.Length@Bendign=\"\"\nOrder=Length|Stres\nChoices.Length=1|1\n"
              "Belong.Length=Bending\nOptional.Length=yes\nWhen.Length=Section=a\nOwn=1\n"
              "Maximum.Length=1\n",
        { "first.ini:23:8 bad-hint Belong.Length: there is no result \"Length\"",
          "first.ini:22:16 bad-hint Choices.Length: \"1|1\" offers nothing, or one value twice",
          "first.ini:18:16 bad-hint Default.Length: \"long\" is not a number",
          "first.ini:20:13 bad-hint Help.Length@Bendign: there is no inner mode \"Bendign\". Did "
          "you mean \"Bending\"?",
          "first.ini:19:5 bad-hint Min.Lngth: there is no parameter or result \"Lngth\". Did you "
          "mean \"Length\"?",
          "first.ini:24:17 bad-hint Optional.Length: \"yes\" is neither \"true\" nor \"false\"",
          "first.ini:21:14 bad-hint Order: there is no parameter or result \"Stres\". Did you mean "
          "\"Stress\"?",
          "first.ini:25:13 bad-hint When.Length: there is no parameter \"Section\"",
          "first.ini:27:1 misspelt-hint the extra key \"Maximum.Length\" is no hint. Did you mean "
          "\"Max.Length\"?" });
    row("a contradiction is told once", item + length + "[ExtraKey]\nMin.Length=5\nMax.Length=1\n",
        { "first.ini:13:12 bad-hint Min.Length: with \"5\" the minimum is above the maximum" });
    row("conditions that make no sense, each for a cause of its own",
        item
            + "[Attribute]\nStatic head=\nFlow=\n[Belong]\nStatic head=Bending\nFlow=Bending\n"
              "[ExtraKey]\nWhen.Flow=Statc head=1\nWhen.Static head=Static head=1\n"
              "When.Flow@Bending=Static head\n",
        { "first.ini:15:11 bad-hint When.Flow: there is no parameter \"Statc head\". Did you mean "
          "\"Static head\"?",
          "first.ini:17:19 bad-hint When.Flow@Bending: \"Static head\" is not \"parameter=value\"",
          "first.ini:16:18 bad-hint When.Static head: with \"Static head=1\" parameters depend on "
          "each other in a circle" });
    row("a condition on what cannot be chosen",
        item
            + "[Attribute]\nPump=\nFlow=\n[Belong]\nPump=Bending\nFlow=Bending\n"
              "[ExtraKey]\nChoices.Pump=axial|radial\nWhen.Flow=Pump=axal\n",
        { "first.ini:16:16 bad-hint When.Flow: no value in \"Pump=axal\" can be chosen" });
    row("defaults that do not fit",
        item + length
            + "[ExtraKey]\nChoices.Length=short=Small|long=Large\nDefault.Length=Long\n"
              "Default.Length@Bending=LARGE\n",
        { "first.ini:14:16 bad-hint Default.Length: \"Long\" is none of the choices: \"short\", "
          "\"long\". Did you mean \"long\"?",
          "first.ini:15:24 bad-hint Default.Length@Bending: \"LARGE\" is none of the choices: "
          "\"short\", \"long\". Did you mean \"long\"?" });
    row("unknown names in lists of hints",
        item
            + "output_results=x\n[Result]\nR@x=\n[ExtraKey]\nBelong.R@x= \"Bending | Bend|Bend \"\n"
              "Order@Bending=\"R@x| R\"\nHelp.R@x@Bend=a\n",
        { "first.ini:12:24 bad-hint Belong.R@x: there is no inner mode \"Bend\"",
          "first.ini:14:10 bad-hint Help.R@x@Bend: there is no inner mode \"Bend\"",
          "first.ini:13:21 bad-hint Order@Bending: there is no parameter or result \"R\"" });
    row("commas in quotes between the parts of hints",
        item + length
            + "[ExtraKey]\nOrder=\"Length,Width\"\nChoices.Length=\"Cast iron, steel, tin\"\n",
        { "first.ini:13:8 bad-hint Order: there is no parameter or result \"Length,Width\". A "
          "\"|\" "
          "divides the parts of this hint, and not a comma.",
          "first.ini:14:16 single-choice a \"|\" divides the parts of this hint, and not a comma: "
          "write Choices.Length=Cast iron|steel|tin" });
    row("one choice", item + length + "[ExtraKey]\nChoices.Length=\"1,5\"\n", {});
    row("one choice with a label", item + length + "[ExtraKey]\nChoices.Length=\"1=long,short\"\n",
        {});
    row("one choice of several words",
        item + length + "[ExtraKey]\nChoices.Length=\"Steel, cold rolled\"\n", {});
    row("words that are nearly those of hints",
        item
            + "[Attribute]\nFlow rate=\n[Belong]\nFlow rate=Bending\n[ExtraKey]\n"
              "Devault.Flow rate=1\nMni.Flow rate=1\nmin.Flow rate@Bending=1\n"
              "Default Flow rate=1\nDefaults.Flow rate=1\nHelp.Flow rate=a\nHelper.Flow=a\n"
              "Price.Flow rate=1\nMid.Flow rate=1\nMinimum Flow rate=1\n",
        { "first.ini:13:1 misspelt-hint the extra key \"Devault.Flow rate\" is no hint. Did you "
          "mean \"Default.Flow rate\"?",
          "first.ini:14:1 misspelt-hint the extra key \"Mni.Flow rate\" is no hint. Did you mean "
          "\"Min.Flow rate\"?",
          "first.ini:15:1 misspelt-hint the extra key \"min.Flow rate@Bending\" is no hint. Did "
          "you mean \"Min.Flow rate@Bending\"?",
          "first.ini:16:1 misspelt-hint the extra key \"Default Flow rate\" is no hint. Did you "
          "mean \"Default.Flow rate\"?",
          "first.ini:17:1 misspelt-hint the extra key \"Defaults.Flow rate\" is no hint. Did you "
          "mean \"Default.Flow rate\"?",
          "first.ini:22:1 misspelt-hint the extra key \"Minimum Flow rate\" is no hint. Did you "
          "mean \"Min.Flow rate\"?" });
    row("hints for a parameter that a misspelt mode hides",
        item
            + "[Attribute]\nLength=\nWidth=\n[Belong]\nLength=Bnding\nWidth=Bending\n[ExtraKey]\n"
              "Default.Length=1\nHelp.Length@Bending=a\nWhen.Width=Length=2\nOrder=Width|Length\n",
        {});
    row("hints for parameters below a misspelt header",
        item + "[Attriibute]\nWidth=\n[Belong]\nWidth=Bending\n[ExtraKey]\nDefault.Width=1\n", {});
    row("hints for results that are not read",
        item + "[Result]\nw=\n[ExtraKey]\nHelp.w=a\nBelong.w=Bending\n", {});
    row("a hint that is a list for want of quotes",
        item + length + "[ExtraKey]\nHelp.Length=a, b\n", {});
    row("object names",
        item + letters
            + "[ObjectName]\nA=\nB=Double\nC=QVector<duoble>\nD=number\nE=choice\nF=double, int\n",
        { "first.ini:22:3 unknown-object-name nothing knows the object name \"Double\". Did you "
          "mean \"double\"?",
          "first.ini:23:3 unknown-object-name nothing knows the object name \"QVector<duoble>\". "
          "Did you mean \"QVector<double>\"?",
          "first.ini:24:3 unknown-object-name nothing knows the object name \"number\"" });

    // Units.
    if (areUnitsKnown()) {
        row("units that are wrong",
            item + letters
                + "[Unit]\nA=mm,  Mpa\nB=Mpa,Mpa\nC=mm, s\nD=m²·K/W, W/(m²·K)\nE=mm\nF=m, m, "
                  "s\nG=%, \n",
            { "first.ini:21:8 unknown-unit \"Mpa\" is no known unit. Did you mean \"MPa\"?",
              "first.ini:22:3 unknown-unit \"Mpa\" is no known unit. Did you mean \"MPa\"?",
              "first.ini:23:3 unit-dimension \"mm\" and \"s\" are units of different quantities",
              "first.ini:24:3 unit-dimension \"m²·K/W\" and \"W/(m²·K)\" are units of different "
              "quantities" });
        row("units that are right",
            item + letters
                + "[Unit]\nA=\nB=-, -\nC=°C, K\nD=°, rad\nE=%, %\nF=N·m, N·m\nG=°C, °C\nH=r/min, "
                  "1/s\n"
                  "I=mm, m\nJ=dB(A), dB(A)\nK=HRC, HRC\n",
            {});
        row("units with two meanings",
            item + letters
                + "[Unit]\nA=g, m/s²\nB=m/s, kn\nC=kn, kN\nD=kg/cm², MPa\nE=C/m, K/m\n"
                  "F=g, kg\nG=DN, mm\nH=deg C, K\nI=KN/CM², MPa\nJ=kN, t\nK=kg·C, N·K\n",
            { "first.ini:21:3 ambiguous-unit \"g\" and \"m/s²\" measure the same only if \"g\" "
              "means "
              "\"gn\"; then write that",
              "first.ini:23:3 ambiguous-unit \"kn\" and \"kN\" measure the same only if \"kn\" "
              "means "
              "\"kN\"; then write that",
              "first.ini:24:3 ambiguous-unit \"kg/cm²\" and \"MPa\" measure the same only if "
              "\"kg/cm²\" means \"kgf/cm²\"; then write that",
              "first.ini:25:3 ambiguous-unit \"C/m\" and \"K/m\" measure the same only if \"C/m\" "
              "means \"°C/m\"; then write that",
              "first.ini:27:3 ambiguous-unit \"DN\" and \"mm\" measure the same only if \"DN\" "
              "means "
              "\"mm\"; then write that",
              "first.ini:28:3 ambiguous-unit \"deg C\" and \"K\" measure the same only if \"deg "
              "C\" "
              "means \"°C\"; then write that",
              "first.ini:29:3 unknown-unit \"KN/CM²\" is no known unit. Did you mean "
              "\"kN/cm²\"?",
              "first.ini:30:7 ambiguous-unit \"kN\" and \"t\" measure the same only if \"t\" "
              "means \"tf\"; then write that",
              "first.ini:31:3 ambiguous-unit \"kg·C\" and \"N·K\" measure the same only if "
              "\"kg·C\" means \"kgf·°C\"; then write that" });
        row("units that nobody knows", item + letters + "[Unit]\nA=Foo, mm\nB=Foo, Foo\n",
            { "first.ini:21:3 unknown-unit \"Foo\" is no known unit and not compared with \"mm\"",
              "first.ini:22:3 unknown-unit \"Foo\" is no known unit" });
        row("units that are not converted",
            item + letters + "[Unit]\nA=mm, m\nB=MPa, MPa\nC=N, N\nD=°, °\nE=min, min\nF=kN\n",
            { "first.ini:22:3 unit-not-converted \"MPa\" is not converted, while other units of "
              "the module are",
              "first.ini:25:3 unit-not-converted \"min\" is not converted, while other units of "
              "the module are" });
        row("units of a key that is nowhere declared",
            item + length + "[Unit]\nA=Mpa, Mpa\n[ObjectName]\nA=number\n", {});
        row("units that no one converts", item + letters + "[Unit]\nA=mm, mm\nB=MPa, MPa\nC=N, N\n",
            {});
        row("units that another file converts",
            item + letters + "[Unit]\nA=mm, mm\n" + plate("Plate", "Plates", "A") + letters
                + "[Unit]\nA=mm, m\n",
            {});
    }
}

void TestKeltoLintRules::finds()
{
    QFETCH(QString, files);
    QFETCH(QStringList, lines);

    QCOMPARE(linesWithFilesOf(findingsAbout(filesOf(files.toUtf8()))), lines);
}

QTEST_GUILESS_MAIN(TestKeltoLintRules)

#include "tst_kelto_lint_rules.moc"

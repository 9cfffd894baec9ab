// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "itempaths.h"
#include "lint/fixes.h"
#include "lint/lintconfig.h"
#include "lint/linter.h"
#include "lint/lintoutput.h"
#include "nearestname.h"
#include "outputfile.h"
#include "terminaltext.h"

#include <QCommandLineParser>
#include <QJsonArray>

#include <QJsonDocument>
#include <climits>
#include <optional>

namespace {

ExitCode explain(const QString &id, bool asJson, Console &console)
{
    const Rule *const rule = ruleOf(id);
    if (!rule) {
        console.complain(Command::tr("there is no rule \"%1\".").arg(id)
                         + didYouMean(id, ruleNames()));
        return WrongUsage;
    }
    if (asJson)
        console.print(ruleAsJson(*rule));
    else
        console.print(wrappedText(ruleAsText(*rule)));
    return Done;
}

ExitCode listRules(bool asJson, Console &console)
{
    QJsonArray array;
    QString text;
    for (const RuleArea &area : ruleAreas()) {
        for (const Rule &rule : area.rules) {
            array.append(ruleAsJson(rule));
            text += QStringLiteral("%1  %2  %3\n")
                        .arg(QLatin1String(rule.id), -24)
                        .arg(wordOf(rule.severity), -7)
                        .arg(Command::tr(rule.summary));
        }
    }
    if (asJson)
        console.print(QJsonObject { { QStringLiteral("rules"), array } });
    else
        console.print(text);
    return Done;
}

/// Of one file, in the text. Nothing for what is no number.
std::optional<int> shownFindings(const QCommandLineParser &line)
{
    const QString text = line.value(QStringLiteral("max-findings"));
    if (text.isEmpty())
        return 100;
    bool isNumber = false;
    const int count = text.toInt(&isNumber);
    if (!isNumber || count < 0)
        return std::nullopt;
    return count == 0 ? INT_MAX : count;
}

void print(const Findings &findings, const Findings &fixed, const LintConfig &config,
           const QCommandLineParser &line, Console &console)
{
    const bool isColoured = console.isColoured();
    if (line.isSet(QStringLiteral("sarif"))) {
        console.print(
            QJsonDocument(findingsAsSarif(findings, config, console.complaints())).toJson());
    } else if (line.isSet(QStringLiteral("json"))) {
        console.print(findingsAsJson(findings, fixed, config));
    } else {
        console.print(
            fixedAsText(fixed, isColoured)
            + findingsAsText(findings, config, isColoured, shownFindings(line).value_or(INT_MAX)));
    }
}

/// What was fixed in the files; a complaint for each that could not be written.
Findings fix(const LintResult &result, const LintConfig &config, QStringList *complaints)
{
    Findings fixed;
    for (const ItemFile &file : result.files) {
        const FixedFile after = fixedFile(file, config);
        const QString complaint
            = after.fixed.isEmpty() ? QString() : writeOutputFile(file.path(), after.bytes);
        if (complaint.isEmpty())
            fixed += after.fixed;
        else
            complaints->append(complaint);
    }
    return fixed;
}

ExitCode lintFiles(const QCommandLineParser &line, Console &console)
{
    bool areAllFound = false;
    const QStringList paths = itemFilesAt(line.positionalArguments(), console, &areAllFound);
    const LintConfig config(paths);
    for (const QString &complaint : config.complaints())
        console.complain(complaint);
    if (!config.complaints().isEmpty())
        return WrongUsage;
    LintResult result = lint(paths, config, console);
    QStringList complaints = result.unreadable;
    Findings fixed;
    if (line.isSet(QStringLiteral("fix")))
        fixed = fix(result, config, &complaints);
    if (!fixed.isEmpty())
        result = lint(paths, config, console);
    for (const QString &sentence : qAsConst(complaints))
        console.complain(sentence);
    print(result.findings, fixed, config, line, console);
    return areAllFound && complaints.isEmpty() && result.findings.isEmpty() ? Done : Found;
}

/// What of the arguments would go unheard beside others.
QString contradictionIn(const QCommandLineParser &line)
{
    const QString paths = line.positionalArguments().value(0);
    const QString complaint = Command::tr("\"--%1\" takes no \"%2\": leave one of the two out.");
    for (const char *option : { "explain", "rules" }) {
        if (!line.isSet(QLatin1String(option)))
            continue;
        for (const char *other : { "fix", "sarif" }) {
            if (line.isSet(QLatin1String(other)))
                return complaint.arg(QLatin1String(option), dashed(QLatin1String(other)));
        }
        if (!paths.isEmpty())
            return complaint.arg(QLatin1String(option), paths);
    }
    const bool isJson = line.isSet(QStringLiteral("json"));
    return isJson && line.isSet(QStringLiteral("sarif"))
        ? complaint.arg(QStringLiteral("sarif"), QStringLiteral("--json"))
        : QString();
}

ExitCode run(const QCommandLineParser &line, Console &console)
{
    const QString contradiction = contradictionIn(line);
    if (!contradiction.isEmpty()) {
        console.complain(contradiction);
        return WrongUsage;
    }
    const bool asJson = line.isSet(QStringLiteral("json"));
    if (line.isSet(QStringLiteral("explain")))
        return explain(line.value(QStringLiteral("explain")), asJson, console);
    if (line.isSet(QStringLiteral("rules")))
        return listRules(asJson, console);
    if (!shownFindings(line)) {
        console.complain(Command::tr("\"%1\" is no number of findings.")
                             .arg(line.value(QStringLiteral("max-findings"))));
        return WrongUsage;
    }
    if (!line.positionalArguments().isEmpty())
        return lintFiles(line, console);
    console.complain(
        Command::tr("\"%1\" needs \"%2\".").arg(QStringLiteral("lint"), QStringLiteral("PATH..."))
        + Command::tr(" Try \"kelto %1\".").arg(QStringLiteral("lint --help")));
    return WrongUsage;
}

} // namespace

Command lintCommand()
{
    return {
        "lint",
        "PATH...",
        0,
        -1,
        QT_TRANSLATE_NOOP("Command", "Find what is wrong in files of module items"),
        QT_TRANSLATE_NOOP(
            "Command",
            "Lists every problem of module item files, one to a line: file, line, column, "
            "severity, what is wrong, and the rule in brackets. The exit code is 1 when there is a "
            "finding, also if it is only a warning.\n\n"
            "Rules are configured in files named \".kelto-lint.ini\", in the directory of a file "
            "or above it; each rule is what the nearest file says that names it. They hold the "
            "section [Rules], in which a key is a rule and its value one of error, warning and "
            "off:\n"
            "\n"
            "  [Rules]\n"
            "  comment=warning\n"
            "  mode-without-parameters=off"),
        {
            { { QStringLiteral("explain") },
              "RULE",
              QT_TRANSLATE_NOOP("Command",
                                "Say why a rule matters, with a bad and a good example.") },
            { { QStringLiteral("rules") },
              nullptr,
              QT_TRANSLATE_NOOP("Command", "List all rules.") },
            { { QStringLiteral("fix") },
              nullptr,
              QT_TRANSLATE_NOOP("Command",
                                "Mend the files where there is one right answer, and say what.") },
            { { QStringLiteral("max-findings") },
              "COUNT",
              QT_TRANSLATE_NOOP(
                  "Command", "List at most so many of each file, instead of 100; 0 lists all.") },
            { { QStringLiteral("sarif") },
              nullptr,
              QT_TRANSLATE_NOOP("Command", "Write the findings as SARIF 2.1.0.") },
        },
        {
            { "kelto lint modules",
              QT_TRANSLATE_NOOP("Command", "All item files below a directory.") },
            { "kelto lint --fix beam.ini",
              QT_TRANSLATE_NOOP("Command", "Mend what can be mended; the rest is listed.") },
            { "kelto lint --explain unknown-mode",
              QT_TRANSLATE_NOOP("Command", "What is behind a finding.") },
        },
        run
    };
}

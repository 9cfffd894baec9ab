// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/lintoutput.h"

#include "command.h"
#include "lint/lintconfig.h"
#include "terminaltext.h"

#include <QJsonArray>
#include <QMap>
#include <QUrl>

namespace {

/// @p text between the escape sequences of a terminal for @p code.
QString coloured(const QString &text, const char *code, bool isColoured)
{
    if (!isColoured)
        return text;
    return QStringLiteral("\x1b[") + QLatin1String(code) + QLatin1Char('m') + text
        + QStringLiteral("\x1b[0m");
}

// Codes of terminals for bold letters.
constexpr char bold[] = "1";
constexpr char red[] = "1;31";
constexpr char green[] = "1;32";
constexpr char magenta[] = "1;35";

/// The text of a finding on one line that can be read: without the middle of a long one, and with
/// what a terminal would obey as escapes.
QString shownText(const QString &text)
{
    constexpr int most = 400;
    constexpr int mostBehind = 100;
    QString shown;
    for (int i = 0; i < text.size(); ++i) {
        if (i == most - mostBehind && text.size() > most) {
            i = text.size() - mostBehind;
            shown += QStringLiteral("…");
        }
        const QChar character = text.at(i);
        if (character == QLatin1Char('\n'))
            shown += QLatin1String("\\n");
        else if (character == QLatin1Char('\t'))
            shown += QLatin1String("\\t");
        else if (character.category() == QChar::Other_Control)
            shown += QStringLiteral("\\x%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
        else
            shown += character;
    }
    return printable(shown);
}

QString findingLine(const Finding &finding, const QString &word, const char *colour,
                    bool isColoured)
{
    const QString place = QStringLiteral("%1:%2:%3:")
                              .arg(printable(finding.path))
                              .arg(finding.position.line)
                              .arg(finding.position.column);
    return coloured(place, bold, isColoured) + QLatin1Char(' ') + coloured(word, colour, isColoured)
        + QLatin1Char(' ') + shownText(finding.text) + QStringLiteral(" [") + finding.rule
        + QStringLiteral("]\n");
}

QJsonObject findingAsJson(const Finding &finding, const LintConfig &config)
{
    return { { QStringLiteral("file"), finding.path },
             { QStringLiteral("line"), finding.position.line },
             { QStringLiteral("column"), finding.position.column },
             { QStringLiteral("severity"), wordOf(config.severity(finding.path, finding.rule)) },
             { QStringLiteral("text"), finding.text },
             { QStringLiteral("rule"), finding.rule },
             { QStringLiteral("fixable"), !finding.fix.isEmpty() } };
}

QJsonArray asJson(const Findings &findings, const LintConfig &config)
{
    QJsonArray array;
    for (const Finding &finding : findings)
        array.append(findingAsJson(finding, config));
    return array;
}

QString bulleted(const char *example)
{
    QString text;
    QStringList lines = QString::fromUtf8(example).split(QLatin1Char('\n'));
    lines.removeLast();
    for (const QString &line : qAsConst(lines))
        text += line.isEmpty() ? QStringLiteral("\n") : QStringLiteral("    %1\n").arg(line);
    return text;
}

// --- SARIF -------------------------------------------------------------------------

QJsonObject message(const QString &text)
{
    return { { QStringLiteral("text"), text } };
}

QJsonObject sarifRule(const Rule &rule)
{
    const bool isError = rule.severity == Severity::Error;
    const QJsonObject configuration {
        { QStringLiteral("enabled"), rule.severity != Severity::Off },
        { QStringLiteral("level"), isError ? QStringLiteral("error") : QStringLiteral("warning") },
    };
    return { { QStringLiteral("id"), QLatin1String(rule.id) },
             { QStringLiteral("shortDescription"), message(Command::tr(rule.summary)) },
             { QStringLiteral("fullDescription"), message(Command::tr(rule.explanation)) },
             { QStringLiteral("help"), message(ruleAsText(rule)) },
             { QStringLiteral("defaultConfiguration"), configuration } };
}

/// The rules that have found something.
QJsonArray sarifRules(const Findings &findings)
{
    QStringList names;
    for (const Finding &finding : findings)
        names.append(finding.rule);
    names.sort();
    names.removeDuplicates();
    QJsonArray rules;
    for (const QString &name : qAsConst(names)) {
        if (const Rule *const rule = ruleOf(name))
            rules.append(sarifRule(*rule));
    }
    return rules;
}

QJsonObject sarifLocation(const Finding &finding)
{
    const QJsonObject artifact {
        { QStringLiteral("uri"), QString::fromLatin1(QUrl::toPercentEncoding(finding.path, "/")) },
    };
    const QJsonObject region { { QStringLiteral("startLine"), finding.position.line },
                               { QStringLiteral("startColumn"), finding.position.column } };
    return { { QStringLiteral("physicalLocation"),
               QJsonObject { { QStringLiteral("artifactLocation"), artifact },
                             { QStringLiteral("region"), region } } } };
}

QJsonObject sarifInvocation(const QStringList &complaints)
{
    QJsonArray notifications;
    for (const QString &complaint : complaints) {
        notifications.append(QJsonObject { { QStringLiteral("level"), QStringLiteral("error") },
                                           { QStringLiteral("message"), message(complaint) } });
    }
    return { { QStringLiteral("executionSuccessful"), complaints.isEmpty() },
             { QStringLiteral("toolExecutionNotifications"), notifications } };
}

} // namespace

QString wordOf(Severity severity)
{
    switch (severity) {
    case Severity::Off:
        return QStringLiteral("off");
    case Severity::Warning:
        return QStringLiteral("warning");
    default:
        return QStringLiteral("error");
    }
}

QString findingsAsText(const Findings &findings, const LintConfig &config, bool isColoured,
                       int most)
{
    QString text;
    QMap<QString, int> counts;
    for (const Finding &finding : findings) {
        if (++counts[finding.path] > most)
            continue;
        const bool isError = config.severity(finding.path, finding.rule) == Severity::Error;
        // The same in every language: editors find places by these words, as in compilers' output.
        text += isError ? findingLine(finding, QStringLiteral("error:"), red, isColoured)
                        : findingLine(finding, QStringLiteral("warning:"), magenta, isColoured);
    }
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        if (count.value() > most) {
            text += Command::tr("%1: and %2 more; \"--max-findings 0\" lists all of them")
                        .arg(printable(count.key()))
                        .arg(count.value() - most)
                + QLatin1Char('\n');
        }
    }
    return text;
}

QString fixedAsText(const Findings &fixed, bool isColoured)
{
    QString text;
    for (const Finding &finding : fixed)
        text += findingLine(finding, Command::tr("fixed:"), green, isColoured);
    return text;
}

QJsonObject findingsAsJson(const Findings &findings, const Findings &fixed,
                           const LintConfig &config)
{
    return { { QStringLiteral("findings"), asJson(findings, config) },
             { QStringLiteral("fixed"), asJson(fixed, config) } };
}

QJsonObject findingsAsSarif(const Findings &findings, const LintConfig &config,
                            const QStringList &complaints)
{
    QJsonArray results;
    for (const Finding &finding : findings) {
        results.append(QJsonObject {
            { QStringLiteral("ruleId"), finding.rule },
            { QStringLiteral("level"), wordOf(config.severity(finding.path, finding.rule)) },
            { QStringLiteral("message"), message(finding.text) },
            { QStringLiteral("locations"), QJsonArray { sarifLocation(finding) } },
        });
    }
    const QJsonObject driver { { QStringLiteral("name"), QStringLiteral("kelto") },
                               { QStringLiteral("version"), QStringLiteral(KELTO_VERSION_TEXT) },
                               { QStringLiteral("rules"), sarifRules(findings) } };
    const QJsonObject run {
        { QStringLiteral("tool"), QJsonObject { { QStringLiteral("driver"), driver } } },
        // The reader counts characters, not the halves in which Qt keeps some of them.
        { QStringLiteral("columnKind"), QStringLiteral("unicodeCodePoints") },
        { QStringLiteral("invocations"), QJsonArray { sarifInvocation(complaints) } },
        { QStringLiteral("results"), results },
    };
    return { { QStringLiteral("$schema"),
               QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json") },
             { QStringLiteral("version"), QStringLiteral("2.1.0") },
             { QStringLiteral("runs"), QJsonArray { run } } };
}

QString ruleAsText(const Rule &rule)
{
    return QStringLiteral("%1 (%2): %3\n\n%4\n\n%5\n\n%6\n%7\n\n%8")
        .arg(QLatin1String(rule.id), wordOf(rule.severity), Command::tr(rule.summary),
             Command::tr(rule.explanation), Command::tr("Bad:"), bulleted(rule.bad),
             Command::tr("Good:"), bulleted(rule.good));
}

QJsonObject ruleAsJson(const Rule &rule)
{
    return { { QStringLiteral("rule"), QLatin1String(rule.id) },
             { QStringLiteral("severity"), wordOf(rule.severity) },
             { QStringLiteral("summary"), Command::tr(rule.summary) },
             { QStringLiteral("explanation"), Command::tr(rule.explanation) },
             { QStringLiteral("bad"), QString::fromUtf8(rule.bad) },
             { QStringLiteral("good"), QString::fromUtf8(rule.good) } };
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The page about the rules of the lint is what the command says of them. It is made by
//     KELTO_TAKE_REFERENCES=1 build/dev/tests/tools/tst_lint_rules_page

#include "lint/lintoutput.h"
#include "support/referencefile.h"

#include <QTest>

namespace {

const char *const introduction
    = "# The rules of `kelto lint`\n\n"
      "<!-- Made of the texts of the command by tests/tools/tst_lint_rules_page.cpp. -->\n\n"
      "A finding ends with the rule in brackets, and `kelto lint --explain RULE` says what stands\n"
      "here. `--fix` mends what has one right answer. For programs, `--json` writes the findings "
      "in\n"
      "the command's own way, and `--sarif` as SARIF 2.1.0, which code hosts and editors show.\n\n"
      "One mistake is one finding, at its place: what would be gone with an unclosed quote, a\n"
      "header without its bracket and the like is not listed beside it.\n\n"
      "The severity below is the one without settings: a file `.kelto-lint.ini` beside the items\n"
      "or above them makes it another one, and `off` switches a rule off.\n\n"
      "```ini\n[Rules]\ncomment=warning\nmode-without-parameters=off\n```\n\n"
      "In the examples a line `; --- second.ini ---` begins another file.\n\n"
      "| rule | severity | what is wrong |\n|---|---|---|\n";

/// As it is, in a page in Markdown.
QString plain(const char *text)
{
    QString escaped = QString::fromUtf8(text);
    for (const char *sign : { "\\", "|", "<", "*", "`" })
        escaped.replace(sign, QString("\\") + sign);
    return escaped;
}

QString example(const char *title, const char *text)
{
    // Nobody would see the mark.
    QString shown = QString::fromUtf8(text).replace(QChar(QChar::ByteOrderMark), "<U+FEFF>");
    if (!shown.endsWith('\n'))
        shown += '\n';
    return QString("%1:\n\n```ini\n%2```\n\n").arg(title, shown);
}

QString page()
{
    QString table = introduction;
    QString sections;
    for (const RuleArea &area : ruleAreas()) {
        for (const Rule &rule : area.rules) {
            const QString summary = plain(rule.summary);
            table += QString("| [%1](#%1) | %2 | %3 |\n")
                         .arg(rule.id, wordOf(rule.severity), summary);
            sections += QString("\n## %1\n\n%2 (%3). %4\n\n")
                            .arg(rule.id, summary, wordOf(rule.severity), plain(rule.explanation))
                + example("Bad", rule.bad) + example("Good", rule.good).chopped(1);
        }
    }
    return table + sections;
}

} // namespace

class TestLintRulesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatTheCommandSays()
    {
        QCOMPARE(differenceFromReference(page(), RULES_PAGE), QString());
    }
};

QTEST_GUILESS_MAIN(TestLintRulesPage)

#include "tst_lint_rules_page.moc"

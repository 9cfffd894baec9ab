// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef RULES_H
#define RULES_H

#include "core/inireader_p.h"

#include <QStringList>
#include <QVector>

class ItemFile;
class LintItem;

enum class Severity { Off, Warning, Error };

/// One way for a module item file to be wrong. Its texts are translated in the context "Command",
/// its examples are files that have, and do not have, this finding and no other.
struct Rule
{
    const char *id;
    Severity severity; ///< Where nothing else is configured.
    const char *summary; ///< A line, without a full stop.
    const char *explanation; ///< Why it matters, and what to do.
    const char *bad;
    const char *good;
};

/// Bytes of a file that are to be replaced.
struct TextEdit
{
    int begin;
    int end;
    QByteArray text;
};

struct Finding
{
    QString rule;
    QString path;
    IniPosition position;
    QString text; ///< A sentence without a full stop.
    QVector<TextEdit> fix; ///< Only where there is one right answer.
};

using Findings = QVector<Finding>;

/// Rules that belong together, and what looks for their findings. Both functions may be null.
struct RuleArea
{
    QVector<Rule> rules;
    /// Called for each file, from several threads at a time.
    void (*checkFile)(const LintItem &item, Findings *findings);
    /// Called once for all files, for what concerns several of them.
    void (*checkAll)(const QVector<ItemFile> &files, Findings *findings);
};

// Each stands in a file of its own.
RuleArea codeRules();
RuleArea damageRules();
RuleArea hintRules();
RuleArea nameRules();
RuleArea registryRules();
RuleArea unitRules();
RuleArea keyRules();
RuleArea structureRules();
RuleArea valueRules();

/// All areas, in the order in which their rules are listed.
const QVector<RuleArea> &ruleAreas();

/// The identifiers of all rules, in the same order.
QStringList ruleNames();

/// The rule with the identifier @p id; null when there is none.
const Rule *ruleOf(const QString &id);

#endif

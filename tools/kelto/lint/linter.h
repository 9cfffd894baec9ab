// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef LINTER_H
#define LINTER_H

#include "itemfile.h"
#include "lint/rules.h"

#include <QStringList>

class Console;
class LintConfig;

/// What all rules find in one file, whatever is configured, from front to back.
Findings everyFindingIn(const ItemFile &file);

/// The same without what only follows from something else that is found.
Findings findingsIn(const ItemFile &file);
/// The same without what is switched off. What follows from that is found.
Findings findingsIn(const ItemFile &file, const LintConfig &config);

/// What the rules that look at several files find in @p files.
Findings findingsAmong(const QVector<ItemFile> &files);

/// The files that could be read, and what is found in them.
struct LintResult
{
    QVector<ItemFile> files;
    QStringList unreadable; ///< A sentence for each file that could not be read.
    Findings findings; ///< By file, line and column, without those that are switched off.
};

/// Looks at files, on all processors.
LintResult lint(const QStringList &paths, const LintConfig &config, Console &console);

#endif

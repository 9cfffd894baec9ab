// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef LINTOUTPUT_H
#define LINTOUTPUT_H

#include "lint/rules.h"

#include <QJsonObject>

#include <climits>

class LintConfig;

/// "error", "warning" or "off".
QString wordOf(Severity severity);

/// A line for each finding, as compilers write them, at @p most so many of one file.
QString findingsAsText(const Findings &findings, const LintConfig &config, bool isColoured,
                       int most = INT_MAX);

/// The same for what is there no more.
QString fixedAsText(const Findings &fixed, bool isColoured);

/// @p fixed are findings that are there no more.
QJsonObject findingsAsJson(const Findings &findings, const Findings &fixed,
                           const LintConfig &config);

/// The log of a run in the Static Analysis Results Interchange Format 2.1.0; the complaints say
/// what could not be looked at.
QJsonObject findingsAsSarif(const Findings &findings, const LintConfig &config,
                            const QStringList &complaints);

/// What is to be known of a rule.
QString ruleAsText(const Rule &rule);
QJsonObject ruleAsJson(const Rule &rule);

#endif

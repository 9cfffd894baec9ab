// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef LINTCONFIG_H
#define LINTCONFIG_H

#include "lint/rules.h"

#include <QHash>
#include <QStringList>

/// How severe findings are: what the rules say themselves, and what the files ".kelto-lint.ini"
/// beside a file and in the directories above it say, the nearest before the others.
class LintConfig
{
public:
    /// Reads what concerns @p files.
    explicit LintConfig(const QStringList &files);

    /// What is wrong in files of settings, each with its place.
    const QStringList &complaints() const { return m_complaints; }

    Severity severity(const QString &path, const QString &rule) const;

private:
    using Severities = QHash<QString, Severity>;

    Severities severitiesIn(const QString &directory);
    void read(const QString &path, Severities *severities);
    void take(const IniReader &reader, const QString &place, Severities *severities);

    QStringList m_complaints;
    QHash<QString, Severities> m_directories;
    Severities m_usual;
};

#endif

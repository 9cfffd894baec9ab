// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef LINTFINDINGS_H
#define LINTFINDINGS_H

#include "itemfile.h"
#include "lint/linter.h"
#include "support/testfiles.h"

#include <algorithm>

// Findings as lines of text, and the files in which they are.

/// "line:column rule text".
inline QString lineOf(const Finding &finding)
{
    return QString("%1:%2 %3 %4")
        .arg(finding.position.line)
        .arg(finding.position.column)
        .arg(finding.rule, finding.text);
}

/// Without the findings of rules that are less severe, where nothing is configured.
inline QStringList linesOf(const Findings &findings, Severity least = Severity::Off)
{
    QStringList lines;
    for (const Finding &finding : findings) {
        if (ruleOf(finding.rule)->severity >= least)
            lines.append(lineOf(finding));
    }
    return lines;
}

/// "file:line:column rule text".
inline QStringList linesWithFilesOf(const Findings &findings)
{
    QStringList lines;
    for (const Finding &finding : findings)
        lines.append(finding.path + ':' + lineOf(finding));
    return lines;
}

inline int countOf(const Findings &findings, const QString &rule)
{
    return int(std::count_if(findings.cbegin(), findings.cend(),
                             [&rule](const Finding &each) { return each.rule == rule; }));
}

/// What the lint finds without any settings.
inline Findings allFindingsIn(const QVector<ItemFile> &files)
{
    Findings findings;
    for (const ItemFile &file : files)
        findings += findingsIn(file);
    return findings + findingsAmong(files);
}

/// Writes the files of an example, which a line "; --- NAME ---" divides, and reads the items among
/// them, sorted by their names. Another example needs another directory, since QSettings may not
/// notice that a file has changed.
inline QVector<ItemFile> filesOf(const QByteArray &example, const QString &directory = {})
{
    QByteArray name = "first.ini";
    QMap<QByteArray, QByteArray> contents;
    const QByteArrayList lines = example.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("; --- ") && line.endsWith(" ---"))
            name = line.mid(6).chopped(4);
        else
            contents[name] += line + '\n';
    }
    contents[name].chop(1);
    QVector<ItemFile> files;
    for (auto each = contents.cbegin(); each != contents.cend(); ++each) {
        const QString path = directory + QString::fromUtf8(each.key());
        writeFile(path, each.value());
        if (path.endsWith(".ini"))
            files.append(ItemFile(path));
    }
    return files;
}

#endif

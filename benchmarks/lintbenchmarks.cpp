// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What all rules take beside one of them written plainly, on files in which every second mode is
// misspelt.

#include "input.h"
#include "models/plainfile.h"
#include "saved.h"
#include "suite.h"

#include "lint/linter.h"

#include <algorithm>

namespace {

using LintInput = Saved<int>;

QByteArray modeName(int number)
{
    return "mode " + QByteArray::number(number);
}

QByteArray itemText(int modeCount)
{
    QByteArrayList modes;
    for (int i = 0; i < modeCount; ++i)
        modes.append(modeName(i));
    return "[KeltoItem]\nname=Module\ntype=calculation\nexclusive_group=true\ninner_mode_count="
        + QByteArray::number(modeCount) + "\ninner_mode_nameList=" + modes.join(", ") + '\n';
}

LintInput savedText(int size, const QByteArray &text)
{
    LintInput input { size };
    QFile file(input.path());
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return input;
}

LintInput makeParameters(int size)
{
    QByteArray attribute = "[Attribute]\n";
    QByteArray belong = "[Belong]\n";
    QByteArray unit = "[Unit]\n";
    for (int i = 0; i < size; ++i) {
        const QByteArray key = "parameter " + QByteArray::number(i);
        attribute += key + "=\n";
        belong += key + (i % 2 == 0 ? "=mode 0\n" : "=moed 0\n");
        unit += key + "=mm, m\n";
    }
    return savedText(size, itemText(1) + attribute + belong + unit);
}

LintInput makeModes(int size)
{
    QByteArrayList modes;
    for (int i = 0; i < size; ++i)
        modes.append(i % 2 == 0 ? modeName(i) : "x" + modeName(i));
    return savedText(size,
                     itemText(size) + "[Attribute]\nLength=\n[Belong]\nLength=" + modes.join(", ")
                         + '\n');
}

/// How many names of modes mean none.
int lintedCount(const LintInput &input)
{
    const Findings findings = findingsIn(ItemFile(input.path()));
    return static_cast<int>(
        std::count_if(findings.cbegin(), findings.cend(), [](const Finding &finding) {
            return finding.rule == QLatin1String("unknown-mode");
        }));
}

int plainCount(const LintInput &input)
{
    const Entries entries = loadWithQSettings(input.path());
    QStringList modes;
    for (const auto &entry : entries) {
        if (entry.first == QLatin1String("KeltoItem/inner_mode_nameList"))
            modes = entry.second.toStringList();
    }
    int count = 0;
    for (const auto &entry : entries) {
        if (!entry.first.startsWith(QLatin1String("Belong/")))
            continue;
        const QStringList named = entry.second.toStringList();
        count += static_cast<int>(
            std::count_if(named.cbegin(), named.cend(),
                          [&modes](const QString &name) { return !modes.contains(name); }));
    }
    return count;
}

} // namespace

void addLintRows()
{
    const auto plainly = [](int largestSize, auto make) {
        return baseline("QSettings and one rule", largestSize, make, plainCount, touchFile);
    };
    compare({ "lint of n parameters" }, asItIs, library(makeParameters, lintedCount, touchFile),
            plainly(10000, makeParameters));
    compare({ "lint of n modes" }, asItIs, library(makeModes, lintedCount, touchFile),
            plainly(1000, makeModes));
}

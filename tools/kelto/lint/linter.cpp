// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/linter.h"

#include "command.h"
#include "console.h"
#include "itemlikeness.h"
#include "lint/followers.h"
#include "lint/lintconfig.h"
#include "lint/lintitem.h"

#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <memory>
#include <tuple>
#include <vector>

namespace {

constexpr int progressInterval = 100;

struct CheckedFile
{
    std::unique_ptr<ItemFile> file;
    Findings findings;
};

void removeSwitchedOff(const LintConfig &config, Findings *findings)
{
    const auto isOff = [&config](const Finding &finding) {
        return config.severity(finding.path, finding.rule) == Severity::Off;
    };
    findings->erase(std::remove_if(findings->begin(), findings->end(), isOff), findings->end());
}

/// Each in its place, whatever the order in which the threads come to them.
std::vector<CheckedFile> checkedFiles(const QStringList &paths, const LintConfig &config,
                                      Console &console)
{
    std::vector<CheckedFile> checked(static_cast<std::size_t>(paths.size()));
    std::atomic<int> next { 0 };
    QThreadPool pool;
    for (int i = 0; i < pool.maxThreadCount(); ++i) {
        pool.start([&] {
            for (int position; (position = next++) < paths.size();) {
                CheckedFile &each = checked[static_cast<std::size_t>(position)];
                each.file = std::make_unique<ItemFile>(paths.at(position));
                if (each.file->error().isEmpty())
                    each.findings = findingsIn(*each.file, config);
            }
        });
    }
    while (!pool.waitForDone(progressInterval)) {
        console.showProgress(
            Command::tr("%1 of %2 files").arg(qMin(next.load(), paths.size())).arg(paths.size()));
    }
    return checked;
}

bool standsBefore(const Finding &a, const Finding &b)
{
    return std::tie(a.path, a.position.line, a.position.column)
        < std::tie(b.path, b.position.line, b.position.column);
}

} // namespace

Findings everyFindingIn(const ItemFile &file)
{
    if (isUtf16(file.bytes())) { // Read as UTF-8 it would be nothing but findings.
        return { { QStringLiteral("not-utf8"),
                   file.path(),
                   {},
                   Command::tr("the file is UTF-16; save it as UTF-8"),
                   {} } };
    }
    Findings findings;
    const LintItem item(file);
    for (const RuleArea &area : ruleAreas()) {
        if (area.checkFile)
            area.checkFile(item, &findings);
    }
    std::stable_sort(findings.begin(), findings.end(), standsBefore);
    return findings;
}

Findings findingsIn(const ItemFile &file)
{
    return withoutFollowers(file, everyFindingIn(file));
}

Findings findingsIn(const ItemFile &file, const LintConfig &config)
{
    Findings findings = everyFindingIn(file);
    removeSwitchedOff(config, &findings);
    return withoutFollowers(file, findings);
}

Findings findingsAmong(const QVector<ItemFile> &files)
{
    Findings findings;
    for (const RuleArea &area : ruleAreas()) {
        if (area.checkAll)
            area.checkAll(files, &findings);
    }
    return findings;
}

LintResult lint(const QStringList &paths, const LintConfig &config, Console &console)
{
    LintResult result;
    QVector<ItemFile> others; // What is wrong with them is known.
    for (CheckedFile &checked : checkedFiles(paths, config, console)) {
        if (!checked.file->error().isEmpty()) {
            result.unreadable.append(checked.file->error());
            continue;
        }
        result.findings += checked.findings;
        (isUtf16(checked.file->bytes()) ? others : result.files).append(std::move(*checked.file));
    }
    result.findings += findingsAmong(result.files);
    result.files += others;
    removeSwitchedOff(config, &result.findings);
    std::stable_sort(result.findings.begin(), result.findings.end(), standsBefore);
    return result;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/linter.h"

#include "command.h"
#include "console.h"
#include "lint/followers.h"
#include "lint/lintconfig.h"
#include "lint/lintitem.h"
#include "nearestname.h"

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

/// What follows from something that is switched off is found.
Findings configuredFindingsIn(const ItemFile &file, const LintConfig &config)
{
    Findings findings = everyFindingIn(file);
    removeSwitchedOff(config, &findings);
    return withoutFollowers(file, findings);
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
                    each.findings = configuredFindingsIn(*each.file, config);
            }
        });
    }
    while (!pool.waitForDone(progressInterval)) {
        console.showProgress(
            Command::tr("%1 of %2 files").arg(qMin(next.load(), paths.size())).arg(paths.size()));
    }
    return checked;
}

/// As some editors save it. Read as UTF-8 such a file would be nothing but findings.
bool isUtf16(const ItemFile &file)
{
    const QByteArray start = file.bytes().left(2);
    return start == "\xff\xfe" || start == "\xfe\xff" || start.contains('\0');
}

/// Whether @p key is one of an item wherever it stands: other files have a "name" as well.
bool isFieldAnywhere(const ItemFileKey &key)
{
    const bool isPlainWord
        = std::all_of(key.name.cbegin(), key.name.cend(), [](QChar c) { return c.isLower(); });
    return !isPlainWord && knownFields().contains(key.name);
}

/// Whether a section or a key is one of an item or nearly, or the file is empty, as one that a
/// mistyped path has left behind.
bool isLikeItem(const ItemFile &file)
{
    if (isUtf16(file) || (file.sections().isEmpty() && file.keys().isEmpty()))
        return true;
    const auto isNearly = [](const QString &name, const QStringList &names) {
        return names.contains(name) || !nearestName(name, names).isEmpty();
    };
    const auto &sections = file.sections();
    const auto &keys = file.keys();
    return std::any_of(sections.cbegin(), sections.cend(),
                       [&](const ItemFileSection &section) {
                           return isNearly(section.name, knownSections());
                       })
        || std::any_of(keys.cbegin(), keys.cend(), [&](const ItemFileKey &key) {
               return isFieldAnywhere(key)
                   || (key.section.isEmpty() && isNearly(key.name, knownFields()));
           });
}

bool standsBefore(const Finding &a, const Finding &b)
{
    return std::tie(a.path, a.position.line, a.position.column)
        < std::tie(b.path, b.position.line, b.position.column);
}

} // namespace

Findings everyFindingIn(const ItemFile &file)
{
    if (isUtf16(file)) {
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

Findings findingsAmong(const QVector<ItemFile> &files)
{
    Findings findings;
    for (const RuleArea &area : ruleAreas()) {
        if (area.checkAll)
            area.checkAll(files, &findings);
    }
    return findings;
}

LintResult lint(const QStringList &paths, const LintConfig &config, Console &console,
                const QSet<QString> &found)
{
    LintResult result;
    QVector<ItemFile> others; // What is wrong with them is known.
    for (CheckedFile &checked : checkedFiles(paths, config, console)) {
        if (!checked.file->error().isEmpty()) {
            result.unreadable.append(checked.file->error());
            continue;
        }
        if (found.contains(checked.file->path()) && !isLikeItem(*checked.file)) {
            result.skipped.append(checked.file->path());
            continue;
        }
        result.findings += checked.findings;
        (isUtf16(*checked.file) ? others : result.files).append(std::move(*checked.file));
    }
    result.findings += findingsAmong(result.files);
    result.files += others;
    removeSwitchedOff(config, &result.findings);
    std::stable_sort(result.findings.begin(), result.findings.end(), standsBefore);
    return result;
}

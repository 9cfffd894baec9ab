// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/inifile_p.h"

#include "core/filecopies_p.h"
#include "core/files_p.h"
#include "core/iniproblems_p.h"
#include "core/settingsfile_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <algorithm>
#include <new>

namespace {

int countOf(const QVector<IniProblem> &problems, IniProblem::Kind kind)
{
    const auto isOfKind = [kind](const IniProblem &problem) { return problem.kind == kind; };
    return static_cast<int>(std::count_if(problems.cbegin(), problems.cend(), isOfKind));
}

/// Whether something of @p before is lost in @p after, which QSettings has made of it.
bool isLossy(const QByteArray &before, const QByteArray &after)
{
    const QVector<IniProblem> problems = iniProblems(before);
    const int unreadable = countOf(problems, IniProblem::UnreadableKey);
    if (unreadable + countOf(problems, IniProblem::EmptySection) < problems.size())
        return true;
    // Most keys that it cannot read QSettings writes again, and they would be copied every time.
    return unreadable > 0 && countOf(iniProblems(after), IniProblem::UnreadableKey) < unreadable;
}

/// Saves into a file that this process has locked.
void save(const QString &path, const KeyValues &entries)
{
    const std::optional<QByteArray> before = contentOf(path);
    if (!before || hasUnsafeIniValue(*before))
        return;
    const std::optional<SettingsFile> after = changedSettings(path, *before, entries);
    if (!after)
        return;
    if (after->bytes != before) {
        if (isLossy(*before, after->bytes) && !keepCopy(path, *before))
            return;
        if (!replaceFile(path, after->bytes))
            return;
    }
    rememberSettings(path, *after);
}

} // namespace

bool ensureFile(const QString &path)
{
    if (!isPath(path))
        return false;
    QFile file(path);
    return file.exists() || file.open(QIODevice::ReadWrite | QIODevice::Text);
}

// A damaged value can be unsafe to read, or make QSettings ask for more memory than there is. A
// file with such a value has no keys and is left alone.

KeyValues readIniFile(const QString &path)
{
    try {
        const std::optional<QByteArray> bytes = contentOf(path);
        if (!bytes || hasUnsafeIniValue(*bytes))
            return {};
        return readSettings(path, *bytes);
    } catch (const std::bad_alloc &) {
        return {};
    }
}

void writeIniFile(const QString &path, const KeyValues &entries)
{
    const QFileInfo info(path);
    if (entries.isEmpty() || !canBeFile(path) || (info.exists() && !info.isWritable())
        || !QDir().mkpath(info.absolutePath()))
        return;
    try {
        const FileLocks locks = lockedFile(path);
        if (!locks.empty())
            save(path, entries);
    } catch (const std::bad_alloc &) {
    }
}

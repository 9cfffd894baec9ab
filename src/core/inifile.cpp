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

/// Whether something is lost when QSettings writes a file with these bytes.
bool isLossy(const QByteArray &bytes)
{
    const QVector<IniProblem> problems = iniProblems(bytes);
    return std::any_of(problems.cbegin(), problems.cend(), [](const IniProblem &problem) {
        return problem.kind != IniProblem::EmptySection;
    });
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
        if (isLossy(*before) && !keepCopy(path, *before))
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
        if (const auto lock = lockedFile(path))
            save(path, entries);
    } catch (const std::bad_alloc &) {
    }
}

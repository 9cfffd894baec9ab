// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/inifile_p.h"

#include "core/filecopies_p.h"
#include "core/iniproblems_p.h"
#include "core/typedtext_p.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>

#include <algorithm>
#include <new>

namespace {

/// All files are opened through this, so that they are read in the encoding in which they were
/// written.
class Utf8Settings : public QSettings
{
public:
    explicit Utf8Settings(const QString &path)
        : QSettings(path, QSettings::IniFormat)
    {
        setIniCodec("utf-8");
    }
};

bool isDirectoryWritable(const QString &path)
{
    return path.isEmpty() || QFileInfo(QFileInfo(path).absolutePath()).isWritable();
}

/// Whether the file can be written, and so can the directory in which QSettings locks it and the
/// one in which it makes the new file; for a link these are two. Where they cannot, QSettings would
/// still show the new values to everybody in this process. QSettings::isWritable() makes missing
/// directories, so it is asked first.
bool isWritable(const QSettings &settings)
{
    const QString path = settings.fileName();
    return settings.isWritable() && isDirectoryWritable(path)
        && isDirectoryWritable(QFileInfo(path).canonicalFilePath());
}

/// In milliseconds. QSettings removes a lock that is half a minute old, so every lock ends by then.
constexpr int longestLock = 40 * 1000;

/// Whether QSettings can lock the file, now or soon. Where something else has the name of the lock,
/// a directory for example, QSettings would wait for ever.
bool isLockable(const QSettings &settings)
{
    const QFileInfo lock(settings.fileName() + QLatin1String(".lock"));
    if (lock.isSymLink())
        return false;
    return !lock.exists() || (lock.isFile() && QLockFile(lock.filePath()).tryLock(longestLock));
}

/// Whether anything of @p key is left when QSettings has dropped its superfluous slashes. QSettings
/// refuses other keys with a warning.
bool isKey(const QString &key)
{
    return std::any_of(key.cbegin(), key.cend(), [](QChar c) { return c != QLatin1Char('/'); });
}

KeyValues entriesOf(const QSettings &settings)
{
    const QStringList keys = settings.allKeys();
    KeyValues entries;
    entries.reserve(keys.size());
    for (const QString &key : keys)
        entries.append({ key, isKey(key) ? settings.value(key) : QVariant() });
    return entries;
}

bool isUnsafeValue(const IniProblem &problem)
{
    return problem.kind == IniProblem::UnsafeValue;
}

bool isLoss(const IniProblem &problem)
{
    return problem.kind != IniProblem::EmptySection;
}

void write(QSettings *settings, const KeyValues &entries)
{
    for (const KeyValue &entry : entries) {
        if (isKey(entry.first) && isStorable(entry.second))
            settings->setValue(entry.first, entry.second);
    }
    settings->sync();
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
    if (!canBeFile(path))
        return {};
    try {
        if (hasUnsafeIniValue(bytesOf(path)))
            return {};
        return entriesOf(Utf8Settings(path));
    } catch (const std::bad_alloc &) {
        return {};
    }
}

void writeIniFile(const QString &path, const KeyValues &entries)
{
    if (entries.isEmpty() || !canBeFile(path))
        return;
    try {
        QByteArray bytes = bytesOf(path);
        const QVector<IniProblem> problems = iniProblems(bytes);
        if (std::any_of(problems.cbegin(), problems.cend(), isUnsafeValue))
            return;
        Utf8Settings settings(path);
        if (!isWritable(settings) || !isLockable(settings))
            return;
        if (std::any_of(problems.cbegin(), problems.cend(), isLoss) && !keepCopy(path, bytes))
            return;
        // QSettings needs about as much memory to write the file.
        bytes.clear();
        write(&settings, entries);
    } catch (const std::bad_alloc &) {
    }
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/files_p.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QThread>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

/// In milliseconds. A lock this old is removed unless its process still holds it, which the system
/// knows, whatever number that process has.
constexpr int staleLockTime = 1000;
/// How often somebody else's lock is looked at. Who looks rarely is overtaken again and again.
constexpr int lockInterval = 5;
/// How long an abandoned lock is tried to be removed, where that may be forbidden. QLockFile locks
/// the removal as well; if that lock is abandoned, too, it counts for half a minute.
constexpr int longestLock = 40 * 1000;

/// Writes to the disk what the system still keeps; where that cannot be done, it is the system's
/// business.
bool synchronise(const QFileDevice &file)
{
#ifdef Q_OS_UNIX
    return ::fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOSYS;
#else
    Q_UNUSED(file)
    return true;
#endif
}

/// Whether files can only be added to @p directory.
bool isAppendOnly(const QString &directory)
{
#ifdef STATX_ATTR_APPEND
    struct statx status = {};
    return ::statx(AT_FDCWD, QFile::encodeName(directory).constData(), 0, 0, &status) == 0
        && (status.stx_attributes & STATX_ATTR_APPEND);
#else
    Q_UNUSED(directory)
    return false;
#endif
}

/// Whether a process holds @p lock. Of one that was killed only the file stays.
bool isHeld(const QString &lock)
{
#ifdef Q_OS_UNIX
    QFile file(lock);
    return file.open(QIODevice::ReadOnly) && ::flock(file.handle(), LOCK_EX | LOCK_NB) != 0;
#else
    return QFile::exists(lock);
#endif
}

/// Whether QLockFile can use the file @p lock, and the one by which it locks the removal of an
/// abandoned lock. It reads what has these names: of a pipe it would wait for a writer.
bool canBeLock(const QString &lock)
{
    return canBeFile(lock) && canBeFile(lock + QLatin1String(".rmlock"));
}

/// Waits for @p lock as long as it can end.
bool waitFor(QLockFile *lock, const QString &path)
{
    QDateTime made;
    QElapsedTimer unchanged;
    while (canBeLock(path)) {
        if (lock->tryLock())
            return true;
        const QFileInfo info(path);
        if (lock->error() != QLockFile::LockFailedError || info.isSymLink())
            return false;
        if (!unchanged.isValid() || made != info.lastModified()) {
            made = info.lastModified();
            unchanged.start();
        } else if (unchanged.hasExpired(longestLock) && !isHeld(path)) {
            return false;
        }
        QThread::msleep(lockInterval);
    }
    return false;
}

/// The lock of the file that is called @p name; nothing where it cannot be locked.
std::unique_ptr<QLockFile> lockOf(const QString &name)
{
    const QString path = name + QLatin1String(".lock");
    if (isAppendOnly(QFileInfo(name).path()))
        return nullptr;
    auto lock = std::make_unique<QLockFile>(path);
    lock->setStaleLockTime(staleLockTime);
    return waitFor(lock.get(), path) ? std::move(lock) : nullptr;
}

} // namespace

bool isPath(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar::Null)
        && (QDir::isAbsolutePath(path) || !QDir::currentPath().isEmpty());
}

bool canBeFile(const QString &path)
{
    if (!isPath(path))
        return false;
    const QFileInfo info(path);
    return info.isFile() || !info.exists();
}

std::optional<QByteArray> contentOf(const QString &path)
{
    QFile file(path);
    if (!canBeFile(path))
        return std::nullopt;
    // The other exists() would take a link that leads to nothing for a file.
    if (!QFile::exists(path))
        return QByteArray();
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const qint64 size = file.size();
    QByteArray bytes = file.readAll();
    // Of a file that is too large for an array Qt reads nothing, and does not call that an error.
    if (file.error() != QFileDevice::NoError || bytes.size() < size)
        return std::nullopt;
    return bytes;
}

bool writeWhole(QFileDevice *file, const QByteArray &bytes)
{
    return file->write(bytes) == bytes.size() && file->flush() && synchronise(*file);
}

bool replaceFile(const QString &path, const QByteArray &bytes)
{
    const QDateTime before = QFileInfo(path).lastModified();
    QSaveFile file(path);
    // QSaveFile itself overlooks it when the last bytes find no place on the disk.
    if (!file.open(QIODevice::WriteOnly) || !writeWhole(&file, bytes))
        return false;
    // QSettings takes a file of the same size and time for the one that it knows, and the clock of
    // a file system may be slow.
    if (before.isValid() && file.fileTime(QFileDevice::FileModificationTime) <= before)
        file.setFileTime(before.addMSecs(1), QFileDevice::FileModificationTime);
    return file.commit();
}

FileLocks lockedFile(const QString &path)
{
    const QFileInfo info(path);
    QStringList names { info.absoluteFilePath() };
    // QSettings locks the name by which it was given a file, so that those who were given the
    // target of a link are to be kept out, too. Nobody can wait for two of us in a circle, since a
    // link is never the target that its path leads to in the end.
    if (info.isSymLink() && info.exists())
        names.append(info.canonicalFilePath());
    FileLocks locks;
    for (const QString &name : qAsConst(names)) {
        locks.push_back(lockOf(name));
        if (!locks.back())
            return {};
    }
    return locks;
}

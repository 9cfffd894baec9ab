// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/scratchdirectory_p.h"

#include <QDir>
#include <QFile>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

const QLatin1String fileName("settings.ini");
const QLatin1String start("kelto-save.");

#ifdef Q_OS_UNIX

/// Opens the directory @p path of this user to lock it; no link, as others may make links here.
int openedDirectory(const QString &path)
{
    const int handle = ::open(QFile::encodeName(path).constData(),
                              O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat status = {};
    if (handle < 0 || (::fstat(handle, &status) == 0 && status.st_uid == ::geteuid()))
        return handle;
    ::close(handle);
    return -1;
}

/// Removes @p path unless something else is in it than QSettings makes.
void removeScratch(const QString &path)
{
    QDir directory(path);
    const QStringList names
        = directory.entryList({ fileName + QLatin1Char('*') }, QDir::Files | QDir::Hidden);
    for (const QString &name : names)
        directory.remove(name);
    QDir().rmdir(path);
}

/// The directories of all processes in @p place. There can be thousands of other entries, and QDir
/// makes more of each than of reading a small file.
QStringList scratchNames(const QString &place)
{
    QStringList names;
    DIR *const stream = ::opendir(QFile::encodeName(place).constData());
    while (const dirent *const entry = stream ? ::readdir(stream) : nullptr) {
        if (qstrncmp(entry->d_name, start.data(), uint(start.size())) == 0
            && qstrlen(entry->d_name) == uint(start.size()) + 6)
            names.append(QFile::decodeName(entry->d_name));
    }
    if (stream)
        ::closedir(stream);
    return names;
}

#endif

} // namespace

ScratchDirectory::ScratchDirectory(const QString &place)
    : m_directory(place + QLatin1Char('/') + start + QLatin1String("XXXXXX"))
{
#ifdef Q_OS_UNIX
    if (!m_directory.isValid())
        return;
    m_lock = openedDirectory(m_directory.path());
    // Somebody may have taken it for an abandoned one just now. Some file systems have no locks.
    if (m_lock < 0 || (::flock(m_lock, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK))
        remove();
#endif
}

ScratchDirectory::~ScratchDirectory()
{
    remove();
}

QString ScratchDirectory::filePath() const
{
    return m_directory.autoRemove() && m_directory.isValid() ? m_directory.filePath(fileName)
                                                             : QString();
}

void ScratchDirectory::remove()
{
    if (m_directory.autoRemove())
        m_directory.remove();
    m_directory.setAutoRemove(false);
#ifdef Q_OS_UNIX
    if (m_lock >= 0)
        ::close(m_lock);
    m_lock = -1;
#endif
}

void ScratchDirectory::removeAbandoned(const QString &place)
{
#ifdef Q_OS_UNIX
    const QStringList names = scratchNames(place);
    for (const QString &name : names) {
        const QString path = place + QLatin1Char('/') + name;
        const int handle = openedDirectory(path);
        if (handle < 0)
            continue;
        if (::flock(handle, LOCK_EX | LOCK_NB) == 0)
            removeScratch(path);
        ::close(handle);
    }
#else
    Q_UNUSED(place)
#endif
}

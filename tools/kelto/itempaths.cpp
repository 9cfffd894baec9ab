// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "itempaths.h"

#include "command.h"
#include "console.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>

namespace {

QStringList itemFilesBelow(const QString &directory)
{
    QStringList files;
    QDirIterator iterator(directory, { QStringLiteral("*.ini") }, QDir::Files,
                          QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files.append(iterator.next());
    files.sort();
    return files;
}

QString noSuchFile(const QString &path)
{
    return Command::tr("%1: no such file.").arg(path);
}

/// A file stands once, however it is spelt.
QStringList withoutDuplicates(const QStringList &files)
{
    QStringList result;
    QSet<QString> known;
    for (const QString &file : files) {
        const QString canonical = QFileInfo(file).canonicalFilePath();
        if (canonical.isEmpty() || !known.contains(canonical))
            result.append(file);
        known.insert(canonical);
    }
    return result;
}

} // namespace

QStringList itemFilesAt(const QStringList &paths, Console &console, bool *areAllFound)
{
    QStringList files;
    *areAllFound = true;
    for (const QString &path : paths) {
        const QFileInfo info(path);
        const QStringList found
            = info.isDir() ? itemFilesBelow(path) : QStringList(path).mid(info.exists() ? 0 : 1);
        if (found.isEmpty()) {
            *areAllFound = false;
            console.complain(info.isDir()
                                 ? Command::tr("%1: no file below it ends in \".ini\".").arg(path)
                                 : noSuchFile(path));
        }
        files += found;
    }
    return withoutDuplicates(files);
}

QString whyUnreadable(const QString &path)
{
    // Opening a pipe would wait for somebody who writes.
    const QFileInfo info(path);
    if (!info.exists())
        return noSuchFile(path);
    if (info.isDir())
        return Command::tr("%1: is a directory; a file is expected.").arg(path);
    if (!info.isFile())
        return Command::tr("%1: is not a regular file.").arg(path);
    QFile file(path);
    return file.open(QIODevice::ReadOnly)
        ? QString()
        : Command::tr("%1: cannot be read: %2.").arg(path, file.errorString());
}

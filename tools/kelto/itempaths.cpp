// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "itempaths.h"

#include "command.h"
#include "console.h"
#include "itemlikeness.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <filesystem>
#include <system_error>

namespace {

/// A directory of stored projects would fill the screen with more.
constexpr int mostSkippedNotes = 5;

QString unreadable(const QString &path, const QString &why)
{
    return Command::tr("%1: cannot be read: %2.").arg(path, why);
}

QString unreadable(const QString &path, const std::error_code &error)
{
    return unreadable(path, QString::fromLocal8Bit(error.message().c_str()));
}

/// Why the directory cannot be searched, as a sentence; empty when it can.
QString whyUnlistable(const QFileInfo &directory)
{
    std::error_code error;
    std::filesystem::directory_iterator(directory.filePath().toStdU16String(), error);
    // The names of files alone are of no use.
    if (!error && !directory.isExecutable())
        error = std::make_error_code(std::errc::permission_denied);
    return error ? unreadable(directory.filePath(), error) : QString();
}

/// Adds to @p problems what cannot be searched. What is no regular file is told when it is read.
QStringList filesBelow(const QString &directory, QStringList *problems)
{
    QStringList files;
    QStringList directories { directory };
    QStringList links; // Later, so that files stand under the names of their own directories.
    QSet<QString> known; // Links may lead back.
    while (!directories.isEmpty() || !links.isEmpty()) {
        const QFileInfo place((directories.isEmpty() ? links : directories).takeFirst());
        if (known.contains(place.canonicalFilePath()))
            continue;
        known.insert(place.canonicalFilePath());
        const QString problem = whyUnlistable(place);
        if (!problem.isEmpty()) {
            problems->append(problem);
            continue;
        }
        const auto filters = QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot;
        const auto entries = QDir(place.filePath()).entryInfoList(filters, QDir::Name);
        for (const QFileInfo &entry : entries) {
            if (entry.isDir())
                (entry.isSymLink() ? links : directories).append(entry.filePath());
            else if (entry.fileName().endsWith(QLatin1String(".ini"), Qt::CaseInsensitive))
                files.append(entry.filePath());
        }
    }
    files.sort();
    return files;
}

/// Why there is nothing to be found at @p path.
QString whyMissing(const QString &path)
{
    std::error_code error;
    const auto status = std::filesystem::status(path.toStdU16String(), error);
    // A directory above it may not be searched, for example.
    if (status.type() != std::filesystem::file_type::not_found)
        return unreadable(path, error);
    return QFileInfo(path).isSymLink()
        ? Command::tr("%1: is a link to a file that does not exist.").arg(path)
        : Command::tr("%1: no such file.").arg(path);
}

/// What cannot be read may be an item.
bool mayBeItem(const QString &path)
{
    // Opening a pipe would wait for somebody who writes.
    if (!QFileInfo(path).isFile())
        return true;
    QFile file(path);
    return !file.open(QIODevice::ReadOnly) || isLikeItem(file.readAll());
}

void noteSkipped(const QStringList &files, const QString &directory, Console &console)
{
    if (files.size() > mostSkippedNotes) {
        console.note(Command::tr("%1: %2 files below it are skipped, since nothing in them is a "
                                 "part of a module item, %3 for example. Name a file itself to "
                                 "have it read.")
                         .arg(directory)
                         .arg(files.size())
                         .arg(files.constFirst()));
        return;
    }
    for (const QString &path : files) {
        console.note(Command::tr("%1: is skipped, since nothing in it is a part of a module "
                                 "item. Name the file itself to have it read.")
                         .arg(path));
    }
}

/// Of the @p files, which were found in @p directory, those that are like items or are @p named by
/// themselves.
QStringList likeItems(const QStringList &files, const QString &directory, const QStringList &named,
                      Console &console)
{
    QSet<QString> wanted;
    for (const QString &path : named)
        wanted.insert(QFileInfo(path).canonicalFilePath());
    QStringList items;
    QStringList skipped;
    for (const QString &path : files) {
        const bool isWanted = wanted.contains(QFileInfo(path).canonicalFilePath());
        (isWanted || mayBeItem(path) ? items : skipped).append(path);
    }
    noteSkipped(skipped, directory, console);
    return items;
}

QStringList itemFilesBelow(const QString &directory, const QStringList &named, Console &console,
                           QStringList *problems)
{
    const QStringList files = filesBelow(directory, problems);
    const QStringList items = likeItems(files, directory, named, console);
    if (items.isEmpty() && problems->isEmpty()) {
        problems->append((files.isEmpty() ? Command::tr("%1: no file below it ends in \".ini\".")
                                          : Command::tr("%1: no file below it is a module item."))
                             .arg(directory));
    }
    return items;
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
        QStringList found;
        QStringList problems;
        if (info.isDir()) {
            found = itemFilesBelow(path, paths, console, &problems);
        } else if (info.exists()) {
            found.append(path);
        } else {
            problems.append(whyMissing(path));
        }
        for (const QString &problem : qAsConst(problems))
            console.complain(problem);
        *areAllFound = *areAllFound && problems.isEmpty();
        files += found;
    }
    return withoutDuplicates(files);
}

QString whyUnreadable(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return whyMissing(path);
    if (info.isDir())
        return Command::tr("%1: is a directory; a file is expected.").arg(path);
    if (!info.isFile())
        return Command::tr("%1: is not a regular file.").arg(path);
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString() : unreadable(path, file.errorString());
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "outputfile.h"

#include "command.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

bool holds(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.size() == bytes.size() && file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

} // namespace

QString writeOutputFile(const QString &path, const QByteArray &bytes)
{
    const QFileInfo info(path);
    // Reading from a pipe would wait, and replacing a device by a file would not be undone.
    if (info.exists() && !info.isFile())
        return Command::tr("%1: is not a file.").arg(path);
    if (info.isFile() && holds(path, bytes))
        return {};
    if (info.isSymLink() && !info.exists())
        return Command::tr("%1: is a link to a file that does not exist; remove it first.")
            .arg(path);
    if (!QFileInfo(info.path()).isDir())
        return Command::tr("%1: there is no such directory; make it first.").arg(info.path());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return Command::tr("%1: cannot be written: %2.").arg(path, file.errorString());
    return {};
}

QString makeOutputDirectory(const QString &path)
{
    return QDir().mkpath(path) ? QString()
                               : Command::tr("%1: this directory cannot be made.").arg(path);
}

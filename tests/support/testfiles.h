// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TESTFILES_H
#define TESTFILES_H

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>

/// Writes a file as another program would, so that QSettings does not know its values; directories
/// that are missing are made.
inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write(bytes) == bytes.size();
}

/// The whole content of the file at @p path; null when it cannot be read.
inline QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The names of everything in @p directory, in order.
inline QStringList filesIn(const QString &directory)
{
    return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                         | QDir::NoDotAndDotDot,
                                     QDir::Name);
}

/// Gives the file or directory at @p path the rights that chmod would, for everybody the same.
inline void setRights(const QString &path, int octal)
{
    QFile::Permissions permissions;
    if (octal & 4)
        permissions |= QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup | QFile::ReadOther;
    if (octal & 2)
        permissions |= QFile::WriteOwner | QFile::WriteUser | QFile::WriteGroup | QFile::WriteOther;
    if (octal & 1)
        permissions |= QFile::ExeOwner | QFile::ExeUser | QFile::ExeGroup | QFile::ExeOther;
    QFile::setPermissions(path, permissions);
}

#endif

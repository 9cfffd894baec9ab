// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FILES_P_H
#define FILES_P_H

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class QFileDevice;
class QLockFile;

using FileLocks = std::vector<std::unique_ptr<QLockFile>>;

/// Whether Qt takes @p path as it is: it warns about an empty one, truncates one at a NUL, and
/// takes a relative one as below "/" where the current directory was removed.
bool isPath(const QString &path);

/// Whether there is a file at @p path, or nothing. Reading from a pipe, for one, would wait for
/// somebody to write.
bool canBeFile(const QString &path);

/// What the file at @p path holds: no bytes where there is no file, nothing where it cannot be
/// read.
std::optional<QByteArray> contentOf(const QString &path);

/// Writes @p bytes to the disk; whether all of them are there.
bool writeWhole(QFileDevice *file, const QByteArray &bytes);

/// Gives the file at @p path, or that to which a link there leads, the content @p bytes. Whatever
/// happens, it has either all of them or what it had before; whether it has the former.
bool replaceFile(const QString &path, const QByteArray &bytes);

/// Locks the file at @p path as QSettings does, by a file with the additional ending ".lock", and
/// waits for others who have locked it; also that to which a link leads. Empty where that is not
/// possible, or where the files of a directory cannot be removed again.
FileLocks lockedFile(const QString &path);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FILECOPIES_P_H
#define FILECOPIES_P_H

#include <QByteArray>
#include <QString>

/// Qt warns about an empty path and truncates one at a NUL.
bool isPath(const QString &path);

/// Whether there is a file at @p path, or nothing. Reading from a pipe, for one, would wait for
/// somebody to write.
bool canBeFile(const QString &path);

/// What the file at @p path holds; nothing when it cannot be read.
QByteArray bytesOf(const QString &path);

/// Makes a copy of the file at @p path, which holds @p bytes, beside it, and tells whether there is
/// one. The newest of five ends in ".bak", the oldest in ".bak5" and goes when there is a new one.
bool keepCopy(const QString &path, const QByteArray &bytes);

#endif

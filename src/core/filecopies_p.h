// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FILECOPIES_P_H
#define FILECOPIES_P_H

#include <QByteArray>
#include <QString>

/// Whether Qt takes @p path as it is: it warns about an empty one and truncates one at a NUL.
bool isPath(const QString &path);

/// Whether there is a file at @p path, or nothing. Reading from a pipe, for one, would wait for
/// somebody to write.
bool canBeFile(const QString &path);

/// What the file at @p path holds; nothing when it cannot be read.
QByteArray bytesOf(const QString &path);

/// Copies the file at @p path, which holds @p bytes, unless a copy of the same bytes is kept
/// already; whether there is a copy now. Copies lie beside the file: the newest of at most five
/// ends in ".bak", the oldest in ".bak5", and a new one replaces the oldest.
bool keepCopy(const QString &path, const QByteArray &bytes);

#endif

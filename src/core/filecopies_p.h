// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FILECOPIES_P_H
#define FILECOPIES_P_H

#include <QByteArray>
#include <QString>

/// Copies the file at @p path, which holds @p bytes and is locked, unless a copy of the same bytes
/// is kept already; whether there is a copy now. Copies lie beside the file: the newest of at most
/// five ends in ".bak", the oldest in ".bak5", and a new one replaces the oldest.
bool keepCopy(const QString &path, const QByteArray &bytes);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INIFILE_P_H
#define INIFILE_P_H

#include "core/keyvaluelist_p.h"

#include <QString>

/// Makes an empty file at @p path where there is none, and tells whether there is one now, or a
/// directory.
bool ensureFile(const QString &path);

/// All keys and values of the INI file at @p path, in the order of QSettings::allKeys(); none when
/// it cannot be read.
KeyValues readIniFile(const QString &path);

/**
 * Writes @p entries into the INI file at @p path, in order, and keeps its other keys. Missing
 * directories are made. Values that cannot be stored, pointers for example, are left out. The file
 * is locked, read again and replaced as a whole; it stays as it was if that fails.
 *
 * A file of which something would be lost in that is copied first, to @p path with the ending
 * ".bak", and left alone if that fails. Five copies stay at most, the oldest ends in ".bak5".
 */
void writeIniFile(const QString &path, const KeyValues &entries);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSFILE_P_H
#define SETTINGSFILE_P_H

#include "core/keyvaluelist_p.h"

#include <QByteArray>
#include <QString>

#include <optional>

// QSettings makes the bytes of a file, but it never writes the file itself: on a full disk it would
// replace it by an incomplete one, and in this process it would go on with values that nobody has
// saved.

/// The bytes of a file and, unless it is large, its entries with the types that they had when they
/// were set.
struct SettingsFile
{
    QByteArray bytes;
    KeyValues entries;
};

/// The entries of the file at @p path, which holds @p bytes, in the order of QSettings::allKeys().
KeyValues readSettings(const QString &path, const QByteArray &bytes);

/// What QSettings makes of a file at @p path with these @p bytes when it sets @p entries, without
/// those that cannot be stored. Nothing where there is no place for temporary files.
std::optional<SettingsFile> changedSettings(const QString &path, const QByteArray &bytes,
                                            const KeyValues &entries);

/// Gives values their types back when the file at @p path is read again, as QSettings does for what
/// it has written, until somebody else writes it.
void rememberSettings(const QString &path, const SettingsFile &file);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINFILE_H
#define PLAINFILE_H

#include "support/settingsjson.h"

#include <QSettings>

// Loading and saving settings with QSettings alone.

inline Entries loadWithQSettings(const QString &path)
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("utf-8");
    const QStringList keys = settings.allKeys();
    Entries entries;
    entries.reserve(keys.size());
    for (const QString &key : keys)
        entries.append({ key, settings.value(key) });
    return entries;
}

inline void saveWithQSettings(const QString &path, const Entries &entries)
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("utf-8");
    for (const auto &entry : entries)
        settings.setValue(entry.first, entry.second);
    settings.sync();
}

#endif

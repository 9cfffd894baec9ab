// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/inifile_p.h"

IniFile::IniFile(const QString &path)
    : QSettings(path, QSettings::IniFormat)
{
    setIniCodec("utf-8");
}

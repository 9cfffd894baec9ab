// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INIFILE_P_H
#define INIFILE_P_H

#include <QSettings>
#include <QString>

/// An INI file opened for reading and writing in UTF-8. Every INI file of the library is opened
/// through this, so that no file is ever read in one encoding and written in another.
class IniFile : public QSettings
{
public:
    explicit IniFile(const QString &path);
};

#endif

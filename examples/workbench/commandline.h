// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include <QString>
#include <QStringList>

enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2 };

struct Options
{
    QString language;
    QString task;
    /// The directory of the module files; ignored with compiled modules.
    QString modules;
    bool compiled = false;
};

/// Ends the program after "--help", "--version" and wrong usage.
Options readOptions(const QStringList &arguments);

/// Ends the program with a message on the error channel.
[[noreturn]] void quit(ExitCode code, const QString &complaint);

#endif

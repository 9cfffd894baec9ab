// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include <QString>
#include <QStringList>

enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2 };

struct Options
{
    /// Empty for the language of the last run.
    QString language;
    QString task;
    /// The directory of the module files; ignored with compiled modules.
    QString modules;
    bool compiled = false;
    /// The project to open; empty for a new one.
    QString project;
};

/// Ends the program after "--help", "--version" and wrong usage. Needs a QCoreApplication and no
/// display, so that a QApplication can be made afterwards.
Options readOptions(const QStringList &arguments);

/// Ends the program with a message on the error channel.
[[noreturn]] void quit(ExitCode code, const QString &complaint);

#endif

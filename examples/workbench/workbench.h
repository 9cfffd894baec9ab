// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef WORKBENCH_H
#define WORKBENCH_H

#include <Kelto/AUTH_INF>

#include <QStringList>
#include <QVector>

enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2 };

struct Options
{
    /// That of the last run, or of the system, where none is named.
    QString language;
    /// A task that there is, or empty.
    QString task;
    /// As their files have them, in no language in particular.
    QVector<AUTH_INF> modules;
    /// The project to open; empty for a new one.
    QString project;
};

/// Names the application, and ends it after "--help", "--version", wrong usage, for an unknown task
/// and where modules cannot be read. Needs a QCoreApplication and no display, so that a
/// QApplication can be made afterwards.
Options readOptions(const QStringList &arguments);

/// Ends the program with a message on the error channel.
[[noreturn]] void quit(ExitCode code, const QString &complaint);

#endif

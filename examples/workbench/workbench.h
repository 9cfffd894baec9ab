// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef WORKBENCH_H
#define WORKBENCH_H

#include "mainwindow.h"

#include <Kelto/AUTH_SET>

enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2 };

struct Options
{
    /// Empty for the language of the last run.
    QString language;
    QString task;
    /// As their files have them, in no language in particular.
    QVector<AUTH_INF> modules;
    /// The project to open; empty for a new one.
    QString project;
};

/// Names the application, and ends it after "--help", "--version", wrong usage and where modules
/// cannot be read. Needs a QCoreApplication and no display, so that a QApplication can be made
/// afterwards.
Options readOptions(const QStringList &arguments);

/// Ends the program with a message on the error channel.
[[noreturn]] void quit(ExitCode code, const QString &complaint);

/// The program from its start on: the modules, the one registry, the language, the window.
class Workbench
{
public:
    explicit Workbench(const Options &options);

    const AUTH_SET &registry() const { return m_registry; }

    /// Opens the window with the project or the task of @p options, and ends the program with a
    /// message when there is no such task. Without a task the user is asked, and that of the
    /// project or of the earlier run is on offer.
    void open(const Options &options);

private:
    QVector<AUTH_INF> m_modules;
    // It has to outlive everything that asks it.
    AUTH_SET m_registry;
    MainWindow m_window;
};

#endif

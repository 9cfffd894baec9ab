// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef WORKBENCH_H
#define WORKBENCH_H

#include "mainwindow.h"

#include <Kelto/AUTH_SET>

struct Options;

/// Gives the application its name and version, which the registry and "--version" tell.
void nameApplication();

/// The program from its start on: the modules, the one registry, the language, the window.
class Workbench
{
public:
    /// Ends the program with a message when the modules of @p options cannot be read.
    explicit Workbench(const Options &options);

    const AUTH_SET &registry() const { return m_registry; }
    MainWindow &window() { return m_window; }

    /// Opens the window with the project or the task of @p options, and ends the program with a
    /// message when there is no such task. Without a task the user is asked, and that of the
    /// project or of the earlier run is on offer.
    void open(const Options &options);

private:
    /// As their files have them, in no language in particular.
    QVector<AUTH_INF> m_modules;
    // The one registry of the program. It has to outlive everything that asks it.
    AUTH_SET m_registry;
    MainWindow m_window;
};

#endif

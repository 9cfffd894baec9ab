// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include "command.h"

class Console;

/// Does what the arguments of the program, without its name, ask for.
ExitCode runCommandLine(const QStringList &arguments, Console &console);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef COMMANDS_H
#define COMMANDS_H

#include "command.h"

/// All commands, in the order of the help.
const QVector<Command> &commands();

/// The options that every command has.
const QVector<CommandOption> &commonOptions();

/// Paragraphs that say what a command does and, where it takes paths, what these stand for. To be
/// translated.
QVector<const char *> descriptionsOf(const Command &command);

/// The name of an option as it is typed: "-h", "--help".
QString dashed(const QString &name);

// Each stands in a file of its own.
Command codeCommand();
Command checkCommand();
Command diffCommand();
Command modesCommand();
Command showCommand();
Command docCommand();
Command lintCommand();
Command convertCommand();
Command fmtCommand();
Command newCommand();
Command styleCommand();

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef COMMAND_H
#define COMMAND_H

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

class Console;
class QCommandLineParser;

/// How the program ends; never a count, of which 256 would look like none.
enum ExitCode {
    Done = 0,
    Found = 1, ///< There are findings, or something was not found or could not be written.
    WrongUsage = 2,
};

struct CommandOption
{
    QStringList names; ///< Without dashes.
    /// What stands for its value in the help; null for a flag. The shell completes "FILE", "DIR",
    /// "RULE" and, as "one|other", words between which a user chooses.
    const char *value;
    const char *description;
    bool isRepeatable = false; ///< Elsewhere a second value is wrong usage.
};

struct CommandExample
{
    const char *line;
    const char *purpose;
};

/// One command of the program: what it takes, what it tells about itself, and what it does. The
/// help, the manual pages and the completion of the shell are made from this. All texts of the
/// program for people are translated in its context.
struct Command
{
    const char *name;
    const char *arguments; ///< As in a line of usage, such as "PATH...".
    int leastArguments;
    int mostArguments; ///< -1 without a limit.
    const char *summary; ///< A line, without a full stop.
    /// Sentences; an empty line divides paragraphs. Lines that begin with a space are shown as they
    /// are, all others filled.
    const char *description;
    QVector<CommandOption> options;
    QVector<CommandExample> examples;
    ExitCode (*run)(const QCommandLineParser &line, Console &console);

    Q_DECLARE_TR_FUNCTIONS(Command)
};

#endif

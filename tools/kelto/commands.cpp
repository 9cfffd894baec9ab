// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"

#include <QCoreApplication>

const QVector<Command> &commands()
{
    // One to a line, so that a new command changes no other line.
    // clang-format off
    static const QVector<Command> all {
        lintCommand(),
        showCommand(),
        modesCommand(),
        checkCommand(),
        diffCommand(),
        codeCommand(),
        docCommand(),
        newCommand(),
        fmtCommand(),
        convertCommand(),
        styleCommand(),
    };
    // clang-format on
    return all;
}

const QVector<CommandOption> &commonOptions()
{
    static const QVector<CommandOption> options {
        { { QStringLiteral("json") },
          nullptr,
          QT_TRANSLATE_NOOP("Command", "Write the result as JSON.") },
        { { QStringLiteral("h"), QStringLiteral("help") },
          nullptr,
          QT_TRANSLATE_NOOP("Command", "Show this help.") },
        { { QStringLiteral("v"), QStringLiteral("version") },
          nullptr,
          QT_TRANSLATE_NOOP("Command", "Show the version.") },
    };
    return options;
}

QString dashed(const QString &name)
{
    return (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
}

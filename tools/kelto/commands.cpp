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

QVector<const char *> descriptionsOf(const Command &command)
{
    QVector<const char *> descriptions { command.description };
    if (QLatin1String(command.arguments).contains(QLatin1String("PATH")))
        descriptions.append(QT_TRANSLATE_NOOP(
            "Command",
            "A PATH is a file, or a directory that stands for all files below it that end in "
            "\".ini\", also behind links to directories; hidden ones are left out, and one in "
            "which nothing is a part of a module item is skipped with a note."));
    return descriptions;
}

QString dashed(const QString &name)
{
    return (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commandline.h"

#include "commands.h"
#include "console.h"
#include "nearestname.h"
#include "terminaltext.h"

#include <QCommandLineParser>

#include <algorithm>

namespace {

/// Two columns.
QString table(const QVector<QPair<QString, QString>> &rows)
{
    int width = 0;
    QVector<QStringList> cells;
    for (const auto &row : rows) {
        cells.append({ QStringLiteral("  ") + row.first, row.second });
        width = qMax(width, columnsOf(cells.constLast().constFirst()));
    }
    return textTable(cells, { width, terminalWidth - width - 2 });
}

QString spelt(const CommandOption &option)
{
    QStringList names;
    for (const QString &name : option.names)
        names.append(dashed(name));
    const QString text = names.join(QStringLiteral(", "));
    return option.value ? text + QLatin1Char(' ') + QLatin1String(option.value) : text;
}

QString overview()
{
    QVector<QPair<QString, QString>> rows;
    for (const Command &command : commands())
        rows.append({ QLatin1String(command.name), Command::tr(command.summary) });
    return QStringLiteral("%1\n  kelto %2\n\n%3\n%4\n%5\n")
        .arg(Command::tr("Usage:"), Command::tr("COMMAND [OPTION...] FILE..."),
             Command::tr("Commands:"), table(rows),
             wrappedText(
                 Command::tr("\"kelto COMMAND --help\" says what a command takes. Exit codes: "
                             "0 done, 1 findings or not found, 2 wrong usage.")));
}

QString examplesOf(const Command &command)
{
    QString text;
    for (const CommandExample &example : command.examples) {
        text += QStringLiteral("  ") + QLatin1String(example.line) + QLatin1Char('\n');
        const QStringList lines = wrappedAt(Command::tr(example.purpose), terminalWidth - 6);
        for (const QString &line : lines)
            text += QStringLiteral("      ") + line + QLatin1Char('\n');
    }
    return text;
}

QString helpOf(const Command &command)
{
    QString text = QStringLiteral("%1\n  kelto %2 [OPTION...] %3\n\n")
                       .arg(Command::tr("Usage:"), QLatin1String(command.name),
                            QLatin1String(command.arguments));
    const QVector<const char *> descriptions = descriptionsOf(command);
    for (const char *description : descriptions)
        text += wrappedText(Command::tr(description)) + QLatin1String("\n\n");
    QVector<QPair<QString, QString>> rows;
    const QVector<CommandOption> options = command.options + commonOptions();
    for (const CommandOption &option : options)
        rows.append({ spelt(option), Command::tr(option.description) });
    text += Command::tr("Options:") + QLatin1Char('\n') + table(rows);
    if (!command.examples.isEmpty())
        text += QLatin1Char('\n') + Command::tr("Examples:") + QLatin1Char('\n')
            + examplesOf(command);
    return text;
}

QString tryHelp(const QString &command)
{
    // With the blank, which other languages do without.
    return Command::tr(" Try \"kelto %1\".")
        .arg(command.isEmpty() ? QStringLiteral("--help")
                               : QString(command + QStringLiteral(" --help")));
}

QStringList commandNames()
{
    QStringList names;
    for (const Command &command : commands())
        names.append(QLatin1String(command.name));
    return names;
}

void addOptions(QCommandLineParser &parser, const QVector<CommandOption> &options)
{
    for (const CommandOption &option : options) {
        parser.addOption(QCommandLineOption(option.names, QString(),
                                            QLatin1String(option.value ? option.value : "")));
    }
}

/// What is wrong with the arguments of the command; empty when nothing is.
QString complaintAbout(const QCommandLineParser &parser, const Command &command)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (!unknown.isEmpty()) {
        QStringList names;
        const QVector<CommandOption> options = command.options + commonOptions();
        for (const CommandOption &option : options)
            names += option.names;
        const QString name = unknown.constFirst();
        const QString nearest = nearestName(name, names);
        return Command::tr("there is no option \"%1\".").arg(dashed(name))
            + (nearest.isEmpty() ? QString() : didYouMean(dashed(nearest)));
    }
    if (!parser.errorText().isEmpty())
        return parser.errorText();
    for (const CommandOption &option : command.options) {
        const QString name = option.names.constLast();
        if (!option.isRepeatable && parser.values(name).size() > 1)
            return Command::tr("\"%1\" is given more than once.").arg(dashed(name));
    }
    const int count = parser.positionalArguments().size();
    if (count < command.leastArguments)
        return Command::tr("\"%1\" needs \"%2\".")
            .arg(QLatin1String(command.name), QLatin1String(command.arguments));
    if (command.mostArguments >= 0 && count > command.mostArguments)
        return Command::tr("\"%1\" takes no \"%2\".")
            .arg(QLatin1String(command.name),
                 parser.positionalArguments().at(command.mostArguments));
    return {};
}

ExitCode runCommand(const Command &command, const QStringList &arguments, Console &console)
{
    QCommandLineParser parser;
    addOptions(parser, command.options);
    addOptions(parser, commonOptions());
    parser.parse(arguments);
    if (parser.isSet(QStringLiteral("help"))) {
        console.print(helpOf(command));
        return Done;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        console.print(QStringLiteral("kelto " KELTO_VERSION_TEXT "\n"));
        return Done;
    }
    if (parser.isSet(QStringLiteral("json")))
        console.useJson();
    const QString complaint = complaintAbout(parser, command);
    if (complaint.isEmpty())
        return command.run(parser, console);
    console.complain(complaint + tryHelp(QLatin1String(command.name)));
    return WrongUsage;
}

QString complaintAboutCommand(const QString &name)
{
    if (name.isEmpty() || name == QLatin1String("--json"))
        return Command::tr("a command is missing.");
    if (name.startsWith(QLatin1Char('-')))
        return Command::tr("there is no option \"%1\".").arg(name)
            + didYouMean(name,
                         { QStringLiteral("--json"), QStringLiteral("--help"),
                           QStringLiteral("--version") });
    return Command::tr("there is no command \"%1\".").arg(name) + didYouMean(name, commandNames());
}

ExitCode withoutCommand(const QStringList &arguments, Console &console)
{
    const QString first = arguments.value(0);
    if (QStringList { QStringLiteral("--help"), QStringLiteral("-h"), QStringLiteral("help") }
            .contains(first)) {
        console.print(overview());
        return Done;
    }
    if (first == QLatin1String("--version") || first == QLatin1String("-v")) {
        console.print(QStringLiteral("kelto " KELTO_VERSION_TEXT "\n"));
        return Done;
    }
    if (arguments.contains(QStringLiteral("--json")))
        console.useJson();
    console.complain(complaintAboutCommand(first) + tryHelp(QString()));
    return WrongUsage;
}

} // namespace

ExitCode runCommandLine(const QStringList &arguments, Console &console)
{
    QStringList rest = arguments;
    // Nobody remembers on which side of the command it stands.
    const bool isJsonFirst = rest.value(0) == QLatin1String("--json") && rest.size() > 1;
    if (isJsonFirst)
        rest.removeFirst();
    if (rest.value(0) == QLatin1String("help") && rest.size() > 1)
        rest = QStringList { rest.at(1), QStringLiteral("--help") };
    const QString name = rest.value(0);
    if (isJsonFirst)
        rest.insert(1, QStringLiteral("--json"));
    const auto command
        = std::find_if(commands().cbegin(), commands().cend(),
                       [&name](const Command &each) { return QLatin1String(each.name) == name; });
    // The parser leaves out the first argument, which is the name of a program.
    return command == commands().cend() ? withoutCommand(rest, console)
                                        : runCommand(*command, rest, console);
}

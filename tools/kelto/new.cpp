// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "console.h"
#include "newitem.h"
#include "outputfile.h"
#include "terminaltext.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonObject>

namespace {

ExitCode write(const NewItem &item, const QString &path, const QCommandLineParser &line,
               Console &console)
{
    if (QFileInfo::exists(path) && !line.isSet(QStringLiteral("force"))) {
        console.complain(
            Command::tr("%1: exists already; --force replaces it, -o names another file.")
                .arg(path));
        return Found;
    }
    const QString error = writeOutputFile(path, newItemText(item));
    if (!error.isEmpty()) {
        console.complain(error);
        return Found;
    }
    if (line.isSet(QStringLiteral("json"))) {
        console.print(QJsonObject { { QStringLiteral("file"), path },
                                    { QStringLiteral("name"), item.name },
                                    { QStringLiteral("group"), item.group },
                                    { QStringLiteral("exclusive"), item.isExclusive } });
    } else {
        console.print(QString(printable(path) + QLatin1Char('\n')));
    }
    return Done;
}

ExitCode run(const QCommandLineParser &line, Console &console)
{
    NewItem item { line.positionalArguments().constFirst(), line.value(QStringLiteral("group")),
                   !line.isSet(QStringLiteral("no-exclusive")) };
    if (!line.isSet(QStringLiteral("group")))
        item.group = item.name;
    for (const QString &name : { item.name, item.group }) {
        const QString complaint = complaintOnName(name);
        if (!complaint.isEmpty()) {
            console.complain(complaint);
            return WrongUsage;
        }
    }
    const QString path = line.value(QStringLiteral("output"));
    return write(item, path.isEmpty() ? fileNameFor(item.name) : path, line, console);
}

} // namespace

Command newCommand()
{
    return { "new",
             "NAME",
             1,
             1,
             QT_TRANSLATE_NOOP("Command", "Write an item file to begin with"),
             QT_TRANSLATE_NOOP(
                 "Command",
                 "Writes a complete item file for a module of this name: two modes, parameters "
                 "with units, limits, choices and help, and results. Comments explain every "
                 "section and every key. Prints the name of the file, which is made of that of "
                 "the module. An existing file is left alone."),
             { { { QStringLiteral("o"), QStringLiteral("output") },
                 "FILE",
                 QT_TRANSLATE_NOOP("Command", "Write this file.") },
               { { QStringLiteral("group") },
                 "GROUP",
                 QT_TRANSLATE_NOOP("Command", "The group of the module; else its name.") },
               { { QStringLiteral("no-exclusive") },
                 nullptr,
                 QT_TRANSLATE_NOOP("Command",
                                   "The group has no selected mode; its modes are not offered.") },
               { { QStringLiteral("force") },
                 nullptr,
                 QT_TRANSLATE_NOOP("Command", "Replace an existing file.") } },
             { { "kelto new \"Flat plate\" --group Statics",
                 QT_TRANSLATE_NOOP("Command", "Writes flat-plate.ini.") } },
             run };
}

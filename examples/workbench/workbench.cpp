// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "workbench.h"

#include "modules.h"
#include "task.h"

#include <Kelto/AUTH_SET>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>
#include <QTextStream>

#include <cstdlib>

namespace {

/// Ends the program for values of the options that make no sense.
void check(const QCommandLineParser &parser)
{
    const QString language = parser.value("language");
    if (parser.positionalArguments().size() > 1)
        quit(WrongUsage, "Unexpected argument: " + parser.positionalArguments().at(1));
    if (parser.isSet("language") && language != "en" && language != "zh_CN")
        quit(WrongUsage, "Unknown language: " + language);
}

/// Ends the program with a message when they cannot be read.
QVector<AUTH_INF> modulesFor(const QCommandLineParser &parser)
{
    if (!parser.isSet("modules"))
        return compiledModules();
    const auto modules = modulesFromFiles(parser.value("modules"));
    if (!modules.isValid())
        quit(Failed,
             modules.problem
                 + "\nName another directory with module files, or start without --modules, with "
                   "those that were compiled in.");
    return modules.result;
}

/// Log and configuration lie below the current directory, which for a menu is any.
void moveToOwnDirectory(QString *project)
{
    if (!project->isEmpty())
        *project = QDir().absoluteFilePath(*project); // meant from where the program was started
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (!QDir().mkpath(own) || !QDir::setCurrent(own))
        quit(Failed, "The directory \"" + own + "\" cannot be used.");
}

/// Ends the program, and offers the tasks that there are instead of @p name.
[[noreturn]] void quitForUnknownTask(const AUTH_SET &registry, const QString &name)
{
    QStringList lines { "Unknown task: " + name, "Known tasks:" };
    const auto modes = registry.currentModeList();
    for (const auto &mode : modes)
        lines.append("  " + mode.first);
    quit(Failed, lines.join('\n'));
}

} // namespace

Options readOptions(const QStringList &arguments)
{
    QCoreApplication::setOrganizationName("Kelto");
    QCoreApplication::setApplicationName("Workbench");
    QCoreApplication::setApplicationVersion(WORKBENCH_VERSION);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Computes beams, springs, vessels and walls.\n\nExit codes: 0 for done, 1 for an unknown "
        "task and for modules that cannot be read,\n2 for wrong usage.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("project", "The project file to open.", "[project]");
    parser.addOptions({
        { "language", "Language of the program: en or zh_CN.", "language" },
        { "task",
          "Start with this task instead of asking, for example \"Workbench:Statics:Cantilever\".",
          "standard mode name" },
        { "modules",
          "Read the module files of this directory instead of those that were compiled in.",
          "directory" },
        { "own-directory",
          "Keep log and configuration in a directory of the user's own instead of the current "
          "one." },
    });
    if (!parser.parse(arguments))
        quit(WrongUsage, parser.errorText());
    parser.process(arguments); // shows the help or the version where asked to
    check(parser);

    Options options { parser.value("language"), parser.value("task"), modulesFor(parser),
                      parser.positionalArguments().value(0) };
    if (parser.isSet("own-directory"))
        moveToOwnDirectory(&options.project);
    AUTH_SET registry(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                      options.modules);
    if (options.language.isEmpty())
        options.language = registry.value_set("Window/Language").toString();
    if (options.language.isEmpty())
        options.language = QLocale().name();
    useLanguage(QLocale(options.language), &registry, options.modules);
    if (parser.isSet("task") && tasksNamed(registry, options.task).isEmpty())
        quitForUnknownTask(registry, options.task);
    return options;
}

void quit(ExitCode code, const QString &complaint)
{
    QTextStream(stderr) << complaint << '\n';
    std::exit(code);
}

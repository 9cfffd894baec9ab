// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "mainwindow.h"
#include "modules.h"
#include "task.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QTextStream>

#include <cstdlib>

namespace {

enum ExitCode { Done = 0, UnknownTask = 1, WrongUsage = 2 };

struct Options
{
    QString language;
    QString task;
};

[[noreturn]] void quit(ExitCode code, const QString &complaint)
{
    QTextStream(stderr) << complaint << '\n';
    std::exit(code);
}

/// Ends the program after "--help", "--version" and wrong usage.
Options readOptions(const QStringList &arguments)
{
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("Language of the program: en or zh_CN."),
                                      QStringLiteral("language"));
    const QCommandLineOption task(QStringLiteral("task"),
                                  QStringLiteral("Start with this task instead of asking, for "
                                                 "example \"Workbench:Statics:Cantilever\"."),
                                  QStringLiteral("standard mode name"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Computes beams, springs, vessels and walls.\n\n"
                       "Exit codes: 0 for done, 1 for an unknown task, 2 for wrong usage."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({ language, task });

    if (!parser.parse(arguments))
        quit(WrongUsage, parser.errorText());
    parser.process(arguments); // shows the help or the version where asked to
    const QStringList unexpected = parser.positionalArguments();
    if (!unexpected.isEmpty())
        quit(WrongUsage, QStringLiteral("Unexpected argument: ") + unexpected.first());
    const QStringList languages { QStringLiteral("en"), QStringLiteral("zh_CN") };
    if (parser.isSet(language) && !languages.contains(parser.value(language)))
        quit(WrongUsage, QStringLiteral("Unknown language: ") + parser.value(language));
    if (parser.isSet(task) && parser.value(task).isEmpty())
        quit(WrongUsage, QStringLiteral("--task needs a standard mode name."));
    return { parser.value(language), parser.value(task) };
}

QString unknownTask(const AUTH_SET &registry, const QString &task)
{
    QStringList lines { QStringLiteral("Unknown task: ") + task, QStringLiteral("Known tasks:") };
    const auto modes = registry.currentModeList();
    for (const auto &mode : modes)
        lines.append(QStringLiteral("  ") + mode.first);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));
    const Options options = readOptions(QCoreApplication::arguments());
    installTranslations(options.language.isEmpty() ? QLocale() : QLocale(options.language));

    // The one registry of the program. It has to outlive everything that asks it.
    AUTH_SET registry(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                      workbenchModules());
    registry.log(QStringLiteral("Started, version ") + QCoreApplication::applicationVersion());

    // With a task on the command line there is nothing to ask.
    if (!options.task.isEmpty() && !selectTask(registry, options.task))
        quit(UnknownTask, unknownTask(registry, options.task));
    MainWindow window(&registry);
    if (options.task.isEmpty())
        window.chooseTask();
    window.show();
    return QApplication::exec();
}

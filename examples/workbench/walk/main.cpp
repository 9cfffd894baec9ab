// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "mainwindow.h"
#include "modules.h"
#include "task.h"
#include "walker.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QLocale>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void quit(const QString &complaint)
{
    std::fprintf(stderr, "%s\n", qPrintable(complaint));
    std::exit(EXIT_FAILURE);
}

struct Options
{
    QString output;
    bool compiled = false;
};

Options readOptions()
{
    const QCommandLineOption output(QStringLiteral("output"),
                                    QStringLiteral("Where the pictures and the files of the "
                                                   "workbench go; \".\" if it is left out."),
                                    QStringLiteral("directory"), QStringLiteral("."));
    const QCommandLineOption compiled(QStringLiteral("compiled"),
                                      QStringLiteral("Walk with the modules that were compiled "
                                                     "in, and not with those of the files."));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Uses the workbench as a person does, with the mouse and the keyboard of "
                       "the X server, and says what it saw.\n\n"
                       "Exit codes: 0 when all went well, 1 otherwise."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({ output, compiled });
    parser.process(QCoreApplication::arguments());
    return { parser.value(output), parser.isSet(compiled) };
}

QVector<AUTH_INF> modulesFor(const Options &options)
{
    if (options.compiled)
        return compiledModules();
    // The files lie beside the workbench, one directory up.
    const auto modules
        = modulesFromFiles(QCoreApplication::applicationDirPath() + QLatin1String("/../modules"));
    if (!modules.isValid())
        quit(modules.problem);
    return modules.result;
}

/// Makes the directory @p path the current one, as that is where the workbench writes.
QDir changedTo(const QString &path)
{
    if (!QDir().mkpath(path) || !QDir::setCurrent(path))
        quit(QStringLiteral("Cannot use the directory ") + path);
    return QDir::current();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));
    const Options options = readOptions();
    const QDir directory = changedTo(options.output);

    // Those from an earlier walk would look as if they were written now.
    QFile::remove(directory.filePath(QStringLiteral("Config/update.ini")));
    QFile::remove(directory.filePath(QStringLiteral("Config/Workbench_config.ini")));

    // From here on as in the workbench itself, with somebody at the mouse.
    installTranslations(QLocale(QStringLiteral("en")));
    AUTH_SET registry(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                      modulesFor(options));
    Walker walker(directory, registry.filepath_log());
    registry.log(QStringLiteral("Started, version ") + QCoreApplication::applicationVersion());
    recallTask(registry);
    MainWindow window(&registry);
    walker.startLookingAt(&window);
    window.chooseTask();
    window.show();
    const int exitCode = QApplication::exec();
    walker.tellThatProgramEnded();
    walker.wait();
    return exitCode;
}

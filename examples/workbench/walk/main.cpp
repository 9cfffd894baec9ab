// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "walker.h"
#include "workbench.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>

namespace {

struct WalkOptions
{
    QString output;
    Options program;
};

WalkOptions readWalkOptions()
{
    const QCommandLineOption output(QStringLiteral("output"),
                                    QStringLiteral("Where the pictures and the files of the "
                                                   "workbench go; \".\" if it is left out."),
                                    QStringLiteral("directory"), QStringLiteral("."));
    // The files lie beside the workbench, one directory up.
    const QCommandLineOption modules(
        QStringLiteral("modules"),
        QStringLiteral("Walk with the modules of the files in this directory."),
        QStringLiteral("directory"),
        QCoreApplication::applicationDirPath() + QLatin1String("/../modules"));
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
    parser.addOptions({ output, modules, compiled });
    parser.process(QCoreApplication::arguments());
    // The current directory is about to change.
    const QString modulePath = QDir().absoluteFilePath(parser.value(modules));
    return { parser.value(output),
             { QStringLiteral("en"), QString(), modulePath, parser.isSet(compiled) } };
}

/// Makes the directory @p path the current one, as that is where the workbench writes.
QDir changedTo(const QString &path)
{
    if (!QDir().mkpath(path) || !QDir::setCurrent(path))
        quit(Failed, QStringLiteral("Cannot use the directory ") + path);
    return QDir::current();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    nameApplication();
    const WalkOptions options = readWalkOptions();
    const QDir directory = changedTo(options.output);

    // Those from an earlier walk would look as if they were written now.
    QFile::remove(directory.filePath(QStringLiteral("Config/update.ini")));
    QFile::remove(directory.filePath(QStringLiteral("Config/Workbench_config.ini")));

    // From here on as in the workbench itself, with somebody at the mouse.
    Workbench workbench(options.program);
    Walker walker(directory, workbench.registry().filepath_log());
    walker.startLookingAt(&workbench.window());
    workbench.open(options.program.task);
    const int exitCode = QApplication::exec();
    walker.tellThatProgramEnded();
    walker.wait();
    return exitCode;
}

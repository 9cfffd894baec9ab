// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Uses the workbench as a person does, with the mouse and the keyboard of the X server:
//   workbench-walk <directory for pictures and files> [option of the workbench]...
// Exit codes: 0 when all went well, 1 otherwise, 2 for wrong usage.

#include "commandline.h"
#include "walker.h"
#include "workbench.h"

#include <QApplication>
#include <QFile>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    nameApplication();
    QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2)
        quit(WrongUsage, "A directory for the pictures is missing.");
    const QString path = arguments.takeAt(1);
    Options options = readOptions(arguments);
    options.language = "en";
    // The workbench writes into the current directory.
    if (!QDir().mkpath(path) || !QDir::setCurrent(path))
        quit(Failed, "Cannot use the directory " + path);

    // The settings and the log of an earlier walk would be taken for those of this one.
    QFile::remove("Config/Workbench_config.ini");
    // From here on as in the workbench itself, with somebody at the mouse.
    Workbench workbench(options);
    const QString log = workbench.registry().filepath_log();
    QFile::remove(log);
    Walker walker(QDir::current());
    workbench.open(options.task);
    const int exitCode = QApplication::exec();
    walker.lookBack(log);
    return exitCode;
}

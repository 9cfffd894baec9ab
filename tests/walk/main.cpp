// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Uses the workbench as a person does, with the mouse and the keyboard of the X server, whose
// windows a small window manager gives frames:
//   workbench-walk <directory for pictures and files> [option of the workbench]...
// With KELTO_WALK_TOUR in the environment it visits every task and nothing else, and looks whether
// all fits. With KELTO_WALK_DARK in the environment it does so in dark colours, with
// QT_SCALE_FACTOR=2 on a screen of twice the size. Exit codes: 0 when all went well, 1 otherwise, 2
// for wrong usage.

#include "mainwindow.h"
#include "road.h"
#include "screenshots.h"
#include "workbench.h"

#include <Kelto/AUTH_SET>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPalette>
#include <QProcess>

#include <cstdio>

namespace {

void startWindowManager(QProcess *manager, const UserInput &input)
{
    if (input.hasWindowManager())
        return;
    // Without one of its own, openbox reads that of the user, or complains in a window.
    QFile configuration("openbox.xml");
    if (!configuration.open(QIODevice::WriteOnly))
        quit(Failed, "The configuration of the window manager cannot be written.");
    configuration.write("<openbox_config xmlns=\"http://openbox.org/3.4/rc\"/>\n");
    configuration.close();
    manager->start("openbox", { "--config-file", configuration.fileName() });
    QElapsedTimer waiting;
    waiting.start();
    while (!input.hasWindowManager()) {
        if (waiting.hasExpired(10000) || manager->state() == QProcess::NotRunning)
            quit(Failed, "There is no window manager: openbox does not start.");
        manager->waitForFinished(20);
    }
}

/// As desktops with dark colours have them.
QPalette darkPalette()
{
    QPalette palette(QColor(53, 53, 53), QColor(35, 35, 35));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    palette.setColor(QPalette::ToolTipBase, QColor(70, 70, 40));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::Link, QColor(90, 170, 255));
    palette.setColor(QPalette::LinkVisited, QColor(190, 150, 255));
    return palette;
}

void useDirectory(const QString &path)
{
    // The workbench writes into the current directory.
    QDir directory(path);
    if (!directory.mkpath(".") || !QDir::setCurrent(path))
        quit(Failed, "Cannot use the directory " + path);
    // What an earlier walk left would be taken for that of this one.
    const auto files = QDir::current().entryList(QDir::Files | QDir::Hidden);
    for (const QString &file : files) {
        if (file.endsWith(".png") || file.endsWith(".ini") || file.endsWith(".csv")
            || file.endsWith(".pdf"))
            QFile::remove(file);
    }
    QFile::remove("Config/Workbench_config.ini");
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2)
        quit(WrongUsage, "A directory for the pictures is missing.");
    const QString path = arguments.takeAt(1);
    const Options options = readOptions(arguments);
    useDirectory(path);
    // A cursor that blinks would make every picture another one.
    QApplication::setCursorFlashTime(0);
    if (qEnvironmentVariableIsSet("KELTO_WALK_DARK"))
        QApplication::setPalette(darkPalette());

    Walker walker(QDir::current());
    QProcess manager;
    startWindowManager(&manager, walker.input());
    // From here on as in the workbench itself, with somebody at the mouse.
    AUTH_SET registry(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                      options.modules);
    const QString log = registry.filepath_log();
    QFile::remove(log);
    MainWindow window(&registry, options.modules, options.language);
    const bool isTour = qEnvironmentVariableIsSet("KELTO_WALK_TOUR");
    const Road road(&walker, &registry, options.language, isTour);
    walker.start();
    window.begin(options.task, options.project);
    const int exitCode = QApplication::exec();
    walker.expectEnd();
    road.lookBack(log);
    if (options.language == "en" && !isTour && !qEnvironmentVariableIsSet("KELTO_WALK_DARK"))
        compareScreenshots(walker);
    manager.terminate();
    manager.waitForFinished();
    std::puts("The walk went well.");
    return exitCode;
}

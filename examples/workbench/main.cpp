// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "languages.h"
#include "mainwindow.h"
#include "modules.h"
#include "task.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>

#include <QApplication>
#include <QLocale>

namespace {

QVector<AUTH_INF> modulesFor(const Options &options)
{
    if (options.compiled)
        return compiledModules();
    const auto modules = modulesFromFiles(options.modules);
    if (!modules.isValid())
        quit(Failed,
             modules.problem
                 + QStringLiteral("\nName a directory with module files (--modules), or start "
                                  "with the modules that were compiled in (--compiled)."));
    return modules.result;
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
                      modulesFor(options));
    registry.log(QStringLiteral("Started, version ") + QCoreApplication::applicationVersion());

    // With a task on the command line there is nothing to ask.
    if (options.task.isEmpty())
        recallTask(registry);
    else if (!selectTask(registry, options.task))
        quit(Failed, unknownTask(registry, options.task));
    MainWindow window(&registry);
    if (options.task.isEmpty())
        window.chooseTask();
    else
        window.showCurrentTask();
    window.show();
    return QApplication::exec();
}

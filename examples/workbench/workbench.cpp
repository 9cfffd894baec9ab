// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "workbench.h"

#include "commandline.h"
#include "languages.h"
#include "modules.h"
#include "task.h"

#include <Kelto/AUTH_INF>

#include <QCoreApplication>
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

/// Installs the translations first: the texts of the modules are looked up when these are read.
AUTH_SET registryFor(const Options &options)
{
    installTranslations(options.language.isEmpty() ? QLocale() : QLocale(options.language));
    return { QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
             modulesFor(options) };
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

void nameApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("Workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKBENCH_VERSION));
}

Workbench::Workbench(const Options &options)
    : m_registry(registryFor(options))
    , m_window(&m_registry)
{
}

void Workbench::open(const QString &task)
{
    m_registry.log(QStringLiteral("Started, version ") + QCoreApplication::applicationVersion());
    if (task.isEmpty()) {
        recallTask(m_registry);
        m_window.chooseTask();
    } else {
        // With a task on the command line there is nothing to ask.
        if (!selectTask(m_registry, task))
            quit(Failed, unknownTask(m_registry, task));
        m_window.showCurrentTask();
    }
    m_window.show();
}

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
    : m_modules(modulesFor(options))
    , m_registry(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                 m_modules)
    , m_window(&m_registry, m_modules)
{
    const QString last = m_registry.value_set(QStringLiteral("Window/Language")).toString();
    const QString language = options.language.isEmpty() ? last : options.language;
    useLanguage(language.isEmpty() ? QLocale() : QLocale(language), &m_registry, m_modules);
}

void Workbench::open(const Options &options)
{
    m_registry.log(QStringLiteral("Started, version ") + QCoreApplication::applicationVersion());
    const QVector<Task> tasks = tasksNamed(m_registry, options.task);
    if (!options.task.isEmpty() && tasks.isEmpty())
        quit(Failed, unknownTask(m_registry, options.task));
    m_window.show();
    if (!options.task.isEmpty())
        m_window.startProject(tasks.first());
    else if (options.project.isEmpty())
        m_window.newProject();
    if (!options.project.isEmpty())
        m_window.openProject(options.project);
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "task.h"

#include "calculator.h"
#include "entry.h"

#include <Kelto/AUTH_SET>

namespace {

/// The entries of the results that the mode has; the module declares those of all its modes.
QVector<QStringList> resultsOf(const AUTH_INF &module, const QString &mode)
{
    const QStringList keys = Calculator::resultKeys(module, mode);
    QVector<QStringList> results;
    for (const QStringList &entry : module.output_results) {
        if (keys.contains(entry.value(Entry::Key)))
            results.append(entry);
    }
    return results;
}

} // namespace

QString Task::title() const
{
    return QStringLiteral("%1 › %2 › %3").arg(group.second, module.name_tr, mode.second);
}

Task currentTask(const AUTH_SET &registry)
{
    // The registry counts the modes of a group over all of its modules: position 3 of "Statics" is
    // the first mode of the second module.
    const QString group = registry.current_group;
    const int position = registry.exclusive_group_select(group);
    const QString moduleName = registry.exclusive_group_orginal_model(group, position);
    if (moduleName.isEmpty())
        return {};

    Task task;
    task.group = registry.findExclusiveGroupName(group);
    task.mode = registry.currentExclusiveGroupSelect(group);
    task.description = registry.exclusive_group_mode_description(group).value(position).second;
    task.parameters = registry.exclusive_group_parameter_settings_origin(group, position);
    task.module = registry.AUTH_INF_DATA().value(registry.index(moduleName));
    task.results = resultsOf(task.module, task.mode.first);
    return task;
}

bool selectTask(AUTH_SET &registry, const QString &standardName)
{
    const QString plainName = registry.currentModeMatching({ standardName }).value(0);
    const QStringList parts = plainName.split(QLatin1Char(':'));
    if (parts.size() != 3) // application, group, mode
        return false;

    registry.current_group = parts.at(1);
    registry.current_mode = parts.at(2);
    registry.exclusive_group_set_mode(registry.current_group, registry.current_mode);
    return true;
}

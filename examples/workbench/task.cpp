// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "task.h"

#include "calculator.h"

#include <Kelto/AUTH_SET>

#include <algorithm>
#include <iterator>

namespace {

/// Where the settings of the program hold the task that was remembered last.
QString lastTaskKey()
{
    return QStringLiteral("Task/Last");
}

/// The results that the mode has; the module declares those of all its modes.
QVector<VParameter> resultsOf(const AUTH_SET &registry, const AUTH_INF &module, const QString &mode)
{
    const QVector<VParameter> declared = registry.defaultResultList(&module);
    QVector<VParameter> results;
    std::copy_if(declared.cbegin(), declared.cend(), std::back_inserter(results),
                 [&](const VParameter &result) {
                     const QString modes
                         = Calculator::hintText(module, mode, QStringLiteral("Belong"),
                                                result.name().first);
                     return modes.isEmpty() || modes.split(QLatin1Char('|')).contains(mode);
                 });
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
    task.parameters = registry.defaultParameterList(group, task.mode.first);
    task.module = registry.AUTH_INF_DATA().value(registry.index(moduleName));
    task.results = resultsOf(registry, task.module, task.mode.first);
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

void rememberTask(AUTH_SET &registry, const Task &task)
{
    registry.setValueInSet(lastTaskKey(),
                           registry.stdModeNameForm(task.group.first, task.mode.first));
}

void recallTask(AUTH_SET &registry)
{
    if (!selectTask(registry, registry.value_set(lastTaskKey()).toString()))
        selectTask(registry, registry.currentModeList().value(0).first);
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "task.h"

#include <Kelto/AUTH_SET>
#include <Kelto/KeltoItemFinding>
#include <Kelto/KeltoItemParameterVerify>
#include <Kelto/VIniSettings>

QVariant valueOf(const Values &values, const QString &key)
{
    return VIniSettings(values).value(key);
}

QString Task::title() const
{
    return QString("%1 › %2 › %3").arg(group.second, module.name_tr, mode.second);
}

QString Task::id() const
{
    return group.first + '/' + module.name + '/' + mode.first;
}

Task taskAt(const AUTH_SET &registry, const QString &group, int position)
{
    const auto modes = registry.exclusive_group_mode_description(group);
    if (position < 0 || position >= modes.size())
        return {};
    Task task;
    task.group = registry.findExclusiveGroupName(group);
    task.position = position;
    task.module = registry.AUTH_INF_DATA().value(modes.at(position).first);
    task.description = modes.at(position).second;
    task.hints = KeltoItemHints(&registry, group, position);
    task.mode = { task.hints.mode(), task.hints.translated(task.hints.mode()) };
    task.parameters = task.hints.parameters();
    task.results = task.hints.results();
    return task;
}

QVector<Task> allTasks(const AUTH_SET &registry)
{
    QVector<Task> tasks;
    const QStringList groups = registry.exclusive_group_namelist();
    for (const QString &group : groups) {
        const int count = registry.exclusive_group_mode_count(group);
        for (int position = 0; position < count; ++position)
            tasks.append(taskAt(registry, group, position));
    }
    return tasks;
}

void selectTask(AUTH_SET &registry, const Task &task)
{
    if (task.isNull())
        return;
    registry.current_group = task.group.first;
    registry.current_mode = task.mode.first;
    registry.exclusive_group_set_mode(task.group.first, task.position);
}

QVector<Task> tasksNamed(const AUTH_SET &registry, const QString &standardName)
{
    QVector<Task> named;
    const QVector<Task> tasks = allTasks(registry);
    for (const Task &task : tasks) {
        const QStringList names { task.id(),
                                  registry.stdModeNameForm(task.group.first, task.mode.first),
                                  registry.stdModeNameForm(task.group.second, task.mode.second) };
        if (names.contains(standardName))
            named.append(task);
    }
    return named;
}

Quantity quantityOf(const VParameter &parameter)
{
    return Quantity::in(parameter.name().first, parameter.unit().first);
}

StudyPoint computedAt(double value, const QString &key, const Task &task, const Values &values)
{
    VIniSettings changed(values);
    changed.setValue(attributeGroup + key,
                     QVariant(value).toString()); // all digits, in no language
    const Values input = changed.data();
    const auto findings = KeltoItemParameterVerify::explain(&task.module, &input, task.mode.first);
    const auto outcome = findings.isEmpty()
        ? Calculator::calculate(task.module, task.mode.first, input)
        : Outcome<Computation> { {}, findings.first().text() };
    StudyPoint point { value, {}, outcome.result.curves, outcome.problem };
    for (const VParameter &result : task.results)
        point.results.append(valueOf(outcome.result.results, attributeGroup + result.name().first));
    return point;
}

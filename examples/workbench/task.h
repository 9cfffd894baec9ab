// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TASK_H
#define TASK_H

#include <Kelto/AUTH_INF>
#include <Kelto/VParameter>

#include <QPair>
#include <QString>
#include <QVector>

class AUTH_SET;

/// One mode of one exclusive group with everything that the window shows of it. Names are pairs of
/// the plain name, which the program works with, and the translated one, which the user reads.
struct Task
{
    QPair<QString, QString> group;
    AUTH_INF module;
    QPair<QString, QString> mode;
    QString description;
    /// Sorted by plain name, as Kelto returns them.
    QVector<VParameter> parameters;
    QVector<VParameter> results;

    bool isNull() const { return mode.first.isEmpty(); }

    /// Group, module and mode as a heading for the user.
    QString title() const;
};

/// The task that is selected in the registry: the selected mode of the group that was accepted
/// last. A null task as long as none was accepted.
Task currentTask(const AUTH_SET &registry);

/// Selects the task with the plain or translated standard mode name @p standardName just as
/// accepting it in the dialog does. Returns false and changes nothing when there is no such task.
bool selectTask(AUTH_SET &registry, const QString &standardName);

/// Keeps @p task for recallTask() in the settings of the program.
void rememberTask(AUTH_SET &registry, const Task &task);

/// Selects the task that was remembered last, be it in an earlier run; the first one when there is
/// none or when it is no longer on offer.
void recallTask(AUTH_SET &registry);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TASK_H
#define TASK_H

#include "calculations/study.h"
#include "calculator.h"

#include <Kelto/AUTH_INF>
#include <Kelto/KeltoItemHints>
#include <Kelto/VParameter>

#include <QPair>
#include <QString>
#include <QVariant>
#include <QVector>

class AUTH_SET;

// The groups of keys in a list of values.
inline const char *const attributeGroup = "Attribute/";
inline const char *const unitGroup = "Unit/";

/// The value of @p key in @p values; invalid when there is none.
QVariant valueOf(const Values &values, const QString &key);

/// One mode of one exclusive group with everything that the window shows of it. Names are pairs of
/// the plain name, which the program works with, and the translated one, which the user reads.
struct Task
{
    QPair<QString, QString> group;
    /// Of the mode in its group. It tells modes apart whose modules gave them one name.
    int position = -1;
    AUTH_INF module;
    QPair<QString, QString> mode;
    QString description;
    KeltoItemHints hints;
    /// In the order of the hints.
    QVector<VParameter> parameters;
    QVector<VParameter> results;

    bool isNull() const { return position < 0; }

    /// Group, module and mode as a heading for the user.
    QString title() const;
    /// Group, module and mode by their plain names, joined by "/": the name in a project.
    QString id() const;
};

/// The mode at @p position of @p group; a null task when there is none.
Task taskAt(const AUTH_SET &registry, const QString &group, int position);

/// All tasks on offer, in the order of the groups and modes.
QVector<Task> allTasks(const AUTH_SET &registry);

/// Selects @p task just as accepting it in the dialog does, but by its position; a null task
/// changes nothing.
void selectTask(AUTH_SET &registry, const Task &task);

/// The tasks with the plain or translated standard mode name @p standardName, or with @p
/// standardName as Task::id(). Modes of several modules may share one name.
QVector<Task> tasksNamed(const AUTH_SET &registry, const QString &standardName);

/// Name and unit of a parameter or a result.
Quantity quantityOf(const VParameter &parameter);

/// What @p task gives for @p values, of which @p value replaces that of the parameter @p key. What
/// the module does not allow is refused.
StudyPoint computedAt(double value, const QString &key, const Task &task, const Values &values);

#endif

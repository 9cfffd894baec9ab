// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TASK_H
#define TASK_H

#include <Kelto/AUTH_INF>

#include <QPair>
#include <QString>
#include <QStringList>
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
    QVector<QStringList> parameters;
    QVector<QStringList> results;

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

#endif

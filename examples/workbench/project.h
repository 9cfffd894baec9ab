// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PROJECT_H
#define PROJECT_H

#include "task.h"

#include <Kelto/VIniSettings>

#include <QCoreApplication>

#include <memory>

class QLockFile;

/// A task and the values entered for it, in an INI file. What the file holds beyond that, be it for
/// other tasks or from another version of a module, stays in it.
class Project
{
    Q_DECLARE_TR_FUNCTIONS(Project)

public:
    /// Reads the file at @p path into a new project, in place of @p current. Returns what is wrong,
    /// such as that it is open in another window, and changes nothing then; empty when all went
    /// well.
    static QString open(const QString &path, Project *current);

    /// Writes the file and belongs to it from then on. Returns what went wrong; empty when the file
    /// was written.
    QString save(const QString &path);

    /// Empty for a project that was never saved.
    QString path() const { return m_path; }

    /// Task::id() of the task.
    QString task() const;
    /// Everything in the file, with the parameters of @p task in the units of that task. A value in
    /// a unit that is not one of the parameter's becomes a text with that unit behind it, which is
    /// no number, so that the user has to decide.
    Values values(const Task &task) const;
    /// The values with which @p task starts: what the user entered for this or another task, and
    /// behind that @p defaults.
    Values startValues(const Task &task, const Values &defaults) const;

    /// Takes over @p task and replaces the values of the keys that are in @p values. Those that
    /// differ from @p defaults count as entered by the user from then on.
    void setTask(const Task &task, const Values &values, const Values &defaults = {});

    /// What differs between the project as it was opened and @p task, as it may when the project
    /// was saved by another version: parameters without a value and what they may have been called
    /// before, values that no task knows, values in another unit. One sentence each.
    QStringList differences(const AUTH_SET &registry, const Task &task) const;

private:
    /// Returns that somebody else has locked it; empty also where nobody can, as nothing can be
    /// written there.
    QString lock(const QString &path);

    QString m_path;
    /// Shared so that a file can be opened again by the one who has locked it.
    std::shared_ptr<QLockFile> m_lock;
    VIniSettings m_settings;
};

#endif

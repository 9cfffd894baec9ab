// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "project.h"

#include <Kelto/AUTH_SET>
#include <Kelto/KeltoItemFinding>
#include <Kelto/KeltoItemParameterVerify>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

namespace {

const char *const taskKey = "Project/Task";
const char *const versionKey = "Project/Version";
const char *const attribute = "Attribute/";
const char *const unitGroup = "Unit/";

void setValue(Values *values, const QString &key, const QVariant &value)
{
    for (auto &entry : *values) {
        if (entry.first == key) {
            entry.second = value;
            return;
        }
    }
    values->append({ key, value });
}

/// One text for a value, the same before it was written and after it was read: a list of one text
/// is read as a text.
QString textOf(const QVariant &value)
{
    const QStringList texts = value.toStringList();
    return texts.isEmpty() ? value.toString() : texts.join("; ");
}

} // namespace

QString Project::open(const AUTH_SET &registry, const QString &path, Project *current)
{
    Project project;
    project.m_path = QFileInfo(path).absoluteFilePath();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tr("\"%1\" cannot be read: %2.")
            .arg(QDir::toNativeSeparators(path), file.errorString());
    registry.load(path, &project.m_values);
    if (project.task().isEmpty())
        return tr("\"%1\" is no project of this program: it names no task.")
            .arg(QDir::toNativeSeparators(path));
    if (project.m_path == current->m_path && current->m_lock)
        project.m_lock = current->m_lock;
    else
        project.m_lockProblem = project.lock(project.m_path);
    *current = project;
    return {};
}

QString Project::save(const AUTH_SET &registry, const QString &path)
{
    const QString target = QFileInfo(path).absoluteFilePath();
    const auto ownLock = m_lock;
    const QString problem = target == m_path && m_lock ? QString() : lock(target);
    if (!problem.isEmpty())
        return problem;
    setValue(&m_values, versionKey, QCoreApplication::applicationVersion());
    registry.save(target, &m_values);
    // Kelto does not say whether a file could be written.
    Values written;
    registry.load(target, &written);
    for (const auto &value : qAsConst(m_values)) {
        if (textOf(valueOf(written, value.first)) != textOf(value.second)) {
            m_lock = ownLock;
            return tr("\"%1\" cannot be written.").arg(QDir::toNativeSeparators(target));
        }
    }
    m_path = target;
    m_lockProblem.clear();
    return {};
}

QString Project::task() const
{
    return valueOf(m_values, taskKey).toString();
}

void Project::setTask(const Task &task, const Values &values)
{
    for (const auto &value : values) {
        // What does not count is empty now, but it may count again.
        const QString key = value.first.section('/', 1);
        if (!textOf(value.second).isEmpty() || task.hints.counts(key, &values))
            setValue(&m_values, value.first, value.second);
    }
    setValue(&m_values, taskKey, task.id());
}

QStringList Project::differences(const AUTH_SET &registry, const Task &task) const
{
    QStringList sentences;
    const auto findings
        = KeltoItemParameterVerify::explain(&task.module, &m_values, task.mode.first);
    for (const KeltoItemFinding &finding : findings) {
        // What may stay empty, or does not count, is not missed.
        if (finding.kind == KeltoItemFinding::NearMiss
            || (finding.isAbsence() && finding.expected.isEmpty()))
            sentences.append(finding.text());
    }
    QStringList known;
    const auto parameters = registry.defaultParameterList();
    for (const VParameter &parameter : parameters)
        known.append(attribute + parameter.name().first);
    for (const auto &value : m_values) {
        if (value.first.startsWith(attribute) && !known.contains(value.first))
            sentences.append(
                tr("The value \"%1\" = %2 is not used by any task. It is kept in the project.")
                    .arg(value.first.section('/', 1), textOf(value.second)));
    }
    for (const VParameter &parameter : task.parameters) {
        const QVariant unit = valueOf(m_values, unitGroup + parameter.name().first);
        if (unit.isValid() && unit.toString() != parameter.unit().first)
            sentences.append(
                tr("%1 was saved in %2. The task now expects %3.")
                    .arg(parameter.name().second, unit.toString(), parameter.unit().first));
    }
    return sentences;
}

QString Project::lock(const QString &path)
{
    // Not the name of the lock that is taken while an INI file is written.
    const QFileInfo info(path);
    const auto lock = std::make_shared<QLockFile>(info.path() + "/.~" + info.fileName() + ".open");
    lock->setStaleLockTime(0); // for hours of work; a lock whose process has ended does not count
    if (lock->tryLock(0)) {
        m_lock = lock;
        return {};
    }
    qint64 process = 0;
    QString host;
    QString program;
    if (lock->error() == QLockFile::LockFailedError && lock->getLockInfo(&process, &host, &program))
        return tr("\"%1\" is open in another window (process %2 on %3).")
            .arg(QDir::toNativeSeparators(path), QString::number(process), host);
    return tr("\"%1\" cannot be written.").arg(QDir::toNativeSeparators(path));
}

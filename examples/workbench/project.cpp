// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "project.h"

#include "calculations/units.h"

#include <Kelto/AUTH_SET>
#include <Kelto/KeltoItemFinding>
#include <Kelto/KeltoItemParameterVerify>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

namespace {

const char *const taskKey = "Project/Task";
const char *const versionKey = "Project/Version";
const char *const savedKey = "Project/Saved";
const char *const enteredKey = "Project/Entered";

/// Whether a project has the value of @p parameter in another unit than the task.
bool isInOtherUnit(const VIniSettings &settings, const VParameter &parameter)
{
    const QString unit = settings.value(unitGroup + parameter.name().first).toString();
    return !unit.isEmpty() && unit != parameter.unit().first;
}

/// @p text in the unit of @p parameter. The second unit of an entry is the SI unit.
QString converted(const QString &text, const QString &unit, const VParameter &parameter)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber) / siFactor(parameter.unit().first);
    // Fifteen digits, which rounding does not reach.
    return isNumber && unit == parameter.unit().second ? QString::number(number, 'g', 15)
                                                       : text + ' ' + unit;
}

} // namespace

QString Project::open(const QString &path, Project *current)
{
    Project project;
    project.m_path = QFileInfo(path).absoluteFilePath();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tr("\"%1\" cannot be read: %2.")
            .arg(QDir::toNativeSeparators(path), file.errorString());
    project.m_settings = VIniSettings(path);
    if (project.task().isEmpty())
        return tr("\"%1\" is no project of this program: it names no task.")
            .arg(QDir::toNativeSeparators(path));
    project.m_lock = current->m_lock;
    const QString problem = project.m_path == current->m_path ? QString() : project.lock(path);
    if (!problem.isEmpty())
        return problem;
    *current = project;
    return {};
}

QString Project::save(const QString &path)
{
    const QString target = QFileInfo(path).absoluteFilePath();
    const auto ownLock = m_lock;
    const QString problem = target == m_path ? QString() : lock(target);
    if (!problem.isEmpty())
        return problem;
    const QString now = QDateTime::currentDateTime().toString(Qt::ISODateWithMs);
    m_settings.setValue(versionKey, QCoreApplication::applicationVersion());
    m_settings.setValue(savedKey, now);
    m_settings.saveLocal(target);
    // Kelto does not say whether a file could be written. It writes all of it or nothing.
    if (VIniSettings(target).value(savedKey) != now) {
        m_lock = ownLock;
        return tr("\"%1\" cannot be written.").arg(QDir::toNativeSeparators(target));
    }
    m_path = target;
    return {};
}

QString Project::task() const
{
    return m_settings.value(taskKey).toString();
}

Values Project::values(const Task &task) const
{
    Values values;
    for (const VParameter &parameter : task.parameters) {
        const QString key = parameter.name().first;
        QStringList texts = m_settings.value(attributeGroup + key).toStringList();
        if (texts.isEmpty() || !isInOtherUnit(m_settings, parameter))
            continue;
        for (QString &text : texts)
            text = converted(text, m_settings.value(unitGroup + key).toString(), parameter);
        values.append(
            { attributeGroup + key, parameter.isMulti() ? QVariant(texts) : texts.first() });
        values.append({ unitGroup + key, parameter.unit().first });
    }
    return values + m_settings.data(); // of a key that comes again the first counts
}

Values Project::startValues(const Task &task, const Values &defaults) const
{
    const Values saved = values(task);
    Values start;
    const QStringList entered = m_settings.value(enteredKey).toStringList();
    for (const QString &key : entered)
        start.append({ key, valueOf(saved, key) });
    return start + defaults; // of a key that comes again the first counts
}

void Project::setTask(const Task &task, const Values &values, const Values &defaults)
{
    QStringList entered = m_settings.value(enteredKey).toStringList();
    for (const auto &value : values) {
        m_settings.setValue(value.first, value.second);
        if (value.first.startsWith(attributeGroup) && !entered.contains(value.first)
            && value.second != valueOf(defaults, value.first))
            entered.append(value.first);
    }
    m_settings.setValue(enteredKey, entered);
    m_settings.setValue(taskKey, task.id());
}

QStringList Project::differences(const AUTH_SET &registry, const Task &task) const
{
    QStringList sentences;
    const QString version = m_settings.value(versionKey).toString();
    if (!version.isEmpty() && version != QCoreApplication::applicationVersion())
        sentences.append(tr("The project was saved by version %1. This is version %2.")
                             .arg(version, QCoreApplication::applicationVersion()));
    const Values all = m_settings.data();
    const auto findings = KeltoItemParameterVerify::explain(&task.module, &all, task.mode.first);
    for (const KeltoItemFinding &finding : findings) {
        // What may stay empty, or does not count, is not missed.
        if (finding.kind == KeltoItemFinding::NearMiss
            || (finding.isAbsence() && finding.expected.isEmpty()))
            sentences.append(finding.text());
    }
    QStringList unknown = m_settings.allKeys("Attribute");
    const auto parameters = registry.defaultParameterList();
    for (const VParameter &parameter : parameters)
        unknown.removeAll(attributeGroup + parameter.name().first);
    for (const QString &key : qAsConst(unknown))
        sentences.append(
            tr("The value \"%1\" = %2 is not used by any task. It is kept in the project.")
                .arg(key.section('/', 1), m_settings.value(key).toStringList().join("; ")));
    for (const VParameter &parameter : task.parameters) {
        const QString unit = m_settings.value(unitGroup + parameter.name().first).toString();
        if (isInOtherUnit(m_settings, parameter))
            sentences.append((unit == parameter.unit().second
                                  ? tr("%1 was saved in %2. It is now given in %3.")
                                  : tr("%1 was saved in %2. Enter it in %3."))
                                 .arg(parameter.name().second, unit, parameter.unit().first));
    }
    return sentences;
}

QString Project::lock(const QString &path)
{
    // Not the name of the lock that is taken while an INI file is written.
    const QFileInfo info(path);
    const auto lock = std::make_shared<QLockFile>(info.path() + "/.~" + info.fileName() + ".open");
    lock->setStaleLockTime(0); // for hours of work; a lock whose process has ended does not count
    if (!lock->tryLock(0) && lock->error() == QLockFile::LockFailedError)
        return tr("\"%1\" is open in another window.").arg(QDir::toNativeSeparators(path));
    m_lock = lock;
    return {};
}

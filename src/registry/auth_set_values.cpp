// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The values that a registry stores for its host, by key, and the files they go to.

#include "auth_set.h"

#include "core/inifile_p.h"
#include "registry/auth_set_p.h"
#include "vinisettings.h"

#include <utility>

namespace {

QString settingsPath(const QString &applicationName)
{
    return pathBelowCurrent(QLatin1String("Config/") + applicationName
                            + QLatin1String("_config.ini"));
}

/// The value of @p key for writing. A key that is not there gives the first value, which is a trap
/// that hosts know of; an empty list gives @p nothing, so that writing it does no harm.
QVariant *valuePointer(KeyValueList &list, const QString &key, QVariant &nothing)
{
    if (list.size() == 0) {
        nothing = QVariant();
        return &nothing;
    }
    return list.valuePointer(qMax(list.indexOf(key), 0));
}

/// The list of the group @p group, or that of the first group; nullptr where there is no group.
KeyValueList *groupOrFirst(StoredValues &values, const QString &group)
{
    KeyValueList *found = values.findGroup(group);
    return found || values.groups.empty() ? found : &values.groups.front();
}

} // namespace

void AUTH_SETPrivate::loadSetValues()
{
    values.set = KeyValueList(readIniFile(settingsPath(applicationName)));
}

QVariant AUTH_SET::value_set(QString key) const
{
    return d->values.set.value(key);
}

QVariant AUTH_SET::value_cal(QString key) const
{
    return d->values.calculation.value(key);
}

QVector<QPair<QString, QVariant>> AUTH_SET::value_group(QString group) const
{
    const KeyValueList *list = d->values.findGroup(group);
    return list ? list->copiedEntries() : KeyValues();
}

QVariant AUTH_SET::value_group_at(QString group, QString key) const
{
    const KeyValueList *list = d->values.findGroup(group);
    return list ? list->value(key) : QVariant();
}

QVariant *AUTH_SET::value_set_p(QString key)
{
    return valuePointer(d->values.set, key, d->values.noValue);
}

QVariant *AUTH_SET::value_cal_p(QString key)
{
    return valuePointer(d->values.calculation, key, d->values.noValue);
}

QVector<QPair<QString, QVariant>> *AUTH_SET::value_group_p(QString group)
{
    KeyValueList *list = groupOrFirst(d->values, group);
    if (list)
        return list->entriesPointer();
    d->values.noValues.clear();
    return &d->values.noValues;
}

QVariant *AUTH_SET::value_group_at_p(QString group, QString key)
{
    KeyValueList nothing;
    KeyValueList *list = groupOrFirst(d->values, group);
    return valuePointer(list ? *list : nothing, key, d->values.noValue);
}

void AUTH_SET::setDefaultSettings(QString group, QVector<QPair<QString, QVariant>> values)
{
    if (KeyValueList *list = d->values.findGroup(group)) {
        list->replace(values);
        return;
    }
    d->values.groupNames.append(group);
    d->values.groups.emplace_back(values);
}

void AUTH_SET::setValueInSet(QString key, QVariant value)
{
    d->values.set.set(key, value);
    writeIniFile(settingsPath(d->applicationName), d->values.set.entries());
}

void AUTH_SET::getCalculationLData(QVector<QPair<QString, QVariant>> data)
{
    const QString attribute = QStringLiteral("Attribute");
    const VIniSettings in(data);
    if (!in.allGroups().contains(attribute))
        return;
    const QStringList keys = in.allKeys(attribute);
    for (const QString &key : keys) {
        const QString name = key.section(QLatin1Char('/'), -1);
        for (const QString &group : { attribute, QStringLiteral("Unit") }) {
            const QString target = group + QLatin1Char('/') + name;
            d->values.calculation.set(target, in.value(target));
        }
    }
}

void AUTH_SET::set_temp(QString key, QVariant value)
{
    d->values.temporary.insert(key, value);
}

QVariant AUTH_SET::value_temp(QString key) const
{
    return d->values.temporary.value(key);
}

void AUTH_SET::delete_temp(QString key)
{
    d->values.temporary.remove(key);
}

bool AUTH_SET::save(QString path, const QVector<QPair<QString, QVariant>> *values) const
{
    if (values)
        writeIniFile(path, *values);
    return true;
}

bool AUTH_SET::load(QString path, QVector<QPair<QString, QVariant>> *values) const
{
    if (!values)
        return true;
    const KeyValues loaded = readIniFile(path);
    if (values->isEmpty()) {
        // A file holds each key once, so that none has to be looked for.
        *values = loaded;
        return true;
    }
    KeyValueList merged(std::move(*values));
    merged.merge(loaded);
    *values = merged.take();
    return true;
}

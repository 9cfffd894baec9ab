// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINVALUES_H
#define PLAINVALUES_H

#include "models/plainfile.h"

#include <QDir>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

/**
 * The rules of the stored values in their plainest form: vectors that are searched from the front
 * on every call.
 *
 * Tests compare AUTH_SET with it and benchmarks measure AUTH_SET against it, so it is to be obvious
 * and not fast. Operations have the names and the meaning that they have in AUTH_SET. What is
 * handed out from an empty store must not be written to.
 */
class PlainValues
{
public:
    using Entry = QPair<QString, QVariant>;
    using Entries = QVector<Entry>;

    explicit PlainValues(QString application = QString())
        : m_application(application)
    {
        load(settingsPath(), &m_set);
    }

    // What was handed out belongs to the registry that did it, so that no copy may share it.
    PlainValues(const PlainValues &other)
        : m_application(other.m_application)
        , m_set(other.m_set)
        , m_calculation(other.m_calculation)
        , m_temporary(other.m_temporary)
        , m_groups(other.m_groups)
    {
        m_set.detach();
        m_calculation.detach();
        m_groups.detach();
        for (QPair<QString, Entries> &group : m_groups)
            group.second.detach();
    }
    PlainValues &operator=(const PlainValues &other)
    {
        PlainValues copy(other);
        m_application = copy.m_application;
        m_set.swap(copy.m_set);
        m_calculation.swap(copy.m_calculation);
        m_temporary.swap(copy.m_temporary);
        m_groups.swap(copy.m_groups);
        return *this;
    }
    ~PlainValues() = default;

    QVariant value_set(QString key) const { return valueIn(m_set, key); }
    QVariant value_cal(QString key) const { return valueIn(m_calculation, key); }
    Entries value_group(QString group) const
    {
        const int i = indexOf(m_groups, group);
        return i < 0 ? Entries() : m_groups.at(i).second;
    }
    QVariant value_group_at(QString group, QString key) const
    {
        return valueIn(value_group(group), key);
    }

    QVariant *value_set_p(QString key) { return pointerInto(m_set, key); }
    QVariant *value_cal_p(QString key) { return pointerInto(m_calculation, key); }
    Entries *value_group_p(QString group)
    {
        return m_groups.isEmpty() ? nullptr : &m_groups[qMax(0, indexOf(m_groups, group))].second;
    }
    QVariant *value_group_at_p(QString group, QString key)
    {
        Entries *entries = value_group_p(group);
        return entries ? pointerInto(*entries, key) : nullptr;
    }

    void setDefaultSettings(QString group, Entries values)
    {
        const int i = indexOf(m_groups, group);
        if (i < 0)
            m_groups.append({ group, values });
        else if (!m_groups.at(i).second.isSharedWith(values))
            m_groups[i].second = values;
    }

    void setValueInSet(QString key, QVariant value)
    {
        setIn(m_set, key, value);
        QDir().mkpath(QDir::currentPath() + QLatin1String("/Config"));
        save(settingsPath(), &m_set);
    }

    void getCalculationLData(Entries data)
    {
        const QString attribute = QStringLiteral("Attribute");
        const QString slash = QStringLiteral("/");
        if (!groupsOf(data).contains(attribute))
            return;
        for (const Entry &entry : qAsConst(data)) {
            if (entry.first != attribute && !entry.first.startsWith(attribute + slash))
                continue;
            const QString name = entry.first.split(slash).last();
            const QString valueKey = attribute + slash + name;
            const QString unitKey = QLatin1String("Unit") + slash + name;
            setIn(m_calculation, valueKey, valueIn(data, valueKey));
            setIn(m_calculation, unitKey, valueIn(data, unitKey));
        }
    }

    void set_temp(QString key, QVariant value) { setIn(m_temporary, key, value); }
    QVariant value_temp(QString key) const { return valueIn(m_temporary, key); }
    void delete_temp(QString key)
    {
        const int i = indexOf(m_temporary, key);
        if (i >= 0)
            m_temporary.remove(i);
    }

    bool save(QString path, const Entries *values) const
    {
        saveWithQSettings(path, *values);
        return true;
    }

    bool load(QString path, Entries *values) const
    {
        const Entries loaded = loadWithQSettings(path);
        for (const Entry &entry : loaded)
            setIn(*values, entry.first, entry.second);
        return true;
    }

private:
    template <typename Value>
    static int indexOf(const QVector<QPair<QString, Value>> &entries, const QString &key)
    {
        for (int i = 0; i < entries.size(); ++i) {
            if (entries.at(i).first == key)
                return i;
        }
        return -1;
    }

    static QVariant valueIn(const Entries &entries, const QString &key)
    {
        const int i = indexOf(entries, key);
        return i < 0 ? QVariant() : entries.at(i).second;
    }

    static void setIn(Entries &entries, const QString &key, const QVariant &value)
    {
        const int i = indexOf(entries, key);
        if (i < 0)
            entries.append({ key, value });
        else
            entries[i].second = value;
    }

    static QVariant *pointerInto(Entries &entries, const QString &key)
    {
        return entries.isEmpty() ? nullptr : &entries[qMax(0, indexOf(entries, key))].second;
    }

    static QStringList groupsOf(const Entries &entries)
    {
        QStringList groups;
        for (const Entry &entry : entries) {
            if (entry.first.contains(QLatin1Char('/')))
                groups.append(entry.first.split(QLatin1Char('/')).first());
        }
        return groups;
    }

    QString settingsPath() const
    {
        return QDir::currentPath() + QLatin1String("/Config/") + m_application
            + QLatin1String("_config.ini");
    }

    QString m_application;
    Entries m_set;
    Entries m_calculation;
    Entries m_temporary;
    QVector<QPair<QString, Entries>> m_groups;
};

#endif

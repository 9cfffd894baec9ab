// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINVALUES_H
#define PLAINVALUES_H

#include "models/plainfile.h"
#include "models/plainsettings.h"

#include <QDir>

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
    explicit PlainValues(QString application = QString())
        : m_application(application)
    {
        load(settingsPath(), &m_stores.set);
    }

    // What was handed out belongs to the registry that did it, so that no copy may share it.
    PlainValues(const PlainValues &other)
        : m_application(other.m_application)
        , m_stores(other.m_stores)
    {
        detach();
    }
    PlainValues &operator=(const PlainValues &other)
    {
        m_application = other.m_application;
        m_stores = other.m_stores;
        detach();
        return *this;
    }
    ~PlainValues() = default;

    QVariant value_set(QString key) const { return PlainSettings::value(key, &m_stores.set); }
    QVariant value_cal(QString key) const
    {
        return PlainSettings::value(key, &m_stores.calculation);
    }
    Entries value_group(QString group) const
    {
        const int i = indexOf(m_stores.groups, group);
        return i < 0 ? Entries() : m_stores.groups.at(i).second;
    }
    QVariant value_group_at(QString group, QString key) const
    {
        const Entries entries = value_group(group);
        return PlainSettings::value(key, &entries);
    }

    QVariant *value_set_p(QString key) { return pointerInto(&m_stores.set, key); }
    QVariant *value_cal_p(QString key) { return pointerInto(&m_stores.calculation, key); }
    Entries *value_group_p(QString group) { return pointerInto(&m_stores.groups, group); }
    QVariant *value_group_at_p(QString group, QString key)
    {
        Entries *entries = value_group_p(group);
        return entries ? pointerInto(entries, key) : nullptr;
    }

    void setDefaultSettings(QString group, Entries values)
    {
        const int i = indexOf(m_stores.groups, group);
        if (i < 0)
            m_stores.groups.append({ group, values });
        else if (!m_stores.groups.at(i).second.isSharedWith(values))
            m_stores.groups[i].second = values;
    }

    void setValueInSet(QString key, QVariant value)
    {
        setIn(&m_stores.set, key, value);
        QDir().mkpath(QDir::currentPath() + QLatin1String("/Config"));
        save(settingsPath(), &m_stores.set);
    }

    void getCalculationLData(Entries data)
    {
        const PlainSettings in(data);
        if (!in.allGroups().contains(QStringLiteral("Attribute")))
            return;
        const QStringList keys = in.allKeys(QStringLiteral("Attribute"));
        for (const QString &key : keys) {
            const QString name = QLatin1Char('/') + key.split(QLatin1Char('/')).last();
            for (const char *group : { "Attribute", "Unit" }) {
                const QString target = QLatin1String(group) + name;
                setIn(&m_stores.calculation, target, in.value(target));
            }
        }
    }

    void set_temp(QString key, QVariant value) { setIn(&m_stores.temporary, key, value); }
    QVariant value_temp(QString key) const
    {
        return PlainSettings::value(key, &m_stores.temporary);
    }
    void delete_temp(QString key)
    {
        const int i = indexOf(m_stores.temporary, key);
        if (i >= 0)
            m_stores.temporary.remove(i);
    }

    bool save(QString path, const Entries *values) const
    {
        saveWithQSettings(path, *values);
        return true;
    }

    bool load(QString path, Entries *values) const
    {
        const Entries loaded = loadWithQSettings(path);
        for (const auto &entry : loaded)
            setIn(values, entry.first, entry.second);
        return true;
    }

private:
    struct Stores
    {
        Entries set;
        Entries calculation;
        Entries temporary;
        QVector<QPair<QString, Entries>> groups;
    };

    void detach()
    {
        m_stores.set.detach();
        m_stores.calculation.detach();
        for (auto &group : m_stores.groups)
            group.second.detach();
    }

    template <typename List> static int indexOf(const List &list, const QString &key)
    {
        for (int i = 0; i < list.size(); ++i) {
            if (list.at(i).first == key)
                return i;
        }
        return -1;
    }

    static void setIn(Entries *entries, const QString &key, const QVariant &value)
    {
        PlainSettings().setValue(key, value, entries);
    }

    /// Where the key is missing, the first.
    template <typename Value>
    static Value *pointerInto(QVector<QPair<QString, Value>> *list, const QString &key)
    {
        return list->isEmpty() ? nullptr : &(*list)[qMax(0, indexOf(*list, key))].second;
    }

    QString settingsPath() const
    {
        return QDir::currentPath() + QLatin1String("/Config/") + m_application
            + QLatin1String("_config.ini");
    }

    QString m_application;
    Stores m_stores;
};

#endif

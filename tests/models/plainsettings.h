// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINSETTINGS_H
#define PLAINSETTINGS_H

#include "support/settingsjson.h"

/// The rules of a settings store in memory, transcribed one by one, with no regard to speed. It
/// takes its arguments by value, as the library does, because times are compared, too.
class PlainSettings
{
public:
    explicit PlainSettings(const Entries &data = {})
        : m_data(data)
        , m_keys(allKeys(&data))
    {
    }

    Entries data() const { return m_data; }
    QStringList allKeys() const { return m_keys; }

    static QStringList allKeys(const Entries *data)
    {
        QStringList keys;
        for (int i = 0; i < data->size(); ++i)
            keys.append(data->at(i).first);
        return keys;
    }

    QStringList allKeys(QString group) const
    {
        const QString slash = QStringLiteral("/");
        QStringList keys;
        for (const QString &key : m_keys) {
            if (group.isEmpty()) {
                if (!key.contains(slash))
                    keys.append(key);
            } else if (!key.contains(slash)) {
                if (key == group)
                    keys.append(key);
            } else if (key.indexOf(QString(group + slash)) == 0) {
                keys.append(key);
            }
        }
        return keys;
    }

    QStringList allGroups() const
    {
        QStringList groups;
        for (const QString &key : m_keys) {
            if (!key.contains(QLatin1Char('/')))
                continue;
            const QString group = key.split(QLatin1Char('/')).constFirst();
            if (!groups.contains(group))
                groups.append(group);
        }
        return groups;
    }

    bool contains(QString key) const { return m_keys.contains(key); }

    bool contains(QStringList keys) const
    {
        for (const QString &key : qAsConst(keys)) {
            if (!contains(key))
                return false;
        }
        return true;
    }

    bool remove(QString key)
    {
        const int index = m_keys.indexOf(key);
        if (index < 0)
            return false;
        if (index < m_data.size())
            m_data.remove(index);
        m_keys.removeAt(index);
        return true;
    }

    bool remove(QStringList keys)
    {
        for (const QString &key : qAsConst(keys)) {
            if (!remove(key))
                return false;
        }
        return true;
    }

    bool removeGroup(QString group)
    {
        const QStringList keys = allKeys(group);
        return !keys.isEmpty() && remove(keys);
    }

    void setValue(QString key, QVariant value) { setValue(key, value, &m_data); }

    void setValue(QString key, QVariant value, Entries *target)
    {
        for (int i = 0; i < target->size(); ++i) {
            if (target->at(i).first == key) {
                (*target)[i].second = value;
                return;
            }
        }
        target->append({ key, value });
        m_keys.append(key);
    }

    void setValue(Entries *target, const Entries *source)
    {
        for (int i = 0; i < source->size(); ++i)
            setValue(source->at(i).first, source->at(i).second, target);
    }

    void setValue(Entries data, bool replace)
    {
        if (replace)
            m_data = data;
        else
            setValue(&m_data, &data);
        m_keys = allKeys(&m_data);
    }

    QVariant value(QString key) const { return value(key, &m_data); }

    static QVariant value(const QString &key, const Entries *data)
    {
        for (int i = 0; i < data->size(); ++i) {
            if (data->at(i).first == key)
                return data->at(i).second;
        }
        return {};
    }

    QString styleSheetFormat() const
    {
        const QString widgetClass = value(QStringLiteral("ID/QtClassName")).toString();
        QStringList groups = allGroups();
        QString sheet;
        if (groups.contains(QStringLiteral("normal")))
            sheet += widgetClass + QStringLiteral("{") + block(QStringLiteral("normal"));
        groups.removeOne(QStringLiteral("normal"));
        groups.removeOne(QStringLiteral("ID"));
        for (const QString &group : qAsConst(groups))
            sheet += widgetClass + QStringLiteral(":") + group + QStringLiteral("{") + block(group);
        return sheet;
    }

private:
    QString block(const QString &group) const
    {
        QString text;
        const QStringList keys = allKeys(group);
        for (const QString &key : keys)
            text += key + QStringLiteral("=") + value(key).toString() + QStringLiteral(";");
        return QString(text + QStringLiteral("};"));
    }

    Entries m_data;
    QStringList m_keys;
};

#endif

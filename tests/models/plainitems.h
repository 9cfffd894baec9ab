// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINITEMS_H
#define PLAINITEMS_H

#include "models/plainsettings.h"
#include "plainfile.h"

#include <Kelto/AUTH_INF>

// Module items in files, and the check of entered values, in their plainest form: every key is
// searched for from the front of a list.

namespace PlainItems {

inline void writeEntry(PlainSettings *store, const QStringList &entry)
{
    const QString key = entry.value(1);
    store->setValue(QLatin1String("Unit/") + key, QStringList { entry.value(4), entry.value(5) });
    store->setValue(QLatin1String("Symbol/") + key, entry.value(6));
    store->setValue(QLatin1String("Multi/") + key, entry.value(3));
    store->setValue(QLatin1String("ObjectName/") + key, entry.value(2));
    store->setValue(QLatin1String("Group/") + key, entry.value(0));
}

inline void writeFields(PlainSettings *store, const AUTH_INF &item)
{
    const QString section = QStringLiteral("KeltoItem/");
    store->setValue(section + QLatin1String("number"), item.number);
    store->setValue(section + QLatin1String("name"), item.name);
    store->setValue(section + QLatin1String("description"), item.description);
    store->setValue(section + QLatin1String("icon"), item.icon);
    store->setValue(section + QLatin1String("group"), item.group);
    store->setValue(section + QLatin1String("type"), item.type);
    store->setValue(section + QLatin1String("exclusive_group"), item.exclusive_group);
    store->setValue(section + QLatin1String("lib_name"), item.lib_name);
    store->setValue(section + QLatin1String("inner_mode_count"), item.inner_mode_count);
    store->setValue(section + QLatin1String("inner_mode_description"), item.inner_mode_description);
    store->setValue(section + QLatin1String("inner_mode_nameList"), item.inner_mode_nameList);
    store->setValue(section + QLatin1String("Tr_ObjectName"), item.trObjectName);
    store->setValue(section + QLatin1String("codeFunctionName"), item.codeFunctionName);
}

inline void writeParameters(PlainSettings *store, const AUTH_INF &item)
{
    QStringList described;
    for (const QVector<QStringList> &entries : item.inner_mode_parameterList) {
        for (const QStringList &entry : entries) {
            store->setValue(QLatin1String("Attribute/") + entry.value(1), QString());
            if (described.contains(entry.value(1)))
                continue;
            described.append(entry.value(1));
            writeEntry(store, entry);
        }
    }
    for (const QString &key : qAsConst(described))
        store->setValue(QLatin1String("Belong/") + key, item.parameter_belonglist(key));
}

inline void save(const AUTH_INF &item, const QString &path)
{
    PlainSettings store(loadWithQSettings(path));
    writeFields(&store, item);
    for (const QStringList &entry : item.output_results) {
        if (entry.size() != 9)
            continue;
        store.setValue(QLatin1String("Result/") + entry.at(1), QString());
        writeEntry(&store, entry);
    }
    writeParameters(&store, item);
    for (const VDataItem &extra : item.extraKey)
        store.setValue(QLatin1String("ExtraKey/") + extra.key, extra.value);
    saveWithQSettings(path, store.data());
}

inline void readFields(const PlainSettings &store, AUTH_INF *item)
{
    const auto read = [&store](const char *field) {
        return store.value(QLatin1String("KeltoItem/") + QLatin1String(field));
    };
    item->number = read("number").toInt();
    item->name = item->name_tr = read("name").toString();
    item->description = read("description").toString();
    item->icon = read("icon").toString();
    item->type = item->type_tr = read("type").toString();
    item->group = item->group_tr = read("group").toString();
    item->exclusive_group = read("exclusive_group").toBool();
    item->lib_name = read("lib_name").toStringList();
    item->inner_mode_count = read("inner_mode_count").toInt();
    item->inner_mode_description = read("inner_mode_description").toStringList();
    item->trObjectName = read("Tr_ObjectName").toString();
    item->codeFunctionName = read("codeFunctionName").toString();
    item->inner_mode_nameList = read("inner_mode_nameList").toStringList();
    item->inner_mode_nameList_tr = item->inner_mode_nameList;
}

inline QStringList readEntry(const PlainSettings &store, const QString &key)
{
    const QStringList unit = store.value(QLatin1String("Unit/") + key).toStringList();
    const QString symbol = store.value(QLatin1String("Symbol/") + key).toString();
    const QString multi = store.value(QLatin1String("Multi/") + key).toString();
    const QString objectName = store.value(QLatin1String("ObjectName/") + key).toString();
    const QString group = store.value(QLatin1String("Group/") + key).toString();
    const QString secondUnit = unit.isEmpty() ? QString() : unit.last();
    return { group, key, objectName, multi, unit.value(0), secondUnit, symbol, key, group };
}

inline QString lastPart(const QString &key)
{
    return key.split(QLatin1Char('/')).last();
}

inline void readParameters(const PlainSettings &store, AUTH_INF *item)
{
    QVector<QVector<QStringList>> lists(item->inner_mode_nameList.size());
    const QStringList keys = store.allKeys(QStringLiteral("Attribute"));
    for (const QString &fullKey : keys) {
        const QString key = lastPart(fullKey);
        const QStringList entry = readEntry(store, key);
        const QStringList belong = store.value(QLatin1String("Belong/") + key).toStringList();
        for (int i = 0; i < item->inner_mode_count && i < lists.size(); ++i) {
            if (belong.contains(item->inner_mode_nameList.at(i)))
                lists[i].append(entry);
        }
    }
    item->inner_mode_parameterList = lists;
}

inline AUTH_INF load(const QString &path)
{
    const PlainSettings store(loadWithQSettings(path));
    AUTH_INF item;
    readFields(store, &item);
    readParameters(store, &item);
    item.output_results.clear();
    const int count = store.value(QStringLiteral("KeltoItem/output_results")).toStringList().size();
    const QStringList results = store.allKeys(QStringLiteral("Result"));
    for (int i = 0; i < count && i < results.size(); ++i)
        item.output_results.append(readEntry(store, lastPart(results.at(i))));
    item.extraKey.clear();
    const QStringList extraKeys = store.allKeys(QStringLiteral("ExtraKey"));
    for (const QString &fullKey : extraKeys) {
        const QString key = lastPart(fullKey);
        item.extraKey.append({ key, store.value(QLatin1String("ExtraKey/") + key) });
    }
    return item;
}

inline bool isValid(const AUTH_INF &item, const Entries &values, const QString &mode,
                    const QStringList &skipGroups = {})
{
    const auto entries
        = item.inner_mode_parameterList.value(item.inner_mode_nameList.indexOf(mode));
    QStringList required;
    for (const QStringList &entry : entries) {
        if (!skipGroups.contains(entry.value(0)) && !skipGroups.contains(entry.value(8)))
            required.append(QLatin1String("Attribute/") + entry.value(1));
    }
    return !entries.isEmpty() && PlainSettings(values).contains(required);
}

} // namespace PlainItems

#endif

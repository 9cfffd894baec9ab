// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMJSON_H
#define ITEMJSON_H

#include <Kelto/AUTH_INF>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

// Module items as JSON: to carry them from one process to another, and to say in which fields two
// of them differ.

/// A value as it is after any number of ways through files and source text, which keep neither the
/// type of a number, nor a list of one apart from its element, nor an empty list from nothing.
inline QJsonValue valueAsJson(const QVariant &value)
{
    if (value.type() != QVariant::StringList)
        return value.isValid() ? QJsonValue(value.toString()) : QJsonValue();
    const QStringList list = value.toStringList();
    if (list.size() > 1)
        return QJsonArray::fromStringList(list);
    return list.isEmpty() ? QJsonValue() : QJsonValue(list.first());
}

inline QJsonArray entriesAsJson(const QVector<QStringList> &entries)
{
    QJsonArray array;
    for (const QStringList &entry : entries)
        array.append(QJsonArray::fromStringList(entry));
    return array;
}

inline QJsonArray parametersAsJson(const AUTH_INF &item)
{
    QJsonArray modes;
    for (const QVector<QStringList> &entries : item.inner_mode_parameterList)
        modes.append(entriesAsJson(entries));
    return modes;
}

inline QJsonArray extraKeysAsJson(const AUTH_INF &item)
{
    QJsonArray keys;
    for (const VDataItem &extra : item.extraKey)
        keys.append(QJsonArray { extra.key, valueAsJson(extra.value) });
    return keys;
}

/// Every field under its own name.
inline QJsonObject itemAsJson(const AUTH_INF &item)
{
    return {
        { QStringLiteral("number"), item.number },
        { QStringLiteral("name"), item.name },
        { QStringLiteral("name_tr"), item.name_tr },
        { QStringLiteral("description"), item.description },
        { QStringLiteral("icon"), item.icon },
        { QStringLiteral("type"), item.type },
        { QStringLiteral("type_tr"), item.type_tr },
        { QStringLiteral("group"), item.group },
        { QStringLiteral("group_tr"), item.group_tr },
        { QStringLiteral("exclusive_group"), item.exclusive_group },
        { QStringLiteral("lib_name"), QJsonArray::fromStringList(item.lib_name) },
        { QStringLiteral("inner_mode_count"), item.inner_mode_count },
        { QStringLiteral("inner_mode_description"),
          QJsonArray::fromStringList(item.inner_mode_description) },
        { QStringLiteral("inner_mode_nameList"),
          QJsonArray::fromStringList(item.inner_mode_nameList) },
        { QStringLiteral("inner_mode_nameList_tr"),
          QJsonArray::fromStringList(item.inner_mode_nameList_tr) },
        { QStringLiteral("inner_mode_parameterList"), parametersAsJson(item) },
        { QStringLiteral("trObjectName"), item.trObjectName },
        { QStringLiteral("codeFunctionName"), item.codeFunctionName },
        { QStringLiteral("output_results"), entriesAsJson(item.output_results) },
        { QStringLiteral("extraKey"), extraKeysAsJson(item) },
    };
}

inline QJsonArray itemsAsJson(const QVector<AUTH_INF> &items)
{
    QJsonArray array;
    for (const AUTH_INF &item : items)
        array.append(itemAsJson(item));
    return array;
}

/// One line per field in which the items differ; empty when they are equal.
inline QString differences(const QJsonObject &actual, const QJsonObject &expected)
{
    const auto shown = [](const QJsonValue &value) {
        return QString::fromUtf8(
            QJsonDocument(QJsonArray { value }).toJson(QJsonDocument::Compact));
    };
    QString lines;
    const QStringList fields = expected.keys();
    for (const QString &field : fields) {
        if (actual.value(field) != expected.value(field)) {
            lines += field + QLatin1String(" is ") + shown(actual.value(field))
                + QLatin1String(" and not ") + shown(expected.value(field)) + QLatin1Char('\n');
        }
    }
    return lines;
}

inline QString differences(const AUTH_INF &actual, const AUTH_INF &expected)
{
    return differences(itemAsJson(actual), itemAsJson(expected));
}

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// An item as JSON.

#include "convert/jsonitem.h"

#include "convert/storedvalue.h"
#include "keltoparameterentry.h"

#include <QJsonArray>

#include <cmath>
#include <limits>

namespace {

bool isInt(double number)
{
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max()
        && number == std::floor(number);
}

/// A number that JSON would not give back with its type.
QJsonObject typed(const QVariant &value)
{
    return { { QStringLiteral("type"), QLatin1String(value.typeName()) },
             { QStringLiteral("text"), value.toString() } };
}

QJsonValue valueAsJson(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        return QJsonValue();
    case QMetaType::QString:
        return value.toString();
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::Double:
        if (!std::isfinite(value.toDouble()) || isInt(value.toDouble()))
            return typed(value);
        return value.toDouble();
    case QMetaType::QStringList:
        return QJsonArray::fromStringList(value.toStringList());
    default:
        return QJsonObject { { QStringLiteral("stored"),
                               QJsonArray::fromStringList(storedElements(value)) } };
    }
}

QJsonValue flagAsJson(const QString &text)
{
    if (text == QLatin1String("true") || text == QLatin1String("false"))
        return text == QLatin1String("true");
    return text;
}

QJsonValue entryAsJson(const QStringList &entry)
{
    using namespace KeltoParameterEntry;
    if (entry.size() != PlaceCount)
        return QJsonArray::fromStringList(entry);
    QJsonObject object { { QStringLiteral("group"), entry.at(Group) },
                         { QStringLiteral("key"), entry.at(Key) },
                         { QStringLiteral("objectName"), entry.at(ObjectName) },
                         { QStringLiteral("multi"), flagAsJson(entry.at(Multi)) },
                         { QStringLiteral("unit"), entry.at(Unit) },
                         { QStringLiteral("secondUnit"), entry.at(SecondUnit) },
                         { QStringLiteral("symbol"), entry.at(Symbol) } };
    if (entry.at(TranslatedKey) != entry.at(Key))
        object.insert(QStringLiteral("key_tr"), entry.at(TranslatedKey));
    if (entry.at(TranslatedGroup) != entry.at(Group))
        object.insert(QStringLiteral("group_tr"), entry.at(TranslatedGroup));
    return object;
}

QJsonArray entriesAsJson(const QVector<QStringList> &entries)
{
    QJsonArray array;
    for (const QStringList &entry : entries)
        array.append(entryAsJson(entry));
    return array;
}

QJsonArray parametersAsJson(const AUTH_INF &item)
{
    QJsonArray modes;
    for (const QVector<QStringList> &entries : item.inner_mode_parameterList)
        modes.append(entriesAsJson(entries));
    return modes;
}

QJsonArray extraKeysAsJson(const AUTH_INF &item)
{
    QJsonArray keys;
    for (const VDataItem &extra : item.extraKey) {
        keys.append(QJsonObject { { QStringLiteral("key"), extra.key },
                                  { QStringLiteral("value"), valueAsJson(extra.value) } });
    }
    return keys;
}

} // namespace

QJsonObject jsonOf(const AUTH_INF &item)
{
    QJsonObject object {
        { QStringLiteral("number"), item.number },
        { QStringLiteral("name"), item.name },
        { QStringLiteral("description"), item.description },
        { QStringLiteral("icon"), item.icon },
        { QStringLiteral("type"), item.type },
        { QStringLiteral("group"), item.group },
        { QStringLiteral("exclusive_group"), item.exclusive_group },
        { QStringLiteral("lib_name"), QJsonArray::fromStringList(item.lib_name) },
        { QStringLiteral("inner_mode_count"), item.inner_mode_count },
        { QStringLiteral("inner_mode_description"),
          QJsonArray::fromStringList(item.inner_mode_description) },
        { QStringLiteral("inner_mode_nameList"),
          QJsonArray::fromStringList(item.inner_mode_nameList) },
        { QStringLiteral("inner_mode_parameterList"), parametersAsJson(item) },
        { QStringLiteral("trObjectName"), item.trObjectName },
        { QStringLiteral("codeFunctionName"), item.codeFunctionName },
        { QStringLiteral("output_results"), entriesAsJson(item.output_results) },
        { QStringLiteral("extraKey"), extraKeysAsJson(item) },
    };
    const auto addTranslated
        = [&object](const char *field, const QString &plain, const QString &translated) {
              if (translated != plain)
                  object.insert(QLatin1String(field), translated);
          };
    addTranslated("name_tr", item.name, item.name_tr);
    addTranslated("type_tr", item.type, item.type_tr);
    addTranslated("group_tr", item.group, item.group_tr);
    if (item.inner_mode_nameList_tr != item.inner_mode_nameList)
        object.insert(QStringLiteral("inner_mode_nameList_tr"),
                      QJsonArray::fromStringList(item.inner_mode_nameList_tr));
    return object;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSJSON_H
#define SETTINGSJSON_H

#include <QDataStream>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

using Entries = QVector<QPair<QString, QVariant>>;

// Values with their types: QVariant's own comparison finds the number 1 and the text "1" equal, but
// a number that was stored in a file is read as a text.

inline QString typeName(const QVariant &value)
{
    return QString::fromLatin1(value.isValid() ? value.typeName() : "invalid");
}

inline QJsonValue jsonOf(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        return {};
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QStringList:
        return QJsonArray::fromStringList(value.toStringList());
    default:
        break;
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return QString::fromLatin1(bytes.toHex());
}

inline QJsonObject jsonOf(const QPair<QString, QVariant> &entry)
{
    return { { QStringLiteral("key"), entry.first },
             { QStringLiteral("type"), typeName(entry.second) },
             { QStringLiteral("value"), jsonOf(entry.second) } };
}

inline QJsonArray jsonOf(const Entries &entries)
{
    QJsonArray array;
    for (const QPair<QString, QVariant> &entry : entries)
        array.append(jsonOf(entry));
    return array;
}

/// One line for each object, so that a failed comparison shows the first that differs.
inline QStringList described(const QJsonArray &array)
{
    QStringList lines;
    for (const QJsonValue &value : array)
        lines.append(
            QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact)));
    return lines;
}

inline QStringList described(const Entries &entries)
{
    return described(jsonOf(entries));
}

/// What a single value says, with its type.
inline QString described(const QVariant &value)
{
    return described(Entries { { QString(), value } }).constFirst();
}

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INPUT_H
#define INPUT_H

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

using Entries = QVector<QPair<QString, QVariant>>;

/// The key at @p i of a settings store: ten keys in each group.
inline QString settingsKey(int i)
{
    return QStringLiteral("group %1/key %2").arg(i / 10).arg(i);
}

/// Texts, numbers and flags, as settings have them.
inline QVariant settingsValue(int i)
{
    switch (i % 4) {
    case 0:
        return QStringLiteral("text %1").arg(i);
    case 1:
        return i;
    case 2:
        return i / 8.0;
    default:
        return i % 8 == 3;
    }
}

/// @p size entries from the key at @p first on.
inline Entries settingsEntries(int size, int first = 0)
{
    Entries entries;
    entries.reserve(size);
    for (int i = first; i < first + size; ++i)
        entries.append({ settingsKey(i), settingsValue(i) });
    return entries;
}

/// What @p ask gives for the key of every entry, in order.
template <typename Ask> QVector<QVariant> valuesOf(const Entries &entries, Ask ask)
{
    QVector<QVariant> values;
    values.reserve(entries.size());
    for (const auto &entry : entries)
        values.append(ask(entry.first));
    return values;
}

/// The values of settingsEntries(size).
inline QVector<QVariant> settingsValues(int size)
{
    QVector<QVariant> values;
    values.reserve(size);
    for (int i = 0; i < size; ++i)
        values.append(settingsValue(i));
    return values;
}

inline QStringList keysOf(const Entries &entries)
{
    QStringList keys;
    keys.reserve(entries.size());
    for (const auto &entry : entries)
        keys.append(entry.first);
    return keys;
}

#endif

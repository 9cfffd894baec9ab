// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INPUT_H
#define INPUT_H

#include "support/settingsjson.h"

#include <Kelto/AUTH_INF>

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

/// @p size settings from the one at @p first on, ten in each group.
inline Entries settingsEntries(int size, int first = 0)
{
    Entries entries;
    entries.reserve(size);
    for (int i = first; i < first + size; ++i)
        entries.append({ QStringLiteral("group %1/key %2").arg(i / 10).arg(i), settingsValue(i) });
    return entries;
}

/// The entry of the parameter @p number in the sub-group @p subGroup. Names come in another order
/// than numbers.
inline QStringList parameterEntry(int number, int subGroup)
{
    // An odd factor leaves the numbers different.
    const QString name
        = QStringLiteral("parameter %1").arg(uint(number) * 2654435761U, 8, 16, QLatin1Char('0'));
    const QString group = QStringLiteral("sub-group %1").arg(subGroup);
    return { group,
             name,
             QStringLiteral("float"),
             QStringLiteral("false"),
             QStringLiteral("mm"),
             QStringLiteral("m"),
             QStringLiteral("p"),
             name,
             group };
}

/// Parameters, @p perSubGroup of them in each sub-group.
inline QVector<QStringList> parameterEntries(int count, int first = 0, int perSubGroup = 10)
{
    QVector<QStringList> entries;
    entries.reserve(count);
    for (int i = first; i < first + count; ++i)
        entries.append(parameterEntry(i, i / perSubGroup));
    return entries;
}

/// A module in an exclusive group, as yet without modes.
inline AUTH_INF moduleItem(int number, int group)
{
    AUTH_INF item;
    item.name = QStringLiteral("Module %1").arg(number);
    item.name_tr = QStringLiteral("模块 %1").arg(number);
    item.description = QStringLiteral("Module number %1").arg(number);
    item.type = item.type_tr = QStringLiteral("calculation");
    item.group = QStringLiteral("Group %1").arg(group);
    item.group_tr = QStringLiteral("分组 %1").arg(group);
    item.exclusive_group = true;
    item.inner_mode_count = 0;
    item.inner_mode_nameList.clear();
    item.inner_mode_nameList_tr.clear();
    item.inner_mode_description.clear();
    return item;
}

/// Adds the mode @p number, with the parameters @p entries.
inline void addMode(AUTH_INF *item, int number, const QVector<QStringList> &entries = {})
{
    ++item->inner_mode_count;
    item->inner_mode_nameList.append(QStringLiteral("mode %1").arg(number));
    item->inner_mode_nameList_tr.append(QStringLiteral("模式 %1").arg(number));
    item->inner_mode_description.append(QStringLiteral("description of mode %1").arg(number));
    item->inner_mode_parameterList.append(entries);
}

/// An item with @p size parameters, each in two of ten modes, a tenth as many results, and extra
/// keys.
inline AUTH_INF itemOfTenModes(int size)
{
    AUTH_INF item = moduleItem(0, 0);
    for (int mode = 0; mode < 10; ++mode) {
        QVector<QStringList> entries;
        for (int i = 0; i < size; ++i) {
            if (i % 10 == mode || (i + 1) % 10 == mode)
                entries.append(parameterEntry(i, i / 10));
        }
        addMode(&item, mode, entries);
    }
    item.output_results = parameterEntries(size / 10, size);
    for (int i = 0; i < size / 10; ++i)
        item.extraKey.append({ QStringLiteral("extra %1").arg(i), i });
    return item;
}

#endif

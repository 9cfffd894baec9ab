// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PARAMETERINPUT_H
#define PARAMETERINPUT_H

#include <Kelto/AUTH_INF>

#include <QString>
#include <QStringList>
#include <QVector>

/// The entry of the parameter @p number. Names come in another order than numbers, and ten
/// parameters are in one sub-group.
inline QStringList parameterEntry(int number)
{
    // An odd factor leaves the numbers different.
    const QString name
        = QStringLiteral("parameter %1").arg(uint(number) * 2654435761U, 8, 16, QLatin1Char('0'));
    const QString subGroup = QStringLiteral("sub-group %1").arg(number / 10);
    return { subGroup,
             name,
             QStringLiteral("float"),
             QStringLiteral("false"),
             QStringLiteral("mm"),
             QStringLiteral("m"),
             QStringLiteral("p"),
             name,
             subGroup };
}

inline QVector<QStringList> parameterEntries(int count, int first = 0)
{
    QVector<QStringList> entries;
    entries.reserve(count);
    for (int i = first; i < first + count; ++i)
        entries.append(parameterEntry(i));
    return entries;
}

/// A module in an exclusive group.
inline AUTH_INF parameterModule(int number, int group)
{
    AUTH_INF item;
    item.name = item.name_tr = QStringLiteral("Module %1").arg(number);
    item.description = QStringLiteral("Module number %1").arg(number);
    item.type = item.type_tr = QStringLiteral("calculation");
    item.group = item.group_tr = QStringLiteral("Group %1").arg(group);
    item.exclusive_group = true;
    item.inner_mode_count = 0;
    item.inner_mode_nameList.clear();
    item.inner_mode_nameList_tr.clear();
    item.inner_mode_description.clear();
    return item;
}

inline void addMode(AUTH_INF *item, const QString &name, const QVector<QStringList> &entries)
{
    ++item->inner_mode_count;
    item->inner_mode_nameList.append(name);
    item->inner_mode_nameList_tr.append(name);
    item->inner_mode_description.append(name + QLatin1String(" of the module"));
    item->inner_mode_parameterList.append(entries);
}

#endif

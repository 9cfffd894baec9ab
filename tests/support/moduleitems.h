// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MODULEITEMS_H
#define MODULEITEMS_H

#include <Kelto/AUTH_INF>

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

using Pair = QPair<QString, QString>;
using Pairs = QVector<Pair>;

/// The translated form that the tests give to a name.
inline QString translated(const QString &name)
{
    return name + QLatin1String("_tr");
}

inline QStringList translated(const QStringList &names)
{
    QStringList result;
    for (const QString &name : names)
        result.append(translated(name));
    return result;
}

/// A module in the exclusive group @p group with these inner modes. Each mode has the description
/// "about <module>/<mode>" and one parameter entry with the key "<module>/<mode>".
inline AUTH_INF exclusiveModule(const QString &name, const QString &group, const QStringList &modes)
{
    AUTH_INF item;
    item.name = name;
    item.name_tr = translated(name);
    item.group = group;
    item.group_tr = translated(group);
    item.exclusive_group = true;
    item.inner_mode_count = modes.size();
    item.inner_mode_nameList = modes;
    item.inner_mode_nameList_tr = translated(modes);
    item.inner_mode_description.clear();
    for (const QString &mode : modes) {
        const QString key = name + QLatin1Char('/') + mode;
        item.inner_mode_description.append(QLatin1String("about ") + key);
        item.inner_mode_parameterList.append(
            { QStringList { QString(), key, QString(), QString(), QString(), QString(), QString(),
                            key, QString() } });
    }
    return item;
}

/// A module like exclusiveModule() without the flag.
inline AUTH_INF plainModule(const QString &name, const QString &group, const QStringList &modes)
{
    AUTH_INF item = exclusiveModule(name, group, modes);
    item.exclusive_group = false;
    return item;
}

#endif

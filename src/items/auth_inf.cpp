// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The record of one module, and which parameter belongs to which of its inner modes.

#include "auth_inf.h"

#include "core/firstpositions_p.h"
#include "keltoparameterentry.h"

#include <algorithm>

namespace {

/// The parameter entries of the inner mode that @p mode names, in its plain or translated form.
QVector<QStringList> entriesOfMode(const AUTH_INF &item, const QString &mode)
{
    const int plain = item.inner_mode_nameList.indexOf(mode);
    const int place = plain >= 0 ? plain : item.inner_mode_nameList_tr.indexOf(mode);
    return item.inner_mode_parameterList.value(place);
}

bool holdsKey(const QVector<QStringList> &entries, const QString &key)
{
    return std::any_of(entries.cbegin(), entries.cend(), [&key](const QStringList &entry) {
        return entry.value(KeltoParameterEntry::Key) == key;
    });
}

} // namespace

AUTH_INF::AUTH_INF()
    : number(0)
    , name(QStringLiteral("Default"))
    , name_tr(name)
    , type(QStringLiteral("undefined"))
    , type_tr(type)
    , group(QStringLiteral("model"))
    , group_tr(group)
    , exclusive_group(false)
    , inner_mode_count(1)
    , inner_mode_description(description)
    , inner_mode_nameList(name)
    , inner_mode_nameList_tr(inner_mode_nameList)
{
}

QStringList AUTH_INF::inner_mode_keylist_of(QString mode) const
{
    const QVector<QStringList> entries = entriesOfMode(*this, mode);
    QStringList keys;
    keys.reserve(entries.size());
    for (const QStringList &entry : entries)
        keys.append(entry.value(KeltoParameterEntry::Key));
    return keys;
}

bool AUTH_INF::inner_mode_contains(QString mode, QString key) const
{
    return holdsKey(entriesOfMode(*this, mode), key);
}

bool AUTH_INF::inner_mode_contains(QString key) const
{
    return !parameter_belonglist(key).isEmpty();
}

QStringList AUTH_INF::parameter_belonglist(QString key) const
{
    // A name given twice stands for its first mode. Each list is searched once, however many names
    // stand for it.
    QVector<bool> hasKey(inner_mode_parameterList.size());
    std::transform(inner_mode_parameterList.cbegin(), inner_mode_parameterList.cend(),
                   hasKey.begin(),
                   [&key](const QVector<QStringList> &entries) { return holdsKey(entries, key); });

    QStringList found;
    FirstPositions modes;
    for (const QString &mode : inner_mode_nameList) {
        modes.append(mode);
        if (hasKey.value(modes.indexOf(mode)))
            found.append(mode);
    }
    return found;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoitemparameterverify.h"

#include "auth_inf.h"
#include "keltoparameterentry.h"
#include "vinisettings.h"

#include <QSet>

namespace {

/// The keys under which the parameters of @p entries need a value.
QStringList requiredKeys(const QVector<QStringList> &entries, const QSet<QString> &skipGroups)
{
    QStringList keys;
    for (const QStringList &entry : entries) {
        const bool isSkipped = skipGroups.contains(entry.value(KeltoParameterEntry::Group))
            || skipGroups.contains(entry.value(KeltoParameterEntry::TranslatedGroup));
        if (!isSkipped)
            keys.append(QLatin1String("Attribute/") + entry.value(KeltoParameterEntry::Key));
    }
    return keys;
}

} // namespace

bool KeltoItemParameterVerify::isValid(const AUTH_INF *item,
                                       const QVector<QPair<QString, QVariant>> *values,
                                       QString mode, QStringList skipGroups)
{
    if (!item || !values)
        return false;
    // Only the plain name counts: any other has the position -1 and no entries.
    const QVector<QStringList> entries
        = item->inner_mode_parameterList.value(item->inner_mode_nameList.indexOf(mode));
    if (entries.isEmpty())
        return false;
    const QSet<QString> skipped(skipGroups.cbegin(), skipGroups.cend());
    return VIniSettings(*values).contains(requiredKeys(entries, skipped));
}

bool KeltoItemParameterVerify::isValid(const AUTH_INF *item,
                                       const QVector<QPair<QString, QVariant>> *values,
                                       QString mode, QString skipGroup)
{
    return isValid(item, values, mode, QStringList(skipGroup));
}

bool KeltoItemParameterVerify::isValid(const AUTH_INF *item,
                                       const QVector<QPair<QString, QVariant>> *values,
                                       QString mode)
{
    return isValid(item, values, mode, QStringList());
}

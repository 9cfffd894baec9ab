// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoitemparameterverify.h"

#include "params/requiredparameters_p.h"

bool KeltoItemParameterVerify::isValid(const AUTH_INF *item,
                                       const QVector<QPair<QString, QVariant>> *values,
                                       QString mode, QStringList skipGroups)
{
    if (!item || !values)
        return false;
    const RequiredParameters required(*item, *values, mode, skipGroups);
    return !required.entries().isEmpty()
        && required.visitAll([](const QStringList & /*entry*/, const QString & /*key*/,
                                int position) { return position >= 0; });
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

QStringList KeltoItemParameterVerify::missing(const AUTH_INF *item,
                                              const QVector<QPair<QString, QVariant>> *values,
                                              QString mode, QStringList skipGroups)
{
    if (!item || !values)
        return {};
    QStringList keys;
    RequiredParameters(*item, *values, mode, skipGroups)
        .visitAll([&keys](const QStringList & /*entry*/, const QString &key, int position) {
            if (position < 0)
                keys.append(key);
            return true;
        });
    keys.removeDuplicates();
    return keys;
}

QStringList KeltoItemParameterVerify::missing(const AUTH_INF *item,
                                              const QVector<QPair<QString, QVariant>> *values,
                                              QString mode, QString skipGroup)
{
    return missing(item, values, mode, QStringList(skipGroup));
}

QStringList KeltoItemParameterVerify::missing(const AUTH_INF *item,
                                              const QVector<QPair<QString, QVariant>> *values,
                                              QString mode)
{
    return missing(item, values, mode, QStringList());
}

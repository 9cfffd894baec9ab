// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PARAMETERS_H
#define PARAMETERS_H

#include "support/moduleitems.h"

#include <Kelto/VParameter>

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

using ParameterEntries = QVector<QStringList>;
using Parameters = QVector<VParameter>;

/// The entry of a parameter. Two of one name are told apart by their symbol or their sub-group.
inline QStringList entry(const QString &name, const QString &symbol = QStringLiteral("s"),
                         const QString &subGroup = QStringLiteral("S"))
{
    return { subGroup,
             name,
             QStringLiteral("float"),
             QStringLiteral("false"),
             QStringLiteral("mm"),
             QStringLiteral("MM"),
             symbol,
             translated(name),
             translated(subGroup) };
}

/// The parameters of these entries, without values, in this order.
inline Parameters parameters(const ParameterEntries &entries)
{
    Parameters result;
    for (const QStringList &texts : entries)
        result.append(VParameter(texts));
    return result;
}

inline VParameter valued(const QString &name, const QVariant &value,
                         const QString &symbol = QStringLiteral("s"))
{
    VParameter parameter(entry(name, symbol));
    parameter.set(value);
    return parameter;
}

/// All fields: the sets form, and the value with its type where there is one.
inline QString shown(const VParameter &parameter)
{
    const QString fields = parameter.toSetsForm().join(QLatin1Char('|'));
    const QVariant value = parameter.value();
    if (!value.isValid())
        return fields;
    const QString text = value.type() == QVariant::StringList
        ? value.toStringList().join(QLatin1Char(','))
        : value.toString();
    return fields + QLatin1String(" = ") + QLatin1String(value.typeName()) + QLatin1Char(' ')
        + text;
}

inline QStringList shown(const Parameters &list)
{
    QStringList texts;
    for (const VParameter &parameter : list)
        texts.append(shown(parameter));
    return texts;
}

#endif

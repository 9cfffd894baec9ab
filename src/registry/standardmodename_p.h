// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef STANDARDMODENAME_P_H
#define STANDARDMODENAME_P_H

#include <QString>
#include <QStringList>

/// The places of the fields in a standard mode name. Nothing escapes a ":" inside of a field, so a
/// name may come apart into more fields than these; who needs all three has to count them.
namespace StandardModeName {
enum Field { Application = 0, Group = 1, Mode = 2, FieldCount = 3 };
}

inline QString standardModeName(const QString &application, const QString &group,
                                const QString &mode)
{
    return application + QLatin1Char(':') + group + QLatin1Char(':') + mode;
}

/// The fields of @p name, empty ones kept; at least one.
inline QStringList standardModeNameFields(const QString &name)
{
    return name.split(QLatin1Char(':'), Qt::KeepEmptyParts, Qt::CaseSensitive);
}

#endif

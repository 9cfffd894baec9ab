// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMDIFF_H
#define ITEMDIFF_H

#include <QString>
#include <QStringList>
#include <QVector>

class AUTH_INF;

/// One difference between two versions of a module item.
struct ItemChange
{
    enum Subject { Module, Mode, Parameter, Result, ExtraKey };
    enum Kind { Added, Removed, Renamed, Changed };

    Subject subject;
    QString name; ///< Of the mode, the parameter, the result or the extra key.
    Kind kind;
    /// Whether a project that was stored with the first version loses a value or its mode.
    bool loses;
    const char *property; ///< What has changed, to be translated; null for the whole.
    QString before; ///< Null where there was nothing, or nothing is to be said.
    QString after;
    QStringList modes; ///< Where it is so; empty where it is so in all modes of both versions.
};

/// All differences in what hosts and persons see of the items, in the order of the items.
QVector<ItemChange> itemDiff(const AUTH_INF &before, const AUTH_INF &after);

#endif

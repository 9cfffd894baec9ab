// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMTABLE_H
#define ITEMTABLE_H

#include <AUTH_INF>
#include <KeltoItemHints>
#include <VParameter>

/// One inner mode, a column of the table. Its hints hold what is known of each key.
struct ItemTableMode
{
    QString name; ///< Plain.
    QString title; ///< Translated, or else plain.
    QString description;
    KeltoItemHints hints;
};

/// One parameter or result, with the modes that take or give it.
struct ItemTableRow
{
    VParameter parameter;
    QString label; ///< What a person calls it: the label of the hints, or the translated key.
    QVector<bool> modes; ///< As many as the table has modes.
};

/// A module as people read it: modes across, parameters and results down. Rows of one sub-group are
/// neighbours; each key stands once, even where the item has it twice.
struct ItemTable
{
    QVector<ItemTableMode> modes;
    QVector<ItemTableRow> parameters;
    QVector<ItemTableRow> results;
    KeltoItemHints hints; ///< For all modes: all there is where an item has no modes.
};

/// The table of @p item, in the language of the program. Modes are those that have a name in the
/// list; an item without any has its results only.
ItemTable itemTable(const AUTH_INF &item);

/// The name of the sub-group for people: translated, or else plain.
QString groupTitle(const VParameter &parameter);

#endif

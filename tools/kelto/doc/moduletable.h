// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MODULETABLE_H
#define MODULETABLE_H

#include "itemtable.h"

/// A row of the printed table. What holds in every mode that has the row is said once, the rest
/// with the mode.
struct PrintedRow
{
    QString heading; ///< Above it, the name of its sub-group if it is the first of that.
    QString key;
    QString label;
    QString help;
    QVector<QStringList> cells; ///< Lines, for each column.
};

struct PrintedTable
{
    QStringList columns; ///< Symbol, unit and values, as far as there are any, then the modes.
    int modes = 0; ///< How many of the columns are modes.
    QVector<PrintedRow> rows;
};

/// In the cell of a mode that has the row, but no default for it.
QString usedMark();
/// In the cell of a mode that does not have the row.
QString unusedMark();

/// @p rows are the parameters or the results of @p table.
PrintedTable printedTable(const ItemTable &table, const QVector<ItemTableRow> &rows);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MODULETABLE_H
#define MODULETABLE_H

#include "itemtable.h"

/// A row of the printed table. What holds in every mode that has the row is said once, the rest
/// with the mode.
struct PrintedRow
{
    QString help;
    QStringList facts;
    QVector<QStringList> modes; ///< Lines; the default, or a mark, comes first.
};

/// In the cell of a mode that has the row, but no default for it.
QString usedMark();
/// In the cell of a mode that does not have the row.
QString unusedMark();

/// What stands above a row: the name of its sub-group, if it is the first of that. Rows without one
/// get a heading, too, unless they come first.
QString headingAbove(const QVector<ItemTableRow> &rows, int row);

PrintedRow printedRow(const ItemTable &table, const ItemTableRow &row);

#endif

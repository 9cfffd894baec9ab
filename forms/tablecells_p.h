// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TABLECELLS_P_H
#define TABLECELLS_P_H

#include "keltoparametermodel.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

class QLocale;

/// The columns of a table and what its cells hold, as TableCells takes them.
struct TableShape
{
    int columns;
    KeltoParameterModel::Kind cells;
};

/// The shape for several values with this object name. The words for single numbers are known for
/// several, too.
TableShape tableShapeOf(const QString &objectName);

/**
 * How the elements of a stored list are made of cells, and what a cell may hold.
 *
 * An array has no separators: its element is the cell. A point has one, so that all behind the
 * first "|" is y. Nothing here gives up what it does not understand: an element is only changed
 * where a cell of it is.
 */
class TableCells
{
    Q_DECLARE_TR_FUNCTIONS(KeltoTableEditor)

public:
    /// @param columns 1 for arrays, 2 for points, 0 for rows with a free number of cells.
    TableCells(int columns, KeltoParameterModel::Kind kind);

    bool isFree() const { return m_columns == 0; }
    bool isOfNumbers() const { return m_kind != KeltoParameterModel::Text; }
    /// Whether a text would not come apart into several cells.
    bool isOneCell(const QString &text) const;
    /// How many columns a table of these elements has, at least 1.
    int columnCount(const QStringList &elements) const;

    /// The cells of an element; for a point or a row there may be fewer than there are columns.
    QStringList split(const QString &element) const;
    /// @p element with another text in one cell, and empty cells before it where these are missing.
    QString withCell(const QString &element, int column, const QString &cell) const;
    /// A new element.
    QString emptyElement(int columnCount) const;

    /// @p elements with @p block from this cell on; rows and columns are added as needed.
    QStringList withBlock(const QStringList &elements, int row, int column,
                          const QVector<QStringList> &block) const;
    /// @p elements with an empty cell before this column where they have a cell on its left.
    QStringList withColumn(const QStringList &elements, int column) const;
    QStringList withoutColumn(const QStringList &elements, int column) const;

    /// A sentence on what is wrong with the cell of an element; empty when nothing is.
    QString problem(const QString &element, int column) const;
    /// The same for one cell that is to be stored.
    QString problem(const QString &cell) const;

    /// What is stored for a typed cell, and how a stored cell is shown.
    QString stored(const QString &typed, const QLocale &locale) const;
    QString shown(const QString &cell, const QLocale &locale) const;
    /// How an element is shown where it is one text.
    QString shownElement(const QString &element, const QLocale &locale) const;

private:
    QString numberProblem(const QString &cell) const;

    int m_columns;
    KeltoParameterModel::Kind m_kind;
};

#endif

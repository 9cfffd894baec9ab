// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TABLETEXT_P_H
#define TABLETEXT_P_H

#include "tablecells_p.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QVector>

/// The cells of a text, as they are to be stored, or what is wrong with it.
struct TableText
{
    QVector<QStringList> rows;
    bool hasHeadings = false; ///< The first line was left out as headings.
    QString problem; ///< For a person, one line for each cell; then there are no rows.
};

/**
 * Reads tables that come from other programs: all of it or nothing.
 *
 * Cells are divided by tabs, ";" or ",", whichever fits first: the table gets as many columns as it
 * takes, and numbers where it holds numbers. Texts from the clipboard are divided by tabs only. So
 * "1,5" is one number where "," is the decimal sign, and two where it is not. Where nothing fits,
 * the problems are those of the first separator that there is.
 */
class TableTextReader
{
    Q_DECLARE_TR_FUNCTIONS(KeltoTableEditor)

public:
    /// @param width how many columns there may be; 0 for any number of them.
    TableTextReader(const TableCells &cells, int width, const QLocale &locale);

    /// A block from the clipboard, as wide as its widest row.
    TableText readBlock(const QString &text) const;
    /// A whole file, exactly as wide as the table, maybe with a line of headings.
    TableText readFile(const QByteArray &bytes) const;

private:
    TableText read(const QString &text, bool isFile) const;
    TableText check(QVector<QStringList> rows, bool isFile) const;
    QString problemsOf(const QVector<QStringList> &rows, bool hasHeadings) const;
    QString problemOf(const QString &cell, int column) const;
    QVector<QChar> separatorsOf(const QString &text, bool isFile) const;
    bool isHeadings(const QVector<QStringList> &rows) const;
    bool isNumber(const QString &cell) const;

    TableCells m_cells;
    int m_width;
    QLocale m_locale;
};

#endif

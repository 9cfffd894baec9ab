// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef DELIMITEDTEXT_P_H
#define DELIMITEDTEXT_P_H

#include <QString>
#include <QStringList>
#include <QVector>

/**
 * Tables as texts, one line per row: CSV files, and what spreadsheets copy and paste.
 *
 * A cell may stand in quotation marks; it then holds separators, line breaks, and each quotation
 * mark twice.
 */
namespace DelimitedText {

/// The cells of each row. Any line end will do, and the last one starts no further row. A quotation
/// mark inside a cell that does not begin with one stands for itself. With a line break as
/// separator each row is one cell.
QVector<QStringList> read(const QString &text, QChar separator);

/// Whether @p separator divides cells anywhere in @p text.
bool isDivided(const QString &text, QChar separator);

/// One line per row, each with @p lineEnd. Only cells that need it are quoted.
QString write(const QVector<QStringList> &rows, QChar separator, const QString &lineEnd);

} // namespace DelimitedText

#endif

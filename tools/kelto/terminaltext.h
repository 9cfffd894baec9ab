// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TERMINALTEXT_H
#define TERMINALTEXT_H

#include <QString>
#include <QStringList>
#include <QVector>

/// The width that texts for a terminal keep to where they can.
constexpr int terminalWidth = 80;

/// How many columns of a terminal a text takes: two for each Chinese character, none for a
/// combining one.
int columnsOf(const QString &text);

/// With spaces behind it, up to @p width columns.
QString paddedTo(const QString &text, int width);

/// In lines of at most @p width columns, divided where a language allows it; a word that is longer
/// stays whole. An empty text has no line.
QStringList wrappedAt(const QString &text, int width);

/// Each line wrapped at the width of a terminal, but those that begin with a space.
QString wrappedText(const QString &text);

/// Rows of cells below each other, two spaces apart; a cell that is wider than @p widest says of
/// its place in the row, or than its last element from there on, takes several lines, which are
/// indented as the first. Every line ends with "\n".
QString textTable(const QVector<QStringList> &rows, const QVector<int> &widest);

/// On one line and without what a terminal would obey: line ends and tabs become spaces, other
/// control characters the sign for what cannot be shown.
QString printable(QString text);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMTEXT_H
#define ITEMTEXT_H

#include <QString>

class AUTH_INF;
struct ItemTable;

/// The item as text for a terminal: what it is, its modes, its parameters and results in tables,
/// and notes on them. @p path is that of its file.
QString itemText(const AUTH_INF &item, const ItemTable &table, const QString &path);

#endif

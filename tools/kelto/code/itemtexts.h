// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMTEXTS_H
#define ITEMTEXTS_H

#include <QStringList>

class AUTH_INF;

/// All texts of an item that are looked up in its translation context, those of its hints included;
/// each once, in order, and no empty ones.
QStringList translatedTexts(const AUTH_INF &item);

#endif

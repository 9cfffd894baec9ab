// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMREGISTRY_H
#define ITEMREGISTRY_H

#include "itemfile.h"

#include <AUTH_SET>

#include <QStringList>
#include <QVector>

class Console;

/// The item files at @p paths, which may be directories. Complains about what is not there,
/// cannot be read or holds no module, and tells in @p areAllRead whether there was no such thing.
QVector<ItemFile> readItemFiles(const QStringList &paths, Console &console, bool *areAllRead);

/// The registry of the application @p name with these @p items. Nothing is written, unlike
/// by a registry that is made with its items.
AUTH_SET registryOf(const QString &name, const QVector<AUTH_INF> &items);

#endif

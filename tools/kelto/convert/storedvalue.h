// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef STOREDVALUE_H
#define STOREDVALUE_H

#include <QStringList>
#include <QVariant>

// Values of any type as an INI file holds them.

/// The elements that QSettings writes for @p value; empty where it cannot be stored.
QStringList storedElements(const QVariant &value);

/// What QSettings reads from these elements; invalid where that would not be safe.
QVariant valueOfStored(const QStringList &elements);

#endif

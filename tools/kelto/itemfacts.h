// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMFACTS_H
#define ITEMFACTS_H

#include <QStringList>

class KeltoItemHints;
class VParameter;

/// The default as a person reads it, with labels in place of values that have one; several values
/// are joined by "; ". Empty without a default.
QString defaultText(const KeltoItemHints &hints, const QString &key);

/// What the hints say about a parameter or a result apart from its default and its help: limits,
/// choices, whether it may stay empty, when it counts. Short lines for a person.
QStringList factsOf(const KeltoItemHints &hints, const VParameter &parameter);

#endif

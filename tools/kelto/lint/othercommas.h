// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef OTHERCOMMAS_H
#define OTHERCOMMAS_H

#include "lint/filefindings.h"
#include "lint/lintitem.h"

// What is written where only a comma of ASCII outside of quotes divides a list: full-width commas,
// "|" and the like, or quotes around the whole list.

/// The elements of a list if these characters divided it, too.
QStringList dividedAnyhow(const QStringList &elements);

/// The names of the modes. The count tells whether they are divided by another character.
QStringList modesOf(const LintItem &item);

/// Adds the finding at the first of them in the value of @p key.
void addOtherComma(const ItemFileKey &key, FileFindings *findings);

#endif

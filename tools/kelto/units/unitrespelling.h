// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef UNITRESPELLING_H
#define UNITRESPELLING_H

#include <QStringList>

/// What may have been meant by the unit @p text: with other capital letters, as "MPa" for "Mpa", or
/// with another unit that has the same symbol, as "gn", the standard gravity, for "g", the gram.
/// The likely ones come first; all are spelt so that they have one meaning.
QStringList unitsMeantBy(const QString &text);

#endif

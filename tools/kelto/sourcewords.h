// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SOURCEWORDS_H
#define SOURCEWORDS_H

#include <QString>

/// Whether an identifier means something in C++, to Qt's moc or in the source text of an item, or
/// is of the kind that C++ keeps for compilers.
bool isReservedWord(const QString &identifier);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FORMAT_H
#define FORMAT_H

#include "format/document.h"

/// The @p bytes of an item file in the library's order and spelling. What is read from them stays
/// the same, and so do they when they are formatted again. Null bytes with an @p error where that
/// is not possible.
QByteArray formatted(const QByteArray &bytes, DocumentError *error);

#endif

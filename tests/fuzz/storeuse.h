// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef STOREUSE_H
#define STOREUSE_H

#include "fuzzing.h"

/// What a host does with a settings store: a file that holds @p bytes is read, looked up, changed,
/// saved, and read again.
void useStore(const QByteArray &bytes);

#endif

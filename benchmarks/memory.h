// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MEMORY_H
#define MEMORY_H

#include <iosfwd>

/// Prints how much memory a loaded settings store takes, beside the list of its pairs alone. Prints
/// nothing where the C library does not tell.
void printMemoryTable(std::ostream &out);

#endif

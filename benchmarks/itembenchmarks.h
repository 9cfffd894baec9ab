// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMBENCHMARKS_H
#define ITEMBENCHMARKS_H

class Suite;

/// Module items in files and as source text, and the check of entered values.
void addItemBenchmarks(Suite &suite);

#endif

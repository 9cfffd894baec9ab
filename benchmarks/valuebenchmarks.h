// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef VALUEBENCHMARKS_H
#define VALUEBENCHMARKS_H

class Suite;

/// The values and the parameter lists of a registry.
void addValueBenchmarks(Suite &suite);

#endif

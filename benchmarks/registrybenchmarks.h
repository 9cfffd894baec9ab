// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef REGISTRYBENCHMARKS_H
#define REGISTRYBENCHMARKS_H

class Suite;

/// Building and growing registries and asking them about modules, groups and modes.
void addRegistryBenchmarks(Suite &suite);

#endif

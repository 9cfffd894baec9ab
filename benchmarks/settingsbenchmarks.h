// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSBENCHMARKS_H
#define SETTINGSBENCHMARKS_H

class Suite;

/// Settings stores in memory.
void addSettingsBenchmarks(Suite &suite);

#endif

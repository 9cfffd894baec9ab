// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INNERMODELIMIT_P_H
#define INNERMODELIMIT_P_H

/// Loops over inner modes end here at the latest: AUTH_INF::inner_mode_count can be any number.
constexpr int mostInnerModes = 1000000;

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INNERMODELIMIT_P_H
#define INNERMODELIMIT_P_H

/// After this many inner modes everything ends that would go on for as long as
/// AUTH_INF::inner_mode_count says: nothing keeps that number sensible.
constexpr int mostInnerModes = 1000000;

#endif

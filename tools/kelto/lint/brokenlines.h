// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef BROKENLINES_H
#define BROKENLINES_H

#include <QString>

#include <string_view>

/// The section whose header @p line, which is none, most likely was to be: "Symbol]" lacks the "[",
/// and "Symbol" both brackets. Empty when it is not similar to one.
QString meantHeader(std::string_view line);

#endif

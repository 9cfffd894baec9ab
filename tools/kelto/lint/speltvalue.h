// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SPELTVALUE_H
#define SPELTVALUE_H

#include <QVector>

#include <string_view>
#include <vector>

/// One element of a value as it is spelt, without the white space around it.
struct SpeltElement
{
    std::string_view text;
    bool hasQuotes = false;
    int blanksBefore = 0; ///< On the line on which the element begins.
    int blanksBehind = 0;
    bool beginsLine = false;
};

/// How a value is spelt, as far as it is lost in what the reader makes of it.
struct SpeltValue
{
    std::vector<SpeltElement> elements; ///< At least one.
    int size() const { return static_cast<int>(elements.size()); }
    const SpeltElement &at(int index) const { return elements[static_cast<std::size_t>(index)]; }

    const char *comma = nullptr; ///< The first outside of quotes.
    /// Outside of quotes: escapes that stand for another character.
    QVector<const char *> escapes;
    /// Backslashes that join two lines elsewhere than behind a comma.
    QVector<const char *> joints;
    /// Opening quotes without a closing one on the same line.
    QVector<const char *> longQuotes;
};

/// @p value is all that stands between "=" and the end of the line.
SpeltValue speltValueOf(std::string_view value);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INISYNTAX_P_H
#define INISYNTAX_P_H

#include <QByteArray>

#include <optional>

// How QSettings reads characters of an INI file.

inline bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

inline bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

/// Whether two different characters at @p at are one line end together.
inline bool isLineEndOfTwo(const QByteArray &bytes, int at)
{
    return at + 1 < bytes.size() && isLineEnd(bytes.at(at)) && isLineEnd(bytes.at(at + 1))
        && bytes.at(at) != bytes.at(at + 1);
}

/// What @p letter means behind a backslash, where it stands for one character.
inline std::optional<char> escapedLetter(char letter)
{
    static const QByteArray letters("abfnrtv\"?'\\");
    static const QByteArray meanings("\a\b\f\n\r\t\v\"?'\\");
    const int index = letters.indexOf(letter);
    return index < 0 ? std::nullopt : std::optional<char>(meanings.at(index));
}

/// The digit that @p c is in numbers of @p base; -1 when it is none.
inline int digitOf(char c, int base)
{
    const int digit = c >= 'a' ? c - 'a' + 10 : c >= 'A' ? c - 'A' + 10 : c - '0';
    const bool isDigit = (c >= '0' && c <= '9') || c >= 'A';
    return isDigit && digit < base ? digit : -1;
}

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef TYPEDTEXT_P_H
#define TYPEDTEXT_P_H

#include <QString>
#include <QVariant>

#include <string_view>

// QSettings stores what is not text as a text such as "@Point(1 2)". Behind "@Variant(" come the
// bytes that QDataStream makes of the value.

/// Whether it is unsafe to let Qt read @p text, one element of a value. Pixmaps, and what may
/// contain them, are safe in programs with windows only.
bool isUnsafe(const QString &text);

/// Whether reading @p text, which is not unsafe, gives less than QSettings has written.
bool isDamaged(const QString &text);

/// Whether @p bytes, a value as it is spelt or a whole file, may hold a text that is unsafe. Others
/// need not be decoded.
bool mayHoldSerialised(std::string_view bytes);

/// Whether QSettings can store @p value. With a pointer, for one, it would write rubbish and print
/// a warning; a time in a time zone that does not exist would crash it.
bool isStorable(const QVariant &value);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SERIALISEDVALUE_P_H
#define SERIALISEDVALUE_P_H

#include <QByteArray>
#include <QDataStream>

// Values as QDataStream of Qt 4 wrote them, which QSettings still does. Qt's readers trust what
// they read: wrong bytes can crash them, keep them busy for minutes, or nest values until the stack
// overflows. Time and memory of these checks grow with the number of bytes only.

constexpr QDataStream::Version variantVersion = QDataStream::Qt_4_0;

/// No program stores values nested deeper than this. Reading and storing them takes a few hundred
/// bytes of the stack for each level.
constexpr int deepestLevel = 1000;

/// Whether it is safe to let Qt read a QVariant from @p bytes. Pixmaps, and what may contain them,
/// are safe in programs with windows only.
bool isSafeVariant(const QByteArray &bytes);

/// The same for a value of @p type, which @p bytes do not name, inside of @p level others.
bool isSafeValue(int type, const QByteArray &bytes, int level);

#endif

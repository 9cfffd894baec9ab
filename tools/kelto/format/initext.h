// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INITEXT_H
#define INITEXT_H

#include <QByteArray>
#include <QStringList>

// Keys and values spelt so that QSettings reads them back as they are, and a person reads them
// easily: only what would be read as something else is escaped or quoted.

/// The name of a key.
QByteArray spelledKey(const QString &key);

/// The header of the section @p name; an empty name stands for keys without a section.
QByteArray spelledHeader(const QString &name);

/// @p text as an element of a value: QSettings takes what begins with one "@" for another type.
QString storedText(const QString &text);

/// A text, or the elements of a list. A list of long texts takes a line for each.
/// @param column how much of the line is used already.
QByteArray spelledValue(const QStringList &elements, int column);

#endif

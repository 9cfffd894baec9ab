// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef NUMBERTEXT_P_H
#define NUMBERTEXT_P_H

#include <QString>

class QLocale;

/**
 * Numbers as texts: stored in the C locale with "." as decimal sign, and as a person reads and
 * types them in another one. No digit is added, dropped or rounded.
 *
 * Groups of digits are never guessed at. "." and the locale's own decimal sign are both decimal
 * signs, and the group separator is none: in German "1.234" is stored as "1.234" and then shown as
 * "1,234", and "1.234,5" is no number.
 */
namespace NumberText {

/// Whether @p text is a number in the C locale: decimal, with or without an exponent.
bool isNumber(const QString &text);

/// What is stored for a typed text: the number, or the text itself where it is none.
QString stored(const QString &typed, const QLocale &locale);

/// How a stored text is shown: a text that is no number as it is.
QString shown(const QString &stored, const QLocale &locale);

} // namespace NumberText

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ININESTING_P_H
#define ININESTING_P_H

#include <QByteArray>

/// Shorter files are not deep: a level takes some eight bytes of a file and a few hundred on the
/// stack.
constexpr int smallestDeepFile = 16 * 1024;

/**
 * Whether some value in the @p bytes of an INI file holds lists in lists so deep that QSettings,
 * which follows them call by call, would come to the end of the stack. No program stores such
 * values; a file that has one must not be given to QSettings at all.
 */
bool nestsTooDeep(const QByteArray &bytes);

#endif

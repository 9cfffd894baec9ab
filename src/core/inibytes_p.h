// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INIBYTES_P_H
#define INIBYTES_P_H

#include <QByteArray>
#include <QSettings>

/**
 * Whether everything that the @p bytes of an INI file say is still there after @p settings, which
 * has read them, has written them again. White space and byte order marks say nothing.
 *
 * QSettings reads leniently and without a word: comments, lines without "=", sections without keys,
 * what stands behind a ";" or a "]", all but the last value of a key, unknown escapes and values of
 * unknown types are dropped. Where it is hard to tell the answer is no.
 */
bool survivesRewriting(const QByteArray &bytes, const QSettings &settings);

#endif

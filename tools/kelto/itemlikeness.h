// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMLIKENESS_H
#define ITEMLIKENESS_H

class QByteArray;

/// Whether the bytes are UTF-16, as some editors save. The library reads nothing from them.
bool isUtf16(const QByteArray &bytes);

/// Whether a section or a key is one of an item or nearly, or there is none, as in a file that a
/// mistyped path has left behind. Sections with the names of everyday, such as those in which
/// values are stored, do not count.
bool isLikeItem(const QByteArray &bytes);

#endif

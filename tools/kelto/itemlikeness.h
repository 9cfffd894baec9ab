// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMLIKENESS_H
#define ITEMLIKENESS_H

class QByteArray;

/// Whether the bytes are UTF-16, as some editors save. The library reads nothing from them.
bool isUtf16(const QByteArray &bytes);

/// Whether a section or a key is one of an item, or nearly. A file with neither counts as well,
/// since a mistyped path leaves such a file behind. Sections that other files have, too, such as
/// those of stored values, do not count.
bool isLikeItem(const QByteArray &bytes);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "deepinputs.h"

namespace {

/// A file with one value of @p depth times @p level, each byte as an escape.
QByteArray fileOf(const char *opening, const QByteArray &level, int depth)
{
    QByteArray escaped;
    for (const char byte : level)
        escaped += "\\x" + QByteArray::number(static_cast<uchar>(byte), 16);
    return QByteArray("[KeltoItem]\nname=") + opening + escaped.repeated(depth) + ")\n";
}

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

} // namespace

QVector<DeepInput> deepInputs()
{
    // @Variant is a stream of Qt 4.0, @DateTime one of Qt 5.6, with one byte more behind each type.
    const char *const qt4 = "@Variant(";
    const char *const qt5 = "@DateTime(";
    return {
        { "variants in variants", fileOf(qt4, hex("0000008a"), 30000) },
        { "variants in variants by the number of Qt 5", fileOf(qt4, hex("00000029"), 30000) },
        { "variants in variants by name",
          fileOf(qt4, hex("0000007f 00000009 515661726961 6e7400"), 30000) },
        { "variants in a time", fileOf(qt5, hex("0000002900"), 30000) },
        { "text formats in text formats",
          fileOf(qt4, hex("0000004f 00000002 00000001 00100000"), 20000) },
        { "text formats in text formats in a time",
          fileOf(qt5, hex("0000004e00 00000002 00000001 00100000"), 20000) },
        { "lists in lists", fileOf(qt4, hex("00000009 00000001"), 30000) },
        { "maps in maps", fileOf(qt4, hex("00000008 00000001 00000000"), 30000) },
        { "hashes in hashes", fileOf(qt4, hex("0000001c 00000001 00000000"), 30000) },
    };
}

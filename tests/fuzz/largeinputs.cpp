// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "largeinputs.h"

namespace {

QByteArray fileOf(const QByteArray &value)
{
    return "[KeltoItem]\nname=" + value + "\n";
}

QByteArray escaped(const QByteArray &bytes)
{
    QByteArray escapes;
    for (const char byte : bytes)
        escapes += "\\x" + QByteArray::number(static_cast<uchar>(byte), 16);
    return escapes;
}

/// A file with a value that repeats the bytes of one level.
QByteArray deepFile(const char *opening, const QByteArray &level, int depth)
{
    return fileOf(opening + escaped(level).repeated(depth) + ")");
}

/// A file with a long text around a value that could not be read.
QByteArray longFile(const char *opening, const QByteArray &bytes)
{
    const QByteArray text(20000, 'x');
    return fileOf(text + opening + escaped(bytes) + ")" + text);
}

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

} // namespace

QVector<LargeInput> largeInputs()
{
    // @Variant is a stream of Qt 4.0, @DateTime one of Qt 5.6, with one byte more behind each type.
    const char *const qt4 = "@Variant(";
    const char *const qt5 = "@DateTime(";
    return {
        { "variants in variants", deepFile(qt4, hex("0000008a"), 30000) },
        { "variants in variants by the number of Qt 5", deepFile(qt4, hex("00000029"), 30000) },
        { "variants in variants by name",
          deepFile(qt4, hex("0000007f 00000009 5156617269616e7400"), 30000) },
        { "variants in a time", deepFile(qt5, hex("0000002900"), 30000) },
        { "text formats in text formats",
          deepFile(qt4, hex("0000004f 00000002 00000001 00100000"), 20000) },
        { "text formats in text formats in a time",
          deepFile(qt5, hex("0000004e00 00000002 00000001 00100000"), 20000) },
        { "lists in lists", deepFile(qt4, hex("00000009 00000001"), 30000) },
        { "maps in maps", deepFile(qt4, hex("00000008 00000001 00000000"), 30000) },
        { "hashes in hashes", deepFile(qt4, hex("0000001c 00000001 00000000"), 30000) },
        { "a polygon inside of a text", longFile(qt4, hex("00000047 0fffffff")) },
        { "a time inside of a text",
          longFile(qt5, hex("00000010 00 00006f4b00ff00ff d5010080 ff")) },
    };
}

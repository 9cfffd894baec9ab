// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef HOSTILEBYTES_H
#define HOSTILEBYTES_H

#include "support/randomitems.h"

#include <QByteArray>
#include <QMetaType>
#include <QVector>

// Files that no program has written. The words "kq1z", "kq2z" and so on in them are there to be
// found again.

using BytesMaker = QByteArray (*)(Dice *dice);
Q_DECLARE_METATYPE(BytesMaker)

/// What in a file means something to QSettings.
inline QByteArray pieceOfSyntax(Dice *dice)
{
    static const QVector<QByteArray> pieces { "\n",          "\n",          "\n",
                                              "\n",          "=",           "=",
                                              "=",           "[",           "]",
                                              "[s]",         "[General]\n", "[%General]",
                                              ";",           "#",           "\"",
                                              "\"",          "\\",          "\\x",
                                              "\\0",         "\\101",       "\\n",
                                              "\\\n",        ",",           ", ",
                                              " ",           "\t",          "\r\n",
                                              "\n\r",        "\r",          "%",
                                              "%20",         "%U4E",        "%U4E00",
                                              "%2F",         "%-1",         "% 1",
                                              "%0x",         "/",           "\\\\",
                                              "@",           "@@",          ")",
                                              "@ByteArray(", "值",          "\xc3",
                                              "\xff",        "=a\n",        "=b, c\n",
                                              "@Invalid()",  "\v",          "\xef\xbb\xbf",
                                              "[s]\n",       "@Point(1 2)", "\xf0\x9f\x98\x80" };
    return pieces.at(dice->between(0, pieces.size() - 1));
}

inline QByteArray anyCharacter(Dice *dice)
{
    return QByteArray(1, char(dice->between(0, 127)));
}

/// Some values that are made of these, with a mark around any of them. Of such files, QSettings
/// takes over a fair part.
inline QByteArray valuesOf(QByteArray (*piece)(Dice *dice), Dice *dice)
{
    QByteArray bytes;
    int mark = 0;
    const auto nextMark = [&mark] { return QByteArray("kq" + QByteArray::number(++mark) + 'z'); };
    for (int i = dice->between(1, 3); i > 0; --i) {
        bytes += "key" + QByteArray::number(i) + '=' + nextMark();
        for (int j = dice->between(0, 3); j > 0; --j)
            bytes += piece(dice) + nextMark();
        bytes += '\n';
    }
    return bytes;
}

/// A file made of pieces of syntax, with a mark between many of them.
inline QByteArray hostileBytes(Dice *dice)
{
    if (dice->chance(50))
        return valuesOf(pieceOfSyntax, dice);
    QByteArray bytes = dice->chance(10) ? "\xef\xbb\xbf" : "";
    for (int i = dice->between(0, 25); i > 0; --i) {
        bytes += pieceOfSyntax(dice);
        if (dice->chance(5))
            bytes += '\0';
        if (dice->chance(70))
            bytes += "kq" + QByteArray::number(i) + "z";
    }
    return bytes;
}

/// A proper file in which a few bytes have changed, or of which the end is missing.
inline QByteArray damagedBytes(Dice *dice)
{
    QByteArray bytes = "[General]\nkq1z=1\n\n[kq2z]\nkq3z=\"kq4z, kq5z\"\nkq6z=kq7z, kq8z\n"
                       "kq9z\\kq10z=@ByteArray(kq11z\\0)\n\n[%U503C]\n%U540D=kq12z \xe5\x80\xbc\n";
    for (int i = dice->between(0, 4); i > 0; --i)
        bytes[dice->between(0, bytes.size() - 1)] = char(dice->between(0, 255));
    if (dice->chance(40))
        bytes.truncate(dice->between(0, bytes.size()));
    return bytes;
}

/// @p bytes with some pieces changed, inserted, duplicated or removed.
inline QByteArray mutated(QByteArray bytes, Dice *dice)
{
    for (int i = dice->between(1, 6); i > 0 && !bytes.isEmpty(); --i) {
        const int begin = dice->between(0, bytes.size() - 1);
        const int length = dice->between(1, dice->chance(80) ? 4 : 200);
        switch (dice->between(0, 4)) {
        case 0:
            bytes.remove(begin, length);
            break;
        case 1:
            bytes.insert(begin, bytes.mid(dice->between(0, bytes.size() - 1), length));
            break;
        case 2:
            bytes[begin] = char(dice->between(0, 255));
            break;
        case 3:
            bytes.truncate(dice->chance(90) ? bytes.size() : begin);
            break;
        default:
            bytes.insert(begin, pieceOfSyntax(dice));
        }
    }
    return bytes;
}

inline QByteArray anyBytes(Dice *dice)
{
    if (dice->chance(50))
        return valuesOf(anyCharacter, dice);
    QByteArray bytes;
    for (int i = dice->between(0, 300); i > 0; --i)
        bytes += char(dice->between(0, 255));
    return bytes;
}

#endif

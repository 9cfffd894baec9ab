// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INIPROBLEMS_P_H
#define INIPROBLEMS_P_H

#include "core/inireader_p.h"

#include <QVector>

/// Something in an INI file that QSettings passes over without a word.
struct IniProblem
{
    enum Kind {
        DroppedComment, ///< Behind a ";", or a line that begins with "#", even if it has a key.
        NoEqualsSign,
        BrokenHeader, ///< With text behind it, or without "]".
        EmptySection, ///< Not written again, but nothing is lost with it.
        DuplicateKey, ///< Only one of the values counts; otherLine has the first.
        UnreadableKey, ///< A superfluous "/" keeps it from being read or set.
        ByteOrderMark, ///< Becomes part of the first key.
        BadEscape,
        NotUtf8,
        DroppedCharacter, ///< A quote inside of a text, or what QSettings reads but cannot write.
        DamagedValue, ///< Not text, and not what QSettings has written either.
        UnsafeValue, ///< Nested too deep, or bytes that could end the program.
    };

    Kind kind;
    IniPosition position;
    int otherLine = 0;
};

/// Every problem in the @p bytes of an INI file, from front to back.
QVector<IniProblem> iniProblems(const QByteArray &bytes);

/// Whether one of the problems is an UnsafeValue. This costs much less than the whole list.
bool hasUnsafeIniValue(const QByteArray &bytes);

#endif

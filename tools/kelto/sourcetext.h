// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SOURCETEXT_H
#define SOURCETEXT_H

#include <AUTH_INF>

#include <QString>
#include <QVector>

// AUTH_INF::to_code() escapes nothing, so that any text of an item could become code of the host
// that compiles it. What is named here never gets into generated source text.

/// Something in an item that generated source text would change, lose or run.
struct SourceTextProblem
{
    enum Reason {
        DoubleQuote,
        Backslash,
        LineBreak,
        ControlCharacter, ///< Any other but the tabulator.
        Trigraph, ///< Two question marks and a character with which they may mean another one.
        TextDirection, ///< A character that makes source text read in another order than it has.
        BrokenCharacter, ///< Half a surrogate pair, which UTF-8 cannot hold.
        LeadingZero, ///< Reads as a number, and would be an octal one or none.
        LargeNumber, ///< Beyond 32 bits, or too small for a double.
        NoNumber, ///< Reads as a number in another way than in C++, such as "inf".
        NoText, ///< A value that is a list or of a type that becomes an empty text.
        NoIdentifier,
        ReservedName, ///< An identifier that means something already.
        ModeCount, ///< Other than there are modes.
        NoCalculation, ///< Parameters or results in an item of another type, which are not written.
    };

    QString section; ///< As in an item file, with the key below.
    QString key;
    QString text;
    Reason reason;
};

/// All of them, in the order of the fields; a text that occurs several times under one key is there
/// once, with the first reason. An item without any compiles to the item that it was, but for its
/// translated fields and for extra keys that become numbers.
QVector<SourceTextProblem> sourceTextProblems(const AUTH_INF &item);

/// Why, as the end of a sentence that begins with the text: "holds a double quote".
QString reasonText(SourceTextProblem::Reason reason);

/// Whether @p text can be the name of a function or a namespace: letters and digits of ASCII and
/// underscores, and no word that C++, Qt or generated text uses.
bool isFreeIdentifier(const QString &text);

/// Whether @p text can be the name of a class whose tr() is called; it may be qualified by "::".
bool isFreeContext(const QString &text);

/// Any text as a string literal of C++, with escapes; half a surrogate pair becomes "?".
QString stringLiteral(const QString &text);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INIREADER_P_H
#define INIREADER_P_H

#include <QByteArray>
#include <QStringList>
#include <QVector>

#include <string_view>

// How QSettings of Qt 5 reads an INI file in UTF-8. Values for a host come from QSettings; this
// tells what QSettings will make of a file, and what it will make nothing of.

/// Something in an INI file that QSettings passes over without a word.
struct IniProblem
{
    enum Kind {
        DroppedComment, ///< Behind a ";", or a line that begins with "#", even if it has a key.
        NoEqualsSign,
        BrokenHeader, ///< With text behind it, or without "]".
        EmptySection, ///< Not written again, but nothing is lost with it.
        DuplicateKey, ///< Only the last value counts; otherLine has the first.
        UnreadableKey, ///< Its value cannot be asked for, or is lost when it is written.
        ByteOrderMark, ///< Part of the first key.
        BadEscape,
        NotUtf8,
        DroppedCharacter, ///< A quote inside of a text, or what QSettings reads but cannot write.
        DamagedValue, ///< Not text, and not what QSettings has written either.
        UnsafeValue, ///< Nested too deep, or bytes that could end the program.
    };

    Kind kind;
    int line; ///< Counts from 1.
    int column; ///< Counts characters, from 1.
    int otherLine = 0;
};

/// One line, as QSettings divides a file: it ends at a ";" or a line end outside of quotes.
struct IniLine
{
    enum Kind { Comment, Section, Entry, Other };

    Kind kind = Other;
    int number = 1;
    int column = 1;
    /// The line without white space in front; key and value are parts of it, spelt as they are.
    std::string_view text;
    std::string_view key; ///< Of a section its name.
    std::string_view value; ///< Of a section what stands behind it.
};

/// Walks along the lines of the bytes that it is given, which have to outlive it.
class IniReader
{
public:
    /// @param problems takes in what is found in the lines and the texts that are asked for.
    explicit IniReader(const QByteArray &bytes, QVector<IniProblem> *problems = nullptr);

    /// Moves on to the next line that is not empty; false behind the last.
    bool next();
    const IniLine &line() const { return m_line; }

    /// The key of an entry with its section in front, as QSettings::allKeys() gives it.
    QString key() const;
    /// The value of an entry: one text, or the elements of a list. Texts that stand for values of
    /// other types are left as they are.
    QStringList elements() const;

    /// Notes a problem at @p at, a place in the line.
    void report(IniProblem::Kind kind, const char *at) const;

private:
    struct Place
    {
        const char *at;
        int line = 1;
        int column = 1;
    };
    void moveTo(const char *at, Place *place) const;
    void takeLine();
    void enterSection();
    void checkLine();

    const char *const m_begin;
    const char *const m_end;
    const char m_lineEnd;
    const char *m_at;
    IniLine m_line;
    QString m_section;
    QVector<IniProblem> *const m_problems;
    Place m_start;
    /// Where the last problem was, from which the way to the next is short.
    mutable Place m_reported;
};

/// Every problem in the @p bytes of an INI file, by line and column.
QVector<IniProblem> iniProblems(const QByteArray &bytes);

/// Whether one of the problems is an UnsafeValue, which costs much less to tell.
bool hasUnsafeIniValue(const QByteArray &bytes);

#endif

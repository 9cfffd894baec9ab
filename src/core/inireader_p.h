// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INIREADER_P_H
#define INIREADER_P_H

#include "core/settingstext_p.h"

#include <QByteArray>

#include <string_view>

// How QSettings of Qt 5 reads an INI file in UTF-8. Hosts get their values from QSettings; this
// reader finds out what QSettings will make of a file, and what it will drop.

/// One line, as QSettings divides a file: it ends at a ";" or a line end outside of quotes.
struct IniLine
{
    enum Kind { Comment, Section, Entry, Other };

    Kind kind = Other;
    /// The line without white space in front; key and value are parts of it, spelt as they are.
    std::string_view text;
    std::string_view key; ///< Of a section its name.
    std::string_view value; ///< Of a section what stands behind it.
};

/// A place in a file. Both numbers count from 1, the column counts characters.
struct IniPosition
{
    int line = 1;
    int column = 1;
};

/// Reads the lines one after the other of the bytes that it is given, which have to outlive it.
class IniReader
{
public:
    explicit IniReader(const QByteArray &bytes);

    /// Moves on to the next line that is not empty; false when there is none.
    bool next();
    const IniLine &line() const { return m_line; }

    /// The key of an entry.
    SettingsKey key() const { return { m_section, m_line.key }; }
    KeyTraits keyTraits() const { return key().traits(m_sectionTraits); }

    /// Line and column of @p place in the bytes. Cheap when it lies behind the place that was asked
    /// for last.
    IniPosition positionAt(const char *place);

private:
    void takeLine();
    void enterSection();

    const char *const m_begin;
    const char *const m_end;
    const char m_lineEnd;
    const char *m_at;
    IniLine m_line;
    std::string_view m_section;
    KeyTraits m_sectionTraits;
    const char *m_counted;
    IniPosition m_position;
};

#endif

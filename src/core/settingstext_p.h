// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSTEXT_P_H
#define SETTINGSTEXT_P_H

#include <QByteArray>
#include <QStringList>

#include <string_view>
#include <vector>

// Keys and values as QSettings of Qt 5 spells them in an INI file in UTF-8.

inline bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

inline bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

/// The place behind the line end at @p at. A pair of two different characters is one line end.
inline const char *behindLineEnd(const char *at, const char *end)
{
    const bool isPair = at + 1 < end && isLineEnd(at[0]) && isLineEnd(at[1]) && at[0] != at[1];
    return at + (isPair ? 2 : 1);
}

inline std::string_view textBetween(const char *begin, const char *end)
{
    return { begin, static_cast<std::size_t>(end - begin) };
}

bool isUtf8(const QByteArray &bytes);

/// The first byte of @p text that is not UTF-8; its end when all of it is.
const char *firstInvalidByte(std::string_view text);

/// Whether two names in headers are the same but for the case of their letters.
bool isSameName(std::string_view a, std::string_view b);

/// What the characters of a key tell about it, one after the other.
class KeyTraits
{
public:
    KeyTraits();
    void add(QChar character);

    /// The same for all spellings of a key.
    quint64 hash() const { return m_hash; }
    /// Whether QSettings can look up the value of the key, and writes the key so that it reads the
    /// same one again. A "/" in front, at the end or behind another one can prevent both.
    bool isReadable() const;

private:
    quint64 m_hash;
    int m_slashes = 0;
    bool m_endsWithSlash = true; ///< As if one stood in front of the key.
    bool m_isSuperfluous = false;
};

/// A key as it is spelt in a file, with the section that it stands in.
struct SettingsKey
{
    /// The key as QSettings::allKeys() gives it.
    QString text() const;
    /// What the whole key tells, given what its section does.
    KeyTraits traits(KeyTraits ofSection) const;
    static KeyTraits traitsOfSection(std::string_view section);

    std::string_view section; ///< A null pointer for keys without a section.
    std::string_view name;
};

/// What is wrong with the spelling of a value, and where.
struct Misspelling
{
    enum Kind { BadEscape, DroppedCharacter };

    Kind kind;
    const char *at;
};

/// What QSettings makes of @p value, the value of an entry: one text, or the elements of a list.
/// Texts that stand for values of other types are left as they are.
/// @param misspellings gets everything that is lost in the texts.
QStringList elementsOfValue(std::string_view value,
                            std::vector<Misspelling> *misspellings = nullptr);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/inireader_p.h"

#include <algorithm>
#include <array>

namespace {

bool isSpace(char c)
{
    return isBlank(c) || isLineEnd(c);
}

/// For each character whether it has a meaning in keys and values, so that the others can be passed
/// over quickly.
constexpr std::array<bool, 256> specialCharacters()
{
    std::array<bool, 256> special {};
    for (const char c : { '\n', '\r', '"', ';', '=', '\\' })
        special[static_cast<uchar>(c)] = true;
    return special;
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view spaces = " \t\n\v\f\r";
    text.remove_prefix(std::min(text.find_first_not_of(spaces), text.size()));
    return text.substr(0, text.find_last_not_of(spaces) + 1);
}

} // namespace

IniReader::IniReader(const QByteArray &bytes)
    : m_begin(bytes.constData())
    , m_end(m_begin + bytes.size())
    , m_lineEnd(bytes.contains('\n') ? '\n' : '\r')
    , m_at(m_begin)
    , m_counted(m_begin)
{
    // QSettings passes over a byte order mark only where a header comes next.
    const char *const marked = m_begin + (bytes.startsWith("\xef\xbb\xbf") ? 3 : 0);
    const char *const first = std::find_if_not(marked, m_end, isSpace);
    if (first != m_end && *first == '[')
        m_at = first;
}

bool IniReader::next()
{
    while (m_at < m_end && isSpace(*m_at))
        ++m_at;
    m_line = IniLine();
    if (m_at == m_end)
        return false;
    const char *const start = m_at;
    if (*start == ';') {
        m_line.kind = IniLine::Comment;
        m_at = std::find_if(m_at, m_end, isLineEnd);
        m_line.text = textBetween(start, m_at);
    } else {
        takeLine();
    }
    if (*start == '[')
        enterSection();
    return true;
}

void IniReader::takeLine()
{
    static constexpr std::array<bool, 256> isSpecial = specialCharacters();
    const char *const start = m_at;
    const char *equals = nullptr;
    bool isQuoted = false;
    const char *at = start;
    for (const char *const end = m_end; at < end; ++at) {
        if (!isSpecial[static_cast<uchar>(*at)])
            continue;
        if (*at == '\\')
            at = at + 1 < end ? behindLineEnd(at + 1, end) - 1 : at;
        else if (*at == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && *at != '=')
            break;
        else if (!isQuoted && !equals)
            equals = at;
    }
    m_at = at;
    m_line.text = textBetween(start, m_at);
    if (!equals)
        return;
    m_line.kind = IniLine::Entry;
    m_line.key = textBetween(start, equals);
    while (!m_line.key.empty() && isBlank(m_line.key.back()))
        m_line.key.remove_suffix(1);
    m_line.value = textBetween(equals + 1, m_at);
}

void IniReader::enterSection()
{
    const std::size_t closing = std::min(m_line.text.find(']'), m_line.text.size());
    m_line.kind = IniLine::Section;
    m_line.key = trimmed(m_line.text.substr(1, closing - 1));
    m_line.value = m_line.text.substr(closing);
    m_section = isSameName(m_line.key, "general") ? std::string_view() : m_line.key;
    m_sectionTraits = SettingsKey::traitsOfSection(m_section);
}

IniPosition IniReader::positionAt(const char *place)
{
    if (place < m_counted) {
        m_counted = m_begin;
        m_position = IniPosition();
    }
    for (; m_counted < place; ++m_counted) {
        const bool endsCharacter = (m_counted[1] & 0xc0) != 0x80;
        m_position.column += endsCharacter ? 1 : 0;
        if (*m_counted == m_lineEnd)
            m_position = { m_position.line + 1, 1 };
    }
    return m_position;
}

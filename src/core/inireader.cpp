// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/inireader_p.h"

#include <QHash>
#include <QTextCodec>

#include <algorithm>
#include <array>

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

bool isSpace(char c)
{
    return isBlank(c) || isLineEnd(c);
}

/// Behind the line end at @p at; two different characters are one line end together.
const char *behindLineEnd(const char *at, const char *end)
{
    const bool isPair = at + 1 < end && isLineEnd(at[0]) && isLineEnd(at[1]) && at[0] != at[1];
    return at + (isPair ? 2 : 1);
}

std::string_view textBetween(const char *begin, const char *end)
{
    return { begin, static_cast<std::size_t>(end - begin) };
}

QByteArray bytesOf(std::string_view text)
{
    return QByteArray::fromRawData(text.data(), static_cast<int>(text.size()));
}

/// Whether each character means something in front of or behind a "=".
constexpr std::array<bool, 256> specialCharacters()
{
    std::array<bool, 256> special {};
    for (const char c : { '\n', '\r', '"', ';', '=', '\\' })
        special[static_cast<uchar>(c)] = true;
    return special;
}

/// The digit that @p c is in numbers of @p base; -1 when it is none.
int digitOf(char c, int base)
{
    const int digit = c >= 'a' ? c - 'a' + 10 : c >= 'A' ? c - 'A' + 10 : c - '0';
    const bool isDigit = (c >= '0' && c <= '9') || c >= 'A';
    return isDigit && digit < base ? digit : -1;
}

/// The number that the hexadecimal digits @p spelling are to QSettings; -1 when they are none.
int numberOf(std::string_view spelling)
{
    int number = 0;
    for (const char c : spelling) {
        const int digit = digitOf(c, 16);
        // QByteArray also takes white space, a sign and a prefix for parts of a number.
        if (digit < 0) {
            bool isNumber = false;
            number = bytesOf(spelling).toInt(&isNumber, 16);
            return isNumber ? number & 0xffff : -1;
        }
        number = number * 16 + digit;
    }
    return number;
}

bool isSameName(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && qstrnicmp(a.data(), b.data(), a.size()) == 0;
}

/// Calls @p visit with each character that QSettings makes of @p spelling, a key or the name of a
/// section.
template <typename Visitor> void visitCharacters(std::string_view spelling, Visitor visit)
{
    const char *const end = spelling.data() + spelling.size();
    for (const char *at = spelling.data(); at < end; ++at) {
        if (*at != '%') {
            visit(QLatin1Char(*at == '\\' ? '/' : *at));
            continue;
        }
        const int length = at + 1 < end && at[1] == 'U' ? 6 : 3;
        const int start = length / 3;
        const int code = end - at < length ? -1 : numberOf(textBetween(at + start, at + length));
        visit(code < 0 ? QLatin1Char('%') : QChar(code));
        at += code < 0 ? 0 : length - 1;
    }
}

/// Calls it for the name of a section and the "/" behind it; not at all where there is none.
template <typename Visitor> void visitSection(std::string_view section, Visitor visit)
{
    if (!section.data())
        return;
    // Under this spelling the name belongs to a section like any other.
    const bool isEscaped = isSameName(section, "%general");
    visitCharacters(section.substr(isEscaped ? 1 : 0), visit);
    visit(QLatin1Char('/'));
}

/// A character more in a hash. Files that are made to have equal hashes would take long to check.
void addTo(quint64 &hash, QChar character)
{
    hash = (hash ^ character.unicode()) * 0x9e3779b97f4a7c15;
    hash ^= hash >> 29;
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view spaces = " \t\n\v\f\r";
    text.remove_prefix(std::min(text.find_first_not_of(spaces), text.size()));
    return text.substr(0, text.find_last_not_of(spaces) + 1);
}

class ValueDecoder
{
public:
    ValueDecoder(std::string_view value, std::vector<IniMisspelling> *misspellings)
        : m_at(value.data())
        , m_end(m_at + value.size())
        , m_misspellings(misspellings)
    {
    }

    QStringList elements()
    {
        skipBlanks();
        while (m_at < m_end) {
            if (*m_at == '\\') {
                takeEscape();
            } else if (*m_at == '"') {
                takeQuote();
            } else if (*m_at == ',' && m_place != Place::Quoted) {
                endElement();
                ++m_at;
                skipBlanks();
            } else {
                takePlain();
            }
        }
        if (m_place == Place::Quoted)
            report(IniMisspelling::DroppedCharacter, m_at);
        endElement();
        return m_elements;
    }

private:
    enum class Place { Start, Plain, Quoted, Closed };

    void report(IniMisspelling::Kind kind, const char *at)
    {
        if (m_misspellings)
            m_misspellings->push_back({ kind, at });
    }

    void skipBlanks()
    {
        m_at = std::find_if_not(m_at, m_end, isBlank);
        m_keptLength = m_element.size();
    }

    void endElement()
    {
        int size = m_element.size();
        while (!m_hasQuotes && size > m_keptLength && isBlank(m_element.at(size - 1).toLatin1()))
            --size;
        m_elements.append(m_element.left(size));
        m_element.clear();
        m_hasQuotes = false;
        m_place = Place::Start;
    }

    /// Quotes enclose a whole element, or QSettings drops them.
    void takeQuote()
    {
        const bool isClosing = m_place == Place::Quoted;
        if (!isClosing && m_place != Place::Start)
            report(IniMisspelling::DroppedCharacter, m_at);
        ++m_at;
        m_hasQuotes = true;
        m_place = isClosing ? Place::Closed : Place::Quoted;
        if (isClosing)
            skipBlanks();
    }

    void append(const QString &text, const char *at)
    {
        if (m_place == Place::Closed)
            report(IniMisspelling::DroppedCharacter, at);
        if (m_place != Place::Quoted)
            m_place = Place::Plain;
        m_element += text;
    }

    /// Pieces are decoded one by one: each loses a byte order mark that it begins with.
    void takePlain()
    {
        const auto endsPiece = [](char c) { return c == '\\' || c == '"' || c == ','; };
        // Characters of two units are read, but not written.
        const auto isWide = [](char c) { return c >= '\xf0' && c <= '\xf4'; };
        const char *const start = m_at;
        m_at = std::find_if(m_at + 1, m_end, endsPiece);
        static const QTextCodec *const codec = QTextCodec::codecForName("utf-8");
        append(codec->toUnicode(start, static_cast<int>(m_at - start)), start);
        const char *const wide = std::find_if(start, m_at, isWide);
        if (wide != m_at)
            report(IniMisspelling::DroppedCharacter, wide);
    }

    void takeEscape()
    {
        constexpr std::string_view letters = "abfnrtv\"?'\\";
        constexpr std::string_view meanings = "\a\b\f\n\r\t\v\"?'\\";
        const char *const start = m_at++;
        const std::size_t letter = m_at < m_end ? letters.find(*m_at) : letters.npos;
        if (m_at < m_end && isLineEnd(*m_at)) {
            m_at = behindLineEnd(m_at, m_end);
        } else if (letter != letters.npos) {
            append(QChar::fromLatin1(meanings[letter]), start);
            ++m_at;
        } else if (m_at < m_end && digitOf(*m_at, 8) >= 0) {
            takeNumber(start, 8);
        } else {
            const bool isHexadecimal = m_at < m_end && *m_at == 'x';
            m_at = std::min(m_at + 1, m_end);
            takeNumber(start, isHexadecimal ? 16 : 0);
        }
        m_keptLength = m_element.size();
    }

    void takeNumber(const char *escape, int base)
    {
        const char *const start = m_at;
        uint code = 0;
        bool fits = true;
        for (int digit; m_at < m_end && (digit = digitOf(*m_at, base)) >= 0; ++m_at) {
            code = code * uint(base) + uint(digit);
            fits = fits && code <= 0xffff;
            code &= 0xffff;
        }
        if (m_at > start)
            append(QChar(code), escape);
        if (m_at == start || !fits)
            report(IniMisspelling::BadEscape, escape);
        else if (QChar::isSurrogate(code))
            report(IniMisspelling::DroppedCharacter, escape);
    }

    const char *m_at;
    const char *const m_end;
    std::vector<IniMisspelling> *const m_misspellings;
    QStringList m_elements;
    QString m_element;
    Place m_place = Place::Start;
    bool m_hasQuotes = false;
    /// Blanks behind this length are dropped at the end of an element without quotes.
    int m_keptLength = 0;
};

} // namespace

IniReader::IniReader(const QByteArray &bytes)
    : m_begin(bytes.constData())
    , m_end(m_begin + bytes.size())
    , m_lineEnd(bytes.contains('\n') ? '\n' : '\r')
    , m_at(m_begin)
    , m_sectionHash(qGlobalQHashSeed())
    , m_counted(m_begin)
{
    // QSettings passes over a byte order mark in front of a header, and of nothing else.
    const char *const marked = m_begin + (bytes.startsWith("\xef\xbb\xbf") ? 3 : 0);
    const char *const first = std::find_if_not(marked, m_end, isSpace);
    if (first != m_end && *first == '[')
        m_at = first;
}

bool IniReader::next()
{
    m_at = std::find_if_not(m_at, m_end, isSpace);
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
    m_sectionHash = qGlobalQHashSeed();
    visitSection(m_section, [this](QChar character) { addTo(m_sectionHash, character); });
}

quint64 IniReader::keyHash() const
{
    quint64 hash = m_sectionHash;
    visitCharacters(m_line.key, [&hash](QChar character) { addTo(hash, character); });
    return hash;
}

QString IniKey::text() const
{
    QString text;
    const auto append = [&text](QChar character) { text += character; };
    visitSection(section, append);
    visitCharacters(name, append);
    return text;
}

IniPosition IniReader::positionOf(const char *place)
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

QStringList iniElements(std::string_view value, std::vector<IniMisspelling> *misspellings)
{
    return ValueDecoder(value, misspellings).elements();
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/settingstext_p.h"

#include <QHash>
#include <QTextCodec>

#include <algorithm>

namespace {

/// The value of the digit @p c in numbers of @p base; -1 when it is no such digit.
int digitOf(char c, int base)
{
    const int digit = c >= 'a' ? c - 'a' + 10 : c >= 'A' ? c - 'A' + 10 : c - '0';
    const bool isDigit = (c >= '0' && c <= '9') || c >= 'A';
    return isDigit && digit < base ? digit : -1;
}

/// The number that QSettings reads from the hexadecimal digits @p spelling; -1 when it reads none.
int numberOf(std::string_view spelling)
{
    int number = 0;
    for (const char c : spelling) {
        const int digit = digitOf(c, 16);
        // QSettings converts by QByteArray, which also accepts white space, a sign and a prefix.
        if (digit < 0) {
            bool isNumber = false;
            number = QByteArray(spelling.data(), static_cast<int>(spelling.size()))
                         .toInt(&isNumber, 16);
            return isNumber ? number & 0xffff : -1;
        }
        number = number * 16 + digit;
    }
    return number;
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

/// Calls @p visit with each character of the name of a section, and with the "/" behind it; not at
/// all where there is no section.
template <typename Visitor> void visitSection(std::string_view section, Visitor visit)
{
    if (!section.data())
        return;
    // So QSettings spells a section named General, since [General] stands for no section.
    const bool isEscaped = isSameName(section, "%general");
    visitCharacters(section.substr(isEscaped ? 1 : 0), visit);
    visit(QLatin1Char('/'));
}

class ValueDecoder
{
public:
    ValueDecoder(std::string_view value, std::vector<Misspelling> *misspellings)
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
            report(Misspelling::DroppedCharacter, m_at);
        endElement();
        return m_elements;
    }

private:
    enum class Place { Start, Plain, Quoted, Closed };

    void report(Misspelling::Kind kind, const char *at)
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

    /// QSettings writes quotes only around a whole element; it drops those that stand elsewhere.
    void takeQuote()
    {
        const bool isClosing = m_place == Place::Quoted;
        if (!isClosing && m_place != Place::Start)
            report(Misspelling::DroppedCharacter, m_at);
        ++m_at;
        m_hasQuotes = true;
        m_place = isClosing ? Place::Closed : Place::Quoted;
        if (isClosing)
            skipBlanks();
    }

    void append(const QString &text, const char *at)
    {
        if (m_place == Place::Closed)
            report(Misspelling::DroppedCharacter, at);
        if (m_place != Place::Quoted)
            m_place = Place::Plain;
        m_element += text;
    }

    /// Decoded piece by piece, as QSettings does: each piece loses a byte order mark in front.
    void takePlain()
    {
        const auto endsPiece = [](char c) { return c == '\\' || c == '"' || c == ','; };
        // QSettings reads characters that take two QChars, but does not write them.
        const auto isWide = [](char c) { return c >= '\xf0' && c <= '\xf4'; };
        const char *const start = m_at;
        m_at = std::find_if(m_at + 1, m_end, endsPiece);
        static const QTextCodec *const codec = QTextCodec::codecForName("utf-8");
        append(codec->toUnicode(start, static_cast<int>(m_at - start)), start);
        const char *const wide = std::find_if(start, m_at, isWide);
        if (wide != m_at)
            report(Misspelling::DroppedCharacter, wide);
        checkMarks(start);
    }

    /// QSettings begins a new piece behind each character that it escapes when it writes.
    void checkMarks(const char *piece)
    {
        constexpr std::string_view mark = "\xef\xbb\xbf";
        const auto isDropped
            = [piece](const char *at) { return at == piece || uchar(at[-1]) < ' '; };
        const char *at = std::search(piece, m_at, mark.cbegin(), mark.cend());
        while (at != m_at && !isDropped(at))
            at = std::search(at + 1, m_at, mark.cbegin(), mark.cend());
        if (at != m_at)
            report(Misspelling::DroppedCharacter, at);
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
            report(Misspelling::BadEscape, escape);
        else if (QChar::isSurrogate(code) || (code == QChar::ByteOrderMark && beginsPiece()))
            report(Misspelling::DroppedCharacter, escape);
    }

    /// Whether QSettings begins a piece with the last character when it writes.
    bool beginsPiece() const
    {
        if (m_element.size() < 2)
            return true;
        const QChar before = m_element.at(m_element.size() - 2);
        return before < QLatin1Char(' ') || before == QLatin1Char('"')
            || before == QLatin1Char('\\');
    }

    const char *m_at;
    const char *const m_end;
    std::vector<Misspelling> *const m_misspellings;
    QStringList m_elements;
    QString m_element;
    Place m_place = Place::Start;
    bool m_hasQuotes = false;
    /// Blanks behind this length are dropped at the end of an element without quotes.
    int m_keptLength = 0;
};

} // namespace

bool isSameName(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && qstrnicmp(a.data(), b.data(), a.size()) == 0;
}

// Hashes start from a random seed: many keys with the same one would take long to check, and
// without it a file could be made of such keys.
KeyTraits::KeyTraits()
    : m_hash(qGlobalQHashSeed())
{
}

void KeyTraits::add(QChar character)
{
    m_hash = (m_hash ^ character.unicode()) * 0x9e3779b97f4a7c15;
    m_hash ^= m_hash >> 29;
    const bool isSlash = character == QLatin1Char('/');
    if (isSlash) {
        m_isSuperfluous = m_isSuperfluous || m_endsWithSlash;
        ++m_slashes;
    }
    m_endsWithSlash = isSlash;
}

bool KeyTraits::isReadable() const
{
    return !m_isSuperfluous && !(m_endsWithSlash && m_slashes > 1);
}

QString SettingsKey::text() const
{
    QString text;
    const auto append = [&text](QChar character) { text += character; };
    visitSection(section, append);
    visitCharacters(name, append);
    return text;
}

KeyTraits SettingsKey::traitsOfSection(std::string_view section)
{
    KeyTraits traits;
    visitSection(section, [&traits](QChar character) { traits.add(character); });
    return traits;
}

KeyTraits SettingsKey::traits(KeyTraits ofSection) const
{
    visitCharacters(name, [&ofSection](QChar character) { ofSection.add(character); });
    return ofSection;
}

QStringList elementsOfValue(std::string_view value, std::vector<Misspelling> *misspellings)
{
    return ValueDecoder(value, misspellings).elements();
}

bool isUtf8(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("utf-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

const char *firstInvalidByte(std::string_view text)
{
    // Something in front keeps a byte order mark from being dropped.
    const QByteArray bytes = ' ' + QByteArray(text.data(), static_cast<int>(text.size()));
    const QByteArray again = QString::fromUtf8(bytes.constData(), bytes.size()).toUtf8();
    auto [at, replaced] = std::mismatch(bytes.cbegin(), bytes.cend(), again.cbegin(), again.cend());
    // The bytes may be those that the replacement character begins with.
    for (; (*replaced & 0xc0) == 0x80; --replaced)
        --at;
    return text.data() + (at - bytes.cbegin()) - 1;
}

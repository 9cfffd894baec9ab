// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/inibytes_p.h"

#include "core/inikeys_p.h"
#include "core/inisyntax_p.h"

#include <QDataStream>
#include <QTextCodec>
#include <QVariant>

#include <algorithm>
#include <string_view>

namespace {

bool isUtf8(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("utf-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

bool isWhiteSpace(char c)
{
    return isBlank(c) || isLineEnd(c);
}

/// These mean something to QSettings even where a name is expected.
bool breaksName(char c)
{
    return isLineEnd(c) || c == ';' || c == '"';
}

/// Whether QSettings writes the key in a way that it reads as the same key.
bool isStableKey(const QString &key)
{
    const QLatin1Char slash('/');
    return !key.startsWith(slash) && !(key.endsWith(slash) && key.count(slash) > 1);
}

bool isVariant(const QByteArray &bytes, QDataStream::Version version)
{
    QDataStream stream(bytes);
    stream.setVersion(version);
    QVariant value;
    stream >> value;
    return stream.status() == QDataStream::Ok && stream.atEnd() && value.isValid();
}

bool areNumbers(const QByteArray &text)
{
    const QList<QByteArray> words = text.split(' ');
    return std::all_of(words.cbegin(), words.cend(), [](const QByteArray &word) {
        bool isNumber = false;
        word.toInt(&isNumber);
        return isNumber;
    });
}

/// How QSettings writes what is neither text nor list, and what it can read again of it.
struct Serialised
{
    const char *opening;
    bool (*isReadable)(const QByteArray &bytes);
};

constexpr Serialised serialisedForms[] = {
    { "@ByteArray(", [](const QByteArray &) { return true; } },
    { "@Variant(", [](const QByteArray &b) { return isVariant(b, QDataStream::Qt_4_0); } },
    { "@DateTime(", [](const QByteArray &b) { return isVariant(b, QDataStream::Qt_5_6); } },
    { "@Rect(", areNumbers },
    { "@Point(", areNumbers },
    { "@Size(", areNumbers },
};

/// Whether QSettings takes over @p element, one element of a value with its escapes resolved.
bool isTakenOver(const QByteArray &element)
{
    // Most elements are plain text, and files have many.
    if (!element.contains('@'))
        return true;
    const QString text = QString::fromUtf8(element.constData(), element.size()).trimmed();
    if (!text.endsWith(QLatin1Char(')')))
        return true;
    for (const Serialised &form : serialisedForms) {
        const QLatin1String opening(form.opening);
        if (!text.startsWith(opening))
            continue;
        const QByteArray bytes = text.mid(opening.size()).chopped(1).toLatin1();
        // Other characters than bytes would have become question marks.
        return text
            == opening + QString::fromLatin1(bytes.constData(), bytes.size()) + QLatin1Char(')')
            && form.isReadable(bytes);
    }
    return true;
}

/// Walks along the lines as QSettings does, and stops where it would drop something.
class IniWalk
{
public:
    explicit IniWalk(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    bool isWhole();
    /// The keys that it has come by.
    const IniKeys &keys() const { return m_keys; }

private:
    enum class Place { Start, Plain, Quoted, Closed };

    bool atEnd() const { return m_at >= m_bytes.size(); }
    char next() { return m_bytes.at(m_at++); }
    char ahead() const { return m_bytes.at(m_at); }

    std::string_view text(int start, int end) const
    {
        return { m_bytes.constData() + start, static_cast<std::size_t>(end - start) };
    }

    void skipBlanks();
    bool takeHeader();
    bool takeEntry();
    bool takeValue();
    bool takeCharacter(char c);
    bool takeElement();
    bool takeEscape();
    bool takeDigits(int base, int most);

    const QByteArray &m_bytes;
    int m_at = 0;
    IniKeys m_keys;
    Place m_place = Place::Start;
    QByteArray m_element;
};

bool IniWalk::isWhole()
{
    if (m_bytes.startsWith("\xef\xbb\xbf"))
        m_at = 3;
    // A section without keys is not written again.
    bool awaitsKey = false;
    for (skipBlanks(); !atEnd(); skipBlanks()) {
        const bool isHeader = ahead() == '[';
        if (isHeader ? awaitsKey || !takeHeader() : !takeEntry())
            return false;
        awaitsKey = isHeader;
    }
    return !awaitsKey;
}

void IniWalk::skipBlanks()
{
    while (!atEnd() && isWhiteSpace(ahead()))
        ++m_at;
}

bool IniWalk::takeHeader()
{
    const int start = m_at + 1;
    while (!atEnd() && ahead() != ']') {
        if (breaksName(next()))
            return false;
    }
    if (atEnd())
        return false;
    m_keys.enterGroup(text(start, m_at));
    ++m_at;
    while (!atEnd() && !isLineEnd(ahead())) {
        if (!isBlank(next()))
            return false;
    }
    return true;
}

bool IniWalk::takeEntry()
{
    const int start = m_at;
    while (!atEnd()) {
        char c = next();
        if (c == '=') {
            m_keys.add(text(start, m_at - 1));
            return takeValue();
        }
        // A backslash stands for "/" and hides the character behind it.
        if (c == '\\') {
            if (atEnd() || ahead() == '=')
                return false;
            c = next();
        }
        if (breaksName(c))
            return false;
    }
    return false;
}

bool IniWalk::takeValue()
{
    m_place = Place::Start;
    m_element.clear();
    while (!atEnd()) {
        const char c = next();
        if (isLineEnd(c))
            break;
        if (!takeCharacter(c))
            return false;
    }
    return m_place != Place::Quoted && takeElement();
}

/// Quotes enclose a whole element, or QSettings drops them.
bool IniWalk::takeCharacter(char c)
{
    if (c == '\\')
        return takeEscape();
    if (c == '"') {
        const bool isOpening = m_place == Place::Start;
        const bool isClosing = m_place == Place::Quoted;
        m_place = isOpening ? Place::Quoted : Place::Closed;
        return isOpening || isClosing;
    }
    if (m_place != Place::Quoted) {
        if (c == ',')
            return takeElement();
        if (c == ';')
            return false;
        if (isBlank(c) && m_place != Place::Plain)
            return true;
        if (m_place == Place::Closed)
            return false;
        m_place = Place::Plain;
    }
    m_element.append(c);
    // QSettings reads characters that take two units, but leaves them out when it writes.
    return static_cast<uchar>(c) < 0xf0;
}

bool IniWalk::takeElement()
{
    const bool isWhole = isTakenOver(m_element);
    m_place = Place::Start;
    m_element.clear();
    return isWhole;
}

bool IniWalk::takeEscape()
{
    if (atEnd())
        return false;
    if (isLineEnd(ahead())) {
        // The value goes on in the next line.
        m_at += isLineEndOfTwo(m_bytes, m_at) ? 2 : 1;
        return true;
    }
    const char c = next();
    if (m_place == Place::Start)
        m_place = Place::Plain;
    if (c == 'x')
        return takeDigits(16, 4);
    if (digitOf(c, 8) >= 0) {
        --m_at;
        return takeDigits(8, 5);
    }
    const auto meaning = escapedLetter(c);
    if (meaning)
        m_element.append(*meaning);
    return meaning.has_value();
}

bool IniWalk::takeDigits(int base, int most)
{
    const int start = m_at;
    while (!atEnd() && digitOf(ahead(), base) >= 0)
        ++m_at;
    const int count = m_at - start;
    if (count == 0 || count > most)
        return false;
    const QChar character(m_bytes.mid(start, count).toInt(nullptr, base));
    m_element.append(QString(character).toUtf8());
    return !character.isSurrogate();
}

} // namespace

bool survivesRewriting(const QByteArray &bytes, const QSettings &settings)
{
    IniWalk walk(bytes);
    if (!isUtf8(bytes) || !walk.isWhole())
        return false;
    if (walk.keys().areClear())
        return true;
    const QStringList keys = settings.allKeys();
    // Fewer keys than lines: QSettings has kept only one of several values.
    return walk.keys().count() <= keys.size()
        && std::all_of(keys.cbegin(), keys.cend(), isStableKey);
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/inireader_p.h"

#include "core/typedtext_p.h"

#include <QHash>
#include <QTextCodec>

#include <algorithm>
#include <tuple>

namespace {

constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";

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

bool startsWithMark(std::string_view text)
{
    return text.substr(0, byteOrderMark.size()) == byteOrderMark;
}

/// The digit that @p c is in numbers of @p base; -1 when it is none.
int digitOf(char c, int base)
{
    const int digit = c >= 'a' ? c - 'a' + 10 : c >= 'A' ? c - 'A' + 10 : c - '0';
    const bool isDigit = (c >= '0' && c <= '9') || c >= 'A';
    return isDigit && digit < base ? digit : -1;
}

QString decodedKey(std::string_view spelling)
{
    QString key;
    key.reserve(static_cast<int>(spelling.size()));
    while (!spelling.empty()) {
        const std::size_t start = spelling.substr(0, 2) == "%U" ? 2 : 1;
        const std::size_t digits = start == 2 ? 4 : 2;
        bool isCode = spelling.front() == '%' && spelling.size() >= start + digits;
        // What QByteArray takes for a number: a sign and white space as well.
        const int code = isCode ? bytesOf(spelling.substr(start, digits)).toInt(&isCode, 16) : 0;
        if (isCode)
            key += QChar(code);
        else
            key += QLatin1Char(spelling.front() == '\\' ? '/' : spelling.front());
        spelling.remove_prefix(isCode ? start + digits : 1);
    }
    return key;
}

/// Whether QSettings gives the value of the key, and writes it in a way that it reads as the same.
bool isReadableKey(const QString &key)
{
    const QLatin1Char slash('/');
    return !key.startsWith(slash) && !(key.endsWith(slash) && key.count(slash) > 1);
}

/// The first byte of @p text that is not UTF-8; its end when all of it is.
const char *firstInvalidByte(std::string_view text)
{
    // Something in front keeps a byte order mark from being dropped.
    const QByteArray bytes = ' ' + bytesOf(text);
    const QByteArray again = QString::fromUtf8(bytes).toUtf8();
    const auto end = std::mismatch(bytes.cbegin(), bytes.cend(), again.cbegin(), again.cend());
    return text.data() + (end.first - bytes.cbegin()) - 1;
}

/// Resolves quotes and escapes of one value.
class ValueDecoder
{
public:
    explicit ValueDecoder(const IniReader &reader)
        : m_reader(reader)
        , m_at(reader.line().value.data())
        , m_end(m_at + reader.line().value.size())
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
            m_reader.report(IniProblem::DroppedCharacter, m_at);
        endElement();
        return m_elements;
    }

private:
    enum class Place { Start, Plain, Quoted, Closed };

    void skipBlanks()
    {
        m_at = std::find_if_not(m_at, m_end, isBlank);
        m_keptLength = m_element.size();
    }

    void endElement()
    {
        int size = m_element.size();
        while (!m_hasQuotes && size > m_keptLength && isBlank(m_element[size - 1].toLatin1()))
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
            m_reader.report(IniProblem::DroppedCharacter, m_at);
        ++m_at;
        m_hasQuotes = true;
        m_place = isClosing ? Place::Closed : Place::Quoted;
        if (isClosing)
            skipBlanks();
    }

    void append(const QString &text, const char *at)
    {
        if (m_place == Place::Closed)
            m_reader.report(IniProblem::DroppedCharacter, at);
        if (m_place != Place::Quoted)
            m_place = Place::Plain;
        m_element += text;
    }

    /// Pieces are decoded one by one: each loses a byte order mark that it begins with. Characters
    /// of two units are read, but not written.
    void takePlain()
    {
        const auto endsPiece = [](char c) { return c == '\\' || c == '"' || c == ','; };
        const auto isWide = [](char c) { return static_cast<uchar>(c) >= 0xf0; };
        const char *const start = m_at;
        m_at = std::find_if(m_at + 1, m_end, endsPiece);
        static const QTextCodec *const codec = QTextCodec::codecForName("utf-8");
        append(codec->toUnicode(start, static_cast<int>(m_at - start)), start);
        if (std::any_of(start, m_at, isWide))
            m_reader.report(IniProblem::DroppedCharacter, start);
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
            m_reader.report(IniProblem::BadEscape, escape);
        else if (QChar::isSurrogate(code))
            m_reader.report(IniProblem::DroppedCharacter, escape);
    }

    const IniReader &m_reader;
    const char *m_at;
    const char *const m_end;
    QStringList m_elements;
    QString m_element;
    Place m_place = Place::Start;
    bool m_hasQuotes = false;
    /// Blanks behind this length are dropped at the end of an element without quotes.
    int m_keptLength = 0;
};

} // namespace

IniReader::IniReader(const QByteArray &bytes, QVector<IniProblem> *problems)
    : m_begin(bytes.constData())
    , m_end(m_begin + bytes.size())
    , m_lineEnd(bytes.contains('\n') ? '\n' : '\r')
    , m_at(m_begin)
    , m_problems(problems)
    , m_start { m_begin }
    , m_reported(m_start)
{
    // QSettings passes over a byte order mark in front of a header, and of nothing else.
    const char *const marked = m_begin + (bytes.startsWith(byteOrderMark.data()) ? 3 : 0);
    const char *const first = std::find_if_not(marked, m_end, isSpace);
    if (first != m_end && *first == '[')
        m_at = first;
}

bool IniReader::next()
{
    m_at = std::find_if_not(m_at, m_end, isSpace);
    if (m_at == m_end)
        return false;
    moveTo(m_at, &m_start);
    m_reported = m_start;
    m_line = IniLine();
    m_line.number = m_start.line;
    m_line.column = m_start.column;
    takeLine();
    if (m_problems)
        checkLine();
    return true;
}

void IniReader::takeLine()
{
    const char *const start = m_at;
    const char *equals = nullptr;
    bool isQuoted = false;
    const bool isComment = *start == ';';
    if (isComment)
        m_at = std::find_if(m_at, m_end, isLineEnd);
    for (; m_at < m_end && !isComment; ++m_at) {
        const char c = *m_at;
        if (c == '\\' && m_at + 1 < m_end)
            m_at = behindLineEnd(m_at + 1, m_end) - 1;
        else if (c == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && (isLineEnd(c) || c == ';'))
            break;
        else if (!isQuoted && c == '=' && !equals)
            equals = m_at;
    }
    m_line.text = textBetween(start, m_at);
    m_line.kind = isComment ? IniLine::Comment : IniLine::Other;
    if (*start == '[') {
        enterSection();
    } else if (equals) {
        const std::string_view key = textBetween(start, equals);
        m_line.kind = IniLine::Entry;
        m_line.key = key.substr(0, key.find_last_not_of(" \t") + 1);
        m_line.value = textBetween(equals + 1, m_at);
    }
}

void IniReader::enterSection()
{
    const std::size_t closing = std::min(m_line.text.find(']'), m_line.text.size());
    m_line.kind = IniLine::Section;
    m_line.key = m_line.text.substr(1, closing - 1);
    m_line.value = m_line.text.substr(closing);
    const QByteArray name = bytesOf(m_line.key).trimmed();
    m_section.clear();
    if (name.compare("general", Qt::CaseInsensitive) == 0)
        return;
    // Under this spelling the name belongs to a section like any other.
    const bool isEscaped = name.compare("%general", Qt::CaseInsensitive) == 0;
    const int start = isEscaped ? 1 : 0;
    m_section = decodedKey({ name.constData() + start, std::size_t(name.size() - start) })
        + QLatin1Char('/');
}

void IniReader::checkLine()
{
    const char *const start = m_line.text.data();
    const char *const end = start + m_line.text.size();
    const bool isAscii
        = std::none_of(start, end, [](char c) { return static_cast<signed char>(c) < 0; });
    const char *const invalid = isAscii ? end : firstInvalidByte(m_line.text);
    if (invalid != end)
        report(IniProblem::NotUtf8, invalid);
    if (startsWithMark(m_line.text))
        report(IniProblem::ByteOrderMark, start);
    else if (m_line.kind == IniLine::Comment || *start == '#')
        report(IniProblem::DroppedComment, start);
    else if (m_line.kind == IniLine::Other)
        report(IniProblem::NoEqualsSign, start);
    else if (m_line.kind == IniLine::Section && bytesOf(m_line.value).trimmed() != "]")
        report(IniProblem::BrokenHeader, start);
}

QString IniReader::key() const
{
    return m_section + decodedKey(m_line.key);
}

QStringList IniReader::elements() const
{
    return ValueDecoder(*this).elements();
}

void IniReader::report(IniProblem::Kind kind, const char *at) const
{
    if (!m_problems)
        return;
    if (at < m_reported.at)
        m_reported = m_start;
    moveTo(at, &m_reported);
    m_problems->append({ kind, m_reported.line, m_reported.column });
}

void IniReader::moveTo(const char *at, Place *place) const
{
    for (; place->at < at; ++place->at) {
        const bool isLastByte = place->at + 1 == at || (place->at[1] & 0xc0) != 0x80;
        place->column += isLastByte ? 1 : 0;
        if (*place->at == m_lineEnd) {
            ++place->line;
            place->column = 1;
        }
    }
}

namespace {

/// Whether a "@" may be written in @p value, as it is or as an escaped number.
bool mayHoldTypedValue(std::string_view value)
{
    for (std::size_t at = value.find_first_of("@\\"); at < value.size();
         at = value.find_first_of("@\\", at + 1)) {
        const char next = at + 1 < value.size() ? value[at + 1] : ' ';
        if (value[at] == '@' || next == 'x' || (next >= '0' && next <= '7'))
            return true;
    }
    return false;
}

/// Looks through a file for what shows only beyond single lines and in decoded texts.
class ProblemSearch
{
public:
    explicit ProblemSearch(const QByteArray &bytes)
        : m_reader(bytes, &m_problems)
    {
    }

    QVector<IniProblem> problems()
    {
        while (m_reader.next()) {
            if (m_reader.line().kind == IniLine::Section)
                beginSection();
            else if (m_reader.line().kind == IniLine::Entry)
                checkEntry();
        }
        endSection();
        std::stable_sort(m_problems.begin(), m_problems.end(),
                         [](const IniProblem &a, const IniProblem &b) {
                             return std::tie(a.line, a.column) < std::tie(b.line, b.column);
                         });
        return m_problems;
    }

private:
    void beginSection()
    {
        endSection();
        m_emptyHeader = m_reader.line();
    }

    void endSection()
    {
        if (m_emptyHeader.kind == IniLine::Section)
            m_problems.append(
                { IniProblem::EmptySection, m_emptyHeader.number, m_emptyHeader.column });
        m_emptyHeader = IniLine();
    }

    void checkEntry()
    {
        const IniLine &line = m_reader.line();
        m_emptyHeader = IniLine();
        checkKey(m_reader.key());
        const auto isPlain = [](char c) {
            return c != '\\' && c != '"' && c != '@' && static_cast<signed char>(c) >= 0;
        };
        if (!std::all_of(line.value.cbegin(), line.value.cend(), isPlain))
            checkValue(m_reader.elements());
    }

    void checkKey(const QString &key)
    {
        const IniLine &line = m_reader.line();
        if (!isReadableKey(key))
            m_reader.report(IniProblem::UnreadableKey, line.text.data());
#ifdef Q_OS_WIN
        int &firstLine = m_firstLines[key.toLower()]; // QSettings ignores case here.
#else
        int &firstLine = m_firstLines[key];
#endif
        if (firstLine > 0) {
            m_reader.report(IniProblem::DuplicateKey, line.text.data());
            m_problems.last().otherLine = firstLine;
        } else {
            firstLine = line.number;
        }
    }

    void checkValue(const QStringList &elements)
    {
        const char *const start = m_reader.line().value.data();
        if (std::any_of(elements.cbegin(), elements.cend(), isUnsafe))
            m_reader.report(IniProblem::UnsafeValue, start);
        else if (std::any_of(elements.cbegin(), elements.cend(), isDamaged))
            m_reader.report(IniProblem::DamagedValue, start);
    }

    QVector<IniProblem> m_problems;
    IniReader m_reader;
    QHash<QString, int> m_firstLines;
    /// The header of the section, until a key is found behind it.
    IniLine m_emptyHeader;
};

} // namespace

QVector<IniProblem> iniProblems(const QByteArray &bytes)
{
    return ProblemSearch(bytes).problems();
}

bool hasUnsafeIniValue(const QByteArray &bytes)
{
    if (!bytes.contains('@') && !bytes.contains('\\'))
        return false;
    IniReader reader(bytes);
    while (reader.next()) {
        if (!mayHoldTypedValue(reader.line().value))
            continue;
        const QStringList elements = reader.elements();
        if (std::any_of(elements.cbegin(), elements.cend(), isUnsafe))
            return true;
    }
    return false;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/ininesting_p.h"

#include "core/inisyntax_p.h"

#include <QBuffer>
#include <QDataStream>
#include <QMetaType>
#include <QString>
#include <QTextCodec>
#include <QVariant>

namespace {

constexpr int deepestLevel = 1000;

/// A value with its quotes and escapes resolved as QSettings does it: nothing may be left over or
/// be missing between two bytes of what is serialised there, however they are spelt.
class Unescaping
{
public:
    explicit Unescaping(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    QByteArray result();

private:
    bool atEnd() const { return m_at >= m_bytes.size(); }
    char ahead() const { return m_bytes.at(m_at); }
    void takeQuote();
    void takeEscape();
    void takeNumber(int base);
    void takePlain();

    const QByteArray &m_bytes;
    bool m_isQuoted = false;
    int m_at = 0;
    QString m_text;
};

QByteArray Unescaping::result()
{
    while (!atEnd()) {
        if (ahead() == '\\')
            takeEscape();
        else if (ahead() == '"')
            takeQuote();
        else
            takePlain();
    }
    return m_text.toLatin1();
}

void Unescaping::takeQuote()
{
    ++m_at;
    m_isQuoted = !m_isQuoted;
    while (!m_isQuoted && !atEnd() && isBlank(ahead()))
        ++m_at;
}

void Unescaping::takeEscape()
{
    ++m_at;
    if (atEnd())
        return;
    if (digitOf(ahead(), 8) >= 0) {
        takeNumber(8);
        return;
    }
    const char c = ahead();
    m_at += isLineEndOfTwo(m_bytes, m_at) ? 2 : 1;
    if (const auto meaning = escapedLetter(c))
        m_text += QLatin1Char(*meaning);
    else if (c == 'x')
        takeNumber(16);
}

void Unescaping::takeNumber(int base)
{
    const int start = m_at;
    ushort code = 0;
    for (int digit; !atEnd() && (digit = digitOf(ahead(), base)) >= 0; ++m_at)
        code = static_cast<ushort>(code * base + digit);
    if (m_at > start)
        m_text += QChar(code);
}

/// Pieces are decoded one by one, which makes a difference where they begin with a byte order mark.
void Unescaping::takePlain()
{
    const int start = m_at++;
    while (!atEnd() && ahead() != '\\' && ahead() != '"' && ahead() != ',')
        ++m_at;
    static const QTextCodec *const codec = QTextCodec::codecForName("utf-8");
    m_text += codec->toUnicode(m_bytes.constData() + start, m_at - start);
}

/// Walks through one serialised value after another, as deep as is allowed.
class DepthCheck
{
public:
    explicit DepthCheck(const QByteArray &bytes)
        : m_bytes(bytes)
        , m_valuesLeft(bytes.size())
    {
    }

    bool isDeep(int start, QDataStream::Version version);

private:
    bool isDeep(QDataStream &stream, int level);
    bool areDeep(QDataStream &stream, int level, bool haveKeys);

    const QByteArray &m_bytes;
    /// Values that overlap are not worth the time; others are never so many.
    int m_valuesLeft;
};

bool DepthCheck::isDeep(int start, QDataStream::Version version)
{
    QByteArray rest = QByteArray::fromRawData(m_bytes.constData() + start, m_bytes.size() - start);
    QBuffer buffer(&rest);
    buffer.open(QIODevice::ReadOnly);
    QDataStream stream(&buffer);
    stream.setVersion(version);
    return isDeep(stream, 0);
}

int typeOf(QDataStream &stream)
{
    quint32 type = 0;
    stream >> type;
    if (stream.version() >= QDataStream::Qt_4_2) {
        qint8 isNull = 0;
        stream >> isNull;
    }
    const quint32 namedTypeOfQt4 = 127;
    if (type != QMetaType::User && type != namedTypeOfQt4)
        return static_cast<int>(type);
    QByteArray name;
    stream >> name;
    return QMetaType::type(name);
}

bool DepthCheck::isDeep(QDataStream &stream, int level)
{
    if (level > deepestLevel || --m_valuesLeft < 0)
        return true;
    const qint64 start = stream.device()->pos();
    switch (typeOf(stream)) {
    case QMetaType::QVariantList:
        return areDeep(stream, level + 1, false);
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return areDeep(stream, level + 1, true);
    case QMetaType::QVariant:
        return isDeep(stream, level + 1);
    default:
        break;
    }
    stream.device()->seek(start);
    QVariant value;
    stream >> value;
    return false;
}

bool DepthCheck::areDeep(QDataStream &stream, int level, bool haveKeys)
{
    quint32 count = 0;
    stream >> count;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        QString key;
        if (haveKeys)
            stream >> key;
        if (isDeep(stream, level))
            return true;
    }
    return false;
}

struct Opening
{
    const char *text;
    QDataStream::Version version;
};

constexpr Opening openings[] = {
    { "@Variant(", QDataStream::Qt_4_0 },
    { "@DateTime(", QDataStream::Qt_5_6 },
};

bool isDeep(const QByteArray &value)
{
    const QByteArray text = Unescaping(value).result();
    DepthCheck check(text);
    for (const Opening &opening : openings) {
        const int length = static_cast<int>(qstrlen(opening.text));
        for (int at = text.indexOf(opening.text); at >= 0;
             at = text.indexOf(opening.text, at + length)) {
            if (check.isDeep(at + length, opening.version))
                return true;
        }
    }
    return false;
}

/// Where the value begins in the line at @p at, which is moved to the end of both; there itself
/// without a key.
int takeLine(const QByteArray &bytes, int &at)
{
    int value = -1;
    bool isQuoted = false;
    for (; at < bytes.size(); ++at) {
        const char c = bytes.at(at);
        if (c == '\\')
            at += isLineEndOfTwo(bytes, at + 1) ? 2 : 1;
        else if (c == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && (isLineEnd(c) || c == ';'))
            break;
        else if (!isQuoted && c == '=' && value < 0)
            value = at + 1;
    }
    at = qMin(at, bytes.size());
    return value < 0 ? at : value;
}

void skipComment(const QByteArray &bytes, int &at)
{
    while (at < bytes.size() && !isLineEnd(bytes.at(at)))
        ++at;
}

} // namespace

bool nestsTooDeep(const QByteArray &bytes)
{
    if (bytes.size() < smallestDeepFile)
        return false;
    for (int at = 0; at < bytes.size();) {
        const char c = bytes.at(at);
        if (isBlank(c) || isLineEnd(c)) {
            ++at;
        } else if (c == ';') {
            skipComment(bytes, at);
        } else {
            const int value = takeLine(bytes, at);
            if (at - value >= smallestDeepFile && isDeep(bytes.mid(value, at - value)))
                return true;
        }
    }
    return false;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/ininesting_p.h"

#include <QBuffer>
#include <QDataStream>
#include <QMetaType>
#include <QString>
#include <QVariant>

namespace {

constexpr int deepestLevel = 1000;

/// The digit that @p c is in numbers of @p base; -1 when it is none.
int digitOf(QChar c, int base)
{
    const char letter = c.toLower().toLatin1();
    const int digit = letter >= 'a' ? letter - 'a' + 10 : letter - '0';
    const bool isDigit = (letter >= '0' && letter <= '9') || letter >= 'a';
    return isDigit && digit < base ? digit : -1;
}

/// The character of the number that begins at @p at, which is moved behind it.
QChar takeNumber(const QString &text, int &at, int base)
{
    ushort code = 0;
    for (int digit; at < text.size() && (digit = digitOf(text.at(at), base)) >= 0; ++at)
        code = static_cast<ushort>(code * base + digit);
    return QChar(code);
}

/// Appends to @p result what the escape means of which the backslash stands in front of @p at, and
/// moves that behind it.
void takeEscape(const QString &text, int &at, QString &result)
{
    static const QString letters = QStringLiteral("abfnrtv\"?'\\");
    static const QString meanings = QStringLiteral("\a\b\f\n\r\t\v\"?'\\");
    if (digitOf(text.at(at), 8) >= 0) {
        result += takeNumber(text, at, 8);
        return;
    }
    const QChar letter = text.at(at++);
    if (letter == QLatin1Char('x'))
        result += takeNumber(text, at, 16);
    else if (letters.contains(letter))
        result += meanings.at(letters.indexOf(letter));
}

/// The whole text as if it were one value: without quotes and with its escapes resolved.
QByteArray unescaped(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size();) {
        const QChar c = text.at(i++);
        if (c == QLatin1Char('\\') && i < text.size())
            takeEscape(text, i, result);
        else if (c != QLatin1Char('"'))
            result += c;
    }
    return result.toLatin1();
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

} // namespace

bool nestsTooDeep(const QByteArray &bytes)
{
    if (bytes.size() < smallestDeepFile || !(bytes.contains('@') || bytes.contains('\\')))
        return false;
    const QByteArray values = unescaped(bytes);
    DepthCheck check(values);
    for (const Opening &opening : openings) {
        const int length = static_cast<int>(qstrlen(opening.text));
        for (int at = values.indexOf(opening.text); at >= 0;
             at = values.indexOf(opening.text, at + length)) {
            if (check.isDeep(at + length, opening.version))
                return true;
        }
    }
    return false;
}

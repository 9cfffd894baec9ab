// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/typedtext_p.h"

#include "core/serialisedvalue_p.h"

#include <QDateTime>
#include <QMetaType>
#include <QTextFormat>
#include <QTimeZone>

#include <algorithm>
#include <iterator>

namespace {

/// QSettings writes all values but times as Qt 4 wrote them.
constexpr QDataStream::Version timeVersion = QDataStream::Qt_5_6;

template <QDataStream::Version version> QVariant valueIn(const QByteArray &bytes, bool *isWhole)
{
    QDataStream stream(bytes);
    stream.setVersion(version);
    QVariant value;
    stream >> value;
    *isWhole = stream.status() == QDataStream::Ok && stream.atEnd() && value.isValid();
    return value;
}

/// Whether @p time can be stored: Qt crashes on a time zone that does not exist.
bool isInValidZone(const QDateTime &time)
{
    return time.timeSpec() != Qt::TimeZone || time.timeZone().isValid();
}

/// Whether all of @p values are storable.
template <typename Values> bool areStorable(const Values &values, int depth);

bool isStorable(const QVariant &value, int depth)
{
    if (depth > deepestLevel)
        return false;
    switch (value.userType()) {
    case QMetaType::UnknownType:
    // Most values are of these types, and storing them, as is tried below, always succeeds.
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QStringList:
        return true;
    case QMetaType::QVariantList:
        return areStorable(value.toList(), depth + 1);
    case QMetaType::QVariantMap:
        return areStorable(value.toMap(), depth + 1);
    case QMetaType::QVariantHash:
        return areStorable(value.toHash(), depth + 1);
    case QMetaType::QVariant:
        return isStorable(*static_cast<const QVariant *>(value.constData()), depth + 1);
    case QMetaType::QDateTime:
        return isInValidZone(value.toDateTime());
    case QMetaType::QTextFormat:
        if (!areStorable(qvariant_cast<QTextFormat>(value).properties(), depth + 1))
            return false;
        break;
    default:
        break;
    }
    const int type = value.userType();
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(variantVersion);
    // What could not be read again would make the whole file unsafe.
    return QMetaType::save(stream, type, value.constData()) && isSafeValue(type, bytes, depth + 1);
}

template <typename Values> bool areStorable(const Values &values, int depth)
{
    return std::all_of(values.cbegin(), values.cend(),
                       [depth](const QVariant &value) { return isStorable(value, depth); });
}

bool isSafeTime(const QByteArray &bytes)
{
    const QByteArray type("\0\0\0\x10", 4);
    bool isWhole = false;
    if (bytes.size() < type.size())
        return true;
    return bytes.startsWith(type)
        && isInValidZone(valueIn<timeVersion>(bytes, &isWhole).toDateTime());
}

template <QDataStream::Version version> bool isWhole(const QByteArray &bytes)
{
    bool isWhole = false;
    valueIn<version>(bytes, &isWhole);
    return isWhole;
}

bool isAlways(const QByteArray &)
{
    return true;
}

/// Whether @p text is @p count numbers, or nothing that QSettings takes for them.
template <int count> bool areNumbers(const QByteArray &text)
{
    const QList<QByteArray> words = text.split(' ');
    return words.size() != count
        || std::all_of(words.cbegin(), words.cend(), [](const QByteArray &word) {
               bool isNumber = false;
               word.toInt(&isNumber);
               return isNumber;
           });
}

/// How QSettings writes what is not text: @p opening, bytes and ")".
struct TypedForm
{
    const char *opening;
    bool (*isSafe)(const QByteArray &bytes);
    bool (*isWhole)(const QByteArray &bytes);
};

const TypedForm *formOf(const QString &text)
{
    static constexpr TypedForm forms[] = {
        { "@Variant(", isSafeVariant, isWhole<variantVersion> },
        { "@DateTime(", isSafeTime, isWhole<timeVersion> },
        { "@ByteArray(", isAlways, isAlways },
        { "@Rect(", isAlways, areNumbers<4> },
        { "@Point(", isAlways, areNumbers<2> },
        { "@Size(", isAlways, areNumbers<2> },
    };
    if (!text.startsWith(QLatin1Char('@')) || !text.endsWith(QLatin1Char(')')))
        return nullptr;
    const auto *const end = std::end(forms);
    const auto *const form
        = std::find_if(std::begin(forms), end, [&text](const TypedForm &candidate) {
              return text.startsWith(QLatin1String(candidate.opening));
          });
    return form == end ? nullptr : form;
}

QString behindOpening(const QString &text, const TypedForm &form)
{
    return text.mid(static_cast<int>(qstrlen(form.opening)));
}

/// Whether @p spelling, which begins with a "@", may stand for a serialised value. What begins like
/// one may go on behind a quote or in escapes.
bool mayBeSerialised(std::string_view spelling)
{
    const auto mayGoOn = [](char c) { return c == '\\' || c == '"' || c < 0; };
    // Most signs are those of addresses.
    const char next = spelling.size() > 1 ? spelling[1] : ' ';
    if (next != 'V' && next != 'D' && !mayGoOn(next))
        return false;
    for (const std::string_view opening : { "@Variant(", "@DateTime(" }) {
        const auto [at, expected]
            = std::mismatch(spelling.begin(), spelling.end(), opening.begin(), opening.end());
        if (expected == opening.end() || (at != spelling.end() && mayGoOn(*at)))
            return true;
    }
    return false;
}

/// Whether the escape at the front of @p spelling stands for "@".
bool isEscapedAtSign(std::string_view spelling)
{
    const bool isHexadecimal = spelling.substr(1, 1) == "x";
    const std::string_view number
        = spelling.substr(isHexadecimal ? 2 : std::min<std::size_t>(1, spelling.size()));
    const char *const digits = isHexadecimal ? "0123456789abcdefABCDEF" : "01234567";
    const std::string_view sign = isHexadecimal ? "40" : "100";
    const std::string_view code = number.substr(0, number.find_first_not_of(digits));
    return code.size() >= sign.size() && code.substr(code.size() - sign.size()) == sign;
}

} // namespace

bool isUnsafe(const QString &text)
{
    const TypedForm *const form = formOf(text);
    // The closing bracket stays, because QSettings passes it to the reader as well.
    return form && !form->isSafe(behindOpening(text, *form).toLatin1());
}

bool isDamaged(const QString &text)
{
    const TypedForm *const form = formOf(text);
    if (!form)
        return false;
    const QString inside = behindOpening(text, *form).chopped(1);
    const QByteArray bytes = inside.toLatin1();
    // Other characters than bytes would have become question marks.
    return inside != QString::fromLatin1(bytes.constData(), bytes.size()) || !form->isWhole(bytes);
}

bool isStorable(const QVariant &value)
{
    return isStorable(value, 0);
}

bool mayHoldSerialised(std::string_view bytes)
{
    constexpr std::size_t none = std::string_view::npos;
    for (std::size_t at = bytes.find('@'); at != none; at = bytes.find('@', at + 1)) {
        if (mayBeSerialised(bytes.substr(at)))
            return true;
    }
    for (std::size_t at = bytes.find('\\'); at != none; at = bytes.find('\\', at + 2)) {
        if (isEscapedAtSign(bytes.substr(at)))
            return true;
    }
    return false;
}

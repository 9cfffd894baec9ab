// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "format/initext.h"

#include "core/settingstext_p.h"

#include <algorithm>

namespace {

constexpr int longestLine = 100;

QByteArray percentEscape(QChar character)
{
    const ushort code = character.unicode();
    const bool isWide = code > 0xff;
    const QByteArray digits = QByteArray::number(code, 16).toUpper();
    return QByteArray(isWide ? "%U" : "%") + digits.rightJustified(isWide ? 4 : 2, '0');
}

/// Whether @p character is itself wherever it stands inside a key or the name of a section.
bool isPlainInKey(QChar character)
{
    const ushort code = character.unicode();
    return code >= ' ' && code < 0x7f && !QByteArray("%\";=\\[]").contains(char(code));
}

QByteArray spelledName(const QString &name)
{
    QByteArray spelt;
    for (int i = 0; i < name.size(); ++i) {
        const QChar character = name.at(i);
        const bool isAtEnd = i == 0 || i == name.size() - 1;
        const bool isPlain = isPlainInKey(character) && !(isAtEnd && character == QLatin1Char(' '))
            && !(i == 0 && character == QLatin1Char('#'));
        spelt += isPlain ? QByteArray(1, character.toLatin1()) : percentEscape(character);
    }
    return spelt;
}

bool isHexadecimalDigit(QChar character)
{
    return character.unicode() < 0x80
        && QByteArray("0123456789abcdefABCDEF").contains(character.toLatin1());
}

/// Whether QSettings reads the character at @p i of @p text only when it is escaped by its number:
/// half of a pair that is not there, and the mark that Qt drops in front of a text.
bool needsNumber(const QString &text, int i)
{
    const QChar character = text.at(i);
    if (character.isHighSurrogate())
        return i + 1 == text.size() || !text.at(i + 1).isLowSurrogate();
    if (character.isLowSurrogate())
        return i == 0 || !text.at(i - 1).isHighSurrogate();
    return character.unicode() < ' ' || character.unicode() == QChar::ByteOrderMark;
}

QByteArray escaped(const QString &text)
{
    constexpr std::string_view meanings = "\a\b\f\n\r\t\v\"\\";
    constexpr std::string_view letters = "abfnrtv\"\\";
    QByteArray spelt;
    QString plain;
    bool isBehindNumber = false;
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        const std::size_t letter = character.unicode() > 0 && character.unicode() < 0x80
            ? meanings.find(character.toLatin1())
            : meanings.npos;
        const bool isNumber = letter == meanings.npos
            && (needsNumber(text, i) || (isBehindNumber && isHexadecimalDigit(character)));
        isBehindNumber = isNumber;
        if (letter == meanings.npos && !isNumber) {
            plain += character;
            continue;
        }
        spelt += plain.toUtf8();
        plain.clear();
        spelt += '\\';
        if (isNumber)
            spelt += 'x' + QByteArray::number(character.unicode(), 16);
        else
            spelt += letters[letter];
    }
    return spelt + plain.toUtf8();
}

/// Texts with a meaning of their own to QSettings need quotes. So do characters that are escaped,
/// which look like a mistake elsewhere, sentences, and lists that are joined by "|": a comma that
/// somebody adds to them later would divide them.
bool needsQuotes(const QString &text)
{
    if (text.isEmpty())
        return false;
    for (int i = 0; i < text.size(); ++i) {
        if (needsNumber(text, i))
            return true;
    }
    const QString dividing = QStringLiteral(",;=|");
    const QString ending = QStringLiteral(".!?。！？");
    return text.startsWith(QLatin1Char(' ')) || text.endsWith(QLatin1Char(' '))
        || ending.contains(text.back())
        || std::any_of(text.cbegin(), text.cend(),
                       [&dividing](QChar character) { return dividing.contains(character); });
}

} // namespace

QByteArray spelledKey(const QString &key)
{
    return spelledName(key);
}

QByteArray spelledHeader(const QString &name)
{
    if (name.isEmpty())
        return "[General]";
    const QByteArray spelt = spelledName(name);
    // Without the sign, the section would be read as none.
    const bool isNamedGeneral = spelt.toLower() == "general";
    return (isNamedGeneral ? "[%" : "[") + spelt + ']';
}

QString storedText(const QString &text)
{
    return text.startsWith(QLatin1Char('@')) ? QLatin1Char('@') + text : text;
}

QByteArray spelledValue(const QStringList &elements, int column)
{
    QByteArrayList spelt;
    bool isAnyQuoted = false;
    for (const QString &element : elements) {
        const bool isQuoted = needsQuotes(element);
        isAnyQuoted = isAnyQuoted || isQuoted;
        const QByteArray quote = isQuoted ? "\"" : "";
        spelt.append(quote + escaped(element) + quote);
    }
    QByteArray line = spelt.join(", ");
    // An empty element at the end.
    if (line.endsWith(' '))
        line.chop(1);
    const bool isLong = column + QString::fromUtf8(line).size() > longestLine;
    return isLong && isAnyQuoted ? spelt.join(",\\\n") : line;
}

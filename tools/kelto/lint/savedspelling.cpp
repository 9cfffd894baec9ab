// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/savedspelling.h"

#include "lint/lintitem.h"

#include <algorithm>
#include <cctype>

namespace {

/// One character of a value, where it has no letter of its own behind a backslash.
QByteArray spelledCharacter(QChar character, bool isAscii)
{
    const ushort code = character.unicode();
    if (code == 0)
        return "\\0";
    if (code < ' ' || (isAscii && code > '~'))
        return "\\x" + QByteArray::number(code, 16);
    return QString(character).toUtf8();
}

bool isHexadecimalDigit(QChar character)
{
    return character.unicode() < 0x80 && std::isxdigit(character.unicode());
}

/// @p text as QSettings of Qt 5 spells it in a file in UTF-8.
QByteArray savedText(const QString &text)
{
    constexpr std::string_view meanings = "\a\b\f\n\r\t\v\"\\";
    constexpr std::string_view letters = "abfnrtv\"\\";
    // Their bytes stand for themselves.
    const bool isAscii = text.startsWith(QLatin1String("@ByteArray("))
        || text.startsWith(QLatin1String("@Variant("));
    QByteArray spelt;
    bool isBehindNumber = false;
    for (const QChar character : text) {
        const std::size_t letter = character.unicode() > 0 && character.unicode() < 0x80
            ? meanings.find(character.toLatin1())
            : meanings.npos;
        const bool continuesNumber = isBehindNumber && isHexadecimalDigit(character);
        QByteArray added = continuesNumber ? "\\x" + QByteArray::number(character.unicode(), 16)
                                           : spelledCharacter(character, isAscii);
        if (letter != meanings.npos)
            added = QByteArray(1, '\\') + letters[letter];
        isBehindNumber = letter == meanings.npos && added.startsWith('\\');
        spelt += added;
    }
    const auto divides = [](char c) { return c == ';' || c == ',' || c == '='; };
    const bool needsQuotes = spelt.startsWith(' ') || spelt.endsWith(' ')
        || std::any_of(spelt.cbegin(), spelt.cend(), divides);
    return needsQuotes ? '"' + spelt + '"' : spelt;
}

QByteArray savedList(const QStringList &elements)
{
    QByteArrayList spelt;
    for (const QString &element : elements)
        spelt.append(savedText(element));
    return spelt.join(", ");
}

bool isAdded(const ItemFileKey &key)
{
    return key.section == knownSections().constFirst()
        && key.name == QLatin1String("output_results");
}

QByteArray bytesOf(std::string_view text)
{
    return QByteArray(text.data(), static_cast<int>(text.size()));
}

QByteArray savedLine(const ItemFileKey &key)
{
    if (!isAdded(key))
        return bytesOf(key.spelt) + '=' + savedList(key.value) + '\n';
    const char *const end = key.speltValue.data() + key.speltValue.size();
    return bytesOf(textBetween(key.spelt.data(), end)) + '\n';
}

/// Sections and keys of @p file as a save writes them, in the order of the file.
QByteArray savedBytes(const ItemFile &file)
{
    QByteArray bytes;
    int next = 0;
    for (const ItemFileSection &section : file.sections()) {
        const bool isFirst = bytes.isEmpty();
        bytes += (isFirst ? "[" : "\n[") + bytesOf(section.spelt) + "]\n";
        for (; next < file.keys().size() && file.keys().at(next).section == section.name; ++next)
            bytes += savedLine(file.keys().at(next));
    }
    return bytes;
}

bool isInOrder(const ItemFile &file)
{
    QString before;
    for (const ItemFileKey &key : file.keys()) {
        const QString name = key.section + QLatin1Char('/') + key.name;
        if (isAdded(key))
            continue;
        if (name <= before)
            return false;
        before = name;
    }
    return true;
}

bool hasAllFields(const ItemFile &file)
{
    const QStringList fields = knownFields();
    return std::all_of(fields.cbegin(), fields.cend(), [&file](const QString &field) {
        return field == QLatin1String("output_results")
            || file.find(knownSections().constFirst(), field);
    });
}

bool isSaved(const ItemFile &file)
{
    if (!hasAllFields(file) || !isInOrder(file))
        return false;
    QByteArray bytes = file.bytes();
    return bytes.replace("\r\n", "\n") == savedBytes(file);
}

} // namespace

bool SavedSpelling::hasEscapesOf(const ItemFileKey &key) const
{
    static const QStringList fileNames { QStringLiteral("icon"), QStringLiteral("lib_name") };
    if (key.section == knownSections().constFirst() && fileNames.contains(key.name))
        return false;
    if (!m_isSaved)
        m_isSaved = isSaved(m_file);
    return *m_isSaved;
}

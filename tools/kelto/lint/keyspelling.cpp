// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/keyspelling.h"

#include "command.h"
#include "lint/lintitem.h"

#include <algorithm>

namespace {

/// Non-ASCII letters as QSettings spells them; null when the bytes are not UTF-8.
QByteArray respelt(std::string_view key)
{
    if (firstInvalidByte(key) != key.data() + key.size())
        return {};
    QByteArray spelt;
    const QString text = QString::fromUtf8(key.data(), static_cast<int>(key.size()));
    for (const QChar c : text) {
        const QByteArray number = QByteArray::number(c.unicode(), 16).toUpper();
        if (c.unicode() < 0x80)
            spelt += c.toLatin1();
        else if (c.unicode() <= 0xff)
            spelt += '%' + number;
        else
            spelt += "%U" + number.rightJustified(4, '0');
    }
    return spelt;
}

/// The first "%" in @p key that is read together with the next characters, though QSettings would
/// write the character they stand for as it is; null when there is none.
const char *oddEscapeIn(std::string_view key)
{
    for (std::size_t at = key.find('%'); at != key.npos; at = key.find('%', at + 1)) {
        const std::size_t length = key.substr(at, 2) == "%U" ? 6 : 3;
        const QString read = SettingsKey { {}, key.substr(at, length) }.text();
        if (read.size() != 1 || read == QLatin1String("%"))
            continue;
        const bool isUsual = read.at(0).unicode() < 0x80
            && (read.at(0).isLetterOrNumber() || QStringLiteral("_-.").contains(read.at(0)));
        const auto isDigit = [](char c) { return std::isxdigit(static_cast<unsigned char>(c)); };
        const std::string_view digits = key.substr(at + length / 3, length - length / 3);
        if (isUsual || !std::all_of(digits.cbegin(), digits.cend(), isDigit))
            return key.data() + at;
    }
    return nullptr;
}

bool isReadable(const QString &name)
{
    const QLatin1Char slash('/');
    return !name.startsWith(slash) && !name.endsWith(slash) && !name.contains(QLatin1String("//"));
}

} // namespace

bool isBrokenKey(const ItemFileKey &key)
{
    return key.spelt.find_first_of("\r\n") != key.spelt.npos;
}

void KeySpelling::check(const ItemFileKey &key)
{
    checkCharacters(key);
    checkSlash(key);
}

void KeySpelling::checkCharacters(const ItemFileKey &key)
{
    const auto isAscii = [](char c) { return static_cast<signed char>(c) >= 0; };
    const auto foreign = std::find_if_not(key.spelt.cbegin(), key.spelt.cend(), isAscii);
    if (isBrokenKey(key)) {
        const bool isQuote = key.spelt.find('"') < key.spelt.find_first_of("\r\n");
        m_findings->add("quote-in-key", key.position,
                        isQuote ? Command::tr("the quote in the key makes the next lines a part "
                                              "of the key; write it as %22")
                                : Command::tr("the backslash at the end of the line makes the next "
                                              "line a part of the key"));
    } else if (key.name.isEmpty()) {
        m_findings->add("nameless-key", key.position,
                        Command::tr("no key stands before the \"=\""));
    } else if (foreign != key.spelt.cend()) {
        const QByteArray spelt = respelt(key.spelt);
        const auto isTaken = [&](const QByteArray &other) {
            const std::string_view view(other.constData(), std::size_t(other.size()));
            return m_findings->file().find(key.section, SettingsKey { {}, view }.text());
        };
        // No field has such letters, so that another one was meant.
        const bool isInFields = key.section == knownSections().constFirst();
        m_findings->add("non-ascii-key", &*foreign,
                        Command::tr("the key is read as \"%1\": other letters than ASCII are "
                                    "written as %U and four hexadecimal digits in a key")
                            .arg(key.name),
                        spelt.isEmpty() || isTaken(spelt) || isInFields
                            ? QVector<TextEdit>()
                            : QVector<TextEdit> { m_findings->edit(key.spelt, spelt) });
    } else if (const char *const escape = oddEscapeIn(key.spelt)) {
        m_findings->add("escape-in-key", escape,
                        Command::tr("the key is read as \"%1\"; write \"%\" as %25").arg(key.name));
    }
}

void KeySpelling::checkSlash(const ItemFileKey &key)
{
    const QString &name = key.name;
    if (!name.contains(QLatin1Char('/')) || !isReadable(name) || m_reported.contains(name)
        || m_reported.contains(name.mid(name.indexOf(QLatin1Char('.')) + 1)))
        return;
    m_reported.insert(name);
    m_findings->add("slash-in-key", key.position,
                    Command::tr("of the key only \"%1\" is read, what stands behind the \"/\"")
                        .arg(name.mid(name.lastIndexOf(QLatin1Char('/')) + 1)));
}

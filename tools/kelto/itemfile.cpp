// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "itemfile.h"

#include "command.h"
#include "itempaths.h"

#include <QFile>
#include <QTemporaryFile>

#include <algorithm>
#include <iterator>

namespace {

constexpr int countedBytes = 1024;

bool beginsCharacter(char byte)
{
    return (byte & 0xc0) != 0x80;
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace

ItemFile::ItemFile(const QString &path)
    : m_path(path)
{
    m_error = whyUnreadable(path);
    QFile file(path);
    if (m_error.isEmpty() && file.open(QIODevice::ReadOnly)) {
        m_bytes = file.readAll();
        readLines();
        readKeys();
        m_item.load_ini(path);
    }
}

ItemFile::ItemFile(const QString &path, const QByteArray &bytes)
    : m_path(path)
    , m_bytes(bytes)
{
    readLines();
    readKeys();
    // Items are read from files only.
    QTemporaryFile copy;
    if (copy.open() && copy.write(bytes) == bytes.size() && copy.flush())
        m_item.load_ini(copy.fileName());
    else
        m_error = copy.errorString();
}

QString ItemFile::whyNoModule() const
{
    if (!m_error.isEmpty() || !m_item.name.isEmpty())
        return m_error;
    return Command::tr("%1: holds no module: the section \"KeltoItem\" with a \"name\" is "
                       "missing. \"kelto lint\" says more.")
        .arg(m_path);
}

void ItemFile::readLines()
{
    const char lineEnd = m_bytes.contains('\n') ? '\n' : '\r';
    for (int at = 0, count = 0; at < m_bytes.size(); ++at) {
        if (at % countedBytes == 0)
            m_charactersBefore.append(count);
        count += beginsCharacter(m_bytes.at(at)) ? 1 : 0;
    }
    m_lineStarts.append(0);
    for (int at = m_bytes.indexOf(lineEnd); at >= 0; at = m_bytes.indexOf(lineEnd, at + 1))
        m_lineStarts.append(at + 1);
}

void ItemFile::readKeys()
{
    IniReader reader(m_bytes);
    QString section;
    while (reader.next()) {
        const IniLine &line = reader.line();
        if (line.kind == IniLine::Section) {
            // Of a key without a name only the section is left, and the "/" behind it.
            section = SettingsKey { line.key, {} }.text();
            section.chop(1);
            m_sections.append({ section, line.key, reader.positionAt(line.text.data()) });
        } else if (line.kind == IniLine::Entry) {
            const SettingsKey key = reader.key();
            const std::string_view value = trimmed(line.value);
            const IniPosition position = reader.positionAt(line.text.data());
            m_keys.append({ key.section.data() ? section : QString(),
                            SettingsKey { {}, key.name }.text(), elementsOfValue(line.value),
                            line.key, value, position, reader.positionAt(value.data()) });
            const ItemFileKey &added = m_keys.constLast();
            const QString prefix = added.section + QLatin1Char('/');
            m_positions.insert(prefix + added.name, m_keys.size() - 1);
            if (const int slash = added.name.lastIndexOf(QLatin1Char('/')); slash >= 0)
                m_positionsByLastPart.insert(prefix + added.name.mid(slash + 1), m_keys.size() - 1);
        }
    }
}

const ItemFileKey *ItemFile::find(const QString &section, const QString &name) const
{
    const auto position = m_positions.constFind(section + QLatin1Char('/') + name);
    return position == m_positions.cend() ? nullptr : &m_keys.at(*position);
}

const ItemFileKey *ItemFile::findReadAs(const QString &section, const QString &name) const
{
    if (const ItemFileKey *key = find(section, name))
        return key;
    const auto position = m_positionsByLastPart.constFind(section + QLatin1Char('/') + name);
    return position == m_positionsByLastPart.cend() ? nullptr : &m_keys.at(*position);
}

IniPosition ItemFile::positionAt(const char *place) const
{
    const int offset = static_cast<int>(place - m_bytes.constData());
    const auto behind = std::upper_bound(m_lineStarts.cbegin(), m_lineStarts.cend(), offset);
    IniPosition position;
    position.line = static_cast<int>(std::distance(m_lineStarts.cbegin(), behind));
    position.column += charactersBefore(offset) - charactersBefore(*std::prev(behind));
    return position;
}

int ItemFile::charactersBefore(int offset) const
{
    const int block = qMin(offset / countedBytes, m_charactersBefore.size() - 1);
    if (block < 0)
        return 0;
    int count = m_charactersBefore.at(block);
    for (int i = block * countedBytes; i < offset; ++i)
        count += beginsCharacter(m_bytes.at(i)) ? 1 : 0;
    return count;
}

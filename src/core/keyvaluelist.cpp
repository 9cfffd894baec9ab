// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/keyvaluelist_p.h"

#include <algorithm>
#include <utility>

namespace {

/// An index is built when look-ups have walked past this many entries for each one in the list.
/// Building takes about as long, so at worst it doubles the cost.
constexpr int walksPerIndex = 16;
/// In a list of about so many entries one question for every key is still cheaper than an index.
constexpr int entriesPerIndex = 64;
/// In shorter lists a walk is not slower than a hash look-up.
constexpr int shortList = 16;

} // namespace

int firstIndexOf(const KeyValues &entries, const QString &key)
{
    // Most keys already differ in length, which is seen here without a call.
    const auto isNamed = [&key](const KeyValue &entry) {
        return entry.first.size() == key.size() && entry.first == key;
    };
    const auto found = std::find_if(entries.cbegin(), entries.cend(), isNamed);
    return found == entries.cend() ? -1 : static_cast<int>(found - entries.cbegin());
}

QVariant firstValueOf(const KeyValues &entries, const QString &key)
{
    return entries.value(firstIndexOf(entries, key)).second;
}

KeyValueList::KeyValueList(const KeyValueList &other)
    : m_entries(other.copiedEntries())
    , m_index(other.m_index)
    , m_walked(other.m_walked)
{
}

KeyValues KeyValueList::copiedEntries() const
{
    KeyValues copy = m_entries;
    if (m_isLent)
        copy.detach();
    return copy;
}

void KeyValueList::replace(const KeyValues &entries)
{
    if (m_entries.isSharedWith(entries))
        return;
    const auto haveOneKey = [](const KeyValue &a, const KeyValue &b) { return a.first == b.first; };
    const bool haveSameKeys = std::equal(m_entries.cbegin(), m_entries.cend(), entries.cbegin(),
                                         entries.cend(), haveOneKey);
    // Copies of what is lent share nothing with it, so that its own copy may come back here.
    if (m_isLent && haveSameKeys)
        std::copy(entries.cbegin(), entries.cend(), m_entries.begin());
    else
        *this = KeyValueList(entries);
}

QVariant *KeyValueList::lendValue(int index)
{
    m_isLent = true;
    return &m_entries[index].second;
}

KeyValues *KeyValueList::lendEntries()
{
    dropIndex();
    m_entries.detach();
    m_isLent = true;
    m_mayIndex = false;
    return &m_entries;
}

KeyValues KeyValueList::take()
{
    dropIndex();
    return std::exchange(m_entries, {});
}

QStringList KeyValueList::keys() const
{
    QStringList result;
    result.reserve(m_entries.size());
    for (const KeyValue &entry : m_entries)
        result.append(entry.first);
    return result;
}

int KeyValueList::indexOf(const QString &key) const
{
    if (m_entries.size() <= shortList)
        return firstIndexOf(m_entries, key);
    if (isIndexed())
        return m_index.indexOf(key);

    const int index = firstIndexOf(m_entries, key);
    m_walked += index < 0 ? m_entries.size() : index;
    if (m_mayIndex && m_walked > qint64(walksPerIndex) * (m_entries.size() + entriesPerIndex))
        buildIndex();
    return index;
}

QVariant KeyValueList::value(const QString &key) const
{
    const int index = indexOf(key);
    return index < 0 ? QVariant() : m_entries.at(index).second;
}

void KeyValueList::append(const QString &key, const QVariant &value)
{
    if (isIndexed())
        m_index.append(key);
    m_entries.append({ key, value });
}

bool KeyValueList::set(const QString &key, const QVariant &value)
{
    const int index = indexOf(key);
    if (index < 0)
        append(key, value);
    else
        m_entries[index].second = value;
    return index < 0;
}

void KeyValueList::merge(const KeyValues &entries)
{
    for (const KeyValue &entry : entries)
        set(entry.first, entry.second);
}

void KeyValueList::removeAt(int index)
{
    dropIndex();
    m_entries.remove(index);
}

void KeyValueList::removeMarked(const QVector<bool> &marks)
{
    dropIndex();
    m_entries = withoutMarked(m_entries, marks);
}

void KeyValueList::buildIndex() const
{
    m_index.clear();
    for (const KeyValue &entry : m_entries)
        m_index.append(entry.first);
}

void KeyValueList::dropIndex()
{
    m_index.clear();
    m_walked = 0;
}

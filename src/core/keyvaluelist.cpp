// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/keyvaluelist_p.h"

#include <algorithm>
#include <utility>

namespace {

/// A hash look-up costs about as much as walking past this many entries, and so does adding an
/// entry to the index. So shorter lists are never indexed, and a longer one is when its look-ups
/// have cost as much as the index will: at worst that doubles the cost.
constexpr int walksPerHash = 16;

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
    if (m_hasPointers)
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
    // The entries may be a copy of this very list, which copiedEntries() keeps apart from it: its
    // values go where pointers already point.
    if (m_hasPointers && haveSameKeys)
        std::copy(entries.cbegin(), entries.cend(), m_entries.begin());
    else
        *this = KeyValueList(entries);
}

QVariant *KeyValueList::valuePointer(int index)
{
    m_hasPointers = true;
    return &m_entries[index].second;
}

KeyValues *KeyValueList::entriesPointer()
{
    dropIndex();
    m_entries.detach();
    m_hasPointers = true;
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
    if (m_entries.size() <= walksPerHash)
        return firstIndexOf(m_entries, key);
    if (isIndexed())
        return m_index.indexOf(key);

    const int index = firstIndexOf(m_entries, key);
    m_walked += index < 0 ? m_entries.size() : index;
    if (m_mayIndex && m_walked > qint64(walksPerHash) * m_entries.size())
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

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KEYVALUELIST_P_H
#define KEYVALUELIST_P_H

#include "core/firstpositions_p.h"

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <utility>

using KeyValue = QPair<QString, QVariant>;
using KeyValues = QVector<KeyValue>;

/// Position of the first entry of @p entries with the key @p key; -1 when there is none.
int firstIndexOf(const KeyValues &entries, const QString &key);

/// Value of the first entry of @p entries with the key @p key; invalid when there is none.
QVariant firstValueOf(const KeyValues &entries, const QString &key);

/**
 * A list of keys and values in which the first entry of a key counts.
 *
 * Look-ups walk along the list until that has cost about as much as an index would have; from then
 * on they cost a hash look-up. So a list that is short, asked little or changed all the time never
 * pays for an index. List and index are changed by the operations below and by nothing else, which
 * is why the index cannot be wrong.
 */
class KeyValueList
{
public:
    KeyValueList() = default;
    explicit KeyValueList(KeyValues entries)
        : m_entries(std::move(entries))
    {
    }

    KeyValueList(const KeyValueList &other);
    KeyValueList(KeyValueList &&other) = default;
    KeyValueList &operator=(const KeyValueList &other) { return *this = KeyValueList(other); }
    KeyValueList &operator=(KeyValueList &&other) = default;
    ~KeyValueList() = default;

    const KeyValues &entries() const { return m_entries; }
    /// The entries, to be kept: what is written through pointers into this list does not reach
    /// them.
    KeyValues copiedEntries() const;
    /// Gives the entries away; the list is empty then.
    KeyValues take();
    /// Takes @p entries over. Pointers into the list stay valid if these are the entries that are
    /// there, or if they have the same keys.
    void replace(const KeyValues &entries);
    int size() const { return m_entries.size(); }
    QStringList keys() const;

    /// Position of the first entry with the key @p key; -1 when there is none.
    int indexOf(const QString &key) const;

    /// Value of the first entry with the key @p key; invalid when there is none.
    QVariant value(const QString &key) const;

    /// The value at @p index, to be written; valid until the list is changed.
    QVariant *valuePointer(int index);
    /// The entries, to be written, with the same validity. Since their keys may then change without
    /// a call, the list is not indexed any more.
    KeyValues *entriesPointer();

    void append(const QString &key, const QVariant &value);

    /// Gives the first entry with the key @p key the value @p value, or appends both; whether it
    /// appended.
    bool set(const QString &key, const QVariant &value);

    /// Sets every entry of @p entries, in order.
    void merge(const KeyValues &entries);

    void removeAt(int index);

    /// Removes the entries whose position has a true in @p marks; what is behind its end stays.
    void removeMarked(const QVector<bool> &marks);

private:
    bool isIndexed() const { return m_index.size() > 0 && m_index.size() == m_entries.size(); }
    void buildIndex() const;
    void dropIndex();

    KeyValues m_entries;
    mutable FirstPositions m_index;
    /// Entries that look-ups have walked past since the index was lost.
    mutable qint64 m_walked = 0;
    bool m_hasPointers = false;
    bool m_mayIndex = true;
};

/// @p list without the elements whose position has a true in @p marks.
template <typename List> List withoutMarked(const List &list, const QVector<bool> &marks)
{
    List kept;
    kept.reserve(list.size());
    for (int i = 0; i < list.size(); ++i) {
        if (!marks.value(i, false))
            kept.append(list.at(i));
    }
    return kept;
}

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FIRSTPOSITIONS_P_H
#define FIRSTPOSITIONS_P_H

#include <QHash>
#include <QString>

/// The texts of a list that only grows, looked up at the cost of a hash look-up: indexOf() gives
/// what QStringList::indexOf() gives on that list.
class FirstPositions
{
public:
    /// Takes @p text in at the position size().
    void append(const QString &text)
    {
        if (!m_positions.contains(text))
            m_positions.insert(text, m_size);
        ++m_size;
    }

    /// The first position of @p text; -1 when it is not there.
    int indexOf(const QString &text) const { return m_positions.value(text, -1); }
    bool contains(const QString &text) const { return m_positions.contains(text); }
    int size() const { return m_size; }
    void clear() { *this = FirstPositions(); }

private:
    QHash<QString, int> m_positions;
    int m_size = 0;
};

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef NAMEPAIRINDEX_P_H
#define NAMEPAIRINDEX_P_H

#include <QHash>
#include <QString>

/// The pairs of a plain and a translated name of a list that only grows, looked up at the cost of a
/// hash look-up.
class NamePairIndex
{
public:
    /// Takes a pair in at the position size().
    void append(const QString &plain, const QString &translated)
    {
        First &first = m_firsts[plain];
        note(first.plain);
        note(first.either);
        note(m_firsts[translated].either);
        ++m_size;
    }

    /// The first position with the plain name @p name; -1 when there is none.
    int indexOfPlain(const QString &name) const { return m_firsts.value(name).plain; }
    /// The first position with @p name as the plain or the translated name; -1 when there is none.
    int indexOfEither(const QString &name) const { return m_firsts.value(name).either; }
    int size() const { return m_size; }
    void clear() { *this = NamePairIndex(); }

private:
    struct First
    {
        int plain = -1;
        int either = -1;
    };
    void note(int &first) const
    {
        if (first < 0)
            first = m_size;
    }

    QHash<QString, First> m_firsts;
    int m_size = 0;
};

#endif

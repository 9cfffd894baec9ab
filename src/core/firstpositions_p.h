// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FIRSTPOSITIONS_P_H
#define FIRSTPOSITIONS_P_H

#include <QHash>
#include <QString>

#include <utility>

/// The texts of a list that only grows, looked up at the cost of a hash look-up: indexOf() gives
/// what QStringList::indexOf() gives on that list.
class FirstPositions
{
public:
    FirstPositions() = default;
    FirstPositions(const FirstPositions &other) = default;
    FirstPositions(FirstPositions &&other) noexcept { swap(other); }
    FirstPositions &operator=(FirstPositions other) noexcept
    {
        swap(other);
        return *this;
    }
    ~FirstPositions() = default;

    void swap(FirstPositions &other) noexcept
    {
        m_positions.swap(other.m_positions);
        std::swap(m_size, other.m_size);
    }

    /// Takes @p text in at the position size().
    void append(const QString &text);

    /// The first position of @p text; -1 when it is not there.
    int indexOf(const QString &text) const { return m_positions.value(text, -1); }
    bool contains(const QString &text) const { return m_positions.contains(text); }
    int size() const { return m_size; }
    void clear() { *this = FirstPositions(); }

private:
    QHash<QString, int> m_positions;
    int m_size = 0;
};

/// The first position at which either of two parallel lists has a text, given its first position
/// in each; -1 when neither has it.
int firstOfEither(int position, int otherPosition);

#endif

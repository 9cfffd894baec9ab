// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/firstpositions_p.h"

#include <algorithm>

void FirstPositions::append(const QString &text)
{
    if (!m_positions.contains(text))
        m_positions.insert(text, m_size);
    ++m_size;
}

int firstOfEither(int position, int otherPosition)
{
    if (position < 0 || otherPosition < 0)
        return std::max(position, otherPosition);
    return std::min(position, otherPosition);
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "registry/knownparameters_p.h"

#include "core/vparameter_p.h"

#include <algorithm>

namespace {

/// Up to this length a walk along the list is not slower than working out a hash.
constexpr int shortList = 16;

} // namespace

bool KnownParameters::contains(const VParameter &parameter) const
{
    if (m_list.size() < shortList) {
        return std::any_of(m_list.cbegin(), m_list.cend(), [&parameter](const VParameter &known) {
            return known.isEqual(&parameter);
        });
    }
    for (int i = m_positions.size(); i < m_list.size(); ++i)
        m_positions.insert(parameterHash(m_list.at(i)), i);
    const uint hash = parameterHash(parameter);
    for (auto it = m_positions.constFind(hash); it != m_positions.cend() && it.key() == hash;
         ++it) {
        if (m_list.at(it.value()).isEqual(&parameter))
            return true;
    }
    return false;
}

void KnownParameters::appendNew(const QVector<VParameter> &parameters)
{
    for (const VParameter &parameter : parameters) {
        if (!contains(parameter))
            append(parameter);
    }
}

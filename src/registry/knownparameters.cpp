// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "registry/knownparameters_p.h"

#include "core/vparameter_p.h"

#include <algorithm>

namespace {

/// Up to this length a walk along the list is not slower than working out a hash.
constexpr int shortList = 16;

} // namespace

uint KnownParameters::hashOf(const VParameter &parameter) const
{
    return m_list.size() < shortList ? 0U : parameterHash(parameter);
}

bool KnownParameters::contains(const VParameter &parameter) const
{
    return contains(hashOf(parameter), parameter);
}

void KnownParameters::append(const VParameter &parameter)
{
    append(hashOf(parameter), parameter);
}

bool KnownParameters::contains(uint hash, const VParameter &parameter) const
{
    if (m_positions.isEmpty()) {
        return std::any_of(m_list.cbegin(), m_list.cend(), [&parameter](const VParameter &known) {
            return known.isEqual(&parameter);
        });
    }
    for (auto it = m_positions.constFind(hash); it != m_positions.cend() && it.key() == hash;
         ++it) {
        if (m_list.at(it.value()).isEqual(&parameter))
            return true;
    }
    return false;
}

void KnownParameters::append(uint hash, const VParameter &parameter)
{
    m_list.append(parameter);
    if (m_list.size() < shortList)
        return;
    if (!m_positions.isEmpty()) {
        m_positions.insert(hash, m_list.size() - 1);
        return;
    }
    for (int i = 0; i < m_list.size(); ++i)
        m_positions.insert(parameterHash(m_list.at(i)), i);
}

void KnownParameters::appendNew(const VParameter &parameter)
{
    const uint hash = hashOf(parameter);
    if (!contains(hash, parameter))
        append(hash, parameter);
}

void KnownParameters::appendNew(const QVector<VParameter> &parameters)
{
    for (const VParameter &parameter : parameters)
        appendNew(parameter);
}

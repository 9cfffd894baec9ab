// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "hints/countingparameters_p.h"

#include "core/enteredvalues_p.h"

#include <algorithm>

bool CountingParameters::contains(const QString &key)
{
    // Not by recursion: a chain of conditions may be longer than the stack allows. Hints hold none
    // that run in a circle.
    QStringList chain;
    QString next = key;
    bool counts = true;
    while (counts && !m_known.contains(next)) {
        chain.append(next);
        if (m_hints.conditionValues(next).isEmpty())
            break;
        counts = isConditionMet(next);
        next = m_hints.conditionKey(next);
    }
    counts = counts && m_known.value(next, true);
    for (const QString &link : qAsConst(chain))
        m_known.insert(link, counts);
    return counts;
}

bool CountingParameters::isConditionMet(const QString &key) const
{
    const int found = m_values.indexOf(valueKeyOf(m_hints.conditionKey(key)));
    if (found < 0)
        return false;
    const QStringList wanted = m_hints.conditionValues(key);
    const QStringList texts = textsOf(m_values.entries().at(found).second);
    return std::any_of(texts.cbegin(), texts.cend(),
                       [&wanted](const QString &text) { return wanted.contains(text); });
}

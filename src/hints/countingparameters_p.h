// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef COUNTINGPARAMETERS_P_H
#define COUNTINGPARAMETERS_P_H

#include "core/keyvaluelist_p.h"
#include "keltoitemhints.h"

#include <QHash>
#include <QString>

/// Which parameters count beside given values. Each is looked at once, however many depend on it.
class CountingParameters
{
public:
    CountingParameters(KeltoItemHints hints, const KeyValues &values)
        : m_hints(std::move(hints))
        , m_values(values)
    {
    }

    bool contains(const QString &key);

private:
    bool isConditionMet(const QString &key) const;

    KeltoItemHints m_hints;
    KeyValueList m_values;
    QHash<QString, bool> m_known;
};

#endif

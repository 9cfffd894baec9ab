// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef STOREDVALUES_P_H
#define STOREDVALUES_P_H

#include "core/firstpositions_p.h"
#include "core/keyvaluelist_p.h"

#include <QHash>
#include <QString>
#include <QVariant>

#include <vector>

/// What a registry remembers for its host, by key.
struct StoredValues
{
    KeyValueList set;
    KeyValueList calculation;
    /// A hash, since nobody can ask for their order or for two of one key.
    QHash<QString, QVariant> temporary;

    /// Lists of values by the name of their group; entry i of one belongs to entry i of the other.
    FirstPositions groupNames;
    std::vector<KeyValueList> groups;

    /// The list of the first group called @p name; nullptr when there is none.
    KeyValueList *findGroup(const QString &name)
    {
        const int index = groupNames.indexOf(name);
        return index < 0 ? nullptr : &groups[static_cast<std::size_t>(index)];
    }

    /// What is handed out for writing where there is nothing to hand out.
    QVariant noValue;
    KeyValues noValues;
};

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef REQUIREDPARAMETERS_P_H
#define REQUIREDPARAMETERS_P_H

#include "auth_inf.h"
#include "core/enteredvalues_p.h"
#include "core/keyvaluelist_p.h"
#include "keltoparameterentry.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

/// The parameters of an inner mode that need a value, beside the values that there are.
class RequiredParameters
{
public:
    /// @param mode plain name of the inner mode: any other has the position -1 and no entries.
    RequiredParameters(const AUTH_INF &item, const KeyValues &values, const QString &mode,
                       const QStringList &skipGroups)
        : m_entries(item.inner_mode_parameterList.value(item.inner_mode_nameList.indexOf(mode)))
        , m_values(values)
        , m_skipped(skipGroups.cbegin(), skipGroups.cend())
    {
    }

    /// The entries of the mode, skipped ones included.
    const QVector<QStringList> &entries() const { return m_entries; }
    const KeyValueList &values() const { return m_values; }

    /**
     * Calls @p visit for each required parameter, in entry order, with its entry, its value key and
     * the position of its value, which is -1 where it is absent.
     *
     * Ends with the first call that gives false; whether none did. Every check of values is one
     * such walk, so that none can differ from another in what is required and absent.
     */
    template <typename Visit> bool visitAll(Visit visit) const
    {
        for (const QStringList &entry : m_entries) {
            if (isSkipped(entry))
                continue;
            const QString key = valueKeyOf(entry.value(KeltoParameterEntry::Key));
            if (!visit(entry, key, m_values.indexOf(key)))
                return false;
        }
        return true;
    }

private:
    bool isSkipped(const QStringList &entry) const
    {
        return m_skipped.contains(entry.value(KeltoParameterEntry::Group))
            || m_skipped.contains(entry.value(KeltoParameterEntry::TranslatedGroup));
    }

    QVector<QStringList> m_entries;
    KeyValueList m_values;
    QSet<QString> m_skipped;
};

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The parameters and results that belong by default to a mode, a group or all groups of a registry.

#include "auth_set.h"

#include "core/namesort_p.h"
#include "registry/auth_set_p.h"
#include "registry/knownparameters_p.h"

#include <QSet>

#include <algorithm>

namespace {

using Parameters = QVector<VParameter>;

Parameters sortedByName(const Parameters &parameters)
{
    return sortedByFirstBearer(parameters,
                               [](const VParameter &parameter) { return parameter.name().first; });
}

bool isInSubGroup(const VParameter &parameter, const QString &subGroup)
{
    return parameter.group().first == subGroup || parameter.group().second == subGroup;
}

/// Entries that are not nine texts long leave the parameter empty, which is kept.
Parameters parametersOf(const QVector<QStringList> &entries)
{
    Parameters parameters(entries.size());
    for (int i = 0; i < entries.size(); ++i)
        parameters[i].set(entries.at(i));
    return parameters;
}

Parameters resultsOf(const AUTH_INF &item)
{
    Parameters results;
    results.reserve(item.output_results.size());
    for (const QStringList &entry : item.output_results)
        results.append(VParameter(entry));
    return results;
}

Parameters distinct(const Parameters &first, const Parameters &second)
{
    KnownParameters parameters;
    parameters.appendNew(first);
    parameters.appendNew(second);
    return parameters.list();
}

/**
 * What comes out when the first list is merged with the second, the result with the third, and so
 * on; every list has to be sorted by name.
 *
 * Each merging leaves one record per name, the first that ever came, but for the last one, which
 * may add a second place for a name. So the lists before the last need not be merged one by one.
 */
Parameters mergedInTurn(const QVector<Parameters> &lists)
{
    if (lists.isEmpty())
        return {};
    Parameters firstBearers;
    QSet<QString> names;
    for (int i = 0; i + 1 < lists.size(); ++i) {
        for (const VParameter &parameter : lists.at(i)) {
            const QString name = parameter.name().first;
            if (names.contains(name))
                continue;
            names.insert(name);
            firstBearers.append(parameter);
        }
    }
    return sortedByName(distinct(firstBearers, lists.last()));
}

/// The sub-groups of @p parameters, without doubles.
class SubGroups
{
public:
    void add(const Parameters &parameters)
    {
        for (const VParameter &parameter : parameters) {
            if (m_known.contains(parameter.group()))
                continue;
            m_known.insert(parameter.group());
            m_groups.append(parameter.group());
        }
    }
    NamePairs sorted() const
    {
        return sortedByFirstBearer(m_groups, [](const NamePair &group) { return group.first; });
    }

private:
    NamePairs m_groups;
    QSet<NamePair> m_known;
};

NamePairs subGroupsOf(const Parameters &parameters)
{
    SubGroups groups;
    groups.add(parameters);
    return groups.sorted();
}

/// The parameters of each mode of @p group. Where there are more modes than name pairs, the modes
/// behind the last pair have no name to be asked for.
QVector<Parameters> parametersByMode(const AUTH_SET &set, const QString &group)
{
    const NamePairs modes = set.exclusive_group_inner_mode_namelist_at(group);
    const int count = std::min(set.exclusive_group_mode_count(group), modes.size());
    QVector<Parameters> lists;
    lists.reserve(count);
    for (int i = 0; i < count; ++i)
        lists.append(set.defaultParameterList(group, modes.at(i).first));
    return lists;
}

} // namespace

QVector<VParameter> AUTH_SET::defaultParameterList(QString exclusiveGroup, QString mode) const
{
    return sortedByName(
        parametersOf(exclusive_group_parameter_settings_origin(exclusiveGroup, mode)));
}

QVector<VParameter> AUTH_SET::defaultParameterList(QString exclusiveGroup) const
{
    KnownParameters parameters;
    const QVector<Parameters> lists = parametersByMode(*this, exclusiveGroup);
    for (const Parameters &list : lists)
        parameters.appendNew(list);
    return sortedByName(parameters.list());
}

QVector<VParameter> AUTH_SET::defaultParameterList() const
{
    QVector<Parameters> lists;
    const QStringList groups = exclusive_group_namelist();
    for (const QString &group : groups)
        lists.append(defaultParameterList(group));
    return mergedInTurn(lists);
}

QVector<VParameter> AUTH_SET::defaultParameterListBySubGroup(QString subGroup) const
{
    Parameters found;
    const Parameters parameters = defaultParameterList();
    std::copy_if(parameters.cbegin(), parameters.cend(), std::back_inserter(found),
                 [&subGroup](const VParameter &parameter) {
                     return isInSubGroup(parameter, subGroup);
                 });
    return sortedByName(found);
}

QVector<VParameter> AUTH_SET::defaultParameterListInSubGroup(QString exclusiveGroup,
                                                             QString subGroup) const
{
    KnownParameters found;
    const QVector<Parameters> lists = parametersByMode(*this, exclusiveGroup);
    for (const Parameters &list : lists) {
        for (const VParameter &parameter : list) {
            if (isInSubGroup(parameter, subGroup))
                found.appendNew(parameter);
        }
    }
    return sortedByName(found.list());
}

QVector<VParameter> AUTH_SET::defaultResultList(const AUTH_INF *item) const
{
    return item ? sortedByName(resultsOf(*item)) : Parameters();
}

QVector<VParameter> AUTH_SET::defaultResultList(QString exclusiveGroup) const
{
    const int index = d->groupIndex(exclusiveGroup);
    if (index < 0)
        return {};
    QVector<Parameters> lists;
    // Unlike modes, results are not taken from modules without the flag.
    for (int flagged : d->groups.at(index).flaggedModules())
        lists.append(defaultResultList(&d->modules.at(flagged)));
    return mergedInTurn(lists);
}

QVector<VParameter> AUTH_SET::defaultResultList() const
{
    QVector<Parameters> lists;
    const QStringList groups = exclusive_group_namelist();
    for (const QString &group : groups)
        lists.append(defaultResultList(group));
    return mergedInTurn(lists);
}

QVector<VParameter> AUTH_SET::mergingList(const QVector<VParameter> *first,
                                          const QVector<VParameter> *second) const
{
    return sortedByName(distinct(first ? *first : Parameters(), second ? *second : Parameters()));
}

QVector<VParameter> AUTH_SET::sharingList(const QVector<VParameter> *first,
                                          const QVector<VParameter> *second) const
{
    if (!first || !second)
        return {};
    KnownParameters others;
    for (const VParameter &parameter : *second)
        others.append(parameter);
    // Doubles in the first list stay, unlike in mergingList().
    Parameters shared;
    std::copy_if(first->cbegin(), first->cend(), std::back_inserter(shared),
                 [&others](const VParameter &parameter) { return others.contains(parameter); });
    return sortedByName(shared);
}

QVector<QPair<QString, QString>> AUTH_SET::defaultParameterSubGroupList() const
{
    SubGroups subGroups;
    const QStringList groups = exclusive_group_namelist();
    for (const QString &group : groups)
        subGroups.add(defaultParameterList(group));
    return subGroups.sorted();
}

QVector<QPair<QString, QString>> AUTH_SET::defaultParameterSubGroupList(
    QString exclusiveGroup) const
{
    const int index = d->groupIndex(exclusiveGroup);
    if (index < 0)
        return {};
    return subGroupsOf(defaultParameterList(d->groups.names().at(index)));
}

QVector<QPair<QString, QString>> AUTH_SET::defaultParameterSubGroupList(QString exclusiveGroup,
                                                                        QString mode) const
{
    const int index = d->groupIndex(exclusiveGroup);
    if (index < 0 || d->groups.at(index).indexOfEitherName(d->modules, mode) < 0)
        return {};
    const QString plainMode = d->groups.at(index).findNamePair(d->modules, mode).first;
    return subGroupsOf(defaultParameterList(d->groups.names().at(index), plainMode));
}

bool AUTH_SET::isParameterContains(const QVector<VParameter> *list, const VParameter *p) const
{
    return indexParameterInList(list, p) >= 0;
}

int AUTH_SET::indexParameterInList(const QVector<VParameter> *list, const VParameter *p) const
{
    if (!list || !p)
        return -1;
    const auto found = std::find_if(list->cbegin(), list->cend(), [p](const VParameter &parameter) {
        return parameter.isEqual(p);
    });
    return found == list->cend() ? -1 : static_cast<int>(found - list->cbegin());
}

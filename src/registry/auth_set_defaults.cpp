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
 * The result of merging the first list with the second, that result with the third, and so on;
 * every list has to be sorted by name.
 *
 * A merging may give a name a second place, but fills it with the first bearer of the name, and the
 * next merging drops that as a duplicate. So only the last list can leave second places, and of the
 * others just the first bearer of each name counts.
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

/// The sub-groups of @p parameters, without duplicates.
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

/// The parameters of all modes of @p group, equal ones once, not sorted.
Parameters parametersOfGroup(const AUTH_SET &set, const QString &group)
{
    KnownParameters parameters;
    const QVector<Parameters> lists = parametersByMode(set, group);
    for (const Parameters &list : lists)
        parameters.appendNew(list);
    return parameters.list();
}

/// @p parameters under the plain and the translated names of their sub-groups, each list sorted by
/// name.
ListsBySubGroup bySubGroup(const Parameters &parameters)
{
    ListsBySubGroup lists;
    for (const VParameter &parameter : parameters) {
        const NamePair subGroup = parameter.group();
        lists[subGroup.first].append(parameter);
        if (subGroup.second != subGroup.first)
            lists[subGroup.second].append(parameter);
    }
    for (Parameters &list : lists) {
        if (list.size() > 1)
            list = sortedByName(list);
    }
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
    return sortedByName(parametersOfGroup(*this, exclusiveGroup));
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
    constexpr int allGroups = -1;
    // The names were sorted, and places of one name filled, before sub-groups are told apart.
    if (!d->listsBySubGroup.contains(allGroups))
        d->listsBySubGroup.insert(allGroups, bySubGroup(defaultParameterList()));
    return d->listsBySubGroup[allGroups].value(subGroup);
}

QVector<VParameter> AUTH_SET::defaultParameterListInSubGroup(QString exclusiveGroup,
                                                             QString subGroup) const
{
    const ExclusiveGroup *group = d->groups.find(exclusiveGroup);
    if (!group)
        return {};
    // Here sub-groups are told apart first, so that each fills the places of its own names.
    if (!d->listsBySubGroup.contains(group->index)) {
        d->listsBySubGroup.insert(group->index,
                                  bySubGroup(parametersOfGroup(*this, exclusiveGroup)));
    }
    return d->listsBySubGroup[group->index].value(subGroup);
}

QVector<VParameter> AUTH_SET::defaultResultList(const AUTH_INF *item) const
{
    return item ? sortedByName(resultsOf(*item)) : Parameters();
}

QVector<VParameter> AUTH_SET::defaultResultList(QString exclusiveGroup) const
{
    const ExclusiveGroup *group = d->groups.find(exclusiveGroup);
    if (!group)
        return {};
    QVector<Parameters> lists;
    // Unlike modes, results are not taken from modules without the flag.
    for (int flagged : group->flaggedModules())
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
    // Duplicates in the first list stay, unlike in mergingList().
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
    const ExclusiveGroup *group = d->groups.find(exclusiveGroup);
    return group ? subGroupsOf(defaultParameterList(group->name)) : NamePairs();
}

QVector<QPair<QString, QString>> AUTH_SET::defaultParameterSubGroupList(QString exclusiveGroup,
                                                                        QString mode) const
{
    const ExclusiveGroup *group = d->groups.find(exclusiveGroup);
    if (!group || group->indexOfEitherName(d->modules, mode) < 0)
        return {};
    const QString plainMode = group->findNamePair(d->modules, mode).first;
    return subGroupsOf(defaultParameterList(group->name, plainMode));
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

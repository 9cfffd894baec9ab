// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINLISTS_H
#define PLAINLISTS_H

#include <Kelto/AUTH_INF>
#include <Kelto/VParameter>

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * The rules of the default parameter and result lists in their plainest form: lists that are joined
 * one after the other, every parameter compared with every other one.
 *
 * Tests compare AUTH_SET with it and benchmarks measure AUTH_SET against it, so it is to be obvious
 * and not fast. Operations have the names and the meaning that they have in AUTH_SET. The modules
 * and modes come from a registry that stands beside it: AUTH_SET, or PlainRegistry where nothing of
 * the library is to be used.
 */
template <typename Registry> class PlainLists
{
public:
    using Parameters = QVector<VParameter>;
    using NamePair = QPair<QString, QString>;
    using NamePairs = QVector<NamePair>;

    explicit PlainLists(const Registry &registry)
        : m_registry(registry)
    {
    }

    Parameters defaultParameterList(QString exclusiveGroup, QString mode) const
    {
        Parameters list;
        const QVector<QStringList> entries
            = m_registry.exclusive_group_parameter_settings_origin(exclusiveGroup, mode);
        for (const QStringList &entry : entries)
            list.append(VParameter(entry));
        return sortedByName(list);
    }

    Parameters defaultParameterList(QString exclusiveGroup) const
    {
        return joinedModes(exclusiveGroup, [](const VParameter &) { return true; });
    }

    Parameters defaultParameterList() const
    {
        Parameters result;
        const QStringList groups = m_registry.exclusive_group_namelist();
        for (const QString &group : groups) {
            const Parameters list = defaultParameterList(group);
            result = mergingList(&result, &list);
        }
        return sortedByName(result);
    }

    Parameters defaultParameterListBySubGroup(QString subGroup) const
    {
        Parameters result;
        const Parameters list = defaultParameterList();
        for (const VParameter &parameter : list) {
            if (isInSubGroup(parameter, subGroup))
                result.append(parameter);
        }
        return sortedByName(result);
    }

    Parameters defaultParameterListInSubGroup(QString exclusiveGroup, QString subGroup) const
    {
        return joinedModes(exclusiveGroup, [&](const VParameter &parameter) {
            return isInSubGroup(parameter, subGroup);
        });
    }

    Parameters defaultResultList(const AUTH_INF *item) const
    {
        Parameters result;
        for (const QStringList &entry : item->output_results)
            result.append(VParameter(entry));
        return sortedByName(result);
    }

    Parameters defaultResultList(QString exclusiveGroup) const
    {
        Parameters result;
        if (!isGroup(exclusiveGroup))
            return result;
        const QString group = m_registry.findExclusiveGroupName(exclusiveGroup).first;
        const QVector<AUTH_INF> items = m_registry.AUTH_INF_DATA();
        for (const AUTH_INF &item : items) {
            if (item.exclusive_group && item.group == group) {
                const Parameters list = defaultResultList(&item);
                result = mergingList(&result, &list);
            }
        }
        return sortedByName(result);
    }

    Parameters defaultResultList() const
    {
        Parameters result;
        const QStringList groups = m_registry.exclusive_group_namelist();
        for (const QString &group : groups) {
            const Parameters list = defaultResultList(group);
            result = mergingList(&result, &list);
        }
        return sortedByName(result);
    }

    Parameters mergingList(const Parameters *first, const Parameters *second) const
    {
        Parameters result;
        for (const Parameters *list : { first, second }) {
            for (const VParameter &parameter : *list) {
                if (indexParameterInList(&result, &parameter) == -1)
                    result.append(parameter);
            }
        }
        return sortedByName(result);
    }

    Parameters sharingList(const Parameters *first, const Parameters *second) const
    {
        Parameters result;
        for (const VParameter &parameter : *first) {
            if (isParameterContains(second, &parameter))
                result.append(parameter);
        }
        return sortedByName(result);
    }

    NamePairs defaultParameterSubGroupList() const
    {
        NamePairs result;
        const QStringList groups = m_registry.exclusive_group_namelist();
        for (const QString &group : groups)
            addSubGroups(&result, defaultParameterList(group));
        return sortedByFirst(result);
    }

    NamePairs defaultParameterSubGroupList(QString exclusiveGroup) const
    {
        NamePairs result;
        if (!isGroup(exclusiveGroup))
            return result;
        const QString group = m_registry.findExclusiveGroupName(exclusiveGroup).first;
        addSubGroups(&result, defaultParameterList(group));
        return sortedByFirst(result);
    }

    NamePairs defaultParameterSubGroupList(QString exclusiveGroup, QString mode) const
    {
        NamePairs result;
        if (!isGroup(exclusiveGroup) || !isMode(exclusiveGroup, mode))
            return result;
        const QString group = m_registry.findExclusiveGroupName(exclusiveGroup).first;
        const QString name = m_registry.findExclusiveGroupInnerModeName(exclusiveGroup, mode).first;
        addSubGroups(&result, defaultParameterList(group, name));
        return sortedByFirst(result);
    }

    bool isParameterContains(const Parameters *list, const VParameter *p) const
    {
        return indexParameterInList(list, p) >= 0;
    }

    int indexParameterInList(const Parameters *list, const VParameter *p) const
    {
        for (int i = 0; i < list->size(); ++i) {
            if (list->at(i).isEqual(p))
                return i;
        }
        return -1;
    }

private:
    static bool isInSubGroup(const VParameter &parameter, const QString &subGroup)
    {
        return parameter.group().first == subGroup || parameter.group().second == subGroup;
    }

    static bool isEither(const NamePairs &pairs, const QString &name)
    {
        for (const NamePair &pair : pairs) {
            if (pair.first == name || pair.second == name)
                return true;
        }
        return false;
    }

    /// The look-ups of a name give an empty pair for an unknown one, which is not to be taken for
    /// something without a name.
    bool isGroup(const QString &name) const
    {
        return isEither(m_registry.currentExclusiveGroupList(), name);
    }

    bool isMode(const QString &group, const QString &name) const
    {
        return isEither(m_registry.findExclusiveGroupInnerModeList(group), name);
    }

    /// Every place of a name goes to the first with it.
    template <typename List, typename NameOf> static List sortedBy(const List &list, NameOf nameOf)
    {
        QStringList names;
        for (const auto &element : list)
            names.append(nameOf(element));
        QStringList inOrder = names;
        inOrder.sort(Qt::CaseSensitive);
        List sorted;
        for (const QString &name : qAsConst(inOrder))
            sorted.append(list.at(names.indexOf(name)));
        return sorted;
    }

    static Parameters sortedByName(const Parameters &list)
    {
        return sortedBy(list, [](const VParameter &parameter) { return parameter.name().first; });
    }

    static NamePairs sortedByFirst(const NamePairs &pairs)
    {
        return sortedBy(pairs, [](const NamePair &pair) { return pair.first; });
    }

    static void addSubGroups(NamePairs *subGroups, const Parameters &list)
    {
        for (const VParameter &parameter : list) {
            if (!subGroups->contains(parameter.group()))
                subGroups->append(parameter.group());
        }
    }

    /// The wanted parameters of all modes, equal ones once. Modes behind the last name pair have no
    /// name and no list.
    template <typename Wanted> Parameters joinedModes(const QString &group, Wanted isWanted) const
    {
        Parameters result;
        const int count = m_registry.exclusive_group_mode_count(group);
        const NamePairs modes = m_registry.exclusive_group_inner_mode_namelist_at(group);
        for (int i = 0; i < count && i < modes.size(); ++i) {
            const Parameters list = defaultParameterList(group, modes.at(i).first);
            for (const VParameter &parameter : list) {
                if (!isParameterContains(&result, &parameter) && isWanted(parameter))
                    result.append(parameter);
            }
        }
        return sortedByName(result);
    }

    const Registry &m_registry;
};

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef EXCLUSIVEGROUPS_P_H
#define EXCLUSIVEGROUPS_P_H

#include "auth_inf.h"
#include "core/firstpositions_p.h"
#include "registry/namepairindex_p.h"

#include <QHash>
#include <QPair>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <vector>

using NamePair = QPair<QString, QString>;
using NamePairs = QVector<NamePair>;

/// Where a mode of an exclusive group comes from.
struct ModeOrigin
{
    int moduleIndex = -1;
    int innerMode = -1;
};

/**
 * One exclusive group: its modes, its name pairs and its selection.
 *
 * The modes are kept per module and not one by one, so that a senseless inner mode count costs no
 * memory. The name pairs are gathered when they are first asked for, and go on from there when
 * modules are added, so that neither building a registry nor growing it pays for them.
 */
class ExclusiveGroup
{
public:
    ExclusiveGroup(const QString &groupName, int groupIndex)
        : name(groupName)
        , index(groupIndex)
    {
    }

    /// Adds the modes of a module behind those that are there; a count below 1 adds none.
    void addModule(int moduleIndex, int innerModeCount);

    /// Notes that a module carries the flag that makes its group an exclusive one.
    void addFlaggedModule(int moduleIndex) { m_flaggedModules.push_back(moduleIndex); }

    /// Drops modes and name pairs; name, index and selection stay.
    void dropModes();

    /// The modules that carry the flag, in registry order; also those without any mode.
    const std::vector<int> &flaggedModules() const { return m_flaggedModules; }

    int modeCount() const { return m_modeCount; }
    bool hasMode(int position) const { return position >= 0 && position < m_modeCount; }

    /// The mode at @p position, which has to be one of the group's.
    ModeOrigin modeAt(int position) const;

    /// Calls @p visit with the origin of each of the first @p limit modes, in mode order.
    template <typename Visitor> void visitModes(int limit, Visitor visit) const
    {
        const int end = qMin(limit, m_modeCount);
        for (const ModuleModes &part : m_modules) {
            for (int i = 0; i < part.count && part.firstPosition + i < end; ++i)
                visit(ModeOrigin { part.moduleIndex, i });
        }
    }

    /// The distinct name pairs of the group's modules, in order of first appearance.
    NamePairs namePairs(const QVector<AUTH_INF> &modules) const;
    /// Index of the first name pair with the plain name @p mode; -1 when there is none.
    int indexOfPlainName(const QVector<AUTH_INF> &modules, const QString &mode) const;
    /// Index of the first name pair with @p mode as either name; -1 when there is none.
    int indexOfEitherName(const QVector<AUTH_INF> &modules, const QString &mode) const;
    /// The name pair at that index; a pair of empty texts when there is none.
    NamePair findNamePair(const QVector<AUTH_INF> &modules, const QString &mode) const;

    QString name;
    /// Position of the group among those of its registry.
    int index;
    int selected = 0;

private:
    struct ModuleModes
    {
        int moduleIndex;
        int firstPosition;
        int count;
    };

    void gatherNames(const QVector<AUTH_INF> &modules) const;

    std::vector<ModuleModes> m_modules;
    std::vector<int> m_flaggedModules;
    int m_modeCount = 0;

    mutable std::size_t m_gatheredModules = 0;
    mutable NamePairs m_namePairs;
    mutable QSet<NamePair> m_knownPairs;
    mutable NamePairIndex m_pairIndex;
};

/// All exclusive groups of a registry.
class ExclusiveGroups
{
public:
    /// Takes in the module at @p moduleIndex; modules have to be given in registry order.
    void addModule(int moduleIndex, const AUTH_INF &module);

    /// Drops the modes of all groups; names and selections stay.
    void dropModes();

    /// Selects the first mode of every group.
    void resetSelections();

    const QStringList &names() const { return m_names; }
    const QStringList &translatedNames() const { return m_translatedNames; }

    /// Plain and translated name of @p group; a translated name that is missing is empty.
    NamePair namePair(const ExclusiveGroup &group) const
    {
        return { group.name, m_translatedNames.value(group.index) };
    }

    /// The first group with the plain or translated name @p name; nullptr when there is none. Valid
    /// until a module is added.
    const ExclusiveGroup *find(const QString &name) const;
    const std::vector<ExclusiveGroup> &all() const { return m_groups; }

    /// The selected position of @p group, to be written.
    int &selection(const ExclusiveGroup &group);

private:
    ExclusiveGroup &ensureGroup(const QString &name);
    ExclusiveGroup &at(int index) { return m_groups[static_cast<std::size_t>(index)]; }

    std::vector<ExclusiveGroup> m_groups;
    QStringList m_names;
    QStringList m_translatedNames;
    FirstPositions m_namePositions;
    FirstPositions m_translatedNamePositions;

    struct UnflaggedModule
    {
        int moduleIndex;
        int innerModeCount;
    };
    /// Modules without the flag, by the name of their group: they join it when a later module makes
    /// it an exclusive one.
    QHash<QString, QVector<UnflaggedModule>> m_unflagged;

    /// The groups whose selection may differ from the first mode. Resetting only these keeps the
    /// adding of one module independent of the number of groups.
    QSet<int> m_selectedGroups;
};

#endif

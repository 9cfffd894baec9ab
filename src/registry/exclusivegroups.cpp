// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "registry/exclusivegroups_p.h"

#include <algorithm>
#include <limits>

namespace {

/// The first position at which either of two parallel lists has a text, given its first position
/// in each; -1 when neither has it.
int firstOfEither(int position, int otherPosition)
{
    if (position < 0 || otherPosition < 0)
        return std::max(position, otherPosition);
    return std::min(position, otherPosition);
}

} // namespace

void ExclusiveGroup::addModule(int moduleIndex, int innerModeCount)
{
    const int room = std::numeric_limits<int>::max() - m_modeCount;
    const int count = std::min(innerModeCount, room);
    if (count < 1)
        return;
    m_modules.push_back({ moduleIndex, m_modeCount, count });
    m_modeCount += count;
}

void ExclusiveGroup::dropModes()
{
    ExclusiveGroup bare(name, index);
    bare.selected = selected;
    *this = bare;
}

ModeOrigin ExclusiveGroup::modeAt(int position) const
{
    const auto behind = std::upper_bound(m_modules.cbegin(), m_modules.cend(), position,
                                         [](int wanted, const ModuleModes &part) {
                                             return wanted < part.firstPosition;
                                         });
    const ModuleModes &part = *std::prev(behind);
    return { part.moduleIndex, position - part.firstPosition };
}

NamePairs ExclusiveGroup::namePairs(const QVector<AUTH_INF> &modules) const
{
    gatherNames(modules);
    return m_namePairs;
}

int ExclusiveGroup::indexOfPlainName(const QVector<AUTH_INF> &modules, const QString &mode) const
{
    gatherNames(modules);
    return m_pairIndex.indexOfPlain(mode);
}

int ExclusiveGroup::indexOfEitherName(const QVector<AUTH_INF> &modules, const QString &mode) const
{
    gatherNames(modules);
    return m_pairIndex.indexOfEither(mode);
}

NamePair ExclusiveGroup::findNamePair(const QVector<AUTH_INF> &modules, const QString &mode) const
{
    return m_namePairs.value(indexOfEitherName(modules, mode));
}

void ExclusiveGroup::gatherNames(const QVector<AUTH_INF> &modules) const
{
    for (; m_gatheredModules < m_modules.size(); ++m_gatheredModules) {
        const AUTH_INF &module = modules[m_modules[m_gatheredModules].moduleIndex];
        // The names count here, not the number of inner modes.
        for (int i = 0; i < module.inner_mode_nameList.size(); ++i) {
            const NamePair pair(module.inner_mode_nameList[i],
                                module.inner_mode_nameList_tr.value(i));
            if (m_knownPairs.contains(pair))
                continue;
            m_knownPairs.insert(pair);
            m_namePairs.append(pair);
            m_pairIndex.append(pair.first, pair.second);
        }
    }
}

void ExclusiveGroups::addModule(int moduleIndex, const AUTH_INF &module)
{
    if (module.exclusive_group) {
        ExclusiveGroup &group = ensureGroup(module.group);
        group.addModule(moduleIndex, module.inner_mode_count);
        group.addFlaggedModule(moduleIndex);
        if (!m_translatedNamePositions.contains(module.group_tr)) {
            m_translatedNamePositions.append(module.group_tr);
            m_translatedNames.append(module.group_tr);
        }
        return;
    }
    const int index = m_namePositions.indexOf(module.group);
    if (index >= 0)
        at(index).addModule(moduleIndex, module.inner_mode_count);
    else
        m_unflagged[module.group].append({ moduleIndex, module.inner_mode_count });
}

ExclusiveGroup &ExclusiveGroups::ensureGroup(const QString &name)
{
    const int index = m_namePositions.indexOf(name);
    if (index >= 0)
        return at(index);

    m_groups.emplace_back(name, m_namePositions.size());
    m_namePositions.append(name);
    m_names.append(name);
    const QVector<UnflaggedModule> earlier = m_unflagged.take(name);
    for (const UnflaggedModule &module : earlier)
        m_groups.back().addModule(module.moduleIndex, module.innerModeCount);
    return m_groups.back();
}

void ExclusiveGroups::dropModes()
{
    for (ExclusiveGroup &group : m_groups)
        group.dropModes();
}

void ExclusiveGroups::resetSelections()
{
    for (int index : qAsConst(m_selectedGroups))
        at(index).selected = 0;
    m_selectedGroups.clear();
}

const ExclusiveGroup *ExclusiveGroups::find(const QString &name) const
{
    int translated = m_translatedNamePositions.indexOf(name);
    // There may be more translated names than groups, and fewer: then the missing ones are empty.
    if (translated >= m_names.size())
        translated = -1;
    if (translated < 0 && name.isEmpty() && m_translatedNames.size() < m_names.size())
        translated = m_translatedNames.size();
    const int index = firstOfEither(m_namePositions.indexOf(name), translated);
    return index < 0 ? nullptr : &m_groups[static_cast<std::size_t>(index)];
}

int &ExclusiveGroups::selection(const ExclusiveGroup &group)
{
    m_selectedGroups.insert(group.index);
    return at(group.index).selected;
}

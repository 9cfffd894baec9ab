// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The exclusive groups of a registry, their modes, and which mode is selected in each.

#include "auth_set.h"

#include "items/innermodelimit_p.h"
#include "registry/auth_set_p.h"
#include "registry/standardmodename_p.h"

int AUTH_SETPrivate::groupIndexAgain(int index) const
{
    return index < 0 ? -1 : groups.indexOf(groups.names().at(index));
}

NamePairs AUTH_SETPrivate::namePairs(int group) const
{
    return group < 0 ? NamePairs() : groups.at(group).namePairs(modules);
}

void AUTH_SETPrivate::select(int group, int position)
{
    if (group >= 0 && groups.at(group).hasMode(position))
        groups.selection(group) = position;
}

int AUTH_SETPrivate::indexOfMode(int group, const QString &mode) const
{
    if (group < 0)
        return -1;
    // A mode without a plain name cannot be asked for by its translated one.
    const QString plainName = groups.at(group).findNamePair(modules, mode).first;
    return plainName.isEmpty() ? -1 : groups.at(group).indexOfPlainName(modules, plainName);
}

QVector<QStringList> AUTH_SETPrivate::parameterEntries(int group, int position) const
{
    if (group < 0 || !groups.at(group).hasMode(position))
        return {};
    const ModeOrigin mode = groups.at(group).modeAt(position);
    return modules.at(mode.moduleIndex).inner_mode_parameterList.value(mode.innerMode);
}

QStringList AUTH_SET::exclusive_group_namelist() const
{
    return d->groups.names();
}

QStringList AUTH_SET::exclusive_group_namelist_global() const
{
    return d->groups.translatedNames();
}

QVector<QPair<QString, QString>> AUTH_SET::currentExclusiveGroupList() const
{
    NamePairs pairs;
    pairs.reserve(d->groups.size());
    for (int i = 0; i < d->groups.size(); ++i)
        pairs.append(d->groups.namePair(i));
    return pairs;
}

QPair<QString, QString> AUTH_SET::findExclusiveGroupName(QString name) const
{
    const int group = d->groupIndex(name);
    return group < 0 ? NamePair() : d->groups.namePair(group);
}

int AUTH_SET::exclusive_group_mode_count(QString group) const
{
    const int index = d->groupIndex(group);
    return index < 0 ? 0 : d->groups.at(index).modeCount();
}

QString AUTH_SET::exclusive_group_orginal_model(QString group, int position) const
{
    const int index = d->groupIndex(group);
    if (index < 0 || !d->groups.at(index).hasMode(position))
        return {};
    return name(d->groups.at(index).modeAt(position).moduleIndex);
}

int AUTH_SET::exclusive_group_select(QString group) const
{
    const int index = d->groupIndex(group);
    return index < 0 ? -1 : d->groups.at(index).selected;
}

int *AUTH_SET::exclusive_group_mode_pointer(QString group)
{
    const int index = d->groupIndex(group);
    return index < 0 ? nullptr : &d->groups.selection(index);
}

void AUTH_SET::exclusive_group_set_mode(QString group, int position)
{
    d->select(d->groupIndex(group), position);
}

void AUTH_SET::exclusive_group_set_mode(QString group, QString mode)
{
    const int index = d->groupIndexAgain(d->groupIndex(group));
    d->select(index, d->indexOfMode(index, mode));
}

QVector<QPair<QString, QString>> AUTH_SET::exclusive_group_inner_mode_namelist_at(
    QString group) const
{
    return d->namePairs(d->groupIndex(group));
}

QVector<QPair<QString, QString>> AUTH_SET::findExclusiveGroupInnerModeList(QString group) const
{
    return exclusive_group_inner_mode_namelist_at(group);
}

QPair<QString, QString> AUTH_SET::findExclusiveGroupInnerModeName(QString group, QString mode) const
{
    const int index = d->groupIndex(group);
    return index < 0 ? NamePair() : d->groups.at(index).findNamePair(d->modules, mode);
}

int AUTH_SET::exclusive_group_innerMode_index(QString group, QString mode) const
{
    const int index = d->groupIndex(group);
    // A group without a name has no positions by name, though it can be selected in.
    if (index < 0 || d->groups.names().at(index).isEmpty())
        return -1;
    return d->indexOfMode(d->groupIndexAgain(index), mode);
}

QVector<QPair<int, QString>> AUTH_SET::exclusive_group_mode_description(QString group) const
{
    QVector<QPair<int, QString>> descriptions;
    const int index = d->groupIndex(group);
    if (index < 0)
        return descriptions;
    descriptions.reserve(qMin(mostInnerModes, d->groups.at(index).modeCount()));
    d->groups.at(index).visitModes(mostInnerModes, [&](ModeOrigin mode) {
        const AUTH_INF &module = d->modules.at(mode.moduleIndex);
        descriptions.append(
            { mode.moduleIndex, module.inner_mode_description.value(mode.innerMode) });
    });
    return descriptions;
}

QVector<QStringList> AUTH_SET::exclusive_group_parameter_settings_origin(QString group,
                                                                         int position) const
{
    return d->parameterEntries(d->groupIndex(group), position);
}

QVector<QStringList> AUTH_SET::exclusive_group_parameter_settings_origin(QString group,
                                                                         QString mode) const
{
    const int index = d->groupIndexAgain(d->groupIndex(group));
    if (index < 0)
        return {};
    return d->parameterEntries(index, d->groups.at(index).indexOfEitherName(d->modules, mode));
}

QPair<QString, QString> AUTH_SET::currentExclusiveGroupSelect(QString group) const
{
    const int index = d->groupIndexAgain(d->groupIndex(group));
    if (index < 0 || !d->groups.at(index).hasMode(d->groups.at(index).selected))
        return {};
    return d->namePairs(index).value(d->groups.at(index).selected);
}

QString AUTH_SET::stdModeNameForm(QString group, QString mode) const
{
    return standardModeName(d->applicationName, group, mode);
}

QVector<QPair<QString, QString>> AUTH_SET::currentModeList() const
{
    NamePairs modes;
    for (int i = 0; i < d->groups.size(); ++i) {
        const NamePair group = d->groups.namePair(i);
        const NamePairs names = d->namePairs(d->groupIndexAgain(i));
        for (const NamePair &mode : names) {
            modes.append({ stdModeNameForm(group.first, mode.first),
                           stdModeNameForm(group.second, mode.second) });
        }
    }
    return modes;
}

QStringList AUTH_SET::currentModeMatching(QStringList codes) const
{
    const NamePairs modes = currentModeList();
    FirstPositions names;
    FirstPositions translatedNames;
    for (const NamePair &mode : modes) {
        names.append(mode.first);
        translatedNames.append(mode.second);
    }
    QStringList matching;
    for (const QString &code : qAsConst(codes)) {
        const int position = firstOfEither(names.indexOf(code), translatedNames.indexOf(code));
        if (position >= 0)
            matching.append(modes.at(position).first);
    }
    return matching;
}

int AUTH_SET::currentModeMatchingCount(QStringList codes) const
{
    return currentModeMatching(codes).size();
}

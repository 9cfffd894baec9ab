// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The exclusive groups of a registry, their modes, and which mode is selected in each.

#include "auth_set.h"

#include "items/innermodelimit_p.h"
#include "registry/auth_set_p.h"
#include "registry/standardmodename_p.h"

const ExclusiveGroup *AUTH_SETPrivate::resolveTwice(const QString &name) const
{
    const ExclusiveGroup *group = groups.find(name);
    return group ? groups.find(group->name) : nullptr;
}

void AUTH_SETPrivate::select(const ExclusiveGroup *group, int position)
{
    if (group && group->hasMode(position))
        groups.selection(*group) = position;
}

int AUTH_SETPrivate::indexOfMode(const ExclusiveGroup *group, const QString &mode) const
{
    if (!group)
        return -1;
    // A mode without a plain name cannot be asked for by its translated one.
    const QString plainName = group->findNamePair(modules, mode).first;
    return plainName.isEmpty() ? -1 : group->indexOfPlainName(modules, plainName);
}

QVector<QStringList> AUTH_SETPrivate::parameterEntries(const ExclusiveGroup *group,
                                                       int position) const
{
    if (!group || !group->hasMode(position))
        return {};
    const ModeOrigin mode = group->modeAt(position);
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
    pairs.reserve(d->groups.names().size());
    for (const ExclusiveGroup &group : d->groups.all())
        pairs.append(d->groups.namePair(group));
    return pairs;
}

QPair<QString, QString> AUTH_SET::findExclusiveGroupName(QString name) const
{
    const ExclusiveGroup *group = d->groups.find(name);
    return group ? d->groups.namePair(*group) : NamePair();
}

int AUTH_SET::exclusive_group_mode_count(QString group) const
{
    const ExclusiveGroup *found = d->groups.find(group);
    return found ? found->modeCount() : 0;
}

QString AUTH_SET::exclusive_group_orginal_model(QString group, int position) const
{
    const ExclusiveGroup *found = d->groups.find(group);
    return found && found->hasMode(position) ? name(found->modeAt(position).moduleIndex)
                                             : QString();
}

int AUTH_SET::exclusive_group_select(QString group) const
{
    const ExclusiveGroup *found = d->groups.find(group);
    return found ? found->selected : -1;
}

int *AUTH_SET::exclusive_group_mode_pointer(QString group)
{
    const ExclusiveGroup *found = d->groups.find(group);
    return found ? &d->groups.selection(*found) : nullptr;
}

void AUTH_SET::exclusive_group_set_mode(QString group, int position)
{
    d->select(d->groups.find(group), position);
}

void AUTH_SET::exclusive_group_set_mode(QString group, QString mode)
{
    const ExclusiveGroup *found = d->resolveTwice(group);
    d->select(found, d->indexOfMode(found, mode));
}

QVector<QPair<QString, QString>> AUTH_SET::exclusive_group_inner_mode_namelist_at(
    QString group) const
{
    const ExclusiveGroup *found = d->groups.find(group);
    return found ? found->namePairs(d->modules) : NamePairs();
}

QVector<QPair<QString, QString>> AUTH_SET::findExclusiveGroupInnerModeList(QString group) const
{
    return exclusive_group_inner_mode_namelist_at(group);
}

QPair<QString, QString> AUTH_SET::findExclusiveGroupInnerModeName(QString group, QString mode) const
{
    const ExclusiveGroup *found = d->groups.find(group);
    return found ? found->findNamePair(d->modules, mode) : NamePair();
}

int AUTH_SET::exclusive_group_innerMode_index(QString group, QString mode) const
{
    const ExclusiveGroup *found = d->groups.find(group);
    // A group without a name has no positions by name, though it can be selected in.
    if (!found || found->name.isEmpty())
        return -1;
    return d->indexOfMode(d->groups.find(found->name), mode);
}

QVector<QPair<int, QString>> AUTH_SET::exclusive_group_mode_description(QString group) const
{
    QVector<QPair<int, QString>> descriptions;
    const ExclusiveGroup *found = d->groups.find(group);
    if (!found)
        return descriptions;
    descriptions.reserve(qMin(mostInnerModes, found->modeCount()));
    found->visitModes(mostInnerModes, [&](ModeOrigin mode) {
        const AUTH_INF &module = d->modules.at(mode.moduleIndex);
        descriptions.append(
            { mode.moduleIndex, module.inner_mode_description.value(mode.innerMode) });
    });
    return descriptions;
}

QVector<QStringList> AUTH_SET::exclusive_group_parameter_settings_origin(QString group,
                                                                         int position) const
{
    return d->parameterEntries(d->groups.find(group), position);
}

QVector<QStringList> AUTH_SET::exclusive_group_parameter_settings_origin(QString group,
                                                                         QString mode) const
{
    const ExclusiveGroup *found = d->resolveTwice(group);
    return d->parameterEntries(found, found ? found->indexOfEitherName(d->modules, mode) : -1);
}

QPair<QString, QString> AUTH_SET::currentExclusiveGroupSelect(QString group) const
{
    const ExclusiveGroup *found = d->resolveTwice(group);
    if (!found || !found->hasMode(found->selected))
        return {};
    return found->namePairs(d->modules).value(found->selected);
}

QString AUTH_SET::stdModeNameForm(QString group, QString mode) const
{
    return standardModeName(d->applicationName, group, mode);
}

QVector<QPair<QString, QString>> AUTH_SET::currentModeList() const
{
    NamePairs modes;
    for (const ExclusiveGroup &group : d->groups.all()) {
        const NamePair names = d->groups.namePair(group);
        const NamePairs pairs = exclusive_group_inner_mode_namelist_at(group.name);
        for (const NamePair &mode : pairs) {
            modes.append({ stdModeNameForm(names.first, mode.first),
                           stdModeNameForm(names.second, mode.second) });
        }
    }
    return modes;
}

QStringList AUTH_SET::currentModeMatching(QStringList codes) const
{
    const NamePairs modes = currentModeList();
    NamePairIndex index;
    for (const NamePair &mode : modes)
        index.append(mode.first, mode.second);
    QStringList matching;
    for (const QString &code : qAsConst(codes)) {
        const int position = index.indexOfEither(code);
        if (position >= 0)
            matching.append(modes.at(position).first);
    }
    return matching;
}

int AUTH_SET::currentModeMatchingCount(QStringList codes) const
{
    return currentModeMatching(codes).size();
}

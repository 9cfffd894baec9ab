// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "plainregistry.h"

#include <algorithm>

using NamePair = QPair<QString, QString>;

namespace {

bool eitherIs(const NamePair &pair, const QString &name)
{
    return pair.first == name || pair.second == name;
}

/// -1 for none.
int firstWithEither(const QVector<NamePair> &pairs, const QString &name)
{
    for (int i = 0; i < pairs.size(); ++i) {
        if (eitherIs(pairs.at(i), name))
            return i;
    }
    return -1;
}

} // namespace

PlainRegistry::PlainRegistry(QString name, QString version, QVector<AUTH_INF> modules)
{
    // The version only ever goes into a file.
    Q_UNUSED(version)
    if (modules.isEmpty())
        return;
    clear();
    m_application = name;
    acquire(modules);
}

// --- Modules ---------------------------------------------------------------------

void PlainRegistry::clear()
{
    m_modules.clear();
    m_modes.clear();
}

void PlainRegistry::acquire(QVector<AUTH_INF> modules)
{
    m_modules = modules;
    numberModules();
    refresh_group();
}

void PlainRegistry::append(QVector<AUTH_INF> modules)
{
    m_modules += modules;
    numberModules();
    refresh_group();
}

void PlainRegistry::append(AUTH_INF module)
{
    m_modules.append(module);
    numberModules();
    refresh_group();
}

void PlainRegistry::refresh_group()
{
    m_modes.clear();
    m_selections.clear();
    m_groupNames.clear();
    m_groupNamesTr.clear();
    collectGroupNames();
    collectModes();
    for (const QString &group : qAsConst(m_groupNames))
        m_selections.append({ group, 0 });
}

int PlainRegistry::index(QString name) const
{
    for (int i = 0; i < m_modules.size(); ++i) {
        if (m_modules.at(i).name == name)
            return i;
    }
    return -1;
}

bool PlainRegistry::model_exists(QString name) const
{
    for (const AUTH_INF &module : m_modules) {
        if (module.name == name || module.name_tr == name)
            return true;
    }
    return false;
}

QVector<AUTH_INF> PlainRegistry::AUTH_INF_list_by_type(QString type) const
{
    QVector<AUTH_INF> found;
    for (const AUTH_INF &module : m_modules) {
        if (module.type == type)
            found.append(module);
    }
    return found;
}

QVector<AUTH_INF> PlainRegistry::AUTH_INF_list_by_group(QString group) const
{
    QVector<AUTH_INF> found;
    for (const AUTH_INF &module : m_modules) {
        if (module.group == group)
            found.append(module);
    }
    return found;
}

// --- Exclusive groups and modes ----------------------------------------------------
//
// An operation that hands a resolved group name to another one has it resolved again there. That
// matters when the plain name of a group is also the translated name of an earlier one.

QVector<NamePair> PlainRegistry::currentExclusiveGroupList() const
{
    QVector<NamePair> groups;
    for (int i = 0; i < m_groupNames.size(); ++i)
        groups.append({ m_groupNames.at(i), m_groupNamesTr.value(i) });
    return groups;
}

NamePair PlainRegistry::findExclusiveGroupName(QString name) const
{
    const QVector<NamePair> groups = currentExclusiveGroupList();
    return groups.value(firstWithEither(groups, name));
}

int PlainRegistry::exclusive_group_mode_count(QString group) const
{
    const std::optional<QString> name = resolved(group);
    return name ? countOf(*name) : 0;
}

QString PlainRegistry::exclusive_group_orginal_model(QString group, int position) const
{
    const std::optional<QString> found = resolved(group);
    if (!found)
        return {};
    for (const Mode &mode : m_modes) {
        if (mode.group == *found && mode.ordinal == position)
            return name(mode.module);
    }
    return {};
}

int PlainRegistry::exclusive_group_select(QString group) const
{
    const std::optional<QString> name = resolved(group);
    if (!name)
        return -1;
    for (const Selection &selection : m_selections) {
        if (selection.group == *name)
            return selection.selected;
    }
    return -1;
}

int *PlainRegistry::exclusive_group_mode_pointer(QString group)
{
    const std::optional<QString> name = resolved(group);
    if (!name)
        return nullptr;
    for (Selection &selection : m_selections) {
        if (selection.group == *name)
            return &selection.selected;
    }
    return nullptr;
}

void PlainRegistry::exclusive_group_set_mode(QString group, int position)
{
    const std::optional<QString> name = resolved(group);
    if (!name)
        return;
    const bool offered = std::any_of(m_modes.cbegin(), m_modes.cend(), [&](const Mode &mode) {
        return mode.group == *name && mode.ordinal == position;
    });
    if (!offered)
        return;
    for (Selection &selection : m_selections) {
        if (selection.group == *name) {
            selection.selected = position;
            return;
        }
    }
}

void PlainRegistry::exclusive_group_set_mode(QString group, QString mode)
{
    const std::optional<QString> name = resolved(group);
    if (!name)
        return;
    const QString plain = findExclusiveGroupInnerModeName(*name, mode).first;
    if (plain.isEmpty())
        return;
    exclusive_group_set_mode(*name, firstPositionWithPlainName(*name, plain));
}

QVector<NamePair> PlainRegistry::exclusive_group_inner_mode_namelist_at(QString group) const
{
    const std::optional<QString> name = resolved(group);
    if (!name)
        return {};
    QVector<NamePair> pairs;
    const QVector<Mode> modes = modesOf(*name);
    for (const Mode &mode : modes) {
        const AUTH_INF &module = m_modules.at(mode.module);
        for (int j = 0; j < module.inner_mode_nameList.size(); ++j) {
            const NamePair pair { module.inner_mode_nameList.at(j),
                                  module.inner_mode_nameList_tr.value(j) };
            if (!pairs.contains(pair))
                pairs.append(pair);
        }
    }
    return pairs;
}

NamePair PlainRegistry::findExclusiveGroupInnerModeName(QString group, QString mode) const
{
    const QVector<NamePair> pairs = findExclusiveGroupInnerModeList(group);
    return pairs.value(firstWithEither(pairs, mode));
}

int PlainRegistry::exclusive_group_innerMode_index(QString group, QString mode) const
{
    const std::optional<QString> name = resolved(group);
    if (!name || name->isEmpty())
        return -1;
    const QString plain = findExclusiveGroupInnerModeName(*name, mode).first;
    return plain.isEmpty() ? -1 : firstPositionWithPlainName(*name, plain);
}

QVector<QPair<int, QString>> PlainRegistry::exclusive_group_mode_description(QString group) const
{
    const std::optional<QString> name = resolved(group);
    if (!name)
        return {};
    QVector<QPair<int, QString>> descriptions;
    QVector<int> finished;
    for (const Mode &mode : m_modes) {
        if (mode.group != *name)
            continue;
        int offset = 0;
        for (int earlier : qAsConst(finished))
            offset += m_modules.at(earlier).inner_mode_count;
        const AUTH_INF &module = m_modules.at(mode.module);
        descriptions.append(
            { mode.module, module.inner_mode_description.value(mode.ordinal - offset) });
        if (offset + module.inner_mode_count <= mode.ordinal + 1)
            finished.append(mode.module);
    }
    return descriptions;
}

QVector<QStringList> PlainRegistry::exclusive_group_parameter_settings_origin(QString group,
                                                                              int position) const
{
    const std::optional<QString> name = resolved(group);
    if (!name)
        return {};
    const QVector<Mode> modes = modesOf(*name);
    const auto found = std::find_if(modes.cbegin(), modes.cend(), [position](const Mode &mode) {
        return mode.ordinal == position;
    });
    if (found == modes.cend())
        return {};
    int first = found->ordinal;
    for (const Mode &mode : modes) {
        if (mode.module == found->module)
            first = qMin(first, mode.ordinal);
    }
    return m_modules.at(found->module).inner_mode_parameterList.value(position - first);
}

QVector<QStringList> PlainRegistry::exclusive_group_parameter_settings_origin(QString group,
                                                                              QString mode) const
{
    const std::optional<QString> name = resolved(group);
    if (!name)
        return {};
    const int k = firstWithEither(exclusive_group_inner_mode_namelist_at(*name), mode);
    return k < 0 ? QVector<QStringList>() : exclusive_group_parameter_settings_origin(*name, k);
}

NamePair PlainRegistry::currentExclusiveGroupSelect(QString group) const
{
    const std::optional<QString> name = resolved(group);
    if (!name)
        return {};
    const int selected = exclusive_group_select(*name);
    if (selected < 0 || selected >= exclusive_group_mode_count(*name))
        return {};
    return exclusive_group_inner_mode_namelist_at(*name).value(selected);
}

QString PlainRegistry::stdModeNameForm(QString group, QString mode) const
{
    return m_application + QLatin1Char(':') + group + QLatin1Char(':') + mode;
}

QVector<NamePair> PlainRegistry::currentModeList() const
{
    QVector<NamePair> modes;
    for (int i = 0; i < m_groupNames.size(); ++i) {
        const QString &group = m_groupNames.at(i);
        const QVector<NamePair> pairs = exclusive_group_inner_mode_namelist_at(group);
        for (const NamePair &pair : pairs) {
            modes.append({ stdModeNameForm(group, pair.first),
                           stdModeNameForm(m_groupNamesTr.value(i), pair.second) });
        }
    }
    return modes;
}

QStringList PlainRegistry::currentModeMatching(QStringList codes) const
{
    QStringList matches;
    const QVector<NamePair> modes = currentModeList();
    for (const QString &code : qAsConst(codes)) {
        const int i = firstWithEither(modes, code);
        if (i >= 0)
            matches.append(modes.at(i).first);
    }
    return matches;
}

// --- Steps -------------------------------------------------------------------------

void PlainRegistry::numberModules()
{
    for (int i = 0; i < m_modules.size(); ++i)
        m_modules[i].number = i;
}

void PlainRegistry::collectGroupNames()
{
    for (const AUTH_INF &module : qAsConst(m_modules)) {
        if (!module.exclusive_group)
            continue;
        if (!m_groupNames.contains(module.group))
            m_groupNames.append(module.group);
        if (!m_groupNamesTr.contains(module.group_tr))
            m_groupNamesTr.append(module.group_tr);
    }
}

void PlainRegistry::collectModes()
{
    for (int m = 0; m < m_modules.size(); ++m) {
        // The name of its group decides, not the flag of the module.
        const QString group = m_modules.at(m).group;
        if (!m_groupNames.contains(group))
            continue;
        for (int j = 0; j < m_modules.at(m).inner_mode_count; ++j)
            m_modes.append({ group, m, countOf(group) });
    }
}

QString PlainRegistry::textAt(int i, QString AUTH_INF::*text) const
{
    return i >= 0 && i < m_modules.size() ? m_modules.at(i).*text : QString();
}

/// The plain name of the exclusive group that @p group names in either form; none when it names
/// none, which an empty text could not tell from a group with an empty name.
std::optional<QString> PlainRegistry::resolved(const QString &group) const
{
    const QVector<NamePair> groups = currentExclusiveGroupList();
    const int i = firstWithEither(groups, group);
    return i < 0 ? std::nullopt : std::make_optional(groups.at(i).first);
}

int PlainRegistry::countOf(const QString &group) const
{
    return int(std::count_if(m_modes.cbegin(), m_modes.cend(),
                             [&group](const Mode &mode) { return mode.group == group; }));
}

QVector<PlainRegistry::Mode> PlainRegistry::modesOf(const QString &group) const
{
    QVector<Mode> modes;
    for (const Mode &mode : m_modes) {
        if (mode.group == group)
            modes.append(mode);
    }
    return modes;
}

/// The position of the first name pair of @p group with the plain name @p mode; -1 for none.
int PlainRegistry::firstPositionWithPlainName(const QString &group, const QString &mode) const
{
    const QVector<NamePair> pairs = exclusive_group_inner_mode_namelist_at(group);
    for (int k = 0; k < pairs.size(); ++k) {
        if (pairs.at(k).first == mode)
            return k;
    }
    return -1;
}

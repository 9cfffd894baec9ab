// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINREGISTRY_H
#define PLAINREGISTRY_H

#include <Kelto/AUTH_INF>

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

#include <algorithm>

/**
 * The rules of the module registry in their plainest form: parallel lists, rebuilt on every change
 * and searched from the front on every call.
 *
 * Tests compare AUTH_SET with it and benchmarks measure AUTH_SET against it, so it is to be obvious
 * and not fast. Operations have the names and the meaning that they have in AUTH_SET. It touches no
 * file.
 */
class PlainRegistry
{
public:
    using NamePair = QPair<QString, QString>;

    PlainRegistry() = default;
    /// The version only ever goes into a file.
    PlainRegistry(QString name, QString, QVector<AUTH_INF> modules)
    {
        if (modules.isEmpty())
            return;
        m_application = name;
        acquire(modules);
    }

    // --- Modules -------------------------------------------------------------------

    void clear()
    {
        m_modules.clear();
        m_modes.clear();
    }

    void acquire(QVector<AUTH_INF> modules)
    {
        m_modules.clear();
        append(modules);
    }

    void append(AUTH_INF module) { append(QVector<AUTH_INF> { module }); }

    void append(QVector<AUTH_INF> modules)
    {
        m_modules += modules;
        for (int i = 0; i < m_modules.size(); ++i)
            m_modules[i].number = i;
        refresh_group();
    }

    void refresh_group()
    {
        m_groupNames.clear();
        m_groupNamesTr.clear();
        m_modes.clear();
        for (const AUTH_INF &module : qAsConst(m_modules)) {
            if (!module.exclusive_group)
                continue;
            if (!m_groupNames.contains(module.group))
                m_groupNames.append(module.group);
            if (!m_groupNamesTr.contains(module.group_tr))
                m_groupNamesTr.append(module.group_tr);
        }
        QVector<int> counts(m_groupNames.size());
        for (int m = 0; m < m_modules.size(); ++m) {
            // The name of its group decides, not the flag of the module.
            const int group = m_groupNames.indexOf(m_modules.at(m).group);
            for (int j = 0; group >= 0 && j < m_modules.at(m).inner_mode_count; ++j)
                m_modes.append({ group, m, counts[group]++ });
        }
        m_selections = QVector<int>(m_groupNames.size(), 0);
    }

    int model_count() const { return m_modules.size(); }
    QString model_data(int i) const { return textAt(i, &AUTH_INF::description); }
    QString model_name(int i) const { return textAt(i, &AUTH_INF::name); }
    QString model_name_global(int i) const { return textAt(i, &AUTH_INF::name_tr); }
    QString model_type(int i) const { return textAt(i, &AUTH_INF::type); }
    QString model_type_global(int i) const { return textAt(i, &AUTH_INF::type_tr); }
    QString model_group(int i) const { return m_groupNames.value(i); }
    QString model_group_global(int i) const { return m_groupNamesTr.value(i); }
    QString name(int i) const { return model_name(i); }
    QString information(int i) const { return model_data(i); }
    QString information(QString name) const { return information(index(name)); }
    int index(QString name) const
    {
        return firstThat(m_modules, [&](const AUTH_INF &module) { return module.name == name; });
    }
    bool model_exists(QString name) const
    {
        return index(name) >= 0
            || firstThat(m_modules, [&](const AUTH_INF &module) { return module.name_tr == name; })
            >= 0;
    }
    QVector<AUTH_INF> AUTH_INF_DATA() const { return m_modules; }
    QVector<AUTH_INF> AUTH_INF_list_by_type(QString type) const
    {
        return allThat(m_modules, [&](const AUTH_INF &module) { return module.type == type; });
    }
    QVector<AUTH_INF> AUTH_INF_list_by_group(QString group) const
    {
        return allThat(m_modules, [&](const AUTH_INF &module) { return module.group == group; });
    }

    // --- Exclusive groups and modes ------------------------------------------------
    //
    // An operation that hands a resolved group name to another one has it resolved again there.
    // That matters when the plain name of a group is also the translated name of an earlier one.

    QStringList exclusive_group_namelist() const { return m_groupNames; }
    QStringList exclusive_group_namelist_global() const { return m_groupNamesTr; }
    QVector<NamePair> currentExclusiveGroupList() const
    {
        QVector<NamePair> groups;
        for (int i = 0; i < m_groupNames.size(); ++i)
            groups.append({ m_groupNames.at(i), m_groupNamesTr.value(i) });
        return groups;
    }
    NamePair findExclusiveGroupName(QString name) const
    {
        return currentExclusiveGroupList().value(find(name));
    }
    int exclusive_group_mode_count(QString group) const { return modesOf(find(group)).size(); }
    QString exclusive_group_orginal_model(QString group, int position) const
    {
        const QVector<Mode> modes = modesOf(find(group));
        const int i = ordinalIn(modes, position);
        return i < 0 ? QString() : name(modes.at(i).module);
    }
    int exclusive_group_select(QString group) const { return m_selections.value(find(group), -1); }
    int *exclusive_group_mode_pointer(QString group)
    {
        const int i = find(group);
        return i < 0 ? nullptr : &m_selections[i];
    }
    void exclusive_group_set_mode(QString group, int position)
    {
        const int i = find(group);
        if (ordinalIn(modesOf(i), position) >= 0)
            m_selections[i] = position;
    }
    void exclusive_group_set_mode(QString group, QString mode)
    {
        const int i = find(group);
        if (i < 0)
            return;
        const QString plain = findExclusiveGroupInnerModeName(m_groupNames.at(i), mode).first;
        if (!plain.isEmpty())
            exclusive_group_set_mode(m_groupNames.at(i), placeOf(m_groupNames.at(i), plain));
    }
    QVector<NamePair> exclusive_group_inner_mode_namelist_at(QString group) const
    {
        QVector<NamePair> pairs;
        const QVector<Mode> modes = modesOf(find(group));
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
    QVector<NamePair> findExclusiveGroupInnerModeList(QString group) const
    {
        return exclusive_group_inner_mode_namelist_at(group);
    }
    NamePair findExclusiveGroupInnerModeName(QString group, QString mode) const
    {
        const QVector<NamePair> pairs = exclusive_group_inner_mode_namelist_at(group);
        return pairs.value(firstWithEither(pairs, mode));
    }
    int exclusive_group_innerMode_index(QString group, QString mode) const
    {
        const QString name = m_groupNames.value(find(group));
        if (name.isEmpty())
            return -1;
        const QString plain = findExclusiveGroupInnerModeName(name, mode).first;
        return plain.isEmpty() ? -1 : placeOf(name, plain);
    }
    QVector<QPair<int, QString>> exclusive_group_mode_description(QString group) const
    {
        QVector<QPair<int, QString>> descriptions;
        QVector<int> finished;
        const QVector<Mode> modes = modesOf(find(group));
        for (const Mode &mode : modes) {
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
    QVector<QStringList> exclusive_group_parameter_settings_origin(QString group,
                                                                   int position) const
    {
        const QVector<Mode> modes = modesOf(find(group));
        const int i = ordinalIn(modes, position);
        if (i < 0)
            return {};
        const int module = modes.at(i).module;
        const int first = firstThat(modes, [&](const Mode &mode) { return mode.module == module; });
        return m_modules.at(module).inner_mode_parameterList.value(i - first);
    }
    QVector<QStringList> exclusive_group_parameter_settings_origin(QString group,
                                                                   QString mode) const
    {
        const int i = find(group);
        if (i < 0)
            return {};
        const QString &name = m_groupNames.at(i);
        return exclusive_group_parameter_settings_origin(
            name, firstWithEither(exclusive_group_inner_mode_namelist_at(name), mode));
    }
    NamePair currentExclusiveGroupSelect(QString group) const
    {
        const int i = find(group);
        if (i < 0)
            return {};
        const QString &name = m_groupNames.at(i);
        const int selected = exclusive_group_select(name);
        return selected < exclusive_group_mode_count(name)
            ? exclusive_group_inner_mode_namelist_at(name).value(selected)
            : NamePair();
    }
    QString stdModeNameForm(QString group, QString mode) const
    {
        return m_application + QLatin1Char(':') + group + QLatin1Char(':') + mode;
    }
    QVector<NamePair> currentModeList() const
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
    QStringList currentModeMatching(QStringList codes) const
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
    int currentModeMatchingCount(QStringList codes) const
    {
        return currentModeMatching(codes).size();
    }

private:
    /// A group is told by its position among the names, which an empty name could not tell from
    /// that of no group.
    struct Mode
    {
        int group = 0;
        int module = 0;
        int ordinal = 0;
    };

    /// -1 for none.
    template <typename List, typename Predicate>
    static int firstThat(const List &list, Predicate matches)
    {
        const auto found = std::find_if(list.cbegin(), list.cend(), matches);
        return found == list.cend() ? -1 : int(found - list.cbegin());
    }
    template <typename List, typename Predicate>
    static List allThat(const List &list, Predicate matches)
    {
        List found;
        std::copy_if(list.cbegin(), list.cend(), std::back_inserter(found), matches);
        return found;
    }
    static int firstWithEither(const QVector<NamePair> &pairs, const QString &name)
    {
        return firstThat(pairs, [&](const NamePair &pair) {
            return pair.first == name || pair.second == name;
        });
    }
    static int ordinalIn(const QVector<Mode> &modes, int ordinal)
    {
        return firstThat(modes, [&](const Mode &mode) { return mode.ordinal == ordinal; });
    }

    QString textAt(int i, QString AUTH_INF::*text) const
    {
        return i >= 0 && i < m_modules.size() ? m_modules.at(i).*text : QString();
    }
    /// The position of the exclusive group that @p group names in either form.
    int find(const QString &group) const
    {
        return firstWithEither(currentExclusiveGroupList(), group);
    }
    QVector<Mode> modesOf(int group) const
    {
        return allThat(m_modes, [&](const Mode &mode) { return mode.group == group; });
    }
    /// The position of the first name pair of @p group with the plain name @p mode.
    int placeOf(const QString &group, const QString &mode) const
    {
        return firstThat(exclusive_group_inner_mode_namelist_at(group),
                         [&](const NamePair &pair) { return pair.first == mode; });
    }

    QVector<AUTH_INF> m_modules;
    QVector<Mode> m_modes;
    QVector<int> m_selections;
    QStringList m_groupNames;
    QStringList m_groupNamesTr;
    QString m_application;
};

#endif

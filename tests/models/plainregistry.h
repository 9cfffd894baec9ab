// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINREGISTRY_H
#define PLAINREGISTRY_H

#include <Kelto/AUTH_INF>

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

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
    PlainRegistry() = default;
    PlainRegistry(QString name, QString version, QVector<AUTH_INF> modules);

    void clear();
    void acquire(QVector<AUTH_INF> modules);
    void append(QVector<AUTH_INF> modules);
    void append(AUTH_INF module);
    void refresh_group();

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
    int index(QString name) const;
    bool model_exists(QString name) const;
    QVector<AUTH_INF> AUTH_INF_DATA() const { return m_modules; }
    QVector<AUTH_INF> AUTH_INF_list_by_type(QString type) const;
    QVector<AUTH_INF> AUTH_INF_list_by_group(QString group) const;

    QStringList exclusive_group_namelist() const { return m_groupNames; }
    QStringList exclusive_group_namelist_global() const { return m_groupNamesTr; }
    QVector<QPair<QString, QString>> currentExclusiveGroupList() const;
    QPair<QString, QString> findExclusiveGroupName(QString name) const;
    int exclusive_group_mode_count(QString group) const;
    QString exclusive_group_orginal_model(QString group, int position) const;
    int exclusive_group_select(QString group) const;
    int *exclusive_group_mode_pointer(QString group);
    void exclusive_group_set_mode(QString group, int position);
    void exclusive_group_set_mode(QString group, QString mode);
    QVector<QPair<QString, QString>> exclusive_group_inner_mode_namelist_at(QString group) const;
    QVector<QPair<QString, QString>> findExclusiveGroupInnerModeList(QString group) const
    {
        return exclusive_group_inner_mode_namelist_at(group);
    }
    QPair<QString, QString> findExclusiveGroupInnerModeName(QString group, QString mode) const;
    int exclusive_group_innerMode_index(QString group, QString mode) const;
    QVector<QPair<int, QString>> exclusive_group_mode_description(QString group) const;
    QVector<QStringList> exclusive_group_parameter_settings_origin(QString group,
                                                                   int position) const;
    QVector<QStringList> exclusive_group_parameter_settings_origin(QString group,
                                                                   QString mode) const;
    QPair<QString, QString> currentExclusiveGroupSelect(QString group) const;
    QString stdModeNameForm(QString group, QString mode) const;
    QVector<QPair<QString, QString>> currentModeList() const;
    QStringList currentModeMatching(QStringList codes) const;
    int currentModeMatchingCount(QStringList codes) const
    {
        return currentModeMatching(codes).size();
    }

private:
    struct Mode
    {
        QString group;
        int module = 0;
        int ordinal = 0;
    };
    struct Selection
    {
        QString group;
        int selected = 0;
    };

    void numberModules();
    void collectGroupNames();
    void collectModes();
    QString textAt(int i, QString AUTH_INF::*text) const;
    std::optional<QString> resolved(const QString &group) const;
    int countOf(const QString &group) const;
    QVector<Mode> modesOf(const QString &group) const;
    int firstPositionWithPlainName(const QString &group, const QString &mode) const;

    QVector<AUTH_INF> m_modules;
    QVector<Mode> m_modes;
    QVector<Selection> m_selections;
    QStringList m_groupNames;
    QStringList m_groupNamesTr;
    QString m_application;
};

#endif

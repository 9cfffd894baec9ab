// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef AUTH_SET_P_H
#define AUTH_SET_P_H

#include "auth_inf.h"
#include "core/firstpositions_p.h"
#include "registry/exclusivegroups_p.h"
#include "registry/storedvalues_p.h"

#include <QString>
#include <QVector>

class AUTH_SETPrivate
{
public:
    /// Numbers the modules from @p first on by their position.
    void numberModules(int first);
    /// Brings the exclusive groups up to date after modules were added from @p first on.
    void takeInModules(int first);
    void rebuildGroups();

    /// Drops the modules, and with them the modes of the groups.
    void dropModules();

    /// Position of the first module with the plain name @p name; -1 when there is none.
    int moduleIndex(const QString &name) const;
    bool hasModule(const QString &plainOrTranslatedName) const;

    /// One field of the module at @p index; empty when there is no such module.
    QString text(int index, QString AUTH_INF::*field) const;

    /// Index of the exclusive group that @p name names in either form; -1 when there is none.
    int groupIndex(const QString &name) const { return groups.indexOf(name); }
    /// Index of the exclusive group found by the plain name of the group at @p index. Operations
    /// that build on others look a found group up again; it is another one where the plain name of
    /// this group is the translated name of an earlier one. -1 stays -1.
    int groupIndexAgain(int index) const;

    NamePairs namePairs(int group) const;
    /// Index of the first name pair of @p group with the plain name of @p mode, which may be given
    /// in either form; -1 when there is none or when that plain name is empty.
    int indexOfMode(int group, const QString &mode) const;
    void select(int group, int position);
    QVector<QStringList> parameterEntries(int group, int position) const;

    /// Takes the set values from the configuration file of the application.
    void loadSetValues();

    /// The time that it is, as the log writes it: "yyyy-MM-dd hh:mm:ss" in ASCII digits.
    QString localTime() const;
    /// The log file of the day of @p time.
    QString logPath(const QString &time) const;

    QString applicationName;
    QString applicationVersion;
    QVector<AUTH_INF> modules;
    ExclusiveGroups groups;
    StoredValues values;
    /// False from clear() on until the next rebuild: the groups then outlive their modules.
    bool groupsMatchModules = true;

private:
    void gatherNames() const;

    /// The names of the modules, gathered when first asked for and continued after an append().
    mutable FirstPositions m_names;
    mutable FirstPositions m_translatedNames;

    mutable QString m_localTime;
    /// The second since 1970 that m_localTime tells.
    mutable qint64 m_localTimeSecond = -1;
};

#endif

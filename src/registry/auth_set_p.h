// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef AUTH_SET_P_H
#define AUTH_SET_P_H

#include "auth_inf.h"
#include "registry/exclusivegroups_p.h"
#include "registry/namepairindex_p.h"
#include "registry/storedvalues_p.h"
#include "vparameter.h"

#include <QHash>
#include <QString>
#include <QVector>

using ListsBySubGroup = QHash<QString, QVector<VParameter>>;

/// @p relativePath below the current directory of the process; empty where that has been removed:
/// the path would then lead below "/", where the superuser could write it.
QString pathBelowCurrent(const QString &relativePath);

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

    /// The exclusive group that is found by the plain name of the one that @p name finds; nullptr
    /// when there is none. Operations that build on others look a found group up again, which leads
    /// to another one where its plain name is the translated name of an earlier group.
    const ExclusiveGroup *resolveTwice(const QString &name) const;

    // A group that is nullptr has nothing in it.

    /// Index of the first name pair of @p group with the plain name of @p mode, which may be given
    /// in either form; -1 when there is none or when that plain name is empty.
    int indexOfMode(const ExclusiveGroup *group, const QString &mode) const;
    void select(const ExclusiveGroup *group, int position);
    QVector<QStringList> parameterEntries(const ExclusiveGroup *group, int position) const;

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
    /**
     * The default parameters by the name of their sub-group, of each exclusive group that was asked
     * for them, by its index, and of all groups, at -1: who asks for one sub-group soon asks for
     * the others, too. Every change of the modules empties this.
     */
    mutable QHash<int, ListsBySubGroup> listsBySubGroup;
    /// False from clear() on until the next rebuild: the groups then outlive their modules.
    bool groupsMatchModules = true;

private:
    void gatherNames() const;

    /// The names of the modules, gathered when first asked for and continued after an append().
    mutable NamePairIndex m_names;

    mutable QString m_localTime;
    /// The second since 1970 that m_localTime tells.
    mutable qint64 m_localTimeSecond = -1;
};

#endif

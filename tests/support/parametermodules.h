// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PARAMETERMODULES_H
#define PARAMETERMODULES_H

#include "support/parameters.h"

#include <Kelto/AUTH_SET>

#include <QMetaType>

// Modules that differ in the parameters and results of their modes.

using Modules = QVector<AUTH_INF>;

inline AUTH_SET registryOf(const Modules &modules)
{
    AUTH_SET set;
    set.append(modules);
    return set;
}

/// An inner mode and the entries of its parameters.
struct ModeEntries
{
    QString mode;
    ParameterEntries entries;
};

/// A module in the exclusive group @p group whose inner modes have these parameters.
inline AUTH_INF moduleWith(const QString &name, const QString &group,
                           const QVector<ModeEntries> &modes)
{
    QStringList names;
    QVector<ParameterEntries> lists;
    for (const ModeEntries &mode : modes) {
        names.append(mode.mode);
        lists.append(mode.entries);
    }
    AUTH_INF item = exclusiveModule(name, group, names);
    item.inner_mode_parameterList = lists;
    return item;
}

/// A module in the exclusive group @p group with one inner mode and these results.
inline AUTH_INF moduleWithResults(const QString &name, const QString &group,
                                  const ParameterEntries &results)
{
    AUTH_INF item = moduleWith(name, group, { { name, {} } });
    item.output_results = results;
    return item;
}

/// A module in the exclusive group @p group with one inner mode of its own name.
inline AUTH_INF single(const QString &name, const QString &group, const ParameterEntries &entries)
{
    return moduleWith(name, group, { { name, entries } });
}

/// Group G: modes a and b of P, and c of the flagless Q. Group H: mode k of R.
inline Modules withParameters()
{
    AUTH_INF flagless = single("Q", "G", { entry("d") });
    flagless.exclusive_group = false;
    return { moduleWith("P", "G",
                        { { "a", { entry("beta"), entry("Alpha"), entry("alpha") } },
                          { "b", { entry("beta"), entry("gamma") } } }),
             flagless, single("R", "H", { entry("k") }) };
}

/// Five modes and three name pairs: both modules have a and b.
inline Modules withSharedNames()
{
    return {
        moduleWith("P", "G", { { "a", { entry("Pa") } }, { "b", { entry("Pb") } } }),
        moduleWith("Q", "G",
                   { { "a", { entry("Qa") } }, { "b", { entry("Qb") } }, { "c", { entry("Qc") } } })
    };
}

/// One group per list of entries, each with one mode.
inline Modules groupsOf(const QVector<ParameterEntries> &lists)
{
    Modules modules;
    for (const ParameterEntries &entries : lists) {
        const QString name = QString::number(modules.size());
        modules.append(single(name, name, entries));
    }
    return modules;
}

Q_DECLARE_METATYPE(AUTH_INF)
Q_DECLARE_METATYPE(VParameter)

#endif

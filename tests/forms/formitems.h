// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FORMITEMS_H
#define FORMITEMS_H

#include "support/parameters.h"

#include <Kelto/AUTH_SET>
#include <Kelto/KeltoItemHints>
#include <Kelto/KeltoParameterEntry>

#include <QPair>
#include <QVariant>
#include <QVector>

using Entries = QVector<QPair<QString, QVariant>>;

/// The entry of a parameter without a translation.
inline QStringList plainEntry(const QString &key, const QString &objectName = "float",
                              const QString &subGroup = "Size")
{
    return { subGroup, key, objectName, "false", "mm", "", key.mid(0, 1), key, subGroup };
}

inline QStringList multiEntry(const QString &key, const QString &objectName)
{
    QStringList entry = plainEntry(key, objectName);
    entry[KeltoParameterEntry::Multi] = "true";
    return entry;
}

/// The module "Beam" of the exclusive group "Statics" with the mode "Bend".
inline AUTH_INF beam(const ParameterEntries &entries, const QVector<VDataItem> &hints = {})
{
    AUTH_INF item;
    item.name = "Beam";
    item.type = "calculation";
    item.group = "Statics";
    item.group_tr = "Statics_tr";
    item.exclusive_group = true;
    item.inner_mode_count = 1;
    item.inner_mode_nameList = QStringList("Bend");
    item.inner_mode_nameList_tr = QStringList("Bend_tr");
    item.inner_mode_parameterList = { entries };
    item.trObjectName = "BeamTexts";
    item.extraKey = hints;
    return item;
}

/// Two lengths, of which one is advanced, a load that counts in one case only, and that case.
inline AUTH_INF caseBeam()
{
    return beam({ plainEntry("Length"), plainEntry("Depth"), plainEntry("Case", "text", "Load"),
                  plainEntry("Force", "float", "Load") },
                { { "Order", "Length|Depth|Case|Force" },
                  { "Default.Length", "2.5" },
                  { "Min.Length", "1" },
                  { "Max.Length", "10" },
                  { "Advanced.Depth", "true" },
                  { "Optional.Depth", "true" },
                  { "Choices.Case", "none=No load|end=At the end" },
                  { "When.Force", "Case=end" },
                  { "Help.Force", "Acts at the free end." },
                  { "Label.Force", "Point load" } });
}

inline AUTH_SET registryOf(const AUTH_INF &item)
{
    return AUTH_SET("Host", "1", { item });
}

#endif

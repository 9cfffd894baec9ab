// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef AUTH_INF_H
#define AUTH_INF_H

#include "kelto_export.h"
#include "vdataitem.h"

#include <QString>
#include <QStringList>
#include <QVector>

/**
 * The description of one calculation module: what it is called, how it is classified, in which
 * inner modes it runs, which parameters each of them takes and which results come out.
 *
 * A plain record of public fields. Every name-like field has a twin with the suffix `_tr` that
 * holds its translated form. A default-constructed item is a module named "Default" of type
 * "undefined" in the group "model", with one inner mode that is named like the module and has no
 * entry in inner_mode_parameterList.
 *
 * A **parameter entry** is a list of exactly nine strings: 0 sub-group, 1 key, 2 object name,
 * 3 "true" for several values or "false" for one, 4 and 5 the two strings of the unit, 6 symbol,
 * 7 translated key, 8 translated sub-group. Results are described by entries of the same layout.
 *
 * The per-mode lists are meant to have inner_mode_count entries each, in the same order. Nothing
 * enforces that: every query treats what is missing as empty.
 */
class KELTO_EXPORT AUTH_INF
{
public:
    AUTH_INF();

    /// Position of the item in its registry, which overwrites it; 0 by default.
    int number;
    /// The key by which a registry finds the module.
    QString name;
    QString name_tr;
    QString description;
    /// Icon reference, handed out as it is.
    QString icon;
    QString type;
    QString type_tr;
    QString group;
    QString group_tr;
    /// Whether of all inner modes of all modules in this group only one is selected at a time.
    bool exclusive_group;
    QStringList lib_name;
    /// How many inner modes the module has; this number decides, not the length of the lists.
    int inner_mode_count;
    QStringList inner_mode_description;
    QStringList inner_mode_nameList;
    QStringList inner_mode_nameList_tr;
    /// The parameter entries of each inner mode.
    QVector<QVector<QStringList>> inner_mode_parameterList;
    /// The context in which the module's texts are translated.
    QString trObjectName;
    /// The function that builds this item in generated source text.
    QString codeFunctionName;
    /// The result entries of the module.
    QVector<QStringList> output_results;
    QVector<VDataItem> extraKey;

    /**
     * The keys of the parameters of one inner mode, in entry order, doubles kept.
     *
     * @param mode plain or translated name of the inner mode; if one mode's plain name is another
     * mode's translated name, the plain one counts.
     * @return empty for an unknown mode and for a mode without parameters.
     */
    QStringList inner_mode_keylist_of(QString mode) const;

    /// Whether the inner mode @p mode, named in either form, has a parameter with the key @p key.
    bool inner_mode_contains(QString mode, QString key) const;

    /// Whether any inner mode has a parameter with the key @p key.
    bool inner_mode_contains(QString key) const;

    /// The plain names of the inner modes that have a parameter with the key @p key, in mode order.
    QStringList parameter_belonglist(QString key) const;
};

Q_DECLARE_TYPEINFO(AUTH_INF, Q_MOVABLE_TYPE);

/// The name of AUTH_INF in generated source text.
using KeltoItem = AUTH_INF;

#endif

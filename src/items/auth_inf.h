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
 * enforces that: every query treats what is missing as empty. docs/traps.md says what this and the
 * like cost those who do not know it, and what to do.
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
    /// Icon reference, which Kelto does not interpret.
    QString icon;
    QString type;
    QString type_tr;
    QString group;
    QString group_tr;
    /// Whether the group is exclusive: of all inner modes of its modules one is selected at a time.
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
     * The keys of the parameters of one inner mode, in entry order, duplicates kept.
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

    /** @name INI file (auth_inf_ini.cpp)
     *
     * An item as an INI file in UTF-8, see VIniSettings. The section "KeltoItem" holds the item's
     * own fields, "Attribute" the keys of its parameters, "Result" the keys of its results and
     * "ExtraKey" its extra keys. Under the key of a parameter or a result, "Unit", "Symbol",
     * "Multi", "ObjectName" and "Group" hold the rest of its entry, and "Belong" the names of the
     * inner modes that have the parameter. No operation reports an error.
     */
    ///@{

    /**
     * Replaces every field by what the INI file at @p path holds.
     *
     * What the file does not hold becomes empty, 0 or false, all of it for a file that cannot be
     * read; a missing file is created empty. Translated fields and the translated strings of the
     * entries become copies of the plain ones. There is one list of parameters for each name of an
     * inner mode.
     *
     * Parameters, results and extra keys are in the order of VIniSettings::allKeys(). A key with a
     * "/" is shortened to its last part, and described by what the file holds under that part.
     *
     * As many results are read as "KeltoItem/output_results" has elements, whatever these are.
     * save_ini() never writes that key: results are read only where it was added to the file.
     */
    void load_ini(QString path);

    /**
     * Writes the item into the INI file at @p path, which is created where it is missing.
     *
     * Other keys of the file stay, so that load_ini() also finds parameters and extra keys of an
     * earlier item. A parameter of several inner modes is described by its first entry; one with
     * the key of a result replaces the description of the result. A result is left out unless its
     * entry has nine strings. Translated fields are not written.
     */
    void save_ini(QString path) const;

    ///@}
    /** @name Source text (auth_inf_code.cpp) */
    ///@{

    /**
     * Source text that declares the KeltoItem @p variable and fills its fields one by one, to be
     * pasted into a host's sources.
     *
     * Translated fields are written as calls of the function tr() of the class @p context, made
     * from the plain ones; descriptions are translated as well. Parameters and results are
     * written only when the type is exactly "calculation", and then as many inner modes as
     * inner_mode_count says, at most 1,000,000. An extra key whose value reads as a number is
     * written as that number.
     *
     * Nothing is escaped: a text with a double quote, a backslash or a line break does not compile
     * as it was meant. Neither does a value that reads as a number but is none in C++ that fits an
     * int, such as 08, inf, nan, 2147483648 and -2147483648.
     */
    QString to_code(QString context, QString variable) const;

    /// The same for the variable "inf" and the context trObjectName, or "UCal" where that is empty.
    QString to_code() const;

    ///@}
};

Q_DECLARE_TYPEINFO(AUTH_INF, Q_MOVABLE_TYPE);

/// The name of AUTH_INF in generated source text.
using KeltoItem = AUTH_INF;

#endif

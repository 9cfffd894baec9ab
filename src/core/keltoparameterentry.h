// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOPARAMETERENTRY_H
#define KELTOPARAMETERENTRY_H

/**
 * The nine places of a parameter or result entry, as they stand in
 * AUTH_INF::inner_mode_parameterList and AUTH_INF::output_results.
 *
 * Files and generated source text hold entries in this order, so it never changes; the two halves
 * of the name and of the group are far apart for that reason. An entry of another length is not
 * an entry; read a place with QStringList::value() where the length is not known.
 */
namespace KeltoParameterEntry {
enum Place {
    Group = 0, ///< Sub-group in which a form shows it.
    Key = 1, ///< Its name, which identifies it within the module.
    ObjectName = 2, ///< A short word for the kind of value, for example "float".
    Multi = 3, ///< "true" if it may hold several values, else "false".
    Unit = 4,
    SecondUnit = 5, ///< What it means is left to the host.
    Symbol = 6,
    TranslatedKey = 7,
    TranslatedGroup = 8,
    PlaceCount = 9
};
}

#endif

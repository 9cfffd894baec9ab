// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOITEMFINDING_H
#define KELTOITEMFINDING_H

#include "kelto_export.h"
#include "vparameter.h"

#include <QString>
#include <QStringList>
#include <QVariant>

/// Something that is wrong with the values of a mode, as KeltoItemParameterVerify::explain() finds
/// it: data for a program, and a sentence for a person.
struct KELTO_EXPORT KeltoItemFinding
{
    enum Kind {
        Missing, ///< No value has the key of the parameter.
        NearMiss, ///< Missing, but a value that belongs to no parameter has a similar key.
        EmptyText, ///< An empty text for a parameter that counts and is not optional.
        /// For a number by its object name or with a limit; also a fraction where a whole number is
        /// meant, and a point without two coordinates.
        NotANumber,
        OutsideLimits,
        NotAChoice, ///< Also neither "true" nor "false" where the object name is "bool".
        UnknownMode, ///< Also a translated name: values need the plain one.
        ModeWithoutParameters,
    };

    Kind kind = Missing;
    /// The key that a value list needs, "Attribute/" and the key of the parameter. Empty where the
    /// finding concerns the mode.
    QString valueKey;
    /// The parameter with both names, unit, symbol and sub-group. The translated name is the label
    /// where the item has one. For a mode that was named by its translated name, both its names.
    VParameter parameter;
    /// What was found: the similar key, the value as text, or the name of the unknown mode.
    QString found;
    /// For a value out of several: its position, counting from 0; else -1.
    int position = -1;
    /// What would do: the limits as "0 .. 10", "≥ 0" or "≤ 10", the values that can be chosen, or
    /// the plain names of the nearest modes. For an absent value, one empty text where that would
    /// do, since the parameter is optional or does not count.
    QStringList expected;

    /// Whether KeltoItemParameterVerify::isValid() is false for this reason alone. The other
    /// findings concern values, which that check does not look at.
    bool isAbsence() const;

    /// A sentence that says what is wrong and what to do, in the language of the program.
    QString text() const;
};

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef VPARAMETER_P_H
#define VPARAMETER_P_H

#include "vparameter.h"

#include <QHash>

/// A hash that is the same for all parameters that VParameter::isEqual() finds equal. The plain
/// name alone would do for most lists, but not where each of many modes has a parameter of one name
/// in a sub-group of its own. The value is left out: values of different types can be equal and
/// have different hashes.
inline uint parameterHash(const VParameter &parameter)
{
    return qHash(parameter.name().first) + 31 * qHash(parameter.group().first)
        + 961 * qHash(parameter.symbol());
}

#endif

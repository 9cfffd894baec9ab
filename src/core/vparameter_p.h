// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef VPARAMETER_P_H
#define VPARAMETER_P_H

#include "vparameter.h"

#include <QHash>

#include <iterator>

/// A hash that is the same for all parameters that VParameter::isEqual() finds equal. The value is
/// left out: values of different types can be equal and have different hashes.
inline uint parameterHash(const VParameter &parameter)
{
    const QPair<QString, QString> name = parameter.name();
    const QPair<QString, QString> unit = parameter.unit();
    const QPair<QString, QString> group = parameter.group();
    const QString texts[] = { name.first,
                              name.second,
                              unit.first,
                              unit.second,
                              group.first,
                              group.second,
                              parameter.parameterObjectName(),
                              parameter.symbol() };
    return qHashRange(std::begin(texts), std::end(texts), parameter.isMulti() ? 1U : 0U);
}

#endif

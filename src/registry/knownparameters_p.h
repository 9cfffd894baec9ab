// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KNOWNPARAMETERS_P_H
#define KNOWNPARAMETERS_P_H

#include "vparameter.h"

#include <QHash>
#include <QVector>

/// Parameters in the order in which they came, to be looked up. Equal means VParameter::isEqual(),
/// which also compares values with rounding and of different types, so that it takes the place of a
/// comparison here and not of a hash.
class KnownParameters
{
public:
    /// Whether any of them is equal to @p parameter. What is equal to one of two equal parameters
    /// need not be equal to the other one, so that all are asked that were appended.
    bool contains(const VParameter &parameter) const;

    void append(const VParameter &parameter) { m_list.append(parameter); }

    /// Appends each of @p parameters unless an equal one is there.
    void appendNew(const QVector<VParameter> &parameters);

    const QVector<VParameter> &list() const { return m_list; }

private:
    QVector<VParameter> m_list;
    /// Positions in the list by the hash of the parameter there, as far as they were needed.
    mutable QMultiHash<uint, int> m_positions;
};

#endif

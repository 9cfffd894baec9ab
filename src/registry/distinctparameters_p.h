// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef DISTINCTPARAMETERS_P_H
#define DISTINCTPARAMETERS_P_H

#include "vparameter.h"

#include <QHash>
#include <QVector>

/// Parameters in the order in which they came, to be looked up. Equal means VParameter::isEqual(),
/// which also compares values with rounding and of different types, so that it takes the place of a
/// comparison here and not of a hash.
class KnownParameters
{
public:
    /// Whether any of them is equal to @p parameter. All have to be kept for that: what is equal to
    /// one of two equal parameters need not be equal to the other one.
    bool contains(const VParameter &parameter) const;

    void append(const VParameter &parameter);

    const QVector<VParameter> &list() const { return m_list; }

private:
    friend class DistinctParameters;

    /// The hash under which @p parameter is or would be found; 0 while the list is so short that
    /// none is needed.
    uint hashOf(const VParameter &parameter) const;
    bool contains(uint hash, const VParameter &parameter) const;
    void append(uint hash, const VParameter &parameter);

    QVector<VParameter> m_list;
    /// Positions in the list by the hash of the parameter there; empty while the list is short.
    QMultiHash<uint, int> m_positions;
};

/// Parameters in the order in which they came, without those that are equal to an earlier one.
class DistinctParameters
{
public:
    /// Appends @p parameter unless an equal one is there.
    void add(const VParameter &parameter);
    void add(const QVector<VParameter> &parameters);

    const QVector<VParameter> &list() const { return m_known.list(); }

private:
    KnownParameters m_known;
};

#endif

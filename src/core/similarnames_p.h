// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SIMILARNAMES_P_H
#define SIMILARNAMES_P_H

#include "core/firstpositions_p.h"

#include <QHash>
#include <QString>
#include <QVector>

/// @p name as it is compared with others: without case, and without white space around it or twice.
QString comparableName(const QString &name);

/// How many letters may be wrong, missing, superfluous or swapped in a name of this length for it
/// to be taken for another.
int tolerableEdits(int length);

/// Names among which that is sought which a mistyped one may stand for.
class SimilarNames
{
public:
    /// Takes in the comparable form of a name, at the position of how many there were before.
    void append(const QString &name);

    /// The positions of the names nearest to the comparable form @p name, in order: those that are
    /// equal, or else those with the fewest edits.
    QVector<int> nearest(const QString &name, int mostEdits) const;

private:
    struct Candidate
    {
        QString name;
        quint64 letters; ///< A bit for each that occurs, shared by some.
        int position;
    };
    using Candidates = QVector<Candidate>;

    QVector<int> withEdits(const Candidates &candidates, const QString &name, int edits) const;

    FirstPositions m_positions;
    /// By their digits: numbers are how like names are told apart, and no typing error in them is
    /// ever looked for.
    QHash<QString, Candidates> m_candidates;
    /// Comparisons left. A search that is given up is a hint less, one that goes on for minutes is
    /// a host that hangs.
    mutable int m_budget = 250000;
};

#endif

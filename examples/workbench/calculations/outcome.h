// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef OUTCOME_H
#define OUTCOME_H

#include <QString>

/// What a calculation returns: the result, or a message that says why there is none.
template <typename Result> struct Outcome
{
    Result result {};
    /// What is wrong with the input and what to do about it; empty when there is a result.
    QString problem;

    bool isValid() const { return problem.isEmpty(); }
};

#endif

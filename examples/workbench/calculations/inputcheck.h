// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INPUTCHECK_H
#define INPUTCHECK_H

#include <QCoreApplication>
#include <QString>
#include <QVector>

/// Keeps the first problem found in the input of a calculation. Quantities are named by
/// the key of their parameter, so that the message uses the same (translated) name as the screen.
///
/// Limits that a single value has to keep stand in the module files; checked here is what a formula
/// cannot do without, and what relates several values.
class InputCheck
{
    Q_DECLARE_TR_FUNCTIONS(InputCheck)

public:
    InputCheck &positive(const char *key, double value);
    InputCheck &notNegative(const char *key, double value);
    InputCheck &require(bool condition, const QString &problem);
    /// For results: input that is valid value by value may still leave the range of numbers.
    InputCheck &finite(const QVector<double> &results);

    /// Empty as long as no check has failed.
    QString problem() const { return m_problem; }
    bool isPassed() const { return m_problem.isEmpty(); }

    /// The translated name of a parameter.
    static QString nameOf(const char *key);

private:
    QString m_problem;
};

#endif

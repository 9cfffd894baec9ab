// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef CALCULATOR_H
#define CALCULATOR_H

#include "calculations/curve.h"
#include "calculations/outcome.h"

#include <QPair>
#include <QString>
#include <QVariant>
#include <QVector>

class AUTH_INF;

/// Keys and values as Kelto's stores and checks hold them: "Attribute/Length" with the value of the
/// parameter, "Unit/Length" with its unit.
using Values = QVector<QPair<QString, QVariant>>;

/// What one calculation gives.
struct Computation
{
    /// "Attribute/" and "Unit/" of each result that the module declares, in the order of the
    /// module. The value is a number, or for a result with several a list of texts with one number
    /// each, with as many digits as the number has.
    Values results;
    /// What to plot, in the units of the module's entries.
    QVector<Curve> curves;
};

/// Joins the module descriptions to the formulas: which mode is computed by which calculation, and
/// which key stands for which quantity. It uses plain names only and so works the same
/// in every language.
namespace Calculator {

/// Computes one inner mode of a module.
///
/// Numbers may be given as numbers or as texts. One without a unit in @p values has the unit of its
/// entry; results and curves have those of theirs. A parameter that may stay empty counts as 0.
/// Limits of single values that the module states are not checked here.
Outcome<Computation> calculate(const AUTH_INF &module, const QString &mode, const Values &values);

} // namespace Calculator

#endif

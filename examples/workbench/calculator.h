// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef CALCULATOR_H
#define CALCULATOR_H

#include "calculations/outcome.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

class AUTH_INF;

/// Numbers by the key of their parameter or result. A parameter with one value is a list of one.
using NumbersByKey = QMap<QString, QVector<double>>;

/// Joins the module descriptions to the formulas: which mode is computed by which calculation, and
/// which key stands for which quantity. It uses plain names only and so works the same
/// in every language.
namespace Calculator {

/// The value that a parameter starts with, as the user would type it in the unit of its entry.
QString defaultText(const QString &key);

/// Computes one inner mode of a module. Values go in and out in the units of the module's entries;
/// every value that the mode declares must be present.
Outcome<NumbersByKey> calculate(const AUTH_INF &module, const QString &mode,
                                const NumbersByKey &values);

/// The keys of the results that an inner mode has, out of all results that its module declares;
/// empty for a mode without calculation.
QStringList resultKeys(const AUTH_INF &module, const QString &mode);

} // namespace Calculator

#endif

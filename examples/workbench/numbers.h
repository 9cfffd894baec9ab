// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef NUMBERS_H
#define NUMBERS_H

#include "calculations/outcome.h"

#include <QString>
#include <QVariant>
#include <QVector>

/// Reads what the user typed: one number, or with @p several any number of them separated by
/// semicolons. The decimal sign is a point in every language. The result is in the form in which
/// Kelto keeps values: a number, or a list of texts with one number each.
Outcome<QVariant> valueFromText(const QString &text, bool several);

/// The numbers in such a value.
QVector<double> numbersFromValue(const QVariant &value, bool several);

/// The numbers with up to six significant digits, separated like input.
QString textFromNumbers(QVector<double> numbers);

#endif

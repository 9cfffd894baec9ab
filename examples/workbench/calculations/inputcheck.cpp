// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "inputcheck.h"

#include <algorithm>
#include <cmath>

InputCheck &InputCheck::positive(const char *key, double value)
{
    return require(std::isfinite(value) && value > 0,
                   tr("%1: enter a number greater than zero.").arg(nameOf(key)));
}

InputCheck &InputCheck::notNegative(const char *key, double value)
{
    return require(std::isfinite(value) && value >= 0,
                   tr("%1: enter zero or a number greater than zero.").arg(nameOf(key)));
}

InputCheck &InputCheck::require(bool condition, const QString &problem)
{
    if (!condition && m_problem.isEmpty())
        m_problem = problem;
    return *this;
}

InputCheck &InputCheck::finite(const QVector<double> &results)
{
    const bool allFinite = std::all_of(results.cbegin(), results.cend(),
                                       [](double result) { return std::isfinite(result); });
    return require(allFinite,
                   tr("These values are too large or too small to calculate with. "
                      "Check the number of digits."));
}

QString InputCheck::nameOf(const char *key)
{
    return QCoreApplication::translate("ModuleTexts", key);
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "numbers.h"

#include <Kelto/KeltoItemParameterTransform>

#include <QCoreApplication>
#include <QStringList>

#include <cmath>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Numbers)
};

} // namespace

Outcome<QVariant> valueFromText(const QString &text, bool several)
{
    QStringList parts = several ? text.split(QLatin1Char(';')) : QStringList { text };
    for (QString &part : parts) {
        part = part.trimmed();
        bool isNumber = false;
        const double number = part.toDouble(&isNumber);
        if (!isNumber || !std::isfinite(number)) {
            const QString hint = several
                ? Texts::tr("\"%1\" is not a number. Write decimals with a point and separate the "
                            "numbers by semicolons, as in 0.5; 12.")
                : Texts::tr("\"%1\" is not a number. Write decimals with a point, as in 0.5.");
            return { {}, hint.arg(part) };
        }
    }
    return { several ? QVariant(parts) : QVariant(parts.first().toDouble()), {} };
}

QVector<double> numbersFromValue(const QVariant &value, bool several)
{
    if (several)
        return KeltoItemParameterTransform::to_array(value.toStringList());
    return { value.toDouble() };
}

QString textFromNumbers(QVector<double> numbers)
{
    for (double &number : numbers)
        number += 0.0; // turns a negative zero into a positive one
    return KeltoItemParameterTransform::from_array(numbers).join(QStringLiteral("; "));
}

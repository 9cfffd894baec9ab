// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef VALUEKIND_P_H
#define VALUEKIND_P_H

#include "vparameter.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

/// What a parameter's values are, as far as its object name says.
struct ValueKind
{
    bool isNumber = false;
    bool isWhole = false; ///< A number without a fraction.
    bool isPoint = false; ///< Two such numbers.
};

/// Any other word than those of numbers says nothing; those of arrays and points do where there may
/// be several values.
inline ValueKind valueKindOf(const VParameter &parameter)
{
    const QString name = parameter.parameterObjectName();
    const bool isMulti = parameter.isMulti();
    const auto isArrayOf = [&](const char *number, const char *element) {
        return name == QLatin1String(number) || (isMulti && name == QLatin1String(element));
    };
    const bool isPoint = isMulti
        && (name == QLatin1String("QVector<QPointF>") || name == QLatin1String("QVector<QPoint>"));
    const bool isWhole
        = isArrayOf("int", "QVector<int>") || (isPoint && name == QLatin1String("QVector<QPoint>"));
    const bool isNumber = isWhole || isPoint || isArrayOf("float", "QVector<float>")
        || isArrayOf("double", "QVector<double>");
    return { isNumber, isWhole, isPoint };
}

/// The finite number that @p text is, with "." as decimal sign.
inline std::optional<double> numberOf(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && qIsFinite(number) ? std::optional<double>(number) : std::nullopt;
}

/// The texts of a value: the elements of a list, or the text of anything else.
inline QStringList textsOf(const QVariant &value)
{
    const bool isList
        = value.userType() == QMetaType::QStringList || value.userType() == QMetaType::QVariantList;
    return isList ? value.toStringList() : QStringList(value.toString());
}

#endif

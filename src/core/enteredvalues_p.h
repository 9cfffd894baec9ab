// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ENTEREDVALUES_P_H
#define ENTEREDVALUES_P_H

#include "vparameter.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

inline bool isKindOfArray(const QString &objectName)
{
    return objectName == QLatin1String("QVector<float>")
        || objectName == QLatin1String("QVector<double>")
        || objectName == QLatin1String("QVector<int>");
}

inline bool isKindOfPoints(const QString &objectName)
{
    return objectName == QLatin1String("QVector<QPointF>")
        || objectName == QLatin1String("QVector<QPoint>");
}

inline bool isKindOfTable(const QString &objectName)
{
    return objectName == QLatin1String("QVector<QStringList>");
}

/// What the values of a parameter are, as far as its object name says.
struct ValueKind
{
    bool isNumber = false;
    bool isWhole = false; ///< A number without a fraction.
    bool isPoint = false; ///< Two such numbers.
};

/// The words for arrays and points say so only where there may be several values.
inline ValueKind valueKindOf(const VParameter &parameter)
{
    const QString name = parameter.parameterObjectName();
    ValueKind kind;
    kind.isPoint = parameter.isMulti() && isKindOfPoints(name);
    kind.isNumber = kind.isPoint || (parameter.isMulti() && isKindOfArray(name))
        || name == QLatin1String("float") || name == QLatin1String("double")
        || name == QLatin1String("int");
    kind.isWhole = kind.isNumber
        && (name == QLatin1String("int") || name == QLatin1String("QVector<int>")
            || name == QLatin1String("QVector<QPoint>"));
    return kind;
}

/// The finite number that @p text is, with "." as decimal sign.
inline std::optional<double> numberOf(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && qIsFinite(number) ? std::optional<double>(number) : std::nullopt;
}

/// The key under which a list of values holds that of the parameter @p key.
inline QString valueKeyOf(const QString &key)
{
    return QLatin1String("Attribute/") + key;
}

/// The texts of a value: the elements of a list, or the text of anything else.
inline QStringList textsOf(const QVariant &value)
{
    const bool isList
        = value.userType() == QMetaType::QStringList || value.userType() == QMetaType::QVariantList;
    return isList ? value.toStringList() : QStringList(value.toString());
}

#endif

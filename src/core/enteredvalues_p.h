// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ENTEREDVALUES_P_H
#define ENTEREDVALUES_P_H

#include "keltoparameterentry.h"
#include "vparameter.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <cmath>
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
    bool isMulti = false; ///< There may be several.
    bool isBool = false;
    bool isNumber = false;
    bool isWhole = false; ///< A number without a fraction.
    bool isPoint = false; ///< Two such numbers.
};

/// The words for arrays and points say so only where there may be several values.
inline ValueKind valueKindOf(const QString &name, bool isMulti)
{
    ValueKind kind;
    kind.isMulti = isMulti;
    kind.isBool = name == QLatin1String("bool");
    kind.isPoint = isMulti && isKindOfPoints(name);
    kind.isNumber = kind.isPoint || (isMulti && isKindOfArray(name))
        || name == QLatin1String("float") || name == QLatin1String("double")
        || name == QLatin1String("int");
    kind.isWhole = kind.isNumber
        && (name == QLatin1String("int") || name == QLatin1String("QVector<int>")
            || name == QLatin1String("QVector<QPoint>"));
    return kind;
}

inline ValueKind valueKindOf(const QStringList &entry)
{
    return valueKindOf(entry.value(KeltoParameterEntry::ObjectName),
                       entry.value(KeltoParameterEntry::Multi) == QLatin1String("true"));
}

inline ValueKind valueKindOf(const VParameter &parameter)
{
    return valueKindOf(parameter.parameterObjectName(), parameter.isMulti());
}

/// The finite number that @p text is, with "." as decimal sign.
inline std::optional<double> numberOf(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && qIsFinite(number) ? std::optional<double>(number) : std::nullopt;
}

/// The numbers of a value where it has to be made of some: the coordinates of a point, the cells of
/// a row, or one.
inline QStringList numbersOf(const QString &text, const ValueKind &kind)
{
    const bool mayBeRow = kind.isPoint || (kind.isMulti && !kind.isNumber);
    return mayBeRow ? text.split(QLatin1Char('|')) : QStringList(text);
}

/// Whether a value is made of numbers as its kind wants them.
inline bool isOfNumbers(const QString &text, const ValueKind &kind)
{
    const QStringList numbers = numbersOf(text, kind);
    return (!kind.isPoint || numbers.size() == 2)
        && std::all_of(numbers.cbegin(), numbers.cend(), [&kind](const QString &number) {
               const std::optional<double> found = numberOf(number);
               return found && (!kind.isWhole || *found == std::floor(*found));
           });
}

/// What is stored for a yes or no.
inline QStringList booleanTexts()
{
    return { QStringLiteral("true"), QStringLiteral("false") };
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

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PARAMETERROW_P_H
#define PARAMETERROW_P_H

#include "keltoparametermodel.h"

#include <Kelto/KeltoItemHints>
#include <Kelto/VParameter>

#include <QLocale>
#include <QString>
#include <QVariant>

/// A parameter of the model with its value and what does not change about it.
struct ParameterRow
{
    ParameterRow() = default;
    ParameterRow(const VParameter &described, const KeltoItemHints &hints);

    /// As a person reads it, in the language of the program.
    QString name(const KeltoItemHints &hints) const;
    QString group(const KeltoItemHints &hints) const;
    /// The unit in which the value is.
    QString unit() const;

    bool isEmpty() const;
    /// The value as a person types it.
    QVariant typed(const QLocale &locale) const;
    /// The value as a person reads it.
    QString shown(const KeltoItemHints &hints, const QLocale &locale) const;
    /// A text that the value could be, or one of several, as a person reads it.
    QString shownText(const QString &stored, const KeltoItemHints &hints,
                      const QLocale &locale) const;
    /// What is stored for what a person typed.
    QVariant stored(const QVariant &typedValue, const QLocale &locale) const;

    VParameter parameter;
    QString key;
    KeltoParameterModel::Kind kind = KeltoParameterModel::Text;
    bool isOptional = false;
    bool isAdvanced = false;
    QString conditionKey;
    /// Whether the texts are those of the item's translation, and so follow the language.
    bool nameFollows = false;
    bool groupFollows = false;

    QVariant value;
    /// The unit that came with the value; empty where it is the parameter's own.
    QVariant storedUnit;
};

/// Whether @p value is none: invalid, an empty text, or an empty list.
bool isEmptyValue(const QVariant &value);

/// The text of a single value, as it is stored.
QString storedText(const QVariant &value);

/// Whether both have the same type and value.
bool isSameValue(const QVariant &first, const QVariant &second);

#endif

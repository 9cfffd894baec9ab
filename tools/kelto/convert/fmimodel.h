// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FMIMODEL_H
#define FMIMODEL_H

#include <QByteArray>
#include <QHash>
#include <QPair>
#include <QStringList>
#include <QVector>

/// Something of a foreign model that the item does not have, or has in another way.
struct LeftOut
{
    QString what;
    QString why; ///< A sentence.
};

/// What a variable may be, or a type that several of them share. Empty texts are not there.
struct FmiType
{
    QString kind; ///< The name of the element, such as "Real" or "Float64".
    QString unit;
    QString displayUnit;
    QString min;
    QString max;
    QString relativeQuantity; ///< "true" of differences, which no offset is added to.
    QVector<QPair<QString, QString>> choices; ///< Value and name of an enumeration.
};

struct FmiVariable
{
    QString name;
    QString description;
    QString causality;
    QString typeName; ///< Of a declared type.
    QStringList starts; ///< None without a start; several of an array of texts.
    int dimensions = 0; ///< Of an array.
    FmiType type;
    QStringList unused; ///< Names of attributes that an item has no place for.
};

/// A number in the display unit is factor times that in the unit, plus offset.
struct FmiDisplayUnit
{
    double factor = 1;
    double offset = 0;
    bool isInverse = false;
};

/// The model description of a Functional Mock-up Unit, version 2 or 3.
struct FmiModel
{
    QString error; ///< Why there is none, as a sentence.
    QHash<QString, QString> attributes; ///< Of the root.
    QVector<QPair<QString, QString>> interfaces; ///< Name and identifier of the model's library.
    QHash<QString, FmiType> types;
    QHash<QPair<QString, QString>, FmiDisplayUnit> displayUnits; ///< By unit and display unit.
    QVector<FmiVariable> variables;
    QVector<LeftOut> leftOut; ///< What is not in here.
};

/// Why something that no item has a place for is left out.
QString noPlaceText();

/// Entities that are declared in the file itself are limited by Qt, others are not looked up.
FmiModel fmiModelIn(const QByteArray &bytes);

#endif

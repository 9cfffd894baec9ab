// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTOITEMPARAMETERTRANSFORM_H
#define KELTOITEMPARAMETERTRANSFORM_H

#include "kelto_export.h"

#include <QMap>
#include <QPoint>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

class VParameter;

/**
 * Conversions between the lists of texts in which parameters with several values are stored and
 * numbers, points and tables; and the scaling of a parameter's value.
 *
 * - An **array** holds one number per text.
 * - **Points** are one "x|y" per text.
 * - A **table** is one row per text, with "|" between its cells.
 * - A **group table** maps the number of a group, as text, to a table in a QVariant.
 *
 * "|" is never escaped. Floating-point numbers are written with six significant digits, 0.1 as
 * "0.1" and 1234567 as "1.23457e+06", whole numbers in decimal. Numbers are read independently of
 * the language set; a text that is no number reads as 0.
 *
 * All operations are static, keep nothing and report no error.
 */
class KELTO_EXPORT KeltoItemParameterTransform
{
public:
    /// One text per number, in order.
    static QStringList from_array(QVector<double> values);
    static QStringList from_array(QVector<int> values);

    /// One number per text, in order; nothing is skipped.
    static QVector<double> to_array(QStringList list);

    /// One text "x|y" per point, in order.
    static QStringList from_2Dpoints(QVector<QPointF> points);
    static QStringList from_2Dpoints(QVector<QPoint> points);

    /// One point per text, in order, up to the first text that does not hold exactly one "|".
    static QVector<QPointF> to_2Dpoints(QStringList list);

    /// One text per row, which holds the cells of this row and of all rows before it: the cells of
    /// one row with "|" between them, the rows with nothing between them. Rows "a", "b" and "c",
    /// "d" give "a|b" and "a|bc|d". Pass one row at a time to keep the rows apart.
    static QStringList from_XDpoints(QVector<QStringList> rows);

    /// One row of cells per text, in order. A text without "|" is a row of one cell.
    static QVector<QStringList> to_XDpoints(QStringList list);

    /// The tables of @p groups as to_XDpoints() gives them, in the order of the keys as texts: "10"
    /// comes before "2". What is no list of texts, nor can be turned into one, is a table without
    /// rows.
    static QVector<QVector<QStringList>> to_multiGroup(QMap<QString, QVariant> groups);

    /// The tables of @p groups as from_XDpoints() gives them, each under its position, counted from
    /// "0".
    static QMap<QString, QVariant> from_multiGroup(QVector<QVector<QStringList>> groups);

    /**
     * @p value, multiplied as fits the kind of @p parameter. The parameter's own value is not used.
     *
     * What a parameter holds decides (VParameter::isMulti() and parameterObjectName(), with case):
     * - One value: the product with the first factor, a double.
     * - Several of "QVector<float>", "QVector<double>" or "QVector<int>": an array, each number
     *   multiplied by the first factor.
     * - Several of "QVector<QPointF>" or "QVector<QPoint>": points, each x multiplied by the first
     *   factor and each y by the second.
     * - Several of "QVector<QStringList>": the table is not scaled, only written again by
     *   from_XDpoints().
     *
     * Arrays, points and tables are returned as a QStringList; numbers in it are written as
     * floating-point ones even where whole ones were read.
     *
     * @param factors a factor that is missing counts as 1.
     * @return an invalid QVariant for several values of another kind and for a null pointer.
     */
    static QVariant multiplication2D(const VParameter *parameter, QVariant value,
                                     QVector<double> factors);
};

#endif

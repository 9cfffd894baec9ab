// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoitemparametertransform.h"

#include "core/enteredvalues_p.h"
#include "vparameter.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr QLatin1Char separator('|');

QString numberText(double number)
{
    return QString::number(number, 'g', 6);
}

QString numberText(int number)
{
    return QString::number(number, 10);
}

template <typename Number> QStringList numberTexts(const QVector<Number> &numbers)
{
    QStringList texts;
    texts.reserve(numbers.size());
    for (const Number number : numbers)
        texts.append(numberText(number));
    return texts;
}

template <typename Point> QStringList pointTexts(const QVector<Point> &points)
{
    QStringList texts;
    texts.reserve(points.size());
    for (const Point &point : points)
        texts.append(numberText(point.x()) + separator + numberText(point.y()));
    return texts;
}

QVector<double> scaled(QVector<double> numbers, double factor)
{
    for (double &number : numbers)
        number *= factor;
    return numbers;
}

QVector<QPointF> scaled(QVector<QPointF> points, double xFactor, double yFactor)
{
    for (QPointF &point : points)
        point = QPointF(point.x() * xFactor, point.y() * yFactor);
    return points;
}

} // namespace

QStringList KeltoItemParameterTransform::from_array(QVector<double> values)
{
    return numberTexts(values);
}

QStringList KeltoItemParameterTransform::from_array(QVector<int> values)
{
    return numberTexts(values);
}

QVector<double> KeltoItemParameterTransform::to_array(QStringList list)
{
    QVector<double> numbers;
    numbers.reserve(list.size());
    std::transform(list.cbegin(), list.cend(), std::back_inserter(numbers),
                   [](const QString &text) { return text.toDouble(); });
    return numbers;
}

QStringList KeltoItemParameterTransform::from_2Dpoints(QVector<QPointF> points)
{
    return pointTexts(points);
}

QStringList KeltoItemParameterTransform::from_2Dpoints(QVector<QPoint> points)
{
    return pointTexts(points);
}

QVector<QPointF> KeltoItemParameterTransform::to_2Dpoints(QStringList list)
{
    QVector<QPointF> points;
    for (const QString &text : qAsConst(list)) {
        const QVector<QStringRef> parts = text.splitRef(separator);
        if (parts.size() != 2)
            break;
        points.append(QPointF(parts.first().toDouble(), parts.last().toDouble()));
    }
    return points;
}

QStringList KeltoItemParameterTransform::from_XDpoints(QVector<QStringList> rows)
{
    QStringList texts;
    texts.reserve(rows.size());
    // Deliberately, each text continues the one before.
    QString text;
    for (const QStringList &row : qAsConst(rows)) {
        text += row.join(separator);
        texts.append(text);
    }
    return texts;
}

QVector<QStringList> KeltoItemParameterTransform::to_XDpoints(QStringList list)
{
    QVector<QStringList> rows;
    rows.reserve(list.size());
    for (const QString &text : qAsConst(list))
        rows.append(text.split(separator));
    return rows;
}

QVector<QVector<QStringList>> KeltoItemParameterTransform::to_multiGroup(
    QMap<QString, QVariant> groups)
{
    QVector<QVector<QStringList>> tables;
    tables.reserve(groups.size());
    for (const QVariant &group : qAsConst(groups))
        tables.append(to_XDpoints(group.toStringList()));
    return tables;
}

QMap<QString, QVariant> KeltoItemParameterTransform::from_multiGroup(
    QVector<QVector<QStringList>> groups)
{
    QMap<QString, QVariant> tables;
    for (int i = 0; i < groups.size(); ++i)
        tables.insert(numberText(i), from_XDpoints(groups.at(i)));
    return tables;
}

QVariant KeltoItemParameterTransform::multiplication2D(const VParameter *parameter, QVariant value,
                                                       QVector<double> factors)
{
    if (!parameter)
        return QVariant();
    const double first = factors.value(0, 1.0);
    if (!parameter->isMulti())
        return value.toDouble() * first;

    const QString objectName = parameter->parameterObjectName();
    const QStringList list = value.toStringList();
    if (isKindOfArray(objectName))
        return from_array(scaled(to_array(list), first));
    if (isKindOfPoints(objectName))
        return from_2Dpoints(scaled(to_2Dpoints(list), first, factors.value(1, 1.0)));
    // A table has a factor per column, but none of them is ever applied to it.
    if (isKindOfTable(objectName))
        return from_XDpoints(to_XDpoints(list));
    return QVariant();
}

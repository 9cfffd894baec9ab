// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "tablecells_p.h"

#include "numbertext_p.h"

#include <QHash>
#include <QLocale>

#include <cmath>

namespace {

constexpr QLatin1Char separator('|');

bool isWhole(const QString &number)
{
    const double value = number.toDouble();
    return value == std::floor(value);
}

/// As much of a text as fits into a sentence.
QString quotable(const QString &text)
{
    constexpr int length = 40;
    return text.size() <= length ? text : text.left(length) + QChar(0x2026);
}

} // namespace

TableShape tableShapeOf(const QString &objectName)
{
    static const QHash<QString, TableShape> shapes {
        { QStringLiteral("float"), { 1, KeltoParameterModel::Number } },
        { QStringLiteral("double"), { 1, KeltoParameterModel::Number } },
        { QStringLiteral("int"), { 1, KeltoParameterModel::WholeNumber } },
        { QStringLiteral("QVector<float>"), { 1, KeltoParameterModel::Number } },
        { QStringLiteral("QVector<double>"), { 1, KeltoParameterModel::Number } },
        { QStringLiteral("QVector<int>"), { 1, KeltoParameterModel::WholeNumber } },
        { QStringLiteral("QVector<QPointF>"), { 2, KeltoParameterModel::Number } },
        { QStringLiteral("QVector<QPoint>"), { 2, KeltoParameterModel::WholeNumber } },
        { QStringLiteral("QVector<QStringList>"), { 0, KeltoParameterModel::Text } },
    };
    return shapes.value(objectName, { 1, KeltoParameterModel::Text });
}

TableCells::TableCells(int columns, KeltoParameterModel::Kind kind)
    : m_columns(qBound(0, columns, 2))
    , m_kind(kind)
{
}

bool TableCells::isOneCell(const QString &text) const
{
    return m_columns == 1 || !text.contains(separator);
}

int TableCells::columnCount(const QStringList &elements) const
{
    if (!isFree())
        return m_columns;
    int separators = 0;
    for (const QString &element : elements)
        separators = qMax(separators, element.count(separator));
    return separators + 1;
}

QStringList TableCells::split(const QString &element) const
{
    if (isFree())
        return element.split(separator);
    const int first = element.indexOf(separator);
    if (m_columns == 1 || first < 0)
        return QStringList(element);
    return { element.left(first), element.mid(first + 1) };
}

QString TableCells::withCell(const QString &element, int column, const QString &cell) const
{
    QStringList cells = split(element);
    while (cells.size() <= column)
        cells.append(QString());
    cells[column] = cell;
    return cells.join(separator);
}

QString TableCells::emptyElement(int columnCount) const
{
    return QString(columnCount - 1, separator);
}

QStringList TableCells::withBlock(const QStringList &elements, int row, int column,
                                  const QVector<QStringList> &block) const
{
    QStringList changed = elements;
    const int columns = columnCount(elements);
    while (changed.size() < row + block.size())
        changed.append(emptyElement(columns));
    for (int i = 0; i < block.size(); ++i) {
        for (int j = 0; j < block.at(i).size(); ++j)
            changed[row + i] = withCell(changed.at(row + i), column + j, block.at(i).at(j));
    }
    return changed;
}

QStringList TableCells::withColumn(const QStringList &elements, int column) const
{
    QStringList changed = elements;
    for (QString &element : changed) {
        QStringList cells = split(element);
        if (column > cells.size())
            continue;
        cells.insert(column, QString());
        element = cells.join(separator);
    }
    return changed;
}

QStringList TableCells::withoutColumn(const QStringList &elements, int column) const
{
    QStringList changed = elements;
    for (QString &element : changed) {
        QStringList cells = split(element);
        if (column < cells.size())
            cells.removeAt(column);
        element = cells.join(separator);
    }
    return changed;
}

QString TableCells::problem(const QString &element, int column) const
{
    const QStringList cells = split(element);
    if (isFree() && column >= cells.size())
        return QString();
    return numberProblem(cells.value(column));
}

QString TableCells::problem(const QString &cell) const
{
    if (!isOneCell(cell))
        return tr("\"%1\" holds \"|\", which stands between the cells of a row.")
            .arg(quotable(cell));
    return numberProblem(cell);
}

QString TableCells::numberProblem(const QString &cell) const
{
    if (!isOfNumbers())
        return QString();
    if (cell.isEmpty())
        return tr("A number is missing.");
    if (!NumberText::isNumber(cell))
        return tr("\"%1\" is not a number.").arg(quotable(cell));
    if (m_kind == KeltoParameterModel::WholeNumber && !isWhole(cell))
        return tr("\"%1\" is not a whole number.").arg(quotable(cell));
    return QString();
}

QString TableCells::stored(const QString &typed, const QLocale &locale) const
{
    return isOfNumbers() ? NumberText::stored(typed, locale) : typed;
}

QString TableCells::shown(const QString &cell, const QLocale &locale) const
{
    return isOfNumbers() ? NumberText::shown(cell, locale) : cell;
}

QString TableCells::shownElement(const QString &element, const QLocale &locale) const
{
    QStringList cells = split(element);
    for (QString &cell : cells)
        cell = shown(cell, locale);
    return cells.join(separator);
}

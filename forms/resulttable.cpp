// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "resulttable_p.h"

#include "delimitedtext_p.h"
#include "numbertext_p.h"
#include "tablecells_p.h"

#include <QHash>
#include <QPointF>
#include <QPolygonF>

#include <algorithm>
#include <numeric>

namespace {

bool isOfNumbers(const Result &result)
{
    return tableShapeOf(result.row.parameter.parameterObjectName()).cells
        != KeltoParameterModel::Text;
}

bool isText(const QVariant &value)
{
    return value.userType() == QMetaType::QString;
}

bool isFloatingPoint(const QVariant &value)
{
    return value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
}

bool isPoint(const QVariant &value)
{
    return value.userType() == QMetaType::QPointF || value.userType() == QMetaType::QPoint;
}

bool isList(const QVariant &value)
{
    return value.userType() == QMetaType::QPolygonF
        || (!isText(value) && !isPoint(value) && value.canConvert<QVariantList>());
}

QVariantList elementsOf(const QVariant &value)
{
    if (value.userType() != QMetaType::QPolygonF)
        return value.value<QVariantList>();
    QVariantList points;
    const auto polygon = value.value<QPolygonF>();
    for (const QPointF &point : polygon)
        points.append(point);
    return points;
}

ResultCells cellsOf(const QVariant &value, bool isMulti)
{
    if (value.userType() == QMetaType::QPoint)
        return { value.toPoint().x(), value.toPoint().y() };
    if (isPoint(value))
        return { value.toPointF().x(), value.toPointF().y() };
    if (isList(value))
        return elementsOf(value).toVector();
    if (!isMulti || !isText(value))
        return { value };
    ResultCells cells;
    const QStringList texts = value.toString().split(QLatin1Char('|'));
    for (const QString &text : texts)
        cells.append(text);
    return cells;
}

/// All digits, in the C locale.
QString exactText(const QVariant &cell)
{
    if (cell.userType() == QMetaType::Float)
        return QString::number(cell.toDouble(), 'g', 9);
    if (isFloatingPoint(cell))
        return QString::number(cell.toDouble(), 'g', QLocale::FloatingPointShortest);
    return cell.toString();
}

/// The first value under each key, without what stands in front of it.
QHash<QString, QVariant> valuesByKey(const QVector<QPair<QString, QVariant>> &values)
{
    QHash<QString, QVariant> byKey;
    for (const auto &value : values) {
        QString key = value.first;
        for (const auto &group : { QLatin1String("Result/"), QLatin1String("Attribute/") }) {
            if (value.first.startsWith(group))
                key = value.first.mid(group.size());
        }
        if (!byKey.contains(key))
            byKey.insert(key, value.second);
    }
    return byKey;
}

Result resultOf(const VParameter &parameter, const QHash<QString, QVariant> &values,
                const KeltoItemHints &hints)
{
    Result result;
    result.row = ParameterRow(parameter, hints);
    const QVariant value = values.value(result.row.key, parameter.value());
    result.row.value = value;
    result.isList = isList(value);
    if (result.isList) {
        const QVariantList elements = elementsOf(value);
        for (const QVariant &element : elements)
            result.values.append(cellsOf(element, parameter.isMulti()));
    } else if (!isEmptyValue(value)) {
        result.values.append(cellsOf(value, parameter.isMulti()));
    }
    return result;
}

} // namespace

ResultTable::ResultTable(const QVector<VParameter> &results,
                         const QVector<QPair<QString, QVariant>> &values,
                         const KeltoItemHints &hints)
    : m_hints(hints)
{
    const QHash<QString, QVariant> byKey = valuesByKey(values);
    QHash<QString, int> groups;
    const QVector<VParameter> ordered = hints.ordered(results);
    for (const VParameter &parameter : ordered) {
        groups.insert(parameter.group().first,
                      groups.value(parameter.group().first, groups.size()));
        m_results.append(resultOf(parameter, byKey, hints));
    }
    std::stable_sort(m_results.begin(), m_results.end(), [&](const Result &a, const Result &b) {
        return groups.value(a.row.parameter.group().first)
            < groups.value(b.row.parameter.group().first);
    });
}

/// A point may have two units.
QString ResultTable::unit(const Result &result) const
{
    const QPair<QString, QString> units = result.row.parameter.unit();
    const bool isOfPoints
        = result.row.parameter.parameterObjectName().contains(QLatin1String("QPoint"));
    if (!isOfPoints || units.second.isEmpty() || units.second == units.first)
        return result.row.unit();
    return QStringLiteral("%1; %2").arg(units.first, units.second);
}

QString ResultTable::shownCell(const Result &result, const QVariant &cell) const
{
    QLocale numbers = locale;
    numbers.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::OmitLeadingZeroInExponent);
    const QString text = exactText(cell);
    const bool isNumberText = isText(cell) && isOfNumbers(result) && NumberText::isNumber(text);
    if (isFloatingPoint(cell) || isNumberText)
        return numbers.toString(cell.toDouble(), 'g', significantDigits);
    return isText(cell) ? text : NumberText::shown(text, locale);
}

QString ResultTable::shown(const Result &result, const ResultCells &value) const
{
    using Kind = KeltoParameterModel::Kind;
    const Kind kind = result.row.kind;
    if (kind == Kind::Bool || kind == Kind::Choice)
        return result.row.shown(m_hints, locale);
    QStringList texts;
    for (const QVariant &cell : value)
        texts.append(shownCell(result, cell));
    return texts.join(QStringLiteral("; "));
}

QString ResultTable::exact(const Result &result, const ResultCells &value) const
{
    QStringList texts;
    for (const QVariant &cell : value) {
        const bool isVerbatim = isText(cell) && !isOfNumbers(result);
        texts.append(isVerbatim ? cell.toString() : NumberText::shown(exactText(cell), locale));
    }
    return texts.join(QStringLiteral("; "));
}

QString ResultTable::countText(const Result &result) const
{
    const int count = result.values.size();
    return count == 1 ? tr("1 value") : tr("%1 values").arg(locale.toString(count));
}

/// Name and value, or the name and below it a line per value.
QStringList ResultTable::lines(const Result &result) const
{
    const QString symbol = result.row.parameter.symbol();
    const QString title
        = symbol.isEmpty() ? name(result) : QStringLiteral("%1 (%2)").arg(name(result), symbol);
    const auto withUnit = [&](const ResultCells &value) {
        return QStringLiteral("%1 %2").arg(shown(result, value), unit(result)).trimmed();
    };
    if (!result.isList) {
        const QString value
            = result.values.isEmpty() ? tr("no value") : withUnit(result.values.first());
        return { tr("%1: %2").arg(title, value) };
    }
    QStringList lines { tr("%1: %2").arg(title, countText(result)) };
    for (const ResultCells &value : result.values)
        lines.append(QStringLiteral("  ") + withUnit(value));
    return lines;
}

QString ResultTable::text(const QVector<int> &positions) const
{
    QString text;
    QString lastGroup;
    for (const int position : positions) {
        const Result &result = m_results.at(position);
        const QString title = group(result);
        if (title != lastGroup && !text.isEmpty())
            text += QLatin1Char('\n');
        if (title != lastGroup && !title.isEmpty())
            text += title + QLatin1Char('\n');
        lastGroup = title;
        const QStringList all = lines(result);
        for (const QString &line : all)
            text += (title.isEmpty() ? QString() : QStringLiteral("  ")) + line + QLatin1Char('\n');
    }
    return text;
}

QVector<QStringList> ResultTable::cells(const QVector<int> &positions, const QLocale &numbers) const
{
    QVector<QStringList> rows;
    for (const int position : positions) {
        const Result &result = m_results.at(position);
        const QStringList start { group(result), name(result), result.row.parameter.symbol(),
                                  unit(result) };
        for (const ResultCells &value : result.values) {
            QStringList row = start;
            for (const QVariant &cell : value) {
                const bool isVerbatim = isText(cell) && !isOfNumbers(result);
                row.append(isVerbatim ? cell.toString()
                                      : NumberText::shown(exactText(cell), numbers));
            }
            rows.append(row);
        }
        if (result.values.isEmpty())
            rows.append(start + QStringList(QString()));
    }
    return rows;
}

QString ResultTable::csv() const
{
    QVector<int> positions(m_results.size());
    std::iota(positions.begin(), positions.end(), 0);
    QVector<QStringList> rows = cells(positions, QLocale::c());
    rows.prepend({ tr("Sub-group"), tr("Name"), tr("Symbol"), tr("Unit"), tr("Value") });
    int width = 0;
    for (const QStringList &row : qAsConst(rows))
        width = qMax(width, row.size());
    for (QStringList &row : rows) {
        while (row.size() < width)
            row.append(QString());
    }
    return DelimitedText::write(rows, QLatin1Char(','), QStringLiteral("\r\n"));
}

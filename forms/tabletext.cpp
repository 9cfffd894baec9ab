// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "tabletext_p.h"

#include "delimitedtext_p.h"
#include "numbertext_p.h"

#include <QTextCodec>

#include <algorithm>

namespace {

constexpr QLatin1Char noSeparator('\n');

bool isBlank(const QStringList &row)
{
    return std::all_of(row.cbegin(), row.cend(),
                       [](const QString &cell) { return cell.trimmed().isEmpty(); });
}

int widthOf(const QVector<QStringList> &rows)
{
    int width = 1;
    for (const QStringList &row : rows)
        width = qMax(width, row.size());
    return width;
}

/// What is missing at the end of a row is an empty cell.
void fillUp(QVector<QStringList> &rows, int width)
{
    for (QStringList &row : rows) {
        while (row.size() < width)
            row.append(QString());
    }
}

/// With a mark in front it may also be UTF-16.
bool decode(const QByteArray &bytes, QString *text)
{
    QTextCodec *codec = QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName("UTF-8"));
    QTextCodec::ConverterState state;
    *text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

} // namespace

TableTextReader::TableTextReader(const TableCells &cells, int width, const QLocale &locale)
    : m_cells(cells)
    , m_width(width)
    , m_locale(locale)
{
}

TableText TableTextReader::readBlock(const QString &text) const
{
    return read(text, false);
}

TableText TableTextReader::readFile(const QByteArray &bytes) const
{
    QString text;
    if (!decode(bytes, &text))
        return { {}, false, tr("The file is not UTF-8 text.") };
    return read(text, true);
}

TableText TableTextReader::read(const QString &text, bool isFile) const
{
    TableText first;
    const QVector<QChar> separators = separatorsOf(text, isFile);
    for (const QChar separator : separators) {
        const TableText found = check(DelimitedText::read(text, separator), isFile);
        if (found.problem.isEmpty())
            return found;
        if (first.problem.isEmpty())
            first = found;
    }
    return first;
}

/// In the order in which they are tried, with that of the last resort last.
QVector<QChar> TableTextReader::separatorsOf(const QString &text, bool isFile) const
{
    QVector<QChar> separators;
    const QString candidates
        = isFile || m_cells.isOfNumbers() ? QStringLiteral("\t;,") : QStringLiteral("\t");
    for (const QChar separator : candidates) {
        if (!DelimitedText::isDivided(text, separator))
            continue;
        if (m_cells.isOfNumbers() && separator == m_locale.decimalPoint())
            separators.append(noSeparator);
        separators.append(separator);
    }
    if (!separators.contains(noSeparator))
        separators.append(noSeparator);
    return separators;
}

TableText TableTextReader::check(QVector<QStringList> rows, bool isFile) const
{
    // Other programs leave empty lines behind the last number.
    while (m_cells.isOfNumbers() && !rows.isEmpty() && isBlank(rows.last()))
        rows.removeLast();
    if (rows.isEmpty())
        return { {}, false, tr("There is nothing to take over.") };
    const bool hasHeadings = isFile && isHeadings(rows);
    if (hasHeadings)
        rows.removeFirst();
    if (!m_cells.isFree())
        fillUp(rows, isFile ? m_width : widthOf(rows));
    for (QStringList &row : rows) {
        for (QString &cell : row)
            cell = m_cells.stored(cell, m_locale);
    }
    const QString problem = problemsOf(rows, hasHeadings);
    if (!problem.isEmpty())
        return { {}, false, problem };
    return { rows, hasHeadings, QString() };
}

/// Rows are counted as another program shows them, headings included.
QString TableTextReader::problemsOf(const QVector<QStringList> &rows, bool hasHeadings) const
{
    constexpr int mostLines = 5;
    QStringList lines;
    int others = 0;
    for (int i = 0; i < rows.size(); ++i) {
        for (int j = 0; j < rows.at(i).size(); ++j) {
            const QString problem = problemOf(rows.at(i).at(j), j);
            if (problem.isEmpty())
                continue;
            if (lines.size() == mostLines)
                ++others;
            else
                lines.append(tr("Row %1, column %2: %3")
                                 .arg(QString::number(i + 1 + int(hasHeadings)),
                                      QString::number(j + 1), problem));
        }
    }
    if (others > 0)
        lines.append(tr("And %1 more.").arg(others));
    return lines.join(QLatin1Char('\n'));
}

QString TableTextReader::problemOf(const QString &cell, int column) const
{
    if (m_width > 0 && column >= m_width)
        return tr("There is no such column in the table.");
    return m_cells.problem(cell);
}

/// A first line without any number: where numbers are wanted, or where some column holds nothing
/// but numbers below it.
bool TableTextReader::isHeadings(const QVector<QStringList> &rows) const
{
    const QStringList &first = rows.first();
    const auto isNumberCell = [this](const QString &cell) { return isNumber(cell); };
    if (rows.size() < 2 || isBlank(first)
        || std::any_of(first.cbegin(), first.cend(), isNumberCell))
        return false;
    if (m_cells.isOfNumbers())
        return true;
    for (int column = 0; column < first.size(); ++column) {
        const bool holdsNumbers
            = std::all_of(rows.cbegin() + 1, rows.cend(),
                          [&](const QStringList &row) { return isNumber(row.value(column)); });
        if (holdsNumbers)
            return true;
    }
    return false;
}

bool TableTextReader::isNumber(const QString &cell) const
{
    return NumberText::isNumber(NumberText::stored(cell, m_locale));
}

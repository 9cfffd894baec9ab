// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "terminaltext.h"

#include <QTextBoundaryFinder>
#include <QVector>

#include <algorithm>
#include <iterator>

namespace {

struct Range
{
    uint first;
    uint last;
};

/// Whether terminals show the character in two columns: East Asian scripts and pictures.
bool isWide(uint character)
{
    static const Range ranges[] = {
        { 0x1100, 0x115f }, { 0x2e80, 0x303e },   { 0x3041, 0xa4cf },   { 0xa960, 0xa97f },
        { 0xac00, 0xd7a3 }, { 0xf900, 0xfaff },   { 0xfe30, 0xfe6f },   { 0xff00, 0xff60 },
        { 0xffe0, 0xffe6 }, { 0x1f300, 0x1f64f }, { 0x1f900, 0x1f9ff }, { 0x20000, 0x3fffd },
    };
    return std::any_of(std::begin(ranges), std::end(ranges), [character](const Range &range) {
        return range.first <= character && character <= range.last;
    });
}

/// Whether the character turns what follows around, so that a line reads as another one.
bool isDirection(ushort character)
{
    return character == 0x061c || character == 0x200e || character == 0x200f
        || (character >= 0x202a && character <= 0x202e)
        || (character >= 0x2066 && character <= 0x2069);
}

int columnsOf(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        return isWide(character) ? 2 : 1;
    }
}

/// The parts of a text between which a line may end, which is not behind a "-": options begin with
/// it.
QStringList partsOf(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    QStringList parts;
    int begin = 0;
    for (int end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
        if (text.at(end - 1) == QLatin1Char('-') && end < text.size())
            continue;
        parts.append(text.mid(begin, end - begin));
        begin = end;
    }
    return parts;
}

QString withoutSpacesBehind(QString text)
{
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}

/// A row of a table of which each cell has lines of its own.
class WrappedRow
{
public:
    WrappedRow() = default;
    WrappedRow(const QStringList &cells, const QVector<int> &widest)
    {
        for (const QString &cell : cells) {
            m_cells.append(linesOf(cell, widest.value(m_cells.size(), widest.constLast())));
            m_height = qMax(m_height, m_cells.constLast().size());
        }
    }

    void widen(QVector<int> *widths) const
    {
        widths->resize(qMax(widths->size(), m_cells.size()));
        for (int i = 0; i < m_cells.size(); ++i) {
            for (const QString &line : m_cells.at(i))
                (*widths)[i] = qMax(widths->at(i), columnsOf(line));
        }
    }

    QString text(const QVector<int> &widths) const
    {
        QString text;
        for (int i = 0; i < m_height; ++i) {
            QString line;
            for (int column = 0; column < m_cells.size(); ++column)
                line += paddedTo(m_cells.at(column).value(i), widths.at(column) + 2);
            text += withoutSpacesBehind(line) + QLatin1Char('\n');
        }
        return text;
    }

private:
    static QStringList linesOf(const QString &cell, int widest)
    {
        const QString indent(spacesBefore(cell), QLatin1Char(' '));
        QStringList lines = wrappedAt(cell.mid(indent.size()), widest - indent.size());
        for (QString &line : lines)
            line.prepend(indent);
        return lines;
    }
    static int spacesBefore(const QString &text)
    {
        int count = 0;
        while (count < text.size() && text.at(count) == QLatin1Char(' '))
            ++count;
        return count;
    }

    QVector<QStringList> m_cells;
    int m_height = 1;
};

} // namespace

int columnsOf(const QString &text)
{
    int columns = 0;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters)
        columns += columnsOf(character);
    return columns;
}

QString paddedTo(const QString &text, int width)
{
    return text + QString(qMax(0, width - columnsOf(text)), QLatin1Char(' '));
}

QStringList wrappedAt(const QString &text, int width)
{
    QStringList lines;
    QString line;
    const QStringList parts = partsOf(text);
    for (const QString &part : parts) {
        const bool fits = columnsOf(withoutSpacesBehind(line + part)) <= width;
        if (!fits && !line.isEmpty()) {
            lines.append(withoutSpacesBehind(line));
            line.clear();
        }
        line += part;
    }
    line = withoutSpacesBehind(line);
    return line.isEmpty() ? lines : lines << line;
}

QString wrappedText(const QString &text)
{
    QStringList wrapped;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.isEmpty() || line.startsWith(QLatin1Char(' ')))
            wrapped.append(line);
        else
            wrapped += wrappedAt(line, terminalWidth);
    }
    return wrapped.join(QLatin1Char('\n'));
}

QString textTable(const QVector<QStringList> &rows, const QVector<int> &widest)
{
    QVector<WrappedRow> wrapped;
    QVector<int> widths;
    for (const QStringList &row : rows) {
        wrapped.append(WrappedRow(row, widest));
        wrapped.constLast().widen(&widths);
    }
    QString text;
    for (const WrappedRow &row : qAsConst(wrapped))
        text += row.text(widths);
    return text;
}

QString printable(QString text)
{
    for (QChar &character : text) {
        if (character == QLatin1Char('\n') || character == QLatin1Char('\r')
            || character == QLatin1Char('\t'))
            character = QLatin1Char(' ');
        else if (character.category() == QChar::Other_Control || isDirection(character.unicode()))
            character = QChar::ReplacementCharacter;
    }
    return text;
}

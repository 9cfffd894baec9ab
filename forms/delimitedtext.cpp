// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "delimitedtext_p.h"

#include <algorithm>

namespace {

constexpr QLatin1Char quote('"');
constexpr QLatin1Char lineFeed('\n');
constexpr QLatin1Char carriageReturn('\r');

/// Takes a text apart, character by character.
class Reader
{
public:
    explicit Reader(QChar separator)
        : m_separator(separator)
    {
    }

    QVector<QStringList> read(const QString &text)
    {
        for (int i = 0; i < text.size(); ++i) {
            const QChar next = i + 1 < text.size() ? text.at(i + 1) : QChar();
            if (takesTwo(text.at(i), next))
                ++i;
        }
        if (m_isQuotedCell || !m_cell.isEmpty() || !m_row.isEmpty())
            endRow();
        return m_rows;
    }

private:
    /// Takes @p character, and @p next where both together mean one.
    bool takesTwo(QChar character, QChar next)
    {
        if (m_isInQuotes)
            return takesTwoQuoted(character, next);
        if (character == lineFeed || character == carriageReturn) {
            endRow();
            return character == carriageReturn && next == lineFeed;
        }
        if (character == m_separator)
            endCell();
        else if (character == quote && m_cell.isEmpty() && !m_isQuotedCell)
            m_isInQuotes = m_isQuotedCell = true;
        else
            m_cell += character;
        return false;
    }

    bool takesTwoQuoted(QChar character, QChar next)
    {
        const bool isTwice = character == quote && next == quote;
        if (character == quote && !isTwice)
            m_isInQuotes = false;
        else
            m_cell += character;
        return isTwice;
    }

    void endCell()
    {
        m_row.append(m_cell);
        m_cell.clear();
        m_isQuotedCell = false;
    }

    void endRow()
    {
        endCell();
        m_rows.append(m_row);
        m_row.clear();
    }

    QChar m_separator;
    QVector<QStringList> m_rows;
    QStringList m_row;
    QString m_cell;
    bool m_isInQuotes = false;
    bool m_isQuotedCell = false;
};

QString written(const QString &cell, QChar separator)
{
    const bool needsQuotes = cell.contains(separator) || cell.contains(quote)
        || cell.contains(lineFeed) || cell.contains(carriageReturn);
    if (!needsQuotes)
        return cell;
    QString doubled = cell;
    doubled.replace(quote, QStringLiteral("\"\""));
    return quote + doubled + quote;
}

} // namespace

QVector<QStringList> DelimitedText::read(const QString &text, QChar separator)
{
    return Reader(separator).read(text);
}

bool DelimitedText::isDivided(const QString &text, QChar separator)
{
    if (!text.contains(separator))
        return false;
    const QVector<QStringList> rows = read(text, separator);
    return std::any_of(rows.cbegin(), rows.cend(),
                       [](const QStringList &row) { return row.size() > 1; });
}

QString DelimitedText::write(const QVector<QStringList> &rows, QChar separator,
                             const QString &lineEnd)
{
    QString text;
    for (const QStringList &row : rows) {
        for (int i = 0; i < row.size(); ++i) {
            if (i > 0)
                text += separator;
            text += written(row.at(i), separator);
        }
        text += lineEnd;
    }
    return text;
}

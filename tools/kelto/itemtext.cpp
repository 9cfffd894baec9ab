// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "itemtext.h"

#include "command.h"
#include "itemfacts.h"
#include "itemtable.h"
#include "terminaltext.h"

#include <AUTH_INF>

#include <functional>

namespace {

const QLatin1String indent("  ");
/// Of the tables: what is wider takes several lines.
QVector<int> widestCells()
{
    return { 26, 8, 10, 14 };
}

QString listed(const QStringList &texts)
{
    return texts.join(Command::tr(", "));
}

QString paragraph(const QString &text, const QString &before)
{
    QString lines;
    const QStringList wrapped = wrappedAt(printable(text), terminalWidth - before.size());
    for (const QString &line : wrapped)
        lines += before + line + QLatin1Char('\n');
    return lines;
}

QString heading(const AUTH_INF &item, const QString &path)
{
    const QString group
        = item.exclusive_group ? Command::tr("%1 (exclusive)").arg(item.group) : item.group;
    QVector<QStringList> rows { { indent + Command::tr("File:"), path },
                                { indent + Command::tr("Type:"), item.type },
                                { indent + Command::tr("Group:"), group } };
    if (!item.lib_name.isEmpty())
        rows.append({ indent + Command::tr("Library:"), listed(item.lib_name) });
    for (QStringList &row : rows)
        row.last() = printable(row.constLast());
    const QString name = item.name.isEmpty() ? Command::tr("(no name)") : printable(item.name);
    const QString description = paragraph(item.description, indent);
    return name + QLatin1Char('\n') + textTable(rows, { terminalWidth / 2, terminalWidth })
        + (description.isEmpty() ? QString() : QLatin1Char('\n') + description);
}

QString modesText(const ItemTable &table)
{
    QString text;
    for (const ItemTableMode &mode : table.modes)
        text += paragraph(mode.name, indent) + paragraph(mode.description, indent + indent);
    return text;
}

QString unitOf(const VParameter &parameter)
{
    QStringList units { parameter.unit().first, parameter.unit().second };
    units.removeAll(QString());
    units.removeDuplicates();
    return listed(units);
}

/// The value with which the parameter starts in the mode, or else whether the mode has it.
QString cellText(const ItemTable &table, const ItemTableRow &row, int mode)
{
    if (!row.modes.at(mode))
        return QStringLiteral("-");
    const QString value = defaultText(table.modes.at(mode).hints, row.parameter.name().first);
    return value.isEmpty() ? Command::tr("yes") : printable(value);
}

/// The rows as a table of the modes from @p first up to @p end, which does not belong to it.
QString rowsText(const ItemTable &table, const QVector<ItemTableRow> &rows, int first, int end)
{
    QStringList header { QString(), Command::tr("Symbol"), Command::tr("Unit") };
    for (int mode = first; mode < end; ++mode)
        header.append(printable(table.modes.at(mode).name));
    QVector<QStringList> cells { header };
    QString group;
    for (const ItemTableRow &row : rows) {
        const QString ownGroup = row.parameter.group().first;
        if (ownGroup != group)
            cells.append(QStringList(indent + printable(ownGroup)));
        group = ownGroup;
        QStringList texts { indent + indent + printable(row.parameter.name().first),
                            printable(row.parameter.symbol()), printable(unitOf(row.parameter)) };
        for (int mode = first; mode < end; ++mode)
            texts.append(cellText(table, row, mode));
        cells.append(texts);
    }
    return textTable(cells, widestCells());
}

int widthOf(const QString &text)
{
    int width = 0;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines)
        width = qMax(width, columnsOf(line));
    return width;
}

/// As many modes beside each other as the terminal is wide, and the others below.
QString blocks(const ItemTable &table, const QVector<ItemTableRow> &rows)
{
    QStringList texts;
    int first = 0;
    do {
        int end = qMin(first + 1, table.modes.size());
        QString text = rowsText(table, rows, first, end);
        while (end < table.modes.size()) {
            const QString wider = rowsText(table, rows, first, end + 1);
            if (widthOf(wider) > terminalWidth)
                break;
            text = wider;
            ++end;
        }
        texts.append(text);
        first = end;
    } while (first < table.modes.size());
    return texts.join(QLatin1Char('\n'));
}

/// What may be entered, in a line.
QString rulesText(const VParameter &parameter, const KeltoItemHints &hints)
{
    QStringList rules { parameter.parameterObjectName() };
    rules += factsOf(hints, parameter);
    const QString label = hints.label(parameter.name().first);
    if (!label.isEmpty())
        rules.append(Command::tr("shown as \"%1\"").arg(label));
    rules.removeAll(QString());
    return rules.join(QLatin1String("; "));
}

/// The text of each mode that has the row; modes are named where the texts differ.
QString noteText(const ItemTable &table, const ItemTableRow &row,
                 const std::function<QString(const KeltoItemHints &)> &textOf)
{
    QStringList texts;
    QMap<QString, QStringList> modes;
    for (int mode = 0; mode < table.modes.size(); ++mode) {
        if (!row.modes.at(mode))
            continue;
        texts.append(textOf(table.modes.at(mode).hints));
        modes[texts.constLast()].append(table.modes.at(mode).name);
    }
    texts.removeDuplicates();
    QString lines;
    for (const QString &text : qAsConst(texts)) {
        const QString where = text.isEmpty() || texts.size() == 1
            ? QString()
            : Command::tr("%1: ").arg(listed(modes.value(text)));
        lines += paragraph(where + text, indent + indent);
    }
    return lines;
}

QString notes(const ItemTable &table, const QVector<ItemTableRow> &rows)
{
    QString text;
    for (const ItemTableRow &row : rows) {
        const QString note = noteText(table, row,
                                      [&row](const KeltoItemHints &hints) {
                                          return rulesText(row.parameter, hints);
                                      })
            + noteText(table, row, [&row](const KeltoItemHints &hints) {
                                 return hints.help(row.parameter.name().first);
                             });
        if (!note.isEmpty())
            text += paragraph(row.parameter.name().first, indent) + note;
    }
    return text;
}

} // namespace

QString itemText(const AUTH_INF &item, const ItemTable &table, const QString &path)
{
    QStringList parts { heading(item, path) };
    const auto add = [&parts](const QString &title, const QString &text) {
        if (!text.isEmpty())
            parts.append(title + QLatin1Char('\n') + text);
    };
    add(Command::tr("Modes"), modesText(table));
    if (!table.parameters.isEmpty()) {
        add(Command::tr("Parameters"), blocks(table, table.parameters));
        add(Command::tr("About the parameters"), notes(table, table.parameters));
    }
    if (!table.results.isEmpty()) {
        add(Command::tr("Results"), blocks(table, table.results));
        add(Command::tr("About the results"), notes(table, table.results));
    }
    return parts.join(QLatin1Char('\n'));
}

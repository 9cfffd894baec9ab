// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "moduletable.h"

#include "command.h"
#include "itemfacts.h"

#include <algorithm>

namespace {

QStringList inAll(const QVector<QStringList> &lists)
{
    QStringList shared = lists.value(0);
    for (const QStringList &list : lists) {
        QStringList kept;
        for (const QString &line : qAsConst(shared)) {
            if (list.contains(line))
                kept.append(line);
        }
        shared = kept;
    }
    return shared;
}

void removeAll(const QStringList &lines, QStringList *from)
{
    for (const QString &line : lines)
        from->removeAll(line);
}

/// Rows without a sub-group get a heading, too, unless they come first.
QString headingAbove(const QVector<ItemTableRow> &rows, int row)
{
    const VParameter &parameter = rows.at(row).parameter;
    const bool isFirst = row == 0;
    if (!isFirst && rows.at(row - 1).parameter.group().first == parameter.group().first)
        return {};
    const QString title = groupTitle(parameter);
    return title.isEmpty() && !isFirst ? Command::tr("Others") : title;
}

QStringList lines(const QString &text)
{
    return text.isEmpty() ? QStringList() : QStringList(text);
}

PrintedRow printedRow(const ItemTable &table, const ItemTableRow &row)
{
    const QString key = row.parameter.name().first;
    QVector<QStringList> facts;
    QVector<QStringList> helps;
    const auto collect = [&](const KeltoItemHints &hints) {
        facts.append(factsOf(hints, row.parameter));
        helps.append(lines(hints.help(key)));
    };
    for (int mode = 0; mode < table.modes.size(); ++mode) {
        if (row.modes.at(mode))
            collect(table.modes.at(mode).hints);
    }
    if (facts.isEmpty())
        collect(table.hints);
    const QStringList help = inAll(helps);
    const QStringList shared = inAll(facts);
    PrintedRow printed { {},
                         key,
                         row.label,
                         help.join(QString()),
                         { lines(row.parameter.symbol()), lines(row.parameter.unit().first),
                           shared } };
    for (int mode = 0, used = 0; mode < table.modes.size(); ++mode) {
        if (!row.modes.at(mode)) {
            printed.cells.append(QStringList(unusedMark()));
            continue;
        }
        const QString value = defaultText(table.modes.at(mode).hints, key);
        QStringList own = facts.at(used) + helps.at(used);
        removeAll(shared + help, &own);
        printed.cells.append(QStringList(value.isEmpty() ? usedMark() : value) + own);
        ++used;
    }
    return printed;
}

void removeColumn(int column, PrintedTable *table)
{
    table->columns.removeAt(column);
    for (PrintedRow &row : table->rows)
        row.cells.removeAt(column);
}

} // namespace

QString usedMark()
{
    return QStringLiteral("●");
}

QString unusedMark()
{
    return QStringLiteral("–");
}

PrintedTable printedTable(const ItemTable &table, const QVector<ItemTableRow> &rows)
{
    PrintedTable printed { { Command::tr("Symbol"), Command::tr("Unit"), Command::tr("Values") },
                           table.modes.size(),
                           {} };
    const int sharedColumns = printed.columns.size();
    for (const ItemTableMode &mode : table.modes)
        printed.columns.append(mode.title);
    for (int row = 0; row < rows.size(); ++row) {
        printed.rows.append(printedRow(table, rows.at(row)));
        printed.rows.last().heading = headingAbove(rows, row);
    }
    for (int column = sharedColumns - 1; column >= 0; --column) {
        const auto isEmpty
            = [column](const PrintedRow &row) { return row.cells.at(column).isEmpty(); };
        if (std::all_of(printed.rows.cbegin(), printed.rows.cend(), isEmpty))
            removeColumn(column, &printed);
    }
    return printed;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "moduletable.h"

#include "command.h"
#include "itemfacts.h"

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

} // namespace

QString usedMark()
{
    return QStringLiteral("●");
}

QString unusedMark()
{
    return QStringLiteral("–");
}

QString headingAbove(const QVector<ItemTableRow> &rows, int row)
{
    const VParameter &parameter = rows.at(row).parameter;
    const bool isFirst = row == 0;
    if (!isFirst && rows.at(row - 1).parameter.group().first == parameter.group().first)
        return {};
    const QString title = groupTitle(parameter);
    return title.isEmpty() && !isFirst ? Command::tr("Others") : title;
}

PrintedRow printedRow(const ItemTable &table, const ItemTableRow &row)
{
    const QString key = row.parameter.name().first;
    QVector<QStringList> facts;
    QVector<QStringList> helps;
    for (int mode = 0; mode < table.modes.size(); ++mode) {
        if (row.modes.at(mode)) {
            const KeltoItemHints &hints = table.modes.at(mode).hints;
            facts.append(factsOf(hints, row.parameter));
            helps.append(QStringList(hints.help(key)));
        }
    }
    if (facts.isEmpty()) {
        facts.append(factsOf(table.hints, row.parameter));
        helps.append(QStringList(table.hints.help(key)));
    }
    PrintedRow printed { inAll(helps).value(0), inAll(facts), {} };
    int used = 0;
    for (int mode = 0; mode < table.modes.size(); ++mode) {
        if (!row.modes.at(mode)) {
            printed.modes.append(QStringList(unusedMark()));
            continue;
        }
        const QString value = defaultText(table.modes.at(mode).hints, key);
        QStringList own = facts.at(used) + helps.at(used);
        removeAll(printed.facts + QStringList { printed.help, QString() }, &own);
        printed.modes.append(QStringList(value.isEmpty() ? usedMark() : value) + own);
        ++used;
    }
    return printed;
}

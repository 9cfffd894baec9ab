// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "itemtable.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace {

QString firstText(const QString &text, const QString &otherwise)
{
    return text.isEmpty() ? otherwise : text;
}

QVector<ItemTableMode> modesOf(const AUTH_INF &item)
{
    QVector<ItemTableMode> modes;
    // Registries offer all names, also those beyond the count, as soon as it is positive.
    const int count = item.inner_mode_count > 0 ? item.inner_mode_nameList.size() : 0;
    for (int mode = 0; mode < count; ++mode) {
        const QString &name = item.inner_mode_nameList.at(mode);
        modes.append({ name, firstText(item.inner_mode_nameList_tr.value(mode), name),
                       item.inner_mode_description.value(mode), KeltoItemHints(item, name) });
    }
    return modes;
}

QString labelOf(const VParameter &parameter, const KeltoItemHints &hints)
{
    const QString key = parameter.name().first;
    return firstText(hints.label(key), firstText(parameter.name().second, key));
}

/// The rows that the lists make together, each key once. There is one list for each mode, and for
/// results one more for what no mode gives.
QVector<ItemTableRow> rowsOf(const QVector<QVector<VParameter>> &lists, const ItemTable &table)
{
    QVector<ItemTableRow> rows;
    QHash<QString, int> positions;
    for (int list = 0; list < lists.size(); ++list) {
        const bool isMode = list < table.modes.size();
        const KeltoItemHints &hints = isMode ? table.modes.at(list).hints : table.hints;
        for (const VParameter &parameter : lists.at(list)) {
            const QString key = parameter.name().first;
            if (!positions.contains(key)) {
                positions.insert(key, rows.size());
                rows.append(
                    { parameter, labelOf(parameter, hints), QVector<bool>(table.modes.size()) });
            }
            if (isMode)
                rows[positions.value(key)].modes[list] = true;
        }
    }
    return rows;
}

/// The hint for all modes decides, then the orders of single modes; the rest is sorted.
QVector<ItemTableRow> ordered(QVector<ItemTableRow> rows, const ItemTable &table)
{
    QStringList keys = table.hints.order();
    for (const ItemTableMode &mode : table.modes)
        keys += mode.hints.order();
    QHash<QString, int> ranks;
    for (const QString &key : qAsConst(keys)) {
        if (!ranks.contains(key))
            ranks.insert(key, ranks.size());
    }
    const auto rankOf = [&ranks](const ItemTableRow &row) {
        const QString key = row.parameter.name().first;
        return std::make_pair(ranks.value(key, ranks.size()), key);
    };
    std::sort(rows.begin(), rows.end(),
              [&rankOf](const ItemTableRow &left, const ItemTableRow &right) {
                  return rankOf(left) < rankOf(right);
              });
    return rows;
}

/// Sub-groups in the order of their first rows.
QVector<ItemTableRow> grouped(QVector<ItemTableRow> rows)
{
    QHash<QString, int> places;
    for (const ItemTableRow &row : qAsConst(rows)) {
        const QString group = row.parameter.group().first;
        if (!places.contains(group))
            places.insert(group, places.size());
    }
    const auto placeOf
        = [&places](const ItemTableRow &row) { return places.value(row.parameter.group().first); };
    std::stable_sort(rows.begin(), rows.end(),
                     [&placeOf](const ItemTableRow &left, const ItemTableRow &right) {
                         return placeOf(left) < placeOf(right);
                     });
    return rows;
}

} // namespace

ItemTable itemTable(const AUTH_INF &item)
{
    ItemTable table;
    table.modes = modesOf(item);
    QVector<QVector<VParameter>> parameters;
    QVector<QVector<VParameter>> results;
    for (const ItemTableMode &mode : qAsConst(table.modes)) {
        parameters.append(mode.hints.parameters());
        results.append(mode.hints.results());
    }
    // After the modes, so that results that no mode gives are not lost.
    table.hints = KeltoItemHints(item);
    results.append(table.hints.results());
    table.parameters = grouped(ordered(rowsOf(parameters, table), table));
    table.results = grouped(ordered(rowsOf(results, table), table));
    return table;
}

QString groupTitle(const VParameter &parameter)
{
    return firstText(parameter.group().second, parameter.group().first);
}

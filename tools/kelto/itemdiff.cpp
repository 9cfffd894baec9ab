// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "itemdiff.h"

#include "command.h"
#include "hintdiff.h"
#include "itemtable.h"
#include "units/unit.h"

#include <AUTH_INF>

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

QString keyOf(const ItemTableRow &row)
{
    return row.parameter.name().first;
}

QHash<QString, int> positionsOf(const QStringList &names)
{
    QHash<QString, int> positions;
    // Backwards, since the first of a name counts.
    for (int i = names.size() - 1; i >= 0; --i)
        positions.insert(names.at(i), i);
    return positions;
}

int columnOf(const QVector<ItemTableMode> &modes, const QString &name)
{
    const auto mode
        = std::find_if(modes.cbegin(), modes.cend(),
                       [&name](const ItemTableMode &each) { return each.name == name; });
    return mode == modes.cend() ? -1 : static_cast<int>(mode - modes.cbegin());
}

QStringList namesOf(const QVector<ItemTableMode> &modes)
{
    QStringList names;
    for (const ItemTableMode &mode : modes)
        names.append(mode.name);
    names.removeDuplicates();
    return names;
}

QStringList keysOf(const QVector<ItemTableRow> &rows)
{
    QStringList keys;
    for (const ItemTableRow &row : rows)
        keys.append(keyOf(row));
    return keys;
}

QSet<QString> setOf(const QStringList &names)
{
    return QSet<QString>(names.cbegin(), names.cend());
}

/// The keys of parameters and results that the mode in this column has.
QSet<QString> keysIn(const ItemTable &table, int column)
{
    QSet<QString> keys;
    const QVector<ItemTableRow> rows = table.parameters + table.results;
    for (const ItemTableRow &row : rows) {
        if (row.modes.at(column))
            keys.insert(keyOf(row));
    }
    return keys;
}

/// Those of @p names that are among @p others.
QStringList among(QStringList names, const QSet<QString> &others)
{
    names.erase(std::remove_if(names.begin(), names.end(),
                               [&others](const QString &name) { return !others.contains(name); }),
                names.end());
    return names;
}

/// Those of @p names that are not among @p others.
QStringList onlyIn(const QStringList &names, const QStringList &others)
{
    const QSet<QString> known = setOf(others);
    QStringList only;
    std::copy_if(names.cbegin(), names.cend(), std::back_inserter(only),
                 [&known](const QString &name) { return !known.contains(name); });
    return only;
}

/// What is the same for all names that VParameter::isName() takes for one.
QString folded(QString name)
{
    for (const char ignored : { ' ', '_', '-' })
        name.remove(QLatin1Char(ignored));
    return name.toLower();
}

/// The new name of each of @p removed that is among @p added but for case, spaces, "-" and "_".
QHash<QString, QString> renamedTo(const QStringList &removed, const QStringList &added)
{
    QHash<QString, QStringList> candidates;
    for (const QString &name : added)
        candidates[folded(name)].append(name);
    QHash<QString, QString> renamed;
    for (const QString &name : removed) {
        QStringList &same = candidates[folded(name)];
        if (!same.isEmpty())
            renamed.insert(name, same.takeFirst());
    }
    return renamed;
}

/// The host's own extra keys, of which the first of a name counts; the others are hints.
QVector<VDataItem> ownExtraKeys(const AUTH_INF &item)
{
    static const QRegularExpression hint(QStringLiteral(
        "^(Order(@|$)|(Default|Min|Max|Choices|Optional|When|Advanced|Help|Label|Files|Belong)"
        "\\.)"));
    QVector<VDataItem> own;
    QSet<QString> known;
    for (const VDataItem &extra : item.extraKey) {
        if (!known.contains(extra.key) && !hint.match(extra.key).hasMatch())
            own.append(extra);
        known.insert(extra.key);
    }
    return own;
}

class ItemDiff
{
public:
    ItemDiff(const AUTH_INF &before, const AUTH_INF &after)
        : m_before(before)
        , m_after(after)
        , m_beforeTable(itemTable(before))
        , m_afterTable(itemTable(after))
        , m_commonModes(namesOf(m_beforeTable.modes))
    {
        m_commonModes = among(m_commonModes, setOf(namesOf(m_afterTable.modes)));
    }

    QVector<ItemChange> changes()
    {
        compareFields();
        compareNames(ItemChange::Mode, namesOf(m_beforeTable.modes), namesOf(m_afterTable.modes));
        compareModes();
        compareRows(ItemChange::Parameter, m_beforeTable.parameters, m_afterTable.parameters);
        compareRows(ItemChange::Result, m_beforeTable.results, m_afterTable.results);
        compareExtraKeys();
        return m_changes;
    }

private:
    using Modes = QPair<const ItemTableMode *, const ItemTableMode *>;

    void change(ItemChange::Subject subject, const QString &name, const char *property,
                const QString &before, const QString &after, bool loses = false)
    {
        if (before != after || before.isNull() != after.isNull()) {
            m_changes.append(
                { subject, name, ItemChange::Changed, loses, property, before, after, {} });
        }
    }

    void compareFields()
    {
        const auto field = [this](const char *property, QString AUTH_INF::*text, bool loses) {
            change(ItemChange::Module, m_before.name, property, orNothing(m_before.*text),
                   orNothing(m_after.*text), loses);
        };
        // Hosts store modules and modes by these names.
        field(QT_TRANSLATE_NOOP("Command", "name"), &AUTH_INF::name, true);
        field(QT_TRANSLATE_NOOP("Command", "group"), &AUTH_INF::group, m_before.exclusive_group);
        change(ItemChange::Module, m_before.name, QT_TRANSLATE_NOOP("Command", "exclusive"),
               trueOrFalse(m_before.exclusive_group), trueOrFalse(m_after.exclusive_group),
               m_before.exclusive_group);
        field(QT_TRANSLATE_NOOP("Command", "type"), &AUTH_INF::type, false);
        field(QT_TRANSLATE_NOOP("Command", "description"), &AUTH_INF::description, false);
        field(QT_TRANSLATE_NOOP("Command", "icon"), &AUTH_INF::icon, false);
        field(QT_TRANSLATE_NOOP("Command", "translation context"), &AUTH_INF::trObjectName, false);
        field(QT_TRANSLATE_NOOP("Command", "function"), &AUTH_INF::codeFunctionName, false);
        change(ItemChange::Module, m_before.name, QT_TRANSLATE_NOOP("Command", "libraries"),
               listed(m_before.lib_name), listed(m_after.lib_name));
    }

    /// What is there in one version only, or spelt otherwise.
    void compareNames(ItemChange::Subject subject, const QStringList &before,
                      const QStringList &after)
    {
        const QStringList added = onlyIn(after, before);
        const QStringList removed = onlyIn(before, after);
        const QHash<QString, QString> renamed = renamedTo(removed, added);
        for (const QString &name : removed) {
            const bool isRenamed = renamed.contains(name);
            change(subject, name, isRenamed ? ItemChange::Renamed : ItemChange::Removed,
                   renamed.value(name), {});
        }
        const QStringList newNames = onlyIn(added, renamed.values());
        for (const QString &name : newNames)
            change(subject, name, ItemChange::Added, {}, {});
    }

    void change(ItemChange::Subject subject, const QString &name, ItemChange::Kind kind,
                const QString &after, const QStringList &modes)
    {
        const bool loses = kind != ItemChange::Added
            && (subject == ItemChange::Mode || subject == ItemChange::Parameter);
        m_changes.append({ subject, name, kind, loses, nullptr, {}, after, modes });
    }

    Modes modesNamed(const QString &name) const
    {
        return { &m_beforeTable.modes.at(columnOf(m_beforeTable.modes, name)),
                 &m_afterTable.modes.at(columnOf(m_afterTable.modes, name)) };
    }

    void compareModes()
    {
        for (const QString &name : qAsConst(m_commonModes)) {
            const Modes modes = modesNamed(name);
            change(ItemChange::Mode, name, QT_TRANSLATE_NOOP("Command", "description"),
                   orNothing(modes.first->description), orNothing(modes.second->description));
            // What is there in one version only has no place in the other.
            QSet<QString> keys = keysIn(m_beforeTable, columnOf(m_beforeTable.modes, name));
            keys &= keysIn(m_afterTable, columnOf(m_afterTable.modes, name));
            change(ItemChange::Mode, name, QT_TRANSLATE_NOOP("Command", "order"),
                   listed(among(modes.first->hints.order(), keys)),
                   listed(among(modes.second->hints.order(), keys)));
        }
    }

    void compareRows(ItemChange::Subject subject, const QVector<ItemTableRow> &before,
                     const QVector<ItemTableRow> &after)
    {
        compareNames(subject, keysOf(before), keysOf(after));
        const QHash<QString, int> positions = positionsOf(keysOf(after));
        for (const ItemTableRow &row : before) {
            const int position = positions.value(keyOf(row), -1);
            if (position < 0)
                continue;
            const ItemTableRow &other = after.at(position);
            compareDescriptions(subject, row.parameter, other.parameter);
            comparePresence(subject, row, other);
            compareHints(subject, row, other);
        }
    }

    void compareDescriptions(ItemChange::Subject subject, const VParameter &before,
                             const VParameter &after)
    {
        const bool isStored = subject == ItemChange::Parameter;
        const auto compare
            = [&](const char *property, const QString &first, const QString &second, bool loses) {
                  change(subject, before.name().first, property, orNothing(first),
                         orNothing(second), loses);
              };
        compare(QT_TRANSLATE_NOOP("Command", "unit"), before.unit().first, after.unit().first,
                isStored && !isSameUnit(before.unit().first, after.unit().first));
        compare(QT_TRANSLATE_NOOP("Command", "second unit"), before.unit().second,
                after.unit().second, false);
        compare(QT_TRANSLATE_NOOP("Command", "several values"), trueOrFalse(before.isMulti()),
                trueOrFalse(after.isMulti()), isStored && before.isMulti());
        compare(QT_TRANSLATE_NOOP("Command", "kind"), before.parameterObjectName(),
                after.parameterObjectName(),
                isStored
                    && losesKind({ m_beforeTable.hints, before }, { m_afterTable.hints, after }));
        compare(QT_TRANSLATE_NOOP("Command", "symbol"), before.symbol(), after.symbol(), false);
        compare(QT_TRANSLATE_NOOP("Command", "sub-group"), before.group().first,
                after.group().first, false);
    }

    /// Modes of both versions that have it in one version only.
    void comparePresence(ItemChange::Subject subject, const ItemTableRow &before,
                         const ItemTableRow &after)
    {
        const QStringList was = commonModesOf(m_beforeTable, before);
        const QStringList is = commonModesOf(m_afterTable, after);
        if (!onlyIn(was, is).isEmpty())
            change(subject, keyOf(before), ItemChange::Removed, {}, onlyIn(was, is));
        if (!onlyIn(is, was).isEmpty())
            change(subject, keyOf(before), ItemChange::Added, {}, onlyIn(is, was));
    }

    /// Those of the modes of both versions that have the row of one of them.
    QStringList commonModesOf(const ItemTable &table, const ItemTableRow &row) const
    {
        QStringList modes;
        for (const QString &mode : m_commonModes) {
            if (row.modes.at(columnOf(table.modes, mode)))
                modes.append(mode);
        }
        return modes;
    }

    /// One change for all modes in which the same has changed.
    void compareHints(ItemChange::Subject subject, const ItemTableRow &before,
                      const ItemTableRow &after)
    {
        const QStringList is = commonModesOf(m_afterTable, after);
        QVector<ItemChange> changes;
        int count = 0;
        const QStringList was = commonModesOf(m_beforeTable, before);
        for (const QString &mode : was) {
            if (!is.contains(mode))
                continue;
            ++count;
            const Modes modes = modesNamed(mode);
            const QVector<HintChange> found = hintChanges({ modes.first->hints, before.parameter },
                                                          { modes.second->hints, after.parameter });
            for (const HintChange &hint : found)
                join(&changes, subject, keyOf(before), hint, mode);
        }
        for (ItemChange &each : changes) {
            if (each.modes.size() == count)
                each.modes.clear();
        }
        m_changes += changes;
    }

    static void join(QVector<ItemChange> *changes, ItemChange::Subject subject, const QString &key,
                     const HintChange &hint, const QString &mode)
    {
        const bool loses = hint.loses && subject == ItemChange::Parameter;
        auto same = std::find_if(changes->begin(), changes->end(), [&](const ItemChange &each) {
            return each.property == hint.property && each.before == hint.before
                && each.before.isNull() == hint.before.isNull() && each.after == hint.after
                && each.loses == loses;
        });
        if (same == changes->end()) {
            same = changes->insert(same,
                                   { subject,
                                     key,
                                     ItemChange::Changed,
                                     loses,
                                     hint.property,
                                     hint.before,
                                     hint.after,
                                     {} });
        }
        same->modes.append(mode);
    }

    void compareExtraKeys()
    {
        QStringList before;
        QStringList after;
        const QVector<VDataItem> own = ownExtraKeys(m_before);
        const QVector<VDataItem> others = ownExtraKeys(m_after);
        for (const VDataItem &extra : own)
            before.append(extra.key);
        for (const VDataItem &extra : others)
            after.append(extra.key);
        compareNames(ItemChange::ExtraKey, before, after);
        const QHash<QString, int> positions = positionsOf(after);
        for (const VDataItem &extra : own) {
            const int other = positions.value(extra.key, -1);
            if (other >= 0) {
                change(ItemChange::ExtraKey, extra.key, QT_TRANSLATE_NOOP("Command", "value"),
                       listed(extra.value.toStringList()),
                       listed(others.at(other).value.toStringList()));
            }
        }
    }

    const AUTH_INF &m_before;
    const AUTH_INF &m_after;
    ItemTable m_beforeTable;
    ItemTable m_afterTable;
    QStringList m_commonModes;
    QVector<ItemChange> m_changes;
};

} // namespace

QVector<ItemChange> itemDiff(const AUTH_INF &before, const AUTH_INF &after)
{
    return ItemDiff(before, after).changes();
}

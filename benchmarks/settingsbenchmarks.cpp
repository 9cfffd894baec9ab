// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Settings stores in memory: filling, asking for every key, merging, removing a group, the style
// sheet.

#include "settingsbenchmarks.h"

#include "models/plainsettings.h"
#include "settingsinput.h"
#include "sides.h"

#include <Kelto/VIniSettings>

#include <QHash>

#include <type_traits>

namespace {

using Hash = QHash<QString, QVariant>;

constexpr auto makeEntries = [](int size) { return settingsEntries(size); };

/// Runs that only ask go on with the store, as hosts do that keep one. What an index costs is part
/// of the rows that begin with a new store: filling, merging, temporary values, the check of
/// values.
template <typename Store> struct Asked
{
    Store store;
    Entries entries;
    /// As many as the store holds; every second key is there already.
    Entries others;
};

template <typename Store>
constexpr auto makeAsked = [](int size) {
    const Entries entries = settingsEntries(size);
    return Asked<Store> { Store(entries), entries, settingsEntries(size, size / 2) };
};

Asked<Hash> makeAskedHash(int size)
{
    Asked<Hash> asked { {}, settingsEntries(size), {} };
    for (const auto &entry : qAsConst(asked.entries))
        asked.store.insert(entry.first, entry.second);
    return asked;
}

void addFilling(Suite &suite)
{
    const auto fill = [](auto store, const Entries &entries) {
        for (const auto &entry : entries)
            store.setValue(entry.first, entry.second);
        return store.data();
    };
    const Side library { makeEntries,
                         [fill](const Entries &e) { return fill(VIniSettings(), e); } };
    const Side plain { makeEntries,
                       [fill](const Entries &e) { return fill(PlainSettings(Entries()), e); } };
    const Side hash { makeEntries, [](const Entries &entries) {
                         Hash filled;
                         for (const auto &entry : entries)
                             filled.insert(entry.first, entry.second);
                         return filled;
                     } };
    compare(suite, { "setValue of n keys", "plain scans", 10000 }, library, plain, asItIs,
            makeEntries);
    const auto size = [](const auto &filled) { return filled.size(); };
    compare(suite, { "setValue of n keys", "QHash", 100000, noLimit }, library, hash, size,
            [](int n) { return n; });
}

/// Measures what @p ask does with a store that holds many keys.
template <typename Ask, typename Expected>
void compareAsking(Suite &suite, const char *name, Ask ask, Expected expected)
{
    const Side library { makeAsked<VIniSettings>, ask };
    compare(suite, { name, "plain scans", 10000 }, library, Side { makeAsked<PlainSettings>, ask },
            asItIs, expected);
    compare(suite, { name, "QHash", 100000, noLimit }, library, Side { makeAskedHash, ask }, asItIs,
            expected);
}

void addValues(Suite &suite)
{
    const auto ask = [](const auto &asked) {
        return valuesOf(asked.entries,
                        [&asked](const QString &key) { return asked.store.value(key); });
    };
    compareAsking(suite, "value of every key", ask, settingsValues);
}

void addContains(Suite &suite)
{
    const auto ask = [](const auto &asked) {
        int count = 0;
        for (const auto &entry : asked.entries)
            count += asked.store.contains(entry.first) ? 1 : 0;
        return count;
    };
    const auto expected = [](int size) { return size; };
    compareAsking(suite, "contains of every key", ask, expected);

    const auto askNew = [ask](const auto &asked) {
        const std::decay_t<decltype(asked)> copy = asked;
        return ask(copy);
    };
    compare(suite, { "contains of every key", "plain scans, new store", 10000 },
            Side { makeAsked<VIniSettings>, askNew }, Side { makeAsked<PlainSettings>, askNew },
            asItIs, expected);
}

void addMerging(Suite &suite)
{
    const auto merge = [](const auto &asked) {
        auto store = asked.store;
        store.setValue(asked.others, false);
        return store.data();
    };
    const auto expected = [](int size) { return settingsEntries(size + size / 2); };
    compare(suite, { "merging two stores", "plain scans", 10000 },
            Side { makeAsked<VIniSettings>, merge }, Side { makeAsked<PlainSettings>, merge },
            asItIs, expected);
}

/// Every second key is in the group "removed".
Entries twoGroups(int size)
{
    Entries entries;
    for (int i = 0; i < size; ++i) {
        const QString group
            = i % 2 == 0 ? QStringLiteral("kept/key ") : QStringLiteral("removed/key ");
        entries.append({ group + QString::number(i), i });
    }
    return entries;
}

template <typename Store>
constexpr auto makeTwoGroups = [](int size) { return Store(twoGroups(size)); };

void addRemoving(Suite &suite)
{
    const auto removeGroup = [](const auto &filled) {
        auto store = filled;
        store.removeGroup(QStringLiteral("removed"));
        return store.data();
    };
    const auto expected = [](int size) {
        Entries kept;
        const Entries all = twoGroups(size);
        for (int i = 0; i < size; i += 2)
            kept.append(all.at(i));
        return kept;
    };
    compare(suite, { "removeGroup", "plain scans", 10000 },
            Side { makeTwoGroups<VIniSettings>, removeGroup },
            Side { makeTwoGroups<PlainSettings>, removeGroup }, asItIs, expected);
}

void addStyleSheet(Suite &suite)
{
    const auto format = [](const auto &asked) {
        const auto store = asked.store;
        return store.styleSheetFormat();
    };
    const auto expected = [](int size) {
        QString sheet;
        const Entries entries = settingsEntries(size);
        for (int i = 0; i < size; ++i) {
            const QString key = entries.at(i).first;
            if (i % 10 == 0)
                sheet += QLatin1Char(':') + key.left(key.indexOf(QLatin1Char('/')))
                    + QLatin1Char('{');
            sheet += key + QLatin1Char('=') + entries.at(i).second.toString() + QLatin1Char(';');
            if (i % 10 == 9)
                sheet += QLatin1String("};");
        }
        return sheet;
    };
    compare(suite, { "styleSheetFormat", "plain scans", 1000 },
            Side { makeAsked<VIniSettings>, format }, Side { makeAsked<PlainSettings>, format },
            asItIs, expected);
}

} // namespace

void addSettingsBenchmarks(Suite &suite)
{
    addFilling(suite);
    addValues(suite);
    addContains(suite);
    addMerging(suite);
    addRemoving(suite);
    addStyleSheet(suite);
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "input.h"
#include "models/plainsettings.h"
#include "models/plainvalues.h"
#include "suite.h"

#include <Kelto/AUTH_SET>
#include <Kelto/VIniSettings>

#include <QHash>

namespace {

using Hash = QHash<QString, QVariant>;

const auto sizes = { 10, 1000, 10000, 100000 };

/// Runs that only ask work on the same store each time, as hosts do that keep one. What an index
/// costs is part of the rows that begin with a new store.
template <typename Store> struct Asked
{
    Store store;
    Entries entries;
    /// Half of their keys are in the store.
    Entries others;
};

template <typename Store> Asked<Store> makeAsked(int size)
{
    return { Store(settingsEntries(size)), settingsEntries(size), settingsEntries(size, size / 2) };
}

template <> Asked<Hash> makeAsked<Hash>(int size)
{
    Asked<Hash> asked { {}, settingsEntries(size), {} };
    for (const auto &entry : qAsConst(asked.entries))
        asked.store.insert(entry.first, entry.second);
    return asked;
}

/// Measures @p run on a store that holds many keys.
template <typename Run> void compareStores(const char *operation, int largestPlain, Run run)
{
    compare({ operation, sizes }, asItIs, library(makeAsked<VIniSettings>, run),
            baseline("plain scans", largestPlain, makeAsked<PlainSettings>, run));
}

template <typename Run> void compareStoresAndHash(const char *operation, Run run)
{
    compare({ operation, sizes }, asItIs, library(makeAsked<VIniSettings>, run),
            baseline("plain scans", 1000, makeAsked<PlainSettings>, run),
            baseline("QHash", 100000, makeAsked<Hash>, run));
}

/// What @p ask gives for the key of every entry, in order.
template <typename Ask> QVector<QVariant> valuesOf(const Entries &entries, Ask ask)
{
    QVector<QVariant> values;
    for (const auto &entry : entries)
        values.append(ask(entry.first));
    return values;
}

void addAsking()
{
    compareStoresAndHash("value of every key", [](const auto &asked) {
        return valuesOf(asked.entries,
                        [&asked](const QString &key) { return asked.store.value(key); });
    });
    const auto countContained = [](const auto &asked) {
        int count = 0;
        for (const auto &entry : asked.entries)
            count += asked.store.contains(entry.first) ? 1 : 0;
        return count;
    };
    compareStoresAndHash("contains of every key", countContained);
    compareStores("contains of every key, new store", 1000, [countContained](const auto &asked) {
        return countContained(std::decay_t<decltype(asked)>(asked));
    });
}

/// Keys of the two groups alternate.
template <typename Store> Store makeTwoGroups(int size)
{
    Entries entries;
    for (int i = 0; i < size; ++i) {
        const QLatin1String group(i % 2 == 0 ? "kept/" : "removed/");
        entries.append({ group + QString::number(i), i });
    }
    return Store(entries);
}

void addChanging()
{
    compareStores("setValue of n new keys", 1000, [](const auto &asked) {
        std::decay_t<decltype(asked.store)> store { Entries() };
        for (const auto &entry : asked.entries)
            store.setValue(entry.first, entry.second);
        return store.data();
    });
    compareStores("setValue of n keys at once", 1000, [](const auto &asked) {
        auto store = asked.store;
        store.setValue(asked.others, false);
        return store.data();
    });
    const auto removeGroup = [](const auto &filled) {
        auto store = filled;
        store.removeGroup(QStringLiteral("removed"));
        return store.data();
    };
    compare({ "removeGroup of each second key", sizes }, asItIs,
            library(makeTwoGroups<VIniSettings>, removeGroup),
            baseline("plain scans", 1000, makeTwoGroups<PlainSettings>, removeGroup));
    compareStores("styleSheetFormat", 1000, [](const auto &asked) {
        const auto store = asked.store;
        return store.styleSheetFormat();
    });
}

// --- Values of a registry ------------------------------------------------------------

template <typename Registry> struct Stored
{
    Registry registry;
    Entries entries;
};

template <typename Registry> Stored<Registry> makeTemporary(int size)
{
    return { Registry(), settingsEntries(size) };
}

/// The values of @p size parameters, then their units.
template <typename Registry> Stored<Registry> makeCalculation(int size)
{
    Stored<Registry> stored;
    for (const char *group : { "Attribute/", "Unit/" }) {
        for (int i = 0; i < size; ++i)
            stored.entries.append({ QLatin1String(group) + QString::number(i), i });
    }
    return stored;
}

void addRegistryValues()
{
    const auto setDeleteAsk = [](const auto &stored) {
        auto registry = stored.registry;
        for (const auto &entry : stored.entries)
            registry.set_temp(entry.first, entry.second);
        for (int i = stored.entries.size() - 1; i > 0; i -= 2)
            registry.delete_temp(stored.entries.at(i).first);
        return valuesOf(stored.entries,
                        [&registry](const QString &key) { return registry.value_temp(key); });
    };
    compare({ "set_temp, delete_temp and value_temp of every key", sizes }, asItIs,
            library(makeTemporary<AUTH_SET>, setDeleteAsk),
            baseline("plain scans", 1000, makeTemporary<PlainValues>, setDeleteAsk));

    const auto takeAndAsk = [](const auto &stored) {
        auto registry = stored.registry;
        registry.getCalculationLData(stored.entries);
        return valuesOf(stored.entries,
                        [&registry](const QString &key) { return registry.value_cal(key); });
    };
    compare({ "getCalculationLData, value_cal of every key", sizes }, asItIs,
            library(makeCalculation<AUTH_SET>, takeAndAsk),
            baseline("plain scans", 1000, makeCalculation<PlainValues>, takeAndAsk));
}

} // namespace

void addSettingsRows()
{
    addAsking();
    addChanging();
    addRegistryValues();
}

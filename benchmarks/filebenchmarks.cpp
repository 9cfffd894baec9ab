// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Loading and saving settings. QSettings keeps what it has read until the file changes, so that
// every run gets a file that has changed.

#include "filebenchmarks.h"

#include "benchmarkfile.h"
#include "models/plainfile.h"
#include "settingsinput.h"
#include "sides.h"

#include <Kelto/AUTH_SET>
#include <Kelto/VIniSettings>

#include <QHash>

#ifdef KELTO_BENCHMARKS_KCONFIG
#include <KConfig>
#include <KConfigGroup>
#endif

namespace {

struct Saved
{
    BenchmarkFile file;
    Entries entries;
};

Entries loadWithLibrary(const QString &path)
{
    VIniSettings store;
    store.setPath(path);
    return store.data();
}

Entries loadWithRegistry(const QString &path)
{
    static const AUTH_SET registry;
    Entries entries;
    registry.load(path, &entries);
    return entries;
}

void saveWithRegistry(const QString &path, const Entries &entries)
{
    static const AUTH_SET registry;
    registry.save(path, &entries);
}

void saveWithLibrary(const QString &path, const Entries &entries)
{
    VIniSettings(entries).saveLocal(path);
}

#ifdef KELTO_BENCHMARKS_KCONFIG
Entries loadWithKConfig(const QString &path)
{
    const KConfig config(path, KConfig::SimpleConfig);
    Entries entries;
    const QStringList groups = config.groupList();
    for (const QString &group : groups) {
        const KConfigGroup section = config.group(group);
        const QStringList keys = section.keyList();
        for (const QString &key : keys)
            entries.append({ key, section.readEntry(key, QString()) });
    }
    return entries;
}

void saveWithKConfig(const QString &path, const Entries &entries)
{
    KConfig config(path, KConfig::SimpleConfig);
    for (const auto &entry : entries) {
        const int slash = entry.first.indexOf(QLatin1Char('/'));
        config.group(entry.first.left(slash)).writeEntry(entry.first.mid(slash + 1), entry.second);
    }
    config.sync();
}
#endif

constexpr auto makeSaved = [](int size) {
    Saved saved { BenchmarkFile(), settingsEntries(size) };
    saveWithQSettings(saved.file.path(), saved.entries);
    return saved;
};

constexpr auto touch = [](Saved &saved) { saved.file.touch(); };
constexpr auto remove = [](Saved &saved) { saved.file.remove(); };

/// The texts by key, whatever the order.
QHash<QString, QString> textsByKey(const Entries &entries)
{
    QHash<QString, QString> texts;
    for (const auto &entry : entries)
        texts.insert(entry.first, entry.second.toString());
    return texts;
}

QHash<QString, QString> expectedTexts(int size)
{
    return textsByKey(settingsEntries(size));
}

/// The side that loads with @p load from a file that has changed.
auto loading(Entries (*load)(const QString &))
{
    return Side { makeSaved, [load](const Saved &saved) { return load(saved.file.path()); },
                  touch };
}

void addLoading(Suite &suite)
{
    compare(suite, { "loading", "QSettings", 100000, fileLimit }, loading(loadWithLibrary),
            loading(loadWithQSettings), textsByKey, expectedTexts);
    compare(suite, { "AUTH_SET::load", "QSettings", 100000, fileLimit }, loading(loadWithRegistry),
            loading(loadWithQSettings), textsByKey, expectedTexts);
#ifdef KELTO_BENCHMARKS_KCONFIG
    const auto size = [](const Entries &entries) { return entries.size(); };
    compare(suite, { "loading", "KConfig", 100000, noLimit }, loading(loadWithLibrary),
            loading(loadWithKConfig), size, [](int n) { return n; });
#endif
}

/// The side that saves with @p save, into a file that @p reset makes ready.
template <typename Reset> auto saving(void (*save)(const QString &, const Entries &), Reset reset)
{
    const auto run = [save](const Saved &saved) {
        save(saved.file.path(), saved.entries);
        return saved.file.path();
    };
    return Side { makeSaved, run, reset };
}

/// What the file at @p path holds now.
QHash<QString, QString> savedTexts(const QString &path)
{
    return textsByKey(loadWithQSettings(path));
}

void addSaving(Suite &suite)
{
    const char *name = "saving into a new file";
    compare(suite, { name, "QSettings", 100000, fileLimit }, saving(saveWithLibrary, remove),
            saving(saveWithQSettings, remove), savedTexts, expectedTexts);
    const char *again = "saving into the same file";
    compare(suite, { again, "QSettings", 100000, fileLimit }, saving(saveWithLibrary, touch),
            saving(saveWithQSettings, touch), savedTexts, expectedTexts);
    compare(suite, { "AUTH_SET::save into the same file", "QSettings", 100000, fileLimit },
            saving(saveWithRegistry, touch), saving(saveWithQSettings, touch), savedTexts,
            expectedTexts);
#ifdef KELTO_BENCHMARKS_KCONFIG
    // What KConfig writes is not what QSettings reads: only the time is compared.
    const auto path = [](const QString &saved) { return saved.isEmpty(); };
    compare(suite, { name, "KConfig", 100000, noLimit }, saving(saveWithLibrary, remove),
            saving(saveWithKConfig, remove), path, [](int) { return false; });
#endif
}

} // namespace

void addFileBenchmarks(Suite &suite)
{
    addLoading(suite);
    addSaving(suite);
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "input.h"
#include "models/plainfile.h"
#include "models/plainitems.h"
#include "saved.h"
#include "suite.h"

#include <Kelto/AUTH_SET>
#include <Kelto/VIniSettings>

#include <QDir>
#include <QFile>

#ifdef KELTO_BENCHMARK_KCONFIG
#include <KConfig>
#include <KConfigGroup>
#endif

namespace {

// --- Who reads and writes settings -------------------------------------------------------

/// The key that is changed in a file, and its new value.
const QString changedKey = QStringLiteral("group 0/key 0");
const QString changedText = QStringLiteral("changed");

struct Store
{
    static Entries load(const QString &path) { return VIniSettings(path).data(); }
    static void save(const QString &path, const Entries &entries)
    {
        VIniSettings(entries).saveLocal(path);
    }
    static void change(const QString &path)
    {
        VIniSettings store(path);
        const QStringList keys = store.allKeys();
        for (const QString &key : keys)
            benchmark::DoNotOptimize(store.value(key));
        store.setValue(changedKey, changedText);
        store.saveLocal();
    }
};

struct Plain
{
    static Entries load(const QString &path) { return loadWithQSettings(path); }
    static void save(const QString &path, const Entries &entries)
    {
        saveWithQSettings(path, entries);
    }
    static void change(const QString &path)
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setIniCodec("utf-8");
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys)
            benchmark::DoNotOptimize(settings.value(key));
        settings.setValue(changedKey, changedText);
        settings.sync();
    }
};

#ifdef KELTO_BENCHMARK_KCONFIG
struct KdeConfig
{
    static Entries read(const KConfig &config)
    {
        Entries entries;
        const QStringList groups = config.groupList();
        for (const QString &group : groups) {
            const KConfigGroup section = config.group(group);
            const QStringList keys = section.keyList();
            for (const QString &key : keys)
                entries.append({ group + QLatin1Char('/') + key, section.readEntry(key) });
        }
        return entries;
    }
    static void write(KConfig *config, const QString &key, const QVariant &value)
    {
        const int slash = key.indexOf(QLatin1Char('/'));
        config->group(key.left(slash)).writeEntry(key.mid(slash + 1), value);
    }
    static Entries load(const QString &path) { return read(KConfig(path, KConfig::SimpleConfig)); }
    static void save(const QString &path, const Entries &entries)
    {
        KConfig config(path, KConfig::SimpleConfig);
        for (const auto &entry : entries)
            write(&config, entry.first, entry.second);
        config.sync();
    }
    static void change(const QString &path)
    {
        KConfig config(path, KConfig::SimpleConfig);
        benchmark::DoNotOptimize(read(config));
        write(&config, changedKey, changedText);
        config.sync();
    }
};
#endif

// --- Loading and saving settings ---------------------------------------------------------

template <typename Files> Saved<Entries> makeSaved(int size)
{
    Saved<Entries> saved { settingsEntries(size) };
    Files::save(saved.path(), saved.content);
    return saved;
}

/// What a file holds, for the one who wrote it.
template <typename Files> struct Written
{
    QString path;
    operator Entries() const { return Files::load(path); }
};

/// The texts by key, whatever the order and the types.
QHash<QString, QString> textsByKey(const Entries &entries)
{
    QHash<QString, QString> texts;
    for (const auto &entry : entries)
        texts.insert(entry.first, entry.second.toString());
    return texts;
}

Row fileRow(const char *operation, const std::vector<int> &sizes = { 10, 1000, 10000, 100000 })
{
    return { operation, sizes, true };
}

/// Measures what @p run does with the files of the library and the others.
template <typename Run, typename Reset>
void compareFiles(const char *operation, Run run, Reset reset)
{
    const auto with
        = [run](auto files) { return [=](const auto &saved) { return run(files, saved); }; };
    compare(fileRow(operation), textsByKey, library(makeSaved<Store>, with(Store()), reset),
#ifdef KELTO_BENCHMARK_KCONFIG
            baseline("KConfig", 100000, makeSaved<KdeConfig>, with(KdeConfig()), reset),
#endif
            baseline("QSettings", 100000, makeSaved<Plain>, with(Plain()), reset));
}

void addSettings()
{
    const auto load = [](auto files, const auto &saved) { return files.load(saved.path()); };
    const auto save = [](auto files, const auto &saved) {
        files.save(saved.path(), saved.content);
        return Written<decltype(files)> { saved.path() };
    };
    const auto change = [](auto files, const auto &saved) {
        files.change(saved.path());
        return Written<decltype(files)> { saved.path() };
    };
    compareFiles("load", load, touchFile);
    compareFiles("save into a new file", save, removeFile);
    compareFiles("load, read all, change one, save", change, touchFile);
}

// --- Module items ------------------------------------------------------------------------

QString saveItem(const Saved<AUTH_INF> &saved)
{
    saved.content.save_ini(saved.path());
    return saved.path();
}

QString savePlainItem(const Saved<AUTH_INF> &saved)
{
    PlainItems::save(saved.content, saved.path());
    return saved.path();
}

Saved<AUTH_INF> makeSavedItem(int size)
{
    const Saved<AUTH_INF> saved { itemOfTenModes(size) };
    saveItem(saved);
    return saved;
}

AUTH_INF loadItem(const QString &path)
{
    AUTH_INF item;
    item.load_ini(path);
    return item;
}

/// The parameters of each mode, in an order of their own, and the texts of the other fields.
QStringList contents(const AUTH_INF &item)
{
    QStringList lines { item.name, item.group, item.type, QString::number(item.extraKey.size()),
                        item.inner_mode_nameList.join(QLatin1Char(',')) };
    for (const QVector<QStringList> &entries : item.inner_mode_parameterList) {
        QStringList mode;
        for (const QStringList &entry : entries)
            mode.append(entry.join(QLatin1Char('|')));
        mode.sort();
        lines += mode;
    }
    return lines;
}

void addItems()
{
    const auto with = [](auto load) {
        return [load](const Saved<AUTH_INF> &saved) { return load(saved.path()); };
    };
    compare(fileRow("load_ini of n parameters", { 10, 100, 1000, 10000 }), contents,
            library(makeSavedItem, with(loadItem), touchFile),
            baseline("plain scans", 1000, makeSavedItem, with(PlainItems::load), touchFile));

    const auto loadSaved = [](const QString &path) { return contents(loadItem(path)); };
    compare(fileRow("save_ini of n parameters", { 10, 100, 1000, 10000 }), loadSaved,
            library(makeSavedItem, saveItem, removeFile),
            baseline("plain scans", 1000, makeSavedItem, savePlainItem, removeFile));
}

// --- Log lines ---------------------------------------------------------------------------

const QString logText = QStringLiteral("The calculation has begun");

int lineCount(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll().count('\n');
}

/// The number of lines to write, and where.
using Log = Saved<int>;

void addLog()
{
    const auto make = [](int size) { return Log { size }; };
    const auto log = [](const Log &lines) {
        static const AUTH_SET registry;
        const QString before = QDir::currentPath();
        QDir::setCurrent(lines.directory->path());
        for (int i = 0; i < lines.content; ++i)
            registry.log(logText);
        const QString path = registry.filepath_log();
        QDir::setCurrent(before);
        return path;
    };
    const auto logToFile = [](const Log &lines) {
        for (int i = 0; i < lines.content; ++i) {
            QFile file(lines.path());
            file.open(QIODevice::WriteOnly | QIODevice::Append);
            file.write(QString(logText + QLatin1Char('\n')).toUtf8());
        }
        return lines.path();
    };
    compare(fileRow("log of n lines", { 10, 100, 1000 }), lineCount, library(make, log),
            baseline("open, write and close a file (at most 2)", 1000, make, logToFile));
}

} // namespace

void addFileRows()
{
    addSettings();
    addItems();
    addLog();
}

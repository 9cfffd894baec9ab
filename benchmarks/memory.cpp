// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "memory.h"

#include "benchmarkfile.h"
#include "models/plainfile.h"
#include "settingsinput.h"

#include <Kelto/VIniSettings>

#include <QSettings>

#include <functional>
#include <iomanip>
#include <ostream>
#include <vector>

#include <malloc.h>

#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)

namespace {

constexpr int keyCount = 100000;

std::size_t bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// Makes QSettings forget the files that it has read before: it keeps the last thirty.
void forgetReadFiles()
{
    static std::vector<BenchmarkFile> others(40);
    for (BenchmarkFile &other : others) {
        QSettings settings(other.path(), QSettings::IniFormat);
        settings.setValue(QStringLiteral("key"), 1);
    }
}

/// What is still in use when @p fill has filled a @p Holder from the file at @p path.
template <typename Holder>
std::size_t bytesOf(const QString &path, const std::function<void(Holder &, const QString &)> &fill)
{
    forgetReadFiles();
    const std::size_t before = bytesInUse();
    Holder holder;
    fill(holder, path);
    forgetReadFiles();
    return bytesInUse() - before;
}

void loadPairs(Entries &pairs, const QString &path)
{
    pairs = loadWithQSettings(path);
}

void loadStore(VIniSettings &store, const QString &path)
{
    store.setPath(path);
}

void loadAndAskStore(VIniSettings &store, const QString &path)
{
    store.setPath(path);
    const QStringList keys = store.allKeys();
    for (const QString &key : keys)
        store.value(key);
}

void printLine(std::ostream &out, const char *what, std::size_t bytes, std::size_t pairs)
{
    out << "  " << std::left << std::setw(44) << what << std::right << std::setw(10) << bytes / 1024
        << " KiB  x" << std::fixed << std::setprecision(2) << double(bytes) / double(pairs) << '\n';
}

} // namespace

void printMemoryTable(std::ostream &out)
{
    BenchmarkFile file;
    VIniSettings(settingsEntries(keyCount)).saveLocal(file.path());
    // The first run of anything keeps a few tables for good.
    bytesOf<VIniSettings>(file.path(), loadAndAskStore);

    const std::size_t pairs = bytesOf<Entries>(file.path(), loadPairs);
    out << "\nMemory of a loaded store of " << keyCount << " keys; at most twice its pairs is the "
        << "aim:\n";
    printLine(out, "list of the pairs alone", pairs, pairs);
    printLine(out, "store", bytesOf<VIniSettings>(file.path(), loadStore), pairs);
    printLine(out, "store after value() of every key",
              bytesOf<VIniSettings>(file.path(), loadAndAskStore), pairs);
}

#else

void printMemoryTable(std::ostream & /*out*/) { }

#endif

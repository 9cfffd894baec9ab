// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Loads or saves one file once, for a tool that counts the instructions of loadOrSave().
// QSettings keeps the files that it has read, so that each step needs a process of its own.

#include "input.h"
#include "models/plainfile.h"

#include <Kelto/VIniSettings>

#include <QFile>

#include <cstdio>

namespace {

int run(const QString &step, const QString &path, const Entries &entries)
{
    if (step == QLatin1String("load-kelto"))
        return VIniSettings(path).data().size();
    if (step == QLatin1String("load-qsettings"))
        return loadWithQSettings(path).size();
    if (step.endsWith(QLatin1String("-kelto")))
        VIniSettings(entries).saveLocal(path);
    else
        saveWithQSettings(path, entries);
    return entries.size();
}

} // namespace

/// What is counted. Known by its name, so that it is neither renamed nor put into its caller.
extern "C" __attribute__((noinline)) int loadOrSave(const QString &step, const QString &path,
                                                    const Entries &entries)
{
    return run(step, path, entries);
}

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("kelto_instructions {load|save|change}-{kelto|qsettings} FILE COUNT\n", stderr);
        return 2;
    }
    const int count = QByteArray(argv[3]).toInt();
    const QString step = QString::fromLatin1(argv[1]);
    Entries entries = settingsEntries(count);
    // The files that are made here hold other values only.
    if (step.startsWith(QLatin1String("change")) && !entries.isEmpty())
        entries[count / 2].second = QStringLiteral("changed");
    if (loadOrSave(step, QFile::decodeName(argv[2]), entries) == count)
        return 0;
    std::fputs("kelto_instructions: not all keys were loaded\n", stderr);
    return 1;
}

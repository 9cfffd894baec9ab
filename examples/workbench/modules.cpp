// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "modules.h"

#include <Kelto/AUTH_INF>

#include <QCoreApplication>
#include <QDir>

namespace {

Outcome<AUTH_INF> moduleFromFile(const QFileInfo &file)
{
    // Kelto treats a file that it cannot read as an empty one.
    if (!file.isReadable())
        return { {}, QStringLiteral("The file \"%1\" cannot be read.").arg(file.filePath()) };
    AUTH_INF module;
    module.load_ini(file.filePath());
    if (module.name.isEmpty())
        return { {},
                 QStringLiteral("The file \"%1\" holds no module: the section \"KeltoItem\" "
                                "with a \"name\" is missing.")
                     .arg(file.filePath()) };
    return { module, {} };
}

} // namespace

QString moduleDirectory()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/modules");
}

Outcome<QVector<AUTH_INF>> modulesFromFiles(const QString &directory)
{
    const QFileInfo info(directory);
    if (!info.isDir())
        return { {}, QStringLiteral("There is no directory \"%1\".").arg(directory) };
    // Without the right to search it, Qt still lists the names, but not the files behind them.
    if (!info.isReadable() || !info.isExecutable())
        return { {}, QStringLiteral("The directory \"%1\" cannot be read.").arg(directory) };
    // The build takes the same files.
    const auto files = QDir(directory).entryInfoList({ QStringLiteral("*.ini") },
                                                     QDir::Files | QDir::CaseSensitive, QDir::Name);
    if (files.isEmpty())
        return { {}, QStringLiteral("The directory \"%1\" holds no files *.ini.").arg(directory) };

    Outcome<QVector<AUTH_INF>> modules;
    for (const QFileInfo &file : files) {
        const Outcome<AUTH_INF> module = moduleFromFile(file);
        if (!module.isValid())
            return { {}, module.problem };
        modules.result.append(module.result);
    }
    return modules;
}

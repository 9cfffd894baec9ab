// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "modules.h"

#include "workbench_modules.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>
#include <Kelto/KeltoItemTranslation>

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

Outcome<QVector<AUTH_INF>> modulesFromFiles(const QString &directory)
{
    const QFileInfo info(directory);
    if (!info.isDir())
        return { {}, QString("There is no directory \"%1\".").arg(directory) };
    // Without the right to search it, Qt still lists the names, but not the files behind them.
    if (!info.isReadable() || !info.isExecutable())
        return { {}, QString("The directory \"%1\" cannot be read.").arg(directory) };
    // The build takes the same files.
    const auto files
        = QDir(directory).entryInfoList({ "*.ini" }, QDir::Files | QDir::CaseSensitive, QDir::Name);
    if (files.isEmpty())
        return { {}, QString("The directory \"%1\" holds no files *.ini.").arg(directory) };
    QVector<AUTH_INF> modules;
    for (const QFileInfo &file : files) {
        // Kelto treats a file that it cannot read as an empty one.
        if (!file.isReadable())
            return { {}, QString("The file \"%1\" cannot be read.").arg(file.filePath()) };
        AUTH_INF module;
        module.load_ini(file.filePath());
        if (module.name.isEmpty())
            return { {},
                     QString("The file \"%1\" holds no module: the section \"KeltoItem\" with a "
                             "\"name\" is missing.")
                         .arg(file.filePath()) };
        modules.append(module);
    }
    return { modules, {} };
}

QVector<AUTH_INF> compiledModules()
{
    return workbench_modules::allItems();
}

void installTranslations(const QLocale &locale)
{
    // The resources of a static library have to be named once, or the linker leaves them out.
    Q_INIT_RESOURCE(workbench_modules_translations);
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    // Kelto's libraries contain the translations of their windows. The buttons of message boxes and
    // file dialogs are Qt's.
    const QPair<QString, QString> places[] = {
        { "workbench", ":/translations" },
        { "kelto", ":/kelto/translations" },
        { "kelto-forms", ":/kelto-forms/translations" },
        { "qtbase", QLibraryInfo::location(QLibraryInfo::TranslationsPath) },
    };
    for (const auto &place : places) {
        auto *translator = new QTranslator(QCoreApplication::instance());
        if (!translator->load(locale, place.first, "_", place.second))
            return; // in a language that the workbench does not speak, nobody else shall
        QCoreApplication::installTranslator(translator);
    }
}

void useLanguage(const QLocale &locale, AUTH_SET *registry, QVector<AUTH_INF> modules)
{
    installTranslations(locale);
    for (AUTH_INF &module : modules)
        KeltoItemTranslation::translate(&module);
    QVector<QPair<QString, int>> selected;
    const QStringList groups = registry->exclusive_group_namelist();
    for (const QString &group : groups)
        selected.append({ group, registry->exclusive_group_select(group) });
    registry->acquire(modules);
    for (const auto &selection : qAsConst(selected))
        registry->exclusive_group_set_mode(selection.first, selection.second);
}

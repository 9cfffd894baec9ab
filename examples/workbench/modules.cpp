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
    QVector<AUTH_INF> modules;
    // The build takes the same files.
    const auto files
        = QDir(directory).entryInfoList({ "*.ini" }, QDir::Files | QDir::CaseSensitive, QDir::Name);
    for (const QFileInfo &file : files) {
        AUTH_INF module;
        module.load_ini(file.filePath());
        if (module.name.isEmpty()) // also for a file that Kelto cannot read
            return { {},
                     QString("The file \"%1\" cannot be read, or holds no module: a section "
                             "\"KeltoItem\" with a \"name\".")
                         .arg(file.filePath()) };
        modules.append(module);
    }
    if (modules.isEmpty())
        return { {}, QString("\"%1\" is no directory with files *.ini to read.").arg(directory) };
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
    registry->acquire(modules);
}

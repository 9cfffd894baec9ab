// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "languages.h"

#include <Kelto/AUTH_INF>
#include <Kelto/AUTH_SET>
#include <Kelto/KeltoItemTranslation>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

bool install(const QLocale &locale, const QString &fileName, const QString &directory)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, fileName, QStringLiteral("_"), directory))
        return QCoreApplication::installTranslator(translator);
    delete translator;
    return false;
}

} // namespace

QStringList languageNames()
{
    return { QStringLiteral("en"), QStringLiteral("zh_CN") };
}

void installTranslations(const QLocale &locale)
{
    // The resources of a static library have to be named once, or the linker leaves them out.
    Q_INIT_RESOURCE(workbench_translations);
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    if (!install(locale, QStringLiteral("workbench"), QStringLiteral(":/workbench/translations")))
        return; // or half of the texts would be in another language than the rest
    // The buttons of message boxes and file dialogs are Qt's.
    install(locale, QStringLiteral("qtbase"),
            QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    // Kelto's libraries contain the translations of their windows.
    install(locale, QStringLiteral("kelto"), QStringLiteral(":/kelto/translations"));
    install(locale, QStringLiteral("kelto-forms"), QStringLiteral(":/kelto-forms/translations"));
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

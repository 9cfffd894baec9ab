// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "languages.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace {

void install(const QLocale &locale, const QString &fileName, const QString &directory)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, fileName, QStringLiteral("_"), directory))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

void installTranslations(const QLocale &locale)
{
    // The resources of a static library have to be named once, or the linker leaves them out.
    Q_INIT_RESOURCE(workbench_translations);
    // Kelto contains the translations of its dialog.
    install(locale, QStringLiteral("kelto"), QStringLiteral(":/kelto/translations"));
    install(locale, QStringLiteral("workbench"), QStringLiteral(":/workbench/translations"));
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "console.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTextCodec>
#include <QTranslator>

int main(int argc, char *argv[])
{
    // Without a locale, in a build for example, names of files may still hold any letter.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kelto"));

    // English has no file: of the languages "en:zh_CN" the second would be loaded.
    const QLocale language(QLocale().uiLanguages().value(0));
    QTranslator own;
    if (own.load(language, QStringLiteral("kelto-command"), QStringLiteral("_"),
                 QStringLiteral(":/kelto-command/translations")))
        QCoreApplication::installTranslator(&own);
    QTranslator library;
    if (library.load(language, QStringLiteral("kelto"), QStringLiteral("_"),
                     QStringLiteral(":/kelto/translations")))
        QCoreApplication::installTranslator(&library);

    Console console;
    const ExitCode code = runCommandLine(QCoreApplication::arguments().mid(1), console);
    if (console.flush())
        return code;
    console.complain(Command::tr("the standard output cannot be written."));
    return Found;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "console.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTextCodec>
#include <QTranslator>

namespace {

bool install(QTranslator *translator, const QString &name, const QString &directory)
{
    // English has no file: of the languages "en:zh_CN" the second would be loaded.
    const QLocale language(QLocale().uiLanguages().value(0));
    return translator->load(language, name, QStringLiteral("_"), directory)
        && QCoreApplication::installTranslator(translator);
}

/// Qt speaks of the bytes of a value, and not of the file that it is in.
void passOverInSilence(QtMsgType /*type*/, const QMessageLogContext & /*context*/,
                       const QString & /*text*/)
{
}

} // namespace

int main(int argc, char *argv[])
{
    // Without a locale, in a build for example, names of files may still hold any letter.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    qInstallMessageHandler(passOverInSilence);
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kelto"));

    QTranslator own;
    QTranslator library;
    QTranslator qt;
    const QString ownDirectory = QStringLiteral(":/kelto-command/translations");
    // One language: Qt speaks more of them than the command.
    if (install(&own, QStringLiteral("kelto-command"), ownDirectory)) {
        install(&library, QStringLiteral("kelto"), QStringLiteral(":/kelto/translations"));
        install(&qt, QStringLiteral("qtbase"),
                QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    }

    Console console;
    const ExitCode code = runCommandLine(QCoreApplication::arguments().mid(1), console);
    if (console.flush())
        return code;
    console.complain(Command::tr("the standard output cannot be written."));
    return Found;
}

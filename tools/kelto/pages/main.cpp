// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Writes the manual pages and the completion of the command kelto, at build time.

#include "commands.h"
#include "outputfile.h"
#include "pages/completion.h"
#include "pages/manpage.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QDir directory(QCoreApplication::arguments().value(1));
    const QString date = QCoreApplication::arguments().value(2);
    // What is left of a command that is gone would be installed.
    QDir(directory.filePath(QStringLiteral("man1"))).removeRecursively();
    QStringList problems {
        makeOutputDirectory(directory.filePath(QStringLiteral("completions"))),
        makeOutputDirectory(directory.filePath(QStringLiteral("man1"))),
        writeOutputFile(directory.filePath(QStringLiteral("completions/kelto")), bashCompletion()),
        writeOutputFile(directory.filePath(QStringLiteral("man1/kelto.1")), overviewPage(date)),
    };
    for (const Command &command : commands()) {
        const QString name = QStringLiteral("man1/kelto-%1.1").arg(QLatin1String(command.name));
        problems.append(writeOutputFile(directory.filePath(name), manPage(command, date)));
    }
    problems.removeAll(QString());
    for (const QString &problem : qAsConst(problems))
        std::fprintf(stderr, "%s\n", qPrintable(problem));
    return problems.isEmpty() ? 0 : 1;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef COMPILEDHOST_H
#define COMPILEDHOST_H

#include "support/programs.h"
#include "support/testfiles.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QString>
#include <QStringList>

/// What @p program printed, which is nothing when it failed.
inline QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    const Outcome outcome = outcomeOf(program, arguments);
    if (outcome.exitCode != 0)
        qCritical("%s: %s", qUtf8Printable(program), outcome.errors.constData());
    return outcome.output;
}

/// The items, as JSON, that a small host holds after it has run @p statements, which append them to
/// the list "items". It is compiled in the current directory.
inline QJsonArray compiledItems(const QString &statements)
{
    const QString source = "#include <Kelto/AUTH_INF>\n#include \"contexts.h\"\n"
                           "QVector<AUTH_INF> generatedItems();\n"
                           "QVector<AUTH_INF> generatedItems()\n{\nQVector<AUTH_INF> items;\n"
        + statements + "return items;\n}\n";
    if (!writeFile("items.cpp", source.toUtf8()))
        return {};
    outputOf(KELTO_COMPILER, { "items.cpp", "-o", "host", "@" KELTO_COMPILER_ARGUMENTS });
    return QJsonDocument::fromJson(outputOf(QDir::current().filePath("host"), {})).array();
}

#endif

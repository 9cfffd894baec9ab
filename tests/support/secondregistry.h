// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SECONDREGISTRY_H
#define SECONDREGISTRY_H

#include "support/settingsjson.h"

#include <QProcess>

/// What the registry of an application "App" in another process found and said.
struct SecondRegistry
{
    QStringList values;
    QStringList messages;
};

/// Calls the program at KELTO_SETTINGSREADER.
inline SecondRegistry secondRegistry(const QStringList &arguments,
                                     const QString &locale = QStringLiteral("C.UTF-8"))
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), locale);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(KELTO_SETTINGSREADER), arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        return { {}, { QStringLiteral("the other process failed") } };
    const QJsonObject answer = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    return { described(answer.value(QStringLiteral("values")).toArray()),
             answer.value(QStringLiteral("messages")).toVariant().toStringList() };
}

#endif

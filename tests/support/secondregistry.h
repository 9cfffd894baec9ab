// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SECONDREGISTRY_H
#define SECONDREGISTRY_H

#include "support/settingsjson.h"

#include <Kelto/AUTH_SET>

#include <QProcess>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

/// A registry in another process: what the program at KELTO_SETTINGSREADER answered.
class SecondRegistry
{
public:
    explicit SecondRegistry(const QStringList &arguments, const QString &locale = QString())
    {
        QProcess process;
        if (!locale.isEmpty()) {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("LC_ALL"), locale);
            process.setProcessEnvironment(environment);
        }
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(KELTO_SETTINGSREADER), arguments);
        const bool isDone = process.waitForFinished(60000)
            && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
        if (isDone)
            m_answer = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    }

    /// In a process without the rights of the superuser, to whom no file is closed. Whoever runs
    /// the tests as an ordinary user has to take these rights from the file itself.
    static SecondRegistry ofAnotherUser(const QStringList &arguments)
    {
#ifdef Q_OS_UNIX
        if (geteuid() == 0)
            return SecondRegistry(QStringList { "--as-user", "65534" } + arguments);
#endif
        return SecondRegistry(arguments);
    }

    /// What save() and load() returned; empty as well when the other process failed.
    QVector<bool> results() const
    {
        QVector<bool> results;
        const QJsonArray array = m_answer.value(QStringLiteral("results")).toArray();
        for (const QJsonValue &value : array)
            results.append(value.toBool());
        return results;
    }

    QStringList loaded() const
    {
        return described(m_answer.value("loaded").toArray());
    }
    QStringList values() const
    {
        return described(m_answer.value("values").toArray());
    }

    /// What went to Qt's message handler.
    QStringList messages() const
    {
        if (m_answer.isEmpty())
            return { "the other process failed" };
        return m_answer.value("messages").toVariant().toStringList();
    }

private:
    QJsonObject m_answer;
};

#endif

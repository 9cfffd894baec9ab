// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMS_H
#define PROGRAMS_H

#include <QProcess>

/// What came of running a program.
struct Outcome
{
    QByteArray output;
    QByteArray errors;
    int exitCode; ///< -1 where it did not start, crashed or took too long.
};

inline Outcome outcomeOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool isOver
        = process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit;
    process.kill();
    return { process.readAllStandardOutput(), process.readAllStandardError(),
             isOver ? process.exitCode() : -1 };
}

#endif

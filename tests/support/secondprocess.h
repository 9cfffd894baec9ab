// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SECONDPROCESS_H
#define SECONDPROCESS_H

#include "support/settingsjson.h"

#include <QProcess>

/// What another process got out of an INI file.
struct Reading
{
    QString path;
    QStringList keys;
    QStringList groups;
    QStringList entries;
    QStringList messages;
};

inline QStringList textsOf(const QJsonValue &array)
{
    QStringList texts;
    const QJsonArray values = array.toArray();
    for (const QJsonValue &value : values)
        texts.append(value.toString());
    return texts;
}

/// Lets the program at KELTO_INIREADER read the files that @p arguments name; one reading for each,
/// or none when the program did not come to its end.
inline QVector<Reading> readInSecondProcess(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(KELTO_INIREADER), arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        return {};
    QVector<Reading> readings;
    const QJsonArray files = QJsonDocument::fromJson(process.readAllStandardOutput()).array();
    for (const QJsonValue &file : files) {
        readings.append({ file[QStringLiteral("path")].toString(),
                          textsOf(file[QStringLiteral("keys")]),
                          textsOf(file[QStringLiteral("groups")]),
                          described(file[QStringLiteral("entries")].toArray()),
                          textsOf(file[QStringLiteral("messages")]) });
    }
    return readings;
}

/// The same for one file; what cannot be read is told by a message, so that no test overlooks it.
inline Reading readInSecondProcess(const QString &path)
{
    const QVector<Reading> readings = readInSecondProcess(QStringList { path });
    Reading failed;
    failed.messages.append(QStringLiteral("the other process failed"));
    return readings.size() == 1 ? readings.constFirst() : failed;
}

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What a registry knows of its surroundings: log file, paths, update file and language.

#include "auth_set.h"

#include "core/files_p.h"
#include "core/inifile_p.h"
#include "registry/auth_set_p.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLocale>

#include <algorithm>
#include <iterator>

namespace {

/// The log file for appending; not open where that cannot be.
bool openLog(QFile &file)
{
    // Opening a pipe would wait for its reader.
    if (!canBeFile(file.fileName()))
        return false;
    // Without a buffer, a line of any length is one write, which no other process divides.
    const QIODevice::OpenMode appending
        = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text | QIODevice::Unbuffered;
    // Nearly always the directory is there, so that looking for it first would only cost time.
    return file.open(appending)
        || (QDir().mkpath(pathBelowCurrent(QStringLiteral("log"))) && file.open(appending));
}

/// @p name without the differences in which the spellings of one application name may vary.
QString normalisedName(const QString &name)
{
    return name.toLower().remove(QLatin1Char('-')).remove(QLatin1Char('_'));
}

/// Whether the application is one of those that never write the update information file.
bool isNeverRecorded(const QString &applicationName)
{
    static const char *const names[] = { "member", "membership", "general" };
    const QString name = normalisedName(applicationName);
    return std::any_of(std::begin(names), std::end(names),
                       [&name](const char *other) { return name == QLatin1String(other); });
}

} // namespace

QString pathBelowCurrent(const QString &relativePath)
{
    const QString directory = QDir::currentPath();
    return directory.isEmpty() ? QString() : directory + QLatin1Char('/') + relativePath;
}

QString AUTH_SETPrivate::localTime() const
{
    // Working it out takes as long as writing a line does, and lines come in bursts.
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    if (now != m_localTimeSecond) {
        m_localTimeSecond = now;
        // QDateTime::toString() would take the digits of the system's language.
        m_localTime = QLocale::c().toString(QDateTime::fromSecsSinceEpoch(now),
                                            QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    }
    return m_localTime;
}

QString AUTH_SETPrivate::logPath(const QString &time) const
{
    const int dateLength = 10;
    return pathBelowCurrent(QLatin1String("log/") + time.leftRef(dateLength) + QLatin1Char('_')
                            + applicationName + QLatin1String(".log"));
}

void AUTH_SET::log(QString text) const
{
    const QString time = d->localTime();
    QFile file(d->logPath(time));
    if (openLog(file))
        file.write(QString(time + QLatin1Char(' ') + text + QLatin1Char('\n')).toUtf8());
}

QString AUTH_SET::filepath_log() const
{
    return d->logPath(d->localTime());
}

QString AUTH_SET::filepath_updater() const
{
#ifdef Q_OS_WIN
    return pathBelowCurrent(QStringLiteral("Update/Update.bat"));
#else
    return pathBelowCurrent(QStringLiteral("Update/Update.sh"));
#endif
}

QString AUTH_SET::filepath_update_inf() const
{
    return pathBelowCurrent(QStringLiteral("Config/update.ini"));
}

void AUTH_SET::write_update() const
{
    if (isNeverRecorded(d->applicationName))
        return;
    if (d->moduleIndex(QStringLiteral("Update")) < 0)
        return;
    writeIniFile(filepath_update_inf(),
                 { { QStringLiteral("Current/Name"), d->applicationName },
                   { QStringLiteral("Current/Version"), d->applicationVersion } });
}

QString AUTH_SET::language_local(int id) const
{
    return id == 1 ? QStringLiteral("zh_CN") : QStringLiteral("en");
}

QString AUTH_SET::language_local() const
{
    return QLocale::system().name();
}

int AUTH_SET::language_ID(QString name) const
{
    // Identifiers from 50 on are never tried.
    constexpr int searchEnd = 50;
    for (int id = 0; id < searchEnd; ++id) {
        if (language_local(id) == name)
            return id;
    }
    return 0;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// What a registry knows of its surroundings: log file, paths, update file and language.

#include "auth_set.h"

#include "core/inifile_p.h"
#include "registry/auth_set_p.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLocale>

#include <algorithm>
#include <iterator>

namespace {

QString logDirectory()
{
    return QDir::currentPath() + QLatin1String("/log");
}

/// The log file for appending; not open where that cannot be.
bool openLog(QFile &file)
{
    const QIODevice::OpenMode appending
        = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text;
    // Nearly always the directory is there, so that looking for it first would only cost time.
    return file.open(appending) || (QDir().mkpath(logDirectory()) && file.open(appending));
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

void writeIniValue(const QString &path, const QString &key, const QString &value)
{
    writeIniFile(path, { { key, value } });
}

} // namespace

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
    return logDirectory() + QLatin1Char('/') + time.leftRef(dateLength) + QLatin1Char('_')
        + applicationName + QLatin1String(".log");
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
    const QLatin1String extension(".bat");
#else
    const QLatin1String extension(".sh");
#endif
    return QDir::currentPath() + QLatin1String("/Update/Update") + extension;
}

QString AUTH_SET::filepath_update_inf() const
{
    return QDir::currentPath() + QLatin1String("/Config/update.ini");
}

void AUTH_SET::write_update() const
{
    if (isNeverRecorded(d->applicationName))
        return;
    if (d->moduleIndex(QStringLiteral("Update")) < 0)
        return;
    writeIniValue(filepath_update_inf(), QStringLiteral("Current/Name"), d->applicationName);
    writeIniValue(filepath_update_inf(), QStringLiteral("Current/Version"), d->applicationVersion);
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

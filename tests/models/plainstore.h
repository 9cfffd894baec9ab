// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PLAINSTORE_H
#define PLAINSTORE_H

#include "models/plainsettings.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSettings>
#include <QSharedPointer>

/// The rules of a settings store with its file, transcribed one by one, with QSettings alone.
class PlainStore : public PlainSettings
{
public:
    PlainStore() = default;
    explicit PlainStore(const Entries &data)
        : PlainSettings(data)
    {
    }
    explicit PlainStore(const QString &path) { setPath(path); }
    PlainStore(const QString &path, bool quickSave)
        : m_quickSave(quickSave)
    {
        setPath(path);
    }
    PlainStore(const QString &path, const Entries &data)
        : PlainStore(path, false, data)
    {
    }
    PlainStore(const QString &path, bool quickSave, const Entries &data)
        : m_quickSave(quickSave)
    {
        setPath(path);
        PlainSettings::setValue(data, true);
    }

    QString filepath() const { return m_path; }
    void setQuickSaveMode(bool on) { m_quickSave = on; }

    void setPath(const QString &path)
    {
        if (!isThere(path))
            return;
        m_path = path;
        QSettings &settings = settingsOf(path);
        settings.sync();
        Entries entries;
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys)
            entries.append({ key, isEmptyKey(key) ? QVariant() : settings.value(key) });
        PlainSettings::setValue(entries, true);
    }

    using PlainSettings::setValue;
    void setValue(QString key, QVariant value)
    {
        PlainSettings::setValue(key, value);
        if (m_quickSave)
            saveLocal();
    }

    void saveLocal() const { saveLocal(m_path); }
    void saveLocal(const QString &path) const
    {
        if (!isThere(path))
            return;
        QSettings &settings = settingsOf(path);
        const Entries entries = data();
        for (const auto &entry : entries) {
            if (!isEmptyKey(entry.first))
                settings.setValue(entry.first, entry.second);
        }
        settings.sync();
    }

private:
    /// QSettings refuses such keys with a warning.
    static bool isEmptyKey(const QString &key) { return key.count(QLatin1Char('/')) == key.size(); }

    static bool isThere(const QString &path)
    {
        // Qt warns about these.
        if (path.isEmpty() || path.contains(QChar::Null))
            return false;
        QFile file(path);
        file.open(QIODevice::ReadWrite | QIODevice::Text);
        file.close();
        return file.exists();
    }

    /// One for each file, so that QSettings remembers what it has written.
    static QSettings &settingsOf(const QString &path)
    {
        static QHash<QString, QSharedPointer<QSettings>> known;
        QSharedPointer<QSettings> &settings = known[QFileInfo(path).absoluteFilePath()];
        if (!settings) {
            settings.reset(new QSettings(path, QSettings::IniFormat));
            settings->setIniCodec("utf-8");
        }
        return *settings;
    }

    QString m_path;
    bool m_quickSave = false;
};

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/settingsfile_p.h"

#include "core/files_p.h"
#include "core/scratchdirectory_p.h"
#include "core/typedtext_p.h"

#include <QCache>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QSettings>

#include <algorithm>

namespace {

/// All files are opened through this, so that they are read in the encoding in which they were
/// written.
class Utf8Settings : public QSettings
{
public:
    explicit Utf8Settings(const QString &path)
        : QSettings(path, QSettings::IniFormat)
    {
        setIniCodec("utf-8");
    }
};

/// Whether anything of @p key is left when QSettings has dropped its superfluous slashes. QSettings
/// refuses other keys with a warning.
bool isKey(const QString &key)
{
    return std::any_of(key.cbegin(), key.cend(), [](QChar c) { return c != QLatin1Char('/'); });
}

KeyValues entriesOf(const QSettings &settings)
{
    const QStringList keys = settings.allKeys();
    KeyValues entries;
    entries.reserve(keys.size());
    for (const QString &key : keys)
        entries.append({ key, isKey(key) ? settings.value(key) : QVariant() });
    return entries;
}

/// Whether QSettings keeps all slashes of @p key when it sets its value.
bool keepsSlashes(const QString &key)
{
    const QLatin1Char slash('/');
    return !key.startsWith(slash) && !key.endsWith(slash) && !key.contains(QLatin1String("//"));
}

/// Sets what can be stored; whether there was any.
bool set(QSettings *settings, const KeyValues &entries)
{
    bool isAny = false;
    for (const KeyValue &entry : entries) {
        if (isKey(entry.first) && isStorable(entry.second)) {
            settings->setValue(entry.first, entry.second);
            isAny = true;
        }
    }
    return isAny;
}

/// What it costs to remember a file of so many keys; QSettings, too, remembers up to a hundred.
int costOf(int keys)
{
    return 10 + keys / 4;
}

constexpr int mostCost = 100;

/// What this process has written last, with the types that the values had. QSettings gives these
/// back, too, as long as nobody else has written the file.
class WrittenFiles
{
public:
    /// The entries of the file at @p path if it holds @p bytes; none if somebody else wrote them.
    KeyValues entries(const QString &path, const QByteArray &bytes) const
    {
        const QMutexLocker locker(&m_mutex);
        const SettingsFile *const file = m_files.object(keyOf(path));
        return file && file->bytes == bytes ? file->entries : KeyValues();
    }

    void insert(const QString &path, const SettingsFile &file)
    {
        const QMutexLocker locker(&m_mutex);
        m_files.remove(keyOf(path));
        if (!file.entries.isEmpty())
            m_files.insert(keyOf(path), new SettingsFile(file), costOf(file.entries.size()));
    }

private:
    static QString keyOf(const QString &path) { return QFileInfo(path).absoluteFilePath(); }

    mutable QMutex m_mutex;
    QCache<QString, SettingsFile> m_files { mostCost };
};

/// Never deleted, since hosts may also save when they end.
WrittenFiles &writtenFiles()
{
    static auto *const files = new WrittenFiles;
    return *files;
}

/// A section that QSettings writes behind all others, since it orders them by their names. It does
/// not notice when a disk is full in the end, but then this section is not there as a whole.
struct LastSection
{
    QString key = QString(20, QChar(0xffff)) + QLatin1String("/end");
    QByteArray bytes = "\n[" + QByteArray("%UFFFF").repeated(20) + "]\nend=true\n";
};

/// What QSettings makes of @p before when it sets @p entries; nothing where it fails. It works on a
/// file of its own in a new directory in @p place.
std::optional<SettingsFile> rewritten(const QString &place, const SettingsFile &before,
                                      const KeyValues &entries)
{
    ScratchDirectory directory(place);
    QFile file(directory.filePath());
    if (file.fileName().isEmpty() || !file.open(QIODevice::WriteOnly)
        || file.write(before.bytes) != before.bytes.size() || !file.flush())
        return {};
    file.close();
    Utf8Settings settings(file.fileName());
    set(&settings, before.entries);
    if (!set(&settings, entries))
        return before;
    const LastSection last;
    settings.setValue(last.key, true);
    settings.sync();
    QByteArray bytes = contentOf(file.fileName()).value_or(QByteArray());
    // This costs more when QSettings has freed its memory, since the heap joins the pieces first.
    directory.remove();
    if (!bytes.endsWith(last.bytes))
        return {};
    bytes.chop(last.bytes.size());
    // A section takes two lines more than its keys.
    const auto lines = std::count(bytes.cbegin(), bytes.cend(), '\n');
    if (costOf(static_cast<int>(lines / 3)) > mostCost)
        return SettingsFile { bytes, {} };
    KeyValues all = entriesOf(settings);
    all.removeLast();
    const bool isKept = std::all_of(all.cbegin(), all.cend(), [](const KeyValue &entry) {
        return keepsSlashes(entry.first);
    });
    return SettingsFile { bytes, isKept ? all : KeyValues() };
}

/// Where temporary files of all programs are. First in memory, if possible: QSettings waits for the
/// disk.
QStringList sharedPlaces()
{
    const QStringList places { QStringLiteral("/dev/shm"), QDir::tempPath() };
    // Once for each process, so that saving costs no more.
    static const bool isClean = [&places] {
        for (const QString &place : places)
            ScratchDirectory::removeAbandoned(place);
        return true;
    }();
    Q_UNUSED(isClean)
    return places;
}

} // namespace

KeyValues readSettings(const QString &path, const QByteArray &bytes)
{
    const KeyValues written = writtenFiles().entries(path, bytes);
    return written.isEmpty() ? entriesOf(Utf8Settings(path)) : written;
}

std::optional<SettingsFile> changedSettings(const QString &path, const QByteArray &bytes,
                                            const KeyValues &entries)
{
    const SettingsFile before { bytes, writtenFiles().entries(path, bytes) };
    const QStringList places = sharedPlaces();
    for (const QString &place : places) {
        if (const auto after = rewritten(place, before, entries))
            return after;
    }
    // In the end there is place at least where the file itself is to be written.
    const QString own = QFileInfo(path).absolutePath();
    ScratchDirectory::removeAbandoned(own);
    const auto after = rewritten(own, before, entries);
    // Others who clear up may take a directory for an abandoned one just when it is made.
    return after ? after : rewritten(own, before, entries);
}

void rememberSettings(const QString &path, const SettingsFile &file)
{
    writtenFiles().insert(path, file);
}

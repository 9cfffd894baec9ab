// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/inifile_p.h"

#include "core/inibytes_p.h"
#include "core/ininesting_p.h"

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QMetaType>
#include <QSettings>

#include <algorithm>
#include <new>

namespace {

/// A file is to be read in the encoding in which it was written, so all are opened through this.
class Utf8Settings : public QSettings
{
public:
    explicit Utf8Settings(const QString &path)
        : QSettings(path, QSettings::IniFormat)
    {
        setIniCodec("utf-8");
    }
};

/// Of other paths Qt complains on the error channel, or it takes a part of them for the whole.
bool isPath(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar::Null);
}

/// Not so a pipe, for one: reading from it would wait for somebody to write.
bool canBeFile(const QString &path)
{
    if (!isPath(path))
        return false;
    const QFileInfo info(path);
    return info.isFile() || !info.exists();
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return canBeFile(path) && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isDirectoryWritable(const QString &path)
{
    return path.isEmpty() || QFileInfo(QFileInfo(path).absolutePath()).isWritable();
}

/// Whether the file, the directory in which QSettings locks it, and the one in which it puts the
/// new file together can be written; through a link these are two. If not, QSettings would still
/// show the new values to everybody in this process. It also makes missing directories, when it is
/// asked: that comes first.
bool isWritable(const QSettings &settings)
{
    const QString path = settings.fileName();
    return settings.isWritable() && isDirectoryWritable(path)
        && isDirectoryWritable(QFileInfo(path).canonicalFilePath());
}

/// How long another program may keep the file locked while it writes.
constexpr int longestLock = 1000;

/// Whether nobody else is just writing the file. QSettings would wait for that without end, also
/// for something that merely has the name of its lock.
bool isUnlocked(const QSettings &settings)
{
    const QFileInfo lock(settings.fileName() + QLatin1String(".lock"));
    return !lock.exists() || (lock.isFile() && QLockFile(lock.filePath()).tryLock(longestLock));
}

/// Makes a copy of the file at @p path, which holds @p bytes, and tells whether there is one.
bool copyAside(const QString &path, const QByteArray &bytes)
{
    QString copy = path + QLatin1String(".bak");
    // An earlier copy is as valuable as this one.
    for (int number = 2; QFile::exists(copy); ++number) {
        if (bytesOf(copy) == bytes)
            return true;
        copy = path + QLatin1String(".bak") + QString::number(number);
    }
    return QFile::copy(path, copy);
}

/// Whether anything of @p key is left when QSettings has dropped its superfluous slashes; of other
/// keys it only says on the error channel that it does not take them.
bool isKey(const QString &key)
{
    return std::any_of(key.cbegin(), key.cend(), [](QChar c) { return c != QLatin1Char('/'); });
}

/// Deeper lists of lists than this are nothing that a program stores. QSettings would follow them
/// until the stack ends.
constexpr int deepestList = 100;

bool isStorable(const QVariant &value, int depth = 0);

template <typename Values> bool areStorable(const Values &values, int depth)
{
    for (const QVariant &value : values) {
        if (!isStorable(value, depth))
            return false;
    }
    return true;
}

/// A pointer, for one, cannot be stored; QSettings would write rubbish and complain.
bool isStorable(const QVariant &value, int depth)
{
    if (depth > deepestList)
        return false;
    switch (value.userType()) {
    case QMetaType::UnknownType:
    // Most values are of these types, for which the attempt below always succeeds.
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QStringList:
        return true;
    case QMetaType::QVariantList:
        return areStorable(value.toList(), depth + 1);
    case QMetaType::QVariantMap:
        return areStorable(value.toMap(), depth + 1);
    case QMetaType::QVariantHash:
        return areStorable(value.toHash(), depth + 1);
    default:
        break;
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    return QMetaType::save(stream, value.userType(), value.constData());
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

/// Whether what the file holds, its @p bytes, will be there after writing, in it or in a copy.
bool isKept(const QByteArray &bytes, const QSettings &settings)
{
    return survivesRewriting(bytes, settings) || copyAside(settings.fileName(), bytes);
}

void write(QSettings *settings, const KeyValues &entries)
{
    for (const KeyValue &entry : entries) {
        if (isKey(entry.first) && isStorable(entry.second))
            settings->setValue(entry.first, entry.second);
    }
    settings->sync();
}

} // namespace

bool ensureFile(const QString &path)
{
    if (!isPath(path))
        return false;
    QFile file(path);
    return file.exists() || file.open(QIODevice::ReadWrite | QIODevice::Text);
}

// A damaged value can make QSettings ask for more memory than there is, or nest deeper than the
// stack goes. Such a file has no keys and is left alone.

KeyValues readIniFile(const QString &path)
{
    if (!canBeFile(path))
        return {};
    try {
        if (QFileInfo(path).size() >= smallestDeepFile && nestsTooDeep(bytesOf(path)))
            return {};
        return entriesOf(Utf8Settings(path));
    } catch (const std::bad_alloc &) {
        return {};
    }
}

void writeIniFile(const QString &path, const KeyValues &entries)
{
    if (entries.isEmpty() || !canBeFile(path))
        return;
    try {
        QByteArray bytes = bytesOf(path);
        if (nestsTooDeep(bytes))
            return;
        Utf8Settings settings(path);
        if (!isWritable(settings) || !isUnlocked(settings) || !isKept(bytes, settings))
            return;
        // Their memory is of use in writing.
        bytes.clear();
        write(&settings, entries);
    } catch (const std::bad_alloc &) {
    }
}

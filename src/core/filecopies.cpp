// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/filecopies_p.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace {

/// The names for copies of the file at @p path, newest first, without those that something else has
/// taken, a directory or a link for example.
QStringList copyPaths(const QString &path)
{
    QStringList paths;
    for (const char *ending : { ".bak", ".bak2", ".bak3", ".bak4", ".bak5" }) {
        const QString copy = path + QLatin1String(ending);
        if (canBeFile(copy) && !QFileInfo(copy).isSymLink())
            paths.append(copy);
    }
    return paths;
}

} // namespace

bool isPath(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar::Null);
}

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

bool keepCopy(const QString &path, const QByteArray &bytes)
{
    const QStringList copies = copyPaths(path);
    const auto isSame = [&bytes](const QString &copy) { return bytesOf(copy) == bytes; };
    if (copies.isEmpty() || std::any_of(copies.cbegin(), copies.cend(), isSame))
        return !copies.isEmpty();
    // Under a name of its own first, so that no earlier copy is removed if copying fails.
    const QString newest = path + QLatin1String(".bak.new");
    QFile::remove(newest);
    if (!QFile::copy(path, newest))
        return false;
    int last = 0;
    while (last + 1 < copies.size() && QFile::exists(copies.at(last)))
        ++last;
    QFile::remove(copies.at(last));
    for (; last > 0; --last)
        QFile::rename(copies.at(last - 1), copies.at(last));
    return QFile::rename(newest, copies.constFirst());
}

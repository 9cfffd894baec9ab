// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "core/filecopies_p.h"

#include "core/files_p.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryFile>

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

bool keepCopy(const QString &path, const QByteArray &bytes)
{
    // The others move up by one, up to the one that has the same content, to the first free name,
    // or to the last.
    const QStringList copies = copyPaths(path);
    const auto endsMoving = [&bytes](const QString &copy) {
        return !QFile::exists(copy) || contentOf(copy) == bytes;
    };
    const auto found = std::find_if(copies.cbegin(), copies.cend(), endsMoving);
    int last = qMin(static_cast<int>(found - copies.cbegin()), copies.size() - 1);
    if (copies.isEmpty())
        return false;
    if (found == copies.cbegin() && QFile::exists(*found))
        return true;
    // Under a name of its own first, so that no earlier copy is removed if writing fails.
    QTemporaryFile newest(path + QLatin1String(".bak.XXXXXX"));
    if (!newest.open() || !writeWhole(&newest, bytes))
        return false;
    newest.setPermissions(QFile::permissions(path));
    QFile::remove(copies.at(last));
    for (; last > 0; --last)
        QFile::rename(copies.at(last - 1), copies.at(last));
    const bool isKept = newest.rename(copies.constFirst());
    newest.setAutoRemove(!isKept);
    return isKept;
}

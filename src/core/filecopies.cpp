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

/// Gives each file of @p names the name behind its own, of which the last one is free: all of them,
/// or none.
bool moveUp(const QStringList &names)
{
    const int last = names.size() - 1;
    int moved = last;
    while (moved > 0 && QFile::rename(names.at(moved - 1), names.at(moved)))
        --moved;
    if (moved == 0)
        return true;
    for (; moved < last; ++moved)
        QFile::rename(names.at(moved + 1), names.at(moved));
    return false;
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
    if (copies.isEmpty())
        return false;
    if (found == copies.cbegin() && QFile::exists(*found))
        return true;
    // Under a name of its own first, so that no earlier copy is removed if writing fails.
    QTemporaryFile newest(path + QLatin1String(".bak.XXXXXX"));
    if (!newest.open() || !writeWhole(&newest, bytes))
        return false;
    newest.setPermissions(QFile::permissions(path));
    newest.close();
    const int count = static_cast<int>(found - copies.cbegin()) + 1;
    QStringList names = QStringList(newest.fileName()) + copies.mid(0, count);
    // The one that is dropped stays until the others have moved: somebody else may own one of them.
    const QString dropped = newest.fileName() + QLatin1String(".old");
    if (QFile::exists(names.constLast()))
        names.append(dropped);
    const bool isKept = moveUp(names);
    newest.setAutoRemove(!isKept);
    if (isKept)
        QFile::remove(dropped);
    return isKept;
}

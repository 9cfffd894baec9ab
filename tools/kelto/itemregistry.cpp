// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "itemregistry.h"

#include "console.h"
#include "itempaths.h"

QVector<ItemFile> readItemFiles(const QStringList &paths, Console &console, bool *areAllRead)
{
    QVector<ItemFile> files;
    const QStringList found = itemFilesAt(paths, console, areAllRead);
    for (const QString &path : found) {
        const ItemFile file(path);
        const QString complaint = file.whyNoModule();
        if (complaint.isEmpty()) {
            files.append(file);
        } else {
            console.complain(complaint);
            *areAllRead = false;
        }
    }
    return files;
}

AUTH_SET registryOf(const QString &name, const QVector<AUTH_INF> &items)
{
    // A registry made without items writes a log, and one with an item "Update" its file.
    AUTH_SET registry(name, QString(), { AUTH_INF() });
    registry.acquire(items);
    return registry;
}

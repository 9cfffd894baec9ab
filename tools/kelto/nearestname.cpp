// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "nearestname.h"

#include "command.h"
#include "core/similarnames_p.h"

QString nearestName(const QString &name, const QStringList &names)
{
    SimilarNames similar;
    for (const QString &candidate : names)
        similar.append(comparableName(candidate));
    const QString wanted = comparableName(name);
    const QVector<int> nearest = similar.nearest(wanted, tolerableEdits(wanted.size()));
    return nearest.isEmpty() ? QString() : names.at(nearest.constFirst());
}

QString didYouMean(const QString &name, const QStringList &names)
{
    return didYouMean(nearestName(name, names));
}

QString didYouMean(const QString &nearest)
{
    if (nearest.isEmpty())
        return {};
    // With the blank, which other languages do without.
    return Command::tr(" Did you mean \"%1\"?").arg(nearest);
}

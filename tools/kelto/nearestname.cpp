// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "nearestname.h"

#include "command.h"

NearestNames::NearestNames(const QStringList &names)
    : m_names(names)
{
}

QString NearestNames::nearest(const QString &name) const
{
    if (!m_similar) {
        m_similar.emplace();
        for (const QString &candidate : m_names)
            m_similar->append(comparableName(candidate));
    }
    const QString wanted = comparableName(name);
    const QVector<int> nearest = m_similar->nearest(wanted, tolerableEdits(wanted.size()));
    return nearest.isEmpty() ? QString() : m_names.at(nearest.constFirst());
}

QString nearestName(const QString &name, const QStringList &names)
{
    return NearestNames(names).nearest(name);
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

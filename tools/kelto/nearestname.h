// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef NEARESTNAME_H
#define NEARESTNAME_H

#include "core/similarnames_p.h"

#include <QStringList>

#include <optional>

/// The one of @p names that a mistyped @p name most likely stands for; empty when none is similar.
QString nearestName(const QString &name, const QStringList &names);

/// The same for many mistyped names, each compared with the same names. Costs nothing as long as
/// there are none.
class NearestNames
{
public:
    explicit NearestNames(const QStringList &names);

    const QStringList &names() const { return m_names; }
    QString nearest(const QString &name) const;

private:
    const QStringList m_names;
    mutable std::optional<SimilarNames> m_similar; ///< Made when the first name is sought.
};

/// " Did you mean "..."?" for the nearest of @p names, to be put behind a sentence; empty when none
/// is similar.
QString didYouMean(const QString &name, const QStringList &names);

/// The same for the nearest name itself.
QString didYouMean(const QString &nearest);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MODEDESCRIPTION_P_H
#define MODEDESCRIPTION_P_H

#include <Kelto/AUTH_INF>
#include <Kelto/KeltoItemHints>
#include <Kelto/VParameter>

#include <QString>
#include <QVector>

class AUTH_SET;

/**
 * One mode, cut out of its module: an item with this single inner mode, so that hints and findings
 * can be asked for by name wherever modes share theirs.
 */
struct ModeDescription
{
    AUTH_INF item;
    KeltoItemHints hints;
    /// In the order of the hints, each key once. The entries of the item have the same order.
    QVector<VParameter> parameters;

    /// Plain name of the mode.
    QString mode() const { return item.inner_mode_nameList.value(0); }
};

/// The mode at @p position of an exclusive group; nothing for what is unknown and for null.
ModeDescription modeAt(const AUTH_SET *registry, const QString &group, int position);

/// A mode of its own made of parameters and what @p hints say about them.
ModeDescription modeOf(const QVector<VParameter> &parameters, const KeltoItemHints &hints);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef VDATAITEM_H
#define VDATAITEM_H

#include <QString>
#include <QVariant>
#include <QVector>

#include <utility>

/// One extra key of a module item: a key with its value. Some keys are hints, see KeltoItemHints;
/// of all others Kelto knows no meaning.
struct VDataItem
{
    VDataItem() = default;
    VDataItem(QString itemKey, QVariant itemValue)
        : key(std::move(itemKey))
        , value(std::move(itemValue))
    {
    }

    QString key;
    QVariant value;
};

Q_DECLARE_TYPEINFO(VDataItem, Q_MOVABLE_TYPE);

#endif

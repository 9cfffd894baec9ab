// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef INIDOCUMENT_H
#define INIDOCUMENT_H

#include <AUTH_INF>

#include <QByteArray>
#include <QStringList>

/// The item file of an item, in the layout of "kelto fmt".
QByteArray iniOf(const AUTH_INF &item);

/// What the library would not read from that file: the fields that come back changed, and whether
/// there are translated texts, which item files never hold.
struct IniLoss
{
    QStringList fields;
    bool hasTranslations = false;
};
IniLoss lossOf(const AUTH_INF &item, const QByteArray &ini);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef JSONITEM_H
#define JSONITEM_H

#include <AUTH_INF>

#include <QJsonObject>

/// What is wrong with a JSON text, and where.
struct JsonError
{
    QString pointer; ///< A JSON pointer.
    QString text; ///< A sentence; empty when nothing is wrong.
};

/// Every field of @p item under its own name. Translated texts are there only where they differ
/// from the plain ones.
QJsonObject jsonOf(const AUTH_INF &item);

/// The item in @p object, equal in every field to the one that it was made of. What is missing is
/// empty, but translated texts are the plain ones then.
AUTH_INF itemIn(const QJsonObject &object, JsonError *error);

/// The same from the bytes of a file.
AUTH_INF itemInJson(const QByteArray &bytes, JsonError *error);

#endif

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef ITEMSOURCE_H
#define ITEMSOURCE_H

#include <AUTH_INF>

#include <QByteArray>
#include <QString>
#include <QVector>

/// Items whose source text is to be made. Nothing but literals and identifiers of them gets into
/// it; the caller makes sure that these are identifiers, and that items which are not embedded have
/// no other problem either.
struct SourceItems
{
    struct Item
    {
        AUTH_INF item;
        QString path;
    };
    QString name; ///< Of the files, the namespace and the resources.
    QVector<Item> items;
};

/// Whether one of the functions below has made a file that begins with @p bytes.
bool isGeneratedText(const QByteArray &bytes);

/// The header, which declares the function of each item that names one, and allItems().
QByteArray headerText(const SourceItems &items);

/// Its source, which builds the items as AUTH_INF::to_code() does.
QByteArray sourceText(const SourceItems &items);

/// Its source, which loads the items from the program's resources and translates them.
QByteArray embeddingSourceText(const SourceItems &items);

/// The list of the resources, for a file in the directory @p directory.
QByteArray resourceList(const SourceItems &items, const QString &directory);

#endif

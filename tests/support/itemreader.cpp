// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// itemreader FILE...: loads a module item from each of the INI files and prints all of them as a
// JSON array. A process of its own sees what is in the files and nothing else.

#include "support/itemjson.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList files = application.arguments().mid(1);
    QVector<AUTH_INF> items;
    for (const QString &file : files) {
        AUTH_INF item;
        item.load_ini(file);
        items.append(item);
    }
    const QByteArray text = QJsonDocument(itemsAsJson(items)).toJson();
    return std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout)
            == std::size_t(text.size())
        ? 0
        : 1;
}

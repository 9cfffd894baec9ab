// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A host of compiled items: prints the name of each, and the help of the first.

#include "keltoitems.h"

#include <Kelto/KeltoItemHints>

#include <QCoreApplication>
#include <QTextStream>
#include <QTranslator>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QTranslator translator;
    if (translator.load(":/translations/host_zh_CN.qm"))
        QCoreApplication::installTranslator(&translator);
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    const QVector<KeltoItem> items = keltoitems::allItems();
    for (const KeltoItem &item : items)
        out << item.name_tr << '\n';
    out << KeltoItemHints(items.first()).help("Length") << '\n';
    return 0;
}

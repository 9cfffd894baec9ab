// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// All of a small host but the function with the generated items, which a test compiles and links to
// it: prints the items as a JSON array.

#include "contexts.h"
#include "support/itemjson.h"
#include "support/markingtranslator.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTextStream>

/// Written by the test.
QVector<AUTH_INF> generatedItems();

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    MarkingTranslator translator(QStringLiteral("QObjectContext"));
    QCoreApplication::installTranslator(&translator);
    // In ASCII, whatever the encoding of the environment is.
    QTextStream(stdout) << QJsonDocument(itemsAsJson(generatedItems())).toJson();
    return 0;
}

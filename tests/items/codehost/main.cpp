// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// All of a small host but the function with the generated items, which a test compiles and links to
// it: prints the items as a JSON array.

#include "contexts.h"
#include "support/itemjson.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTextStream>
#include <QTranslator>

/// Written by the test.
QVector<AUTH_INF> generatedItems();

/// Marks the texts of one context.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (QLatin1String(context) != QLatin1String("QObjectContext"))
            return QString();
        return QLatin1Char('[') + QString::fromUtf8(text) + QLatin1Char(']');
    }
};

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    MarkingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    // In ASCII, whatever the encoding of the environment is.
    QTextStream(stdout) << QJsonDocument(itemsAsJson(generatedItems())).toJson();
    return 0;
}

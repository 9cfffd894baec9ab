// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// All of a small host but the function with the generated items, which a test compiles and links to
// it: prints the items as a JSON array.

#include "qobjectcontext.h"
#include "support/itemjson.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTranslator>

#include <cstdio>

/// Written by the test.
QVector<AUTH_INF> generatedItems();

namespace {

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

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    MarkingTranslator translator;
    QCoreApplication::installTranslator(&translator);

    const QByteArray text = QJsonDocument(itemsAsJson(generatedItems())).toJson();
    return std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout)
            == std::size_t(text.size())
        ? 0
        : 1;
}

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Items from files get the texts that their source text gets: it is compiled into a program that
// is run with the same translator.

#include "support/compiledhost.h"
#include "support/directorytest.h"
#include "support/itemjson.h"
#include "support/markingtranslator.h"
#include "support/randomitems.h"

#include <Kelto/KeltoItemTranslation>

#include <QTest>

namespace {

const QStringList &texts()
{
    static const QStringList list { "",    "梁",      "one end", "%1 of 100 %", " padded ",
                                    "é ß", "a<b>&c;", "[x]",     "'single'",    "calculation" };
    return list;
}

QVector<QStringList> entries(Dice *dice)
{
    QVector<QStringList> list;
    for (int i = dice->between(0, 3); i > 0; --i) {
        QStringList entry = dice->someOf(texts(), 9);
        // Shorter and longer ones are no entries, and source text holds them as they are.
        if (dice->chance(30))
            entry = (entry + entry).mid(0, dice->between(0, 10));
        list.append(entry);
    }
    return list;
}

/// A calculation with lists of the length that its source text writes.
AUTH_INF randomItem(Dice *dice)
{
    AUTH_INF item;
    item.name = dice->oneOf(texts());
    item.name_tr = "replaced";
    item.description = dice->oneOf(texts());
    item.type = "calculation";
    item.group = dice->oneOf(texts());
    item.inner_mode_count = dice->between(0, 3);
    item.inner_mode_description = dice->someOf(texts(), dice->between(0, 3));
    item.inner_mode_nameList = dice->someOf(texts(), dice->between(0, 3));
    item.inner_mode_nameList_tr = dice->someOf(texts(), dice->between(0, 3));
    for (int i = 0; i < item.inner_mode_count; ++i)
        item.inner_mode_parameterList.append(entries(dice));
    item.output_results = entries(dice);
    item.extraKey = { { "Label.x", "text" } };
    item.trObjectName = "QObjectContext";
    return item;
}

} // namespace

class TestKeltoItemTranslation : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheTextsOfSourceText()
    {
        Dice dice(1);
        QVector<AUTH_INF> items;
        QString source;
        for (int i = 0; i < 20; ++i) {
            items.append(randomItem(&dice));
            source += "{\n" + items.last().to_code() + "items << inf;\n}\n";
        }
        const QJsonArray compiled = compiledItems(source);
        QCOMPARE(compiled.size(), items.size());

        MarkingTranslator translator("QObjectContext");
        QCoreApplication::installTranslator(&translator);
        for (int i = 0; i < items.size(); ++i) {
            const AUTH_INF item = KeltoItemTranslation::translated(items.at(i));
            // The translator marks empty texts as well, which real ones never do.
            const QJsonObject expected = withoutMarkedEmpties(compiled.at(i).toObject());
            QCOMPARE(differences(expected, itemAsJson(item)), "");
        }
    }

    void itemsOfNoContextHaveThatOfSourceText()
    {
        AUTH_INF item;
        item.name = "Beam";
        item.trObjectName.clear();
        QCOMPARE(KeltoItemTranslation::contextOf(item), "UCal");
        QVERIFY(item.to_code().contains("UCal::tr(\"Beam\")"));
        MarkingTranslator translator("UCal");
        QCoreApplication::installTranslator(&translator);
        QCOMPARE(KeltoItemTranslation::translated(item).name_tr, "[Beam]");
    }

    /// Source text describes parameters of calculations only, but files hold those of all items.
    void entriesOfAnyTypeAreTranslated()
    {
        AUTH_INF item;
        item.type = "tool";
        item.inner_mode_count = 0;
        item.inner_mode_parameterList = { { { "g", "k", "", "", "", "", "", "key", "group" } } };
        MarkingTranslator translator("UCal");
        QCoreApplication::installTranslator(&translator);
        KeltoItemTranslation::translate(&item);
        QCOMPARE(item.inner_mode_parameterList.first().first().mid(7),
                 QStringList({ "[key]", "[group]" }));
        QCOMPARE(item.inner_mode_parameterList.first().first().mid(0, 2),
                 QStringList({ "g", "k" }));
    }

    void whatHasNoTranslationStays_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString("");
        QTest::newRow("plain") << QString("Beam");
        QTest::newRow("half a character") << QString(QChar(0xd800));
        QTest::newRow("a zero inside") << QString("a") + QChar(0) + "b";
    }
    void whatHasNoTranslationStays()
    {
        QFETCH(QString, text);
        QCOMPARE(KeltoItemTranslation::text("Texts", text), text);
        MarkingTranslator translator("Other");
        QCoreApplication::installTranslator(&translator);
        QCOMPARE(KeltoItemTranslation::text("Texts", text), text);
    }

    void ignoresNull() { KeltoItemTranslation::translate(nullptr); }

private:
    static QJsonObject withoutMarkedEmpties(const QJsonObject &object)
    {
        QByteArray text = QJsonDocument(object).toJson();
        text.replace("\"[]\"", "\"\"");
        return QJsonDocument::fromJson(text).object();
    }
};

QTEST_GUILESS_MAIN(TestKeltoItemTranslation)
#include "tst_keltoitemtranslation.moc"

// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The source text of module items as a host uses it: compiled into a program that is run, and
// searched for texts to translate.

#include "support/compiledhost.h"
#include "support/directorytest.h"
#include "support/harditems.h"
#include "support/itemjson.h"
#include "support/testfiles.h"

#include <QRegularExpression>
#include <QTest>

namespace {

AUTH_INF itemOfType(const QString &type)
{
    AUTH_INF item = fullItem();
    item.type = type;
    return item;
}

AUTH_INF itemWithListsOfOne()
{
    AUTH_INF item = fullItem();
    item.lib_name = QStringList { "beam" };
    item.inner_mode_description = QStringList { "one end" };
    item.inner_mode_nameList = QStringList { "Cantilever" };
    item.inner_mode_parameterList = { { entry("Load") } };
    item.output_results = { entry("Deflection") };
    item.extraKey = { { "key", "value" } };
    return item;
}

AUTH_INF itemWithShortEntries(int count)
{
    AUTH_INF item = fullItem();
    item.inner_mode_count = count;
    // Lists of two texts, which could also be read as a range of characters.
    item.inner_mode_parameterList = { { entry("Load").mid(0, 2), QStringList() }, { entry("x") } };
    item.output_results = { QStringList(), entry("Deflection").mid(0, 2) };
    return item;
}

/// The source text in which @p marks mark what is translated: "<>" or "[]".
struct Context
{
    QString className;
    QString marks;

    QString tr(const QString &text) const { return marks.at(0) + text + marks.at(1); }
    QStringList tr(QStringList texts) const
    {
        for (QString &text : texts)
            text = tr(text);
        return texts;
    }
    QVector<QStringList> entries(QVector<QStringList> list) const
    {
        for (QStringList &strings : list) {
            for (int place = 7; place < strings.size(); ++place)
                strings[place] = tr(strings.at(place));
        }
        return list;
    }

    /// What a program holds after it has run the source text of @p item.
    AUTH_INF compiled(const AUTH_INF &item) const
    {
        AUTH_INF result = item;
        result.name_tr = tr(item.name);
        result.description = tr(item.description);
        result.type_tr = tr(item.type);
        result.group_tr = tr(item.group);
        result.inner_mode_description = tr(item.inner_mode_description);
        result.inner_mode_nameList_tr = tr(item.inner_mode_nameList);
        result.inner_mode_parameterList.clear();
        result.output_results.clear();
        if (item.type == "calculation") {
            for (int i = 0; i < item.inner_mode_count; ++i)
                result.inner_mode_parameterList.append(
                    entries(item.inner_mode_parameterList.value(i)));
            result.output_results = entries(item.output_results);
        }
        for (VDataItem &extra : result.extraKey)
            extra.value = extra.value.toString();
        return result;
    }
};

} // namespace

class TestAuthInfCodeCompiles : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void compiledItemsEqualTheirOrigin()
    {
        const QVector<Context> contexts { { "PlainContext", "<>" },
                                          { "Host::Texts", "<>" },
                                          { "QObjectContext", "[]" } };
        const QVector<AUTH_INF> items { AUTH_INF(),
                                        itemWithListsOfOne(),
                                        itemWithShortEntries(1),
                                        itemWithShortEntries(4),
                                        itemWithShortEntries(-1),
                                        fullItem(),
                                        itemOfType("Calculation") };
        QString source;
        QVector<AUTH_INF> expected;
        for (const Context &context : contexts) {
            for (const AUTH_INF &item : items) {
                source += "{\n" + item.to_code(context.className, "item") + "items << item;\n}\n";
                expected.append(context.compiled(item));
            }
        }
        const QJsonArray compiled = compiledItems(source);
        QCOMPARE(compiled.size(), expected.size());
        for (int i = 0; i < compiled.size(); ++i)
            QCOMPARE(differences(compiled.at(i).toObject(), itemAsJson(expected.at(i))), "");
    }

    void textsToTranslateAreFound_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QStringList>("expected");

        const QStringList always { "梁", "Cantilever", "Bridges", "one end", "简支", "两端" };
        const QStringList entries { "Load_tr", "x_tr", "Deflection_tr", "应力_tr", "S_tr" };
        QTest::newRow("a calculation") << "calculation" << always + entries;
        QTest::newRow("another type") << "tool" << always;
    }
    void textsToTranslateAreFound()
    {
        QFETCH(QString, type);
        QFETCH(QStringList, expected);
        const AUTH_INF item = itemOfType(type);
        const QString source = "KeltoItem f()\n{\n" + item.to_code() + "return inf;\n}\n";
        QVERIFY(writeFile("item.cpp", source.toUtf8()));
        outputOf(KELTO_LUPDATE, { "item.cpp", "-silent", "-ts", "item.ts" });

        const QString texts = QString::fromUtf8(fileContent("item.ts"));
        QCOMPARE(texts.count("<name>"), 1);
        QVERIFY(texts.contains("<name>Texts</name>"));
        QStringList found;
        static const QRegularExpression element("<source>(.*)</source>");
        for (auto match = element.globalMatch(texts); match.hasNext();)
            found.append(match.next().captured(1));
        expected += { item.description.toHtmlEscaped().replace("'", "&apos;"), type };
        found.sort();
        expected.sort();
        QCOMPARE(found, expected);
    }
};

QTEST_GUILESS_MAIN(TestAuthInfCodeCompiles)
#include "tst_auth_inf_code_compiles.moc"
